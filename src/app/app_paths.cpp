#include "app/app_paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

namespace {

QString &profileName()
{
    static QString name;
    return name;
}

QString lowerCasedApplicationName()
{
    return QCoreApplication::applicationName().toLower();
}

QString profileDirectory()
{
    const QString &profile = profileName();
    return profile.isEmpty() ? QString() : QLatin1Char('/') + lowerCasedApplicationName() + QLatin1Char('-') + profile;
}

QString created(const QString &directory)
{
    const QDir dir(directory);
    dir.mkpath(QStringLiteral("."));
    return dir.absolutePath();
}

QString locationOf(QStandardPaths::StandardLocation location)
{
    const QString profile = profileDirectory();
    if (AppPaths::isPortable()) {
        return created(AppPaths::exeDir() + QStringLiteral("/data/") + QCoreApplication::applicationName() + profile);
    }
    const auto ordinary = QStandardPaths::writableLocation(location);
    return profile.isEmpty() ? ordinary : created(ordinary + profile);
}

} // namespace

bool AppPaths::isPortable()
{
    static const bool portable = QFileInfo(exeDir() + QStringLiteral("/data")).isDir();
    return portable;
}

QString AppPaths::exeFile()
{
    // QCoreApplication answers only after it was constructed; the crash log's place is asked for earlier.
    static const QString file = [] {
        const auto running = QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
        return running.isEmpty() ? QCoreApplication::applicationFilePath() : running;
    }();
    return file;
}

QString AppPaths::exeDir()
{
    return QFileInfo(exeFile()).absolutePath();
}

QString AppPaths::appDataDir()
{
    return locationOf(QStandardPaths::AppLocalDataLocation);
}

QString AppPaths::configDir()
{
    return locationOf(QStandardPaths::ConfigLocation);
}

QString AppPaths::configFile(const QString &name)
{
    const auto fileName = QStringLiteral("%1_%2.conf").arg(lowerCasedApplicationName(), name);
    return QDir(configDir()).absoluteFilePath(fileName);
}

QString AppPaths::configFile()
{
    return configFile(QStringLiteral("settings"));
}

QString AppPaths::crashLogFile()
{
    return QDir(configDir()).absoluteFilePath(QStringLiteral("%1_crash.log").arg(lowerCasedApplicationName()));
}

QString AppPaths::storePath(const QString &path)
{
    if (path.isEmpty() || !isPortable() || QDir::isRelativePath(path)) {
        return path;
    }
    const auto relative = QDir(exeDir()).relativeFilePath(path);
    const bool outside =
        !QDir::isRelativePath(relative) || relative == QLatin1String("..") || relative.startsWith(QLatin1String("../"));
    return outside ? path : relative;
}

QString AppPaths::resolvePath(const QString &path)
{
    if (path.isEmpty() || !isPortable() || !QDir::isRelativePath(path)) {
        return path;
    }
    return QDir(exeDir()).absoluteFilePath(path);
}

void AppPaths::setProfile(const QString &name)
{
    profileName() = name;
}

QString AppPaths::profile()
{
    return profileName();
}

bool AppPaths::isProfileName(const QString &name)
{
    static const QRegularExpression pattern(QStringLiteral("\\A(?!\\.*\\z)[A-Za-z0-9._-]{1,64}\\z"));
    return pattern.match(name).hasMatch();
}

QStringList AppPaths::profiles()
{
    QString parent = configDir();
    parent.chop(profileDirectory().size());
    const QString prefix = lowerCasedApplicationName() + QLatin1Char('-');
    QStringList names;
    for (const QString &directory : QDir(parent).entryList({prefix + QLatin1Char('*')}, QDir::Dirs, QDir::Name)) {
        const QString name = directory.mid(prefix.size());
        if (isProfileName(name) && name != QLatin1String("demo")) {
            names += name;
        }
    }
    return names;
}
