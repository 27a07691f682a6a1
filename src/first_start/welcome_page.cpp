#include "first_start/welcome_page.h"

#include "app/theme_library.h"
#include "widgets/quiet_hint.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr double HeadingScale = 1.5; // of the interface's font
constexpr int Gap = 12;
constexpr int ButtonHeight = 2; // lines of text

} // namespace

WelcomePage::WelcomePage(QWidget *parent) : QWidget(parent), m_theme(new QComboBox)
{
    auto *heading = new QLabel(tr("What do you want to see?"), this);
    QFont large = heading->font();
    large.setPointSizeF(large.pointSizeF() * HeadingScale);
    heading->setFont(large);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(heading);
    layout->addSpacing(Gap);
    auto *ways = new QGridLayout;
    ways->setHorizontalSpacing(Gap);
    ways->setVerticalSpacing(Gap);
    ways->setColumnStretch(1, 1);
    layout->addLayout(ways);
    addWay(ways, tr("&Demonstration"),
        tr("Made-up traffic, to look around. Your settings stay as they are; Stop ends it."), &WelcomePage::demoChosen)
        ->setObjectName(QStringLiteral("demo"));
    addWay(ways, tr("Open a &Recording..."),
        tr("A capture or a recorder's file. What it holds is found out by itself."), &WelcomePage::recordingChosen)
        ->setObjectName(QStringLiteral("recording"));
    addWay(ways, tr("&Live Input..."), tr("A network or a serial line. You see what arrives before anything is set."),
        &WelcomePage::liveChosen)
        ->setObjectName(QStringLiteral("live"));
    layout->addSpacing(Gap);
    m_theme->setObjectName(QStringLiteral("theme"));
    for (const QString &name : ThemeLibrary().names()) {
        m_theme->addItem(Theme::shownName(name), name);
    }
    auto *label = new QLabel(tr("&Theme:"), this);
    label->setBuddy(m_theme);
    auto *look = new QHBoxLayout;
    look->addWidget(label);
    look->addWidget(m_theme);
    look->addStretch(1);
    layout->addLayout(look);
    layout->addStretch(1);
    layout->addWidget(
        makeQuietHint(tr("Esc leads to the empty scope. Help, Getting Started... brings this page back."), this));
}

QPushButton *WelcomePage::addWay(
    QGridLayout *ways, const QString &text, const QString &description, void (WelcomePage::*chosen)())
{
    auto *button = new QPushButton(text, this);
    QFont bold = button->font();
    bold.setBold(true);
    button->setFont(bold);
    button->setMinimumHeight(button->fontMetrics().height() * ButtonHeight);
    button->setAccessibleDescription(description);
    connect(button, &QPushButton::clicked, this, chosen);
    auto *label = new QLabel(description, this);
    label->setWordWrap(true);
    ways->addWidget(button, ways->rowCount(), 0);
    ways->addWidget(label, ways->rowCount() - 1, 1);
    return button;
}

void WelcomePage::preselectTheme(const QString &name)
{
    const int index = m_theme->findData(name);
    if (index >= 0) {
        m_theme->setCurrentIndex(index);
    }
}

QString WelcomePage::theme() const
{
    return m_theme->currentData().toString();
}
