#include "maps/map_image_writer.h"

#include "maps/map_image_reader.h"

#include <QFileInfo>
#include <QImageWriter>
#include <QSaveFile>

namespace {

// The name must not lead to another folder.
QString fileStem(const QString &name)
{
    QString stem;
    for (const QChar character : name) {
        const bool plain = character.isLetterOrNumber() || character == u'-' || character == u'_' || character == u' ';
        stem += plain ? character : QChar(u'_');
    }
    return stem.isEmpty() ? QStringLiteral("image") : stem.left(100);
}

QString freeName(const QString &name, const QDir &folder)
{
    const QString stem = fileStem(name);
    QString file = stem + QStringLiteral(".png");
    for (int count = 1; folder.exists(file); ++count) {
        file = QStringLiteral("%1-%2.png").arg(stem).arg(count);
    }
    return file;
}

bool shows(const QString &path, const QPixmap &pixmap)
{
    MapImageElement written;
    MapImageElement wanted;
    written.pixmap = MapImageReader().readFile(path);
    wanted.pixmap = pixmap;
    return written == wanted;
}

bool save(const QString &path, const QPixmap &pixmap, QString *error)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    QSaveFile file(path);
    if (!QDir().mkpath(QFileInfo(path).absolutePath()) || !file.open(QIODevice::WriteOnly)) {
        *error = file.errorString();
        return false;
    }
    QImageWriter writer(&file, suffix.isEmpty() ? QByteArray("png") : suffix.toLatin1());
    const bool good = writer.write(pixmap.toImage());
    if (good && file.commit()) {
        return true;
    }
    *error = good ? file.errorString() : writer.errorString();
    return false;
}

} // namespace

QString writeMapImage(const MapImageElement &image, const QDir &folder, QString *error)
{
    const QString file = image.file.isEmpty() ? freeName(image.name, folder) : image.file;
    const QString path = folder.absoluteFilePath(file);
    if (image.pixmap.isNull() || shows(path, image.pixmap) || save(path, image.pixmap, error)) {
        return file;
    }
    return {};
}
