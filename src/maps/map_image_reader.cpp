#include "maps/map_image_reader.h"

#include <QBuffer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>

namespace {

constexpr qint64 OctetsPerPixel = 4;

// No run of equal octets is packed better by the method that PNG files use; a pixel has an eighth of an octet at least.
constexpr qint64 MaxPacking = 1032;
constexpr qint64 MaxPixelsPerOctet = 8 * MaxPacking;

bool pixmapsPossible()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance()) != nullptr;
}

} // namespace

QPixmap MapImageReader::readFile(const QString &path)
{
    const QFileInfo info(path);
    if (!info.isFile()) { // a pipe would be waited for
        return {};
    }
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    return read(reader, info.size());
}

QPixmap MapImageReader::readPng(const QByteArray &octets)
{
    QBuffer buffer;
    buffer.setData(octets);
    QImageReader reader(&buffer, "png");
    return read(reader, octets.size());
}

QPixmap MapImageReader::read(QImageReader &reader, qint64 fileSize)
{
    if (!pixmapsPossible()) {
        return {};
    }
    const QSize size = reader.size();
    const qint64 pixels = static_cast<qint64>(size.width()) * size.height();
    const bool packed = reader.format() == "png";
    if (size.isEmpty() || pixels > m_octetsLeft / OctetsPerPixel || (packed && pixels / MaxPixelsPerOctet > fileSize)) {
        return {};
    }
    m_octetsLeft -= pixels * OctetsPerPixel;
    return QPixmap::fromImage(reader.read());
}
