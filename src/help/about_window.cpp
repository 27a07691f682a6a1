#include "help/about_window.h"

#include "app/app_identity.h"
#include "help/library_versions.h"
#include "help/markdown_window.h"
#include "widgets/window_opening.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QSysInfo>
#include <QVBoxLayout>

namespace {

constexpr auto NoticesFile = ":/THIRD-PARTY-NOTICES.md";

} // namespace

QString AboutWindow::versionText()
{
    const QStringList program{
        tr("%1 %2").arg(QGuiApplication::applicationDisplayName(), QCoreApplication::applicationVersion()),
        tr("Revision %1").arg(buildRevision()),
    };
    const QString system = tr("%1, %2").arg(QSysInfo::prettyProductName(), QSysInfo::buildAbi());
    return (program + LibraryVersions::lines() + QStringList{system}).join(u'\n');
}

AboutWindow::AboutWindow(QWidget *parent) : GeometryDialog(QStringLiteral("AboutWindow"), parent)
{
    setWindowTitle(tr("About %1").arg(QGuiApplication::applicationDisplayName()));
    auto *name = new QLabel(QGuiApplication::applicationDisplayName(), this);
    QFont nameFont = name->font();
    nameFont.setBold(true);
    nameFont.setPointSizeF(nameFont.pointSizeF() * 1.8);
    name->setFont(nameFont);
    auto *purpose = new QLabel(tr("Air traffic surveillance display"), this);
    auto *versions = new QLabel(versionText(), this);
    versions->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto *copyright = new QLabel(tr("Copyright © Korvane. All rights reserved."), this);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, Qt::Horizontal, this);
    QPushButton *copy = buttons->addButton(tr("C&opy"), QDialogButtonBox::ActionRole);
    copy->setAutoDefault(false);
    copy->setToolTip(tr("Copy the versions, for a fault report"));
    connect(copy, &QPushButton::clicked, this, [] { QGuiApplication::clipboard()->setText(versionText()); });
    QPushButton *notices = buttons->addButton(tr("&Third-Party Notices"), QDialogButtonBox::ActionRole);
    notices->setAutoDefault(false);
    notices->setVisible(QFile::exists(QString::fromLatin1(NoticesFile)));
    connect(notices, &QPushButton::clicked, this, [this] {
        auto *window = new MarkdownWindow(
            QStringLiteral("NoticesWindow"), tr("Third-Party Notices"), QString::fromLatin1(NoticesFile), this);
        openOver(window);
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &AboutWindow::reject);
    buttons->button(QDialogButtonBox::Close)->setFocus();

    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->setContentsMargins(20, 20, 20, 12);
    for (QWidget *line : QList<QWidget *>{name, purpose, versions, copyright}) {
        layout->addWidget(line);
    }
    layout->addStretch(1);
    layout->addWidget(buttons);
}
