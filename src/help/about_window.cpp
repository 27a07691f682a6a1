#include "help/about_window.h"

#include "app/app_identity.h"

#include "airdb/lib_air_db.h"
#include "asterix/asterix.h"
#include "modes/lib_mode_s.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QSysInfo>
#include <QVBoxLayout>

QString AboutWindow::versionText()
{
    const QStringList lines{
        tr("%1 %2").arg(QGuiApplication::applicationDisplayName(), QCoreApplication::applicationVersion()),
        tr("Revision %1").arg(buildRevision()),
        tr("ASTERIX library %1").arg(QString::fromLatin1(ast_library_version())),
        tr("Mode S library %1").arg(QString::fromStdString(korvane::modes::LibModeS::version())),
        tr("Aircraft database library %1").arg(QString::fromLatin1(korvane::airdb::LibAirDB::version())),
        tr("Qt %1 (built with %2)").arg(QString::fromLatin1(qVersion()), QStringLiteral(QT_VERSION_STR)),
        tr("%1, %2").arg(QSysInfo::prettyProductName(), QSysInfo::buildAbi()),
    };
    return lines.join(u'\n');
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
