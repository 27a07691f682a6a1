#include "map_editor/map_editor_progress.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

namespace {

constexpr int DelayMs = 300;
constexpr int TextWidth = 240; // pixels
constexpr int BarWidth = 120;

} // namespace

MapEditorProgress::MapEditorProgress(QWidget *parent) : QWidget(parent), m_text(new QLabel), m_bar(new QProgressBar)
{
    m_bar->setObjectName(QStringLiteral("fileProgress"));
    m_bar->setFixedWidth(BarWidth);
    m_text->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto *cancel = new QToolButton;
    cancel->setObjectName(QStringLiteral("cancelFileWork"));
    cancel->setText(tr("Cancel"));
    connect(cancel, &QToolButton::clicked, this, &MapEditorProgress::cancelled);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text);
    layout->addWidget(m_bar);
    layout->addWidget(cancel);
    m_delay.setSingleShot(true);
    m_delay.setInterval(DelayMs);
    connect(&m_delay, &QTimer::timeout, this, &QWidget::show);
    hide();
}

void MapEditorProgress::begin(const QString &text)
{
    m_text->setText(fontMetrics().elidedText(text, Qt::ElideMiddle, TextWidth));
    m_bar->setValue(0);
    m_delay.start();
}

void MapEditorProgress::setPercent(int percent)
{
    m_bar->setValue(percent);
}

void MapEditorProgress::end()
{
    m_delay.stop();
    hide();
}
