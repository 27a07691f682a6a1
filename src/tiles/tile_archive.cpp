#include "tiles/tile_archive.h"

#include "tiles/mb_tiles_reader.h"
#include "tiles/tile_image.h"

#include <QRegularExpression>

namespace {

TileLoader::Open readArchive(const std::shared_ptr<const MbTilesReader> &reader)
{
    return [reader]() -> TileLoader::Read {
        return [reader](const TileIndex &index, QString *error) {
            const QByteArray octets = reader->tile(index);
            return octets.isEmpty() ? QImage() : decodeTileImage(octets, error);
        };
    };
}

QString plainText(const QString &markup)
{
    static const QRegularExpression Tags(QStringLiteral("<[^>]*>"));
    QString text = markup;
    return text.remove(Tags).simplified().replace(QLatin1String("&copy;"), QStringLiteral("©"));
}

} // namespace

TileArchive openTileArchive(const QString &path)
{
    const auto reader = std::make_shared<MbTilesReader>();
    TileArchive archive;
    if (!reader->open(path)) {
        archive.error = reader->error();
        return archive;
    }
    const MbTilesMetadata &metadata = reader->metadata();
    archive.open = readArchive(reader);
    archive.minLevel = metadata.minLevel;
    archive.maxLevel = metadata.maxLevel;
    archive.copyright = plainText(metadata.attribution);
    return archive;
}
