#include "tiles/tile_file_store.h"

#include "tiles/tile_image.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

bool leadsUpwards(const QString &path)
{
    const QStringList parts = path.split(u'/');
    return parts.contains(QLatin1String("..")) || path.contains(u'\\') || path.contains(QChar(u'\0'));
}

// The nearest directory above that exists, with symbolic links followed.
QString canonicalParent(const QString &absolutePath)
{
    QString parent = QFileInfo(absolutePath).path();
    while (!QFileInfo::exists(parent) && !QDir(parent).isRoot()) {
        parent = QFileInfo(parent).path();
    }
    return QFileInfo(parent).canonicalFilePath();
}

bool fail(QString *error, const QString &reason)
{
    if (error) {
        *error = reason;
    }
    return false;
}

QString outsideText()
{
    return QCoreApplication::translate("TileFileStore", "the file would lie outside the tile directory");
}

} // namespace

TileFileStore::TileFileStore(const QString &directory)
    : m_directory(directory.isEmpty() ? QString() : QDir::cleanPath(QDir(directory).absolutePath()))
{
}

QString TileFileStore::absolutePath(const QString &path) const
{
    QString relative = path;
    while (relative.startsWith(u'/')) {
        relative.remove(0, 1);
    }
    if (m_directory.isEmpty() || relative.isEmpty() || leadsUpwards(relative) || !QDir::isRelativePath(relative)) {
        return {};
    }
    return QDir::cleanPath(m_directory + u'/' + relative);
}

// Before the directory is made, nothing below it can be a link.
bool TileFileStore::staysInside(const QString &absolutePath) const
{
    const QString root = QFileInfo(m_directory).canonicalFilePath();
    if (root.isEmpty()) {
        return true;
    }
    const QString parent = canonicalParent(absolutePath);
    return !QFileInfo(absolutePath).isSymbolicLink() && (parent == root || parent.startsWith(root + u'/'));
}

bool TileFileStore::contains(const QString &path) const
{
    const QString absolute = absolutePath(path);
    return !absolute.isEmpty() && staysInside(absolute) && QFileInfo(absolute).isFile();
}

QByteArray TileFileStore::read(const QString &path) const
{
    if (!contains(path)) {
        return {};
    }
    QFile file(absolutePath(path));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QByteArray octets = file.read(MaxTileOctets + 1);
    if (file.error() == QFileDevice::NoError && !isWholeTileImage(octets)) {
        file.remove();
        return {};
    }
    return octets;
}

bool TileFileStore::write(const QString &path, const QByteArray &octets, QString *error) const
{
    const QString absolute = absolutePath(path);
    if (absolute.isEmpty() || !staysInside(absolute)) {
        return fail(error, outsideText());
    }
    if (!QDir().mkpath(QFileInfo(absolute).path())) {
        return fail(error, QCoreApplication::translate("TileFileStore", "the directory cannot be made"));
    }
    QSaveFile file(absolute);
    if (!file.open(QIODevice::WriteOnly) || file.write(octets) != octets.size() || !file.commit()) {
        return fail(error, file.errorString());
    }
    return true;
}

void TileFileStore::remove(const QString &path) const
{
    if (contains(path)) {
        QFile::remove(absolutePath(path));
    }
}
