#include "maps/vyx_bin_map_file.h"

#include "maps/map_stream_reader.h"

#include <QDataStream>
#include <QDebug>

#include <algorithm>
#include <functional>

namespace {

constexpr qint64 MagicSize = 4;
constexpr int CurrentVersion = 2;
constexpr int StreamVersion = 17;

int versionOf(const QByteArray &magic)
{
    if (magic == "MAP1") {
        return 1;
    }
    return magic == "MAP2" ? CurrentVersion : 0;
}

// Writes the groups of a map.
class Writer {
public:
    // So many points are written; false ends it.
    using Step = std::function<bool(qint64 points)>;

    Writer(QDataStream &stream, const Step &step) : m_stream(stream), m_step(step) { }

    // False when it was ended.
    template <class Element>
    bool writeList(const QList<Element> &list)
    {
        m_stream << static_cast<quint32>(list.size());
        return std::all_of(list.begin(), list.end(), [this](const Element &element) { return write(element); });
    }

private:
    template <class Shape>
    bool write(const Shape &shape)
    {
        m_stream << shape.name << static_cast<quint32>(shape.points.size());
        for (const GeoCoordinate &point : shape.points) {
            m_stream << point;
        }
        return m_step(shape.points.size());
    }

    bool write(const MapLabelElement &label)
    {
        m_stream << label.name << label.caption << label.coordinate;
        return m_step(1);
    }

    bool write(const MapSymbolElement &symbol)
    {
        m_stream << symbol.name << symbol.type << symbol.coordinate;
        return m_step(1);
    }

    bool write(const MapImageElement &image)
    {
        m_stream << image.name << image.file << image.pixmap << image.northwest << image.southeast;
        return m_step(1);
    }

    bool write(const MapElementGroup &group)
    {
        m_stream << group.name << group.className;
        // Labels before symbols: the format's order, not the fields'.
        return writeList(group.polylines) && writeList(group.polygons) && writeList(group.labels)
            && writeList(group.symbols) && writeList(group.images);
    }

    QDataStream &m_stream;
    const Step m_step;
};

} // namespace

bool VyxBinMapFile::openFile()
{
    return m_mode == QIODeviceBase::WriteOnly ? writeMagic() : readMagic();
}

bool VyxBinMapFile::writeMagic()
{
    if (output().write("MAP2") == MagicSize) {
        return true;
    }
    qInfo("Failed to write file magic number");
    return false;
}

bool VyxBinMapFile::readMagic()
{
    m_version = versionOf(m_file.read(MagicSize));
    if (m_version == 0) {
        qInfo("Unknown file format.");
    }
    return m_version != 0;
}

MapData VyxBinMapFile::readFile()
{
    m_file.seek(MagicSize);
    const QByteArray octets = m_file.readAll();
    MapStreamReader reader(
        octets, m_version, [this](qint64 octetsRead) { return reportProgress(MagicSize + octetsRead); });
    MapData map;
    if (!reader.read(map) && lastError().isEmpty()) {
        setLastError(tr("Failed to parse the map file at byte %1.").arg(MagicSize + reader.offset()));
    }
    return map;
}

bool VyxBinMapFile::writeFile(const MapData &map)
{
    if (!output().seek(MagicSize) && !output().isSequential()) {
        return false;
    }
    QDataStream stream(&output());
    stream.setVersion(StreamVersion);
    stream.setFloatingPointPrecision(QDataStream::DoublePrecision);
    // Description behind version: the format's order, not the fields'.
    stream << map.name << map.title << map.author << map.version << map.description << map.comment;
    const bool whole = Writer(stream, [this](qint64 points) { return reportWritten(points); }).writeList(map.groups);
    return whole && stream.status() == QDataStream::Ok;
}
