#include "app/map_places.h"

#include "app/app_paths.h"

#include <QDir>
#include <QFileInfo>

QString MapPlaces::installedDir()
{
    return QDir::cleanPath(AppPaths::exeDir() + QStringLiteral("/../share/vyxdisplay/maps"));
}

QString MapPlaces::resolve(const QString &path)
{
    const QString own = QDir(AppPaths::appDataDir()).absoluteFilePath(path);
    // In a portable installation a path that the user chose within it is relative to the executable.
    for (const QString &candidate : {own, AppPaths::resolvePath(path), QDir(installedDir()).absoluteFilePath(path)}) {
        if (QDir::isAbsolutePath(candidate) && QFileInfo(candidate).isFile()) {
            return QDir::cleanPath(candidate);
        }
    }
    return QDir::cleanPath(own);
}

QString MapPlaces::writable(const QString &file)
{
    const QFileInfo info(file);
    return info.absoluteDir() == QDir(installedDir()) ? QDir(AppPaths::appDataDir()).absoluteFilePath(info.fileName())
                                                      : info.absoluteFilePath();
}
