#include "tiles/tile_image.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QImageReader>

namespace {

// A JPEG may have a few octets of padding behind its end.
constexpr qsizetype TrailerRoom = 64;

bool endsWithin(const QByteArray &octets, const QByteArray &trailer)
{
    return octets.last(std::min(octets.size(), TrailerRoom)).contains(trailer);
}

bool isWholeWebP(const QByteArray &octets)
{
    if (octets.size() < 12 || octets.mid(8, 4) != "WEBP") {
        return false;
    }
    quint32 size = 0;
    for (int i = 3; i >= 0; --i) {
        size = size << 8 | static_cast<uchar>(octets.at(4 + i));
    }
    return octets.size() >= static_cast<qint64>(size) + 8;
}

struct Text {
    Q_DECLARE_TR_FUNCTIONS(TileImage)
};

QImage refused(QString *error, const QString &reason)
{
    if (error) {
        *error = reason;
    }
    return {};
}

} // namespace

bool isWholeTileImage(const QByteArray &octets)
{
    if (octets.size() > MaxTileOctets) {
        return false;
    }
    if (octets.startsWith("\x89PNG\r\n\x1a\n")) {
        return endsWithin(octets, "IEND");
    }
    if (octets.startsWith("\xff\xd8\xff")) {
        return endsWithin(octets, "\xff\xd9");
    }
    if (octets.startsWith("GIF8")) {
        return endsWithin(octets, ";");
    }
    return octets.startsWith("RIFF") && isWholeWebP(octets);
}

QImage decodeTileImage(const QByteArray &octets, QString *error)
{
    if (!isWholeTileImage(octets)) {
        return refused(error, Text::tr("what came is no whole image"));
    }
    QBuffer buffer;
    buffer.setData(octets);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (size.width() > MaxTileSide || size.height() > MaxTileSide) {
        return refused(error, Text::tr("the image is too large: %1 x %2 pixels").arg(size.width()).arg(size.height()));
    }
    const QImage image = reader.read();
    if (image.isNull() || image.width() > MaxTileSide || image.height() > MaxTileSide) {
        return refused(error, Text::tr("the image cannot be decoded"));
    }
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
}
