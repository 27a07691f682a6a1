#include "app/ui_state.h"

#include "app/app_paths.h"
#include "app/settings_owner.h"

#include <QSettings>

namespace {
const auto GeometryKey = QStringLiteral("windowGeometry");
bool stateFrozen = false;
} // namespace

QString UiState::filePath()
{
    return AppPaths::configFile(QStringLiteral("uistate"));
}

void UiState::saveValue(const QString &group, const QString &key, const QByteArray &bytes)
{
    if (stateFrozen || !SettingsOwner::mayWrite()) {
        return;
    }
    QSettings settings(filePath(), QSettings::IniFormat);
    settings.beginGroup(group);
    settings.setValue(key, bytes);
    settings.endGroup();
}

void UiState::setFrozen(bool frozen)
{
    stateFrozen = frozen;
}

QByteArray UiState::value(const QString &group, const QString &key)
{
    QSettings settings(filePath(), QSettings::IniFormat);
    settings.beginGroup(group);
    const auto bytes = settings.value(key).toByteArray();
    settings.endGroup();
    return bytes;
}

void UiState::saveGeometry(const QString &group, const QByteArray &bytes)
{
    saveValue(group, GeometryKey, bytes);
}

QByteArray UiState::geometry(const QString &group)
{
    return value(group, GeometryKey);
}
