#include "vyx-map/tiles_command.h"

#include "app/map_places.h"
#include "app/theme_library.h"
#include "maps/map_index.h"
#include "tiles/mb_tiles_metadata.h"
#include "vyx-map/map_bounds.h"
#include "vyx-map/tile_drawing.h"
#include "vyx-map/tile_sink.h"

#include <QBuffer>
#include <QDir>

#include <algorithm>
#include <cstring>
#include <memory>

namespace {

using Maps = QList<MapLibrary::Map>;

// How the tiles look.
struct Look {
    MapStyleSheet sheet;
    QColor ground; // invalid: transparent
    int symbolSize = 0; // pixels
};

bool readInto(Maps &maps, const QString &file, const MapIndexEntry &entry, const CommandLine &command,
    const PercentSink &progress, const LineSink &err)
{
    CommandLine reading = command;
    reading.input = file;
    if (entry.format != MapFile::Unknown) {
        reading.inputFormat = entry.format;
    } else if (command.inputFormat == MapFile::Unknown) {
        reading.inputFormat = MapFile::formatFromFileName(file);
    }
    auto data = QSharedPointer<MapData>::create();
    if (!readInput(reading, *data, progress, err)) {
        return false;
    }
    MapLibrary::Map map;
    map.id = static_cast<quint64>(maps.size()) + 1;
    map.entry = entry;
    map.path = file;
    map.data = data;
    maps.append(map);
    return true;
}

bool readMaps(Maps &maps, const CommandLine &command, const PercentSink &progress, const LineSink &err)
{
    for (const QString &file : command.tiles.maps) {
        if (!file.endsWith(QLatin1String(".idx"), Qt::CaseInsensitive)) {
            if (!readInto(maps, file, {}, command, progress, err)) {
                return false;
            }
            continue;
        }
        QString error;
        const QList<MapIndexEntry> entries = readMapIndex(file, &error);
        if (entries.isEmpty()) {
            err(QStringLiteral("%1: %2").arg(file, error.isEmpty() ? QStringLiteral("no maps in it") : error));
            return false;
        }
        for (const MapIndexEntry &entry : entries) {
            if (!readInto(maps, QFileInfo(file).dir().filePath(entry.file), entry, command, progress, err)) {
                return false;
            }
        }
    }
    return true;
}

bool readLook(Look &look, const TileOptions &options, const LineSink &err)
{
    Config config;
    QString sheet = options.styleSheet;
    if (sheet.isEmpty()) {
        const ThemeLibrary themes;
        const Theme *const theme = themes.find(options.theme.isEmpty() ? QStringLiteral("Day") : options.theme);
        if (!theme) {
            err(QStringLiteral("there is no theme \"%1\"; there are %2").arg(options.theme, themes.names().join(", ")));
            return false;
        }
        theme->applyTo(config);
        sheet = MapPlaces::resolve(config.mapStyleSheet);
        look.ground = config.mapBackgroundColor;
    }
    look.symbolSize = config.mapStaticSymbolSize;
    QString error;
    if (!look.sheet.load(sheet, &error)) {
        err(QStringLiteral("%1: %2").arg(sheet, error));
    }
    return look.sheet.isValid();
}

// All levels of an area, in blocks that are drawn at once.
std::vector<TileRange> blocksOf(const TileOptions &options)
{
    constexpr int Size = TileDrawing::BlockSize;
    std::vector<TileRange> blocks;
    for (int level = options.minLevel; level <= options.maxLevel; ++level) {
        const TileRange all = TileGeometry::tilesCovering(options.northwest, options.southeast, level);
        for (int top = all.top; top <= all.bottom; top += Size - top % Size) {
            for (int left = all.left; left <= all.right; left += Size - left % Size) {
                blocks.push_back({left, top, std::min(all.right, left + Size - 1 - left % Size),
                    std::min(all.bottom, top + Size - 1 - top % Size), static_cast<quint8>(level)});
            }
        }
    }
    return blocks;
}

bool isUniform(const QImage &tile)
{
    const auto first = reinterpret_cast<const QRgb *>(tile.constScanLine(0));
    if (!std::all_of(first, first + tile.width(), [first](QRgb pixel) { return pixel == *first; })) {
        return false;
    }
    const auto octets = static_cast<std::size_t>(tile.width()) * sizeof(QRgb);
    for (int y = 1; y < tile.height(); ++y) {
        if (std::memcmp(tile.constScanLine(y), first, octets) != 0) {
            return false;
        }
    }
    return true;
}

// Encodes tiles; what is sea all over is encoded once.
class Encoder {
public:
    // Empty for what is transparent all over.
    QByteArray png(const QImage &tile)
    {
        if (!isUniform(tile)) {
            return encoded(tile);
        }
        const QRgb pixel = tile.pixel(0, 0);
        if (qAlpha(pixel) == 0) {
            return {};
        }
        QByteArray &octets = m_uniform[pixel];
        if (octets.isEmpty()) {
            octets = encoded(tile);
        }
        return octets;
    }

private:
    static QByteArray encoded(const QImage &tile)
    {
        QBuffer buffer;
        tile.save(&buffer, "png");
        return buffer.data();
    }

