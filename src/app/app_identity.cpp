#include "app/app_identity.h"

#include "build_info.h"

#include <QCoreApplication>
#include <QGuiApplication>

void setApplicationIdentity()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Korvane"));
    QCoreApplication::setApplicationName(QStringLiteral("VyxDisplay"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Vyx Display"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VYX_VERSION));
}

QString buildRevision()
{
    return QStringLiteral(VYX_GIT_REVISION);
}