    QHash<QRgb, QByteArray> m_uniform;
};

// The number of tiles that were written; fewer than none after an error.
qint64 writeBlock(const TileRange &block, TileDrawing &drawing, Encoder &encoder, TileSink &sink)
{
    constexpr int Size = TileGeometry::TileSize;
    const QImage picture = drawing.drawn(block);
    qint64 written = 0;
    for (int row = block.top; row <= block.bottom; ++row) {
        for (int column = block.left; column <= block.right; ++column) {
            const QRect place((column - block.left) * Size, (row - block.top) * Size, Size, Size);
            const QByteArray png = encoder.png(picture.copy(place));
            if (!png.isEmpty() && !sink.put(TileRange::wrapped(column, row, block.level), png)) {
                return -1;
            }
            written += png.isEmpty() ? 0 : 1;
        }
    }
    return written;
}

MapBounds boundsOf(const Maps &maps)
{
    MapBounds bounds;
    for (const MapLibrary::Map &map : maps) {
        for (const MapElementGroup &group : map.data->groups) {
            bounds.add(group);
        }
    }
    return bounds;
}

MbTilesMetadata metadataOf(const Maps &maps, const Look &look)
{
    MbTilesMetadata metadata;
    const MapData &first = *maps.first().data;
    metadata.name = first.title.isEmpty() ? QFileInfo(maps.first().path).completeBaseName() : first.title;
    metadata.description = first.description;
    metadata.attribution = first.author;
    metadata.isOverlay = !look.ground.isValid();
    return metadata;
}

// The number of tiles; fewer than none when they were not all written.
qint64 writeTiles(TileSink &sink, TileDrawing &drawing, const TileOptions &options, const PercentSink &progress,
    const std::atomic<bool> &cancelled)
{
    const std::vector<TileRange> blocks = blocksOf(options);
    qint64 all = 0;
    for (const TileRange &block : blocks) {
        all += block.count();
    }
    Encoder encoder;
    qint64 done = 0;
    qint64 written = 0;
    for (const TileRange &block : blocks) {
        const qint64 count = cancelled ? -1 : writeBlock(block, drawing, encoder, sink);
        if (count < 0) {
            return -1;
        }
        written += count;
        done += block.count();
        if (progress) {
            progress(static_cast<int>(100 * done / all));
        }
    }
    return written;
}

} // namespace

int runTiles(const CommandLine &command, const PercentSink &progress, const LineSink &out, const LineSink &err,
    const std::atomic<bool> &cancelled)
{
    Maps maps;
    Look look;
    if (!readMaps(maps, command, progress, err) || !readLook(look, command.tiles, err)) {
        return 1;
    }
    TileOptions options = command.tiles;
    if (!options.northwest.isValid()) {
        const MapBounds bounds = boundsOf(maps);
        options.northwest = bounds.northwest();
        options.southeast = bounds.southeast();
    }
    if (!options.northwest.isValid()) {
        err(QStringLiteral("there is nothing in the maps that has a place"));
        return 1;
    }
    QString error;
    const std::unique_ptr<TileSink> sink = TileSink::create(command.output, metadataOf(maps, look), error);
    if (!sink) {
        err(error);
        return 1;
    }
    TileDrawing drawing(maps, look.sheet, look.symbolSize, look.ground);
    const qint64 count = writeTiles(*sink, drawing, options, progress, cancelled);
    if (count < 0 || !sink->finish()) {
        err(cancelled ? QStringLiteral("cancelled") : sink->error());
        return 1;
    }
    out(QStringLiteral("%1: %2 tiles of levels %3 to %4")
            .arg(command.output)
            .arg(count)
            .arg(options.minLevel)
            .arg(options.maxLevel));
    return 0;
}
