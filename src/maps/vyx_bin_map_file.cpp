#include "maps/vyx_bin_map_file.h"

#include "maps/map_stream_reader.h"

#include <QDataStream>
#include <QDebug>

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

template <class Element>
void writeList(QDataStream &stream, const QList<Element> &list);

template <class Shape>
void writeElement(QDataStream &stream, const Shape &shape)
{
    stream << shape.name << quint32(shape.points.size());
    for (const GeoCoordinate &point : shape.points) {
        stream << point;
    }
}

void writeElement(QDataStream &stream, const MapLabelElement &label)
{
    stream << label.name << label.caption << label.coordinate;
}

void writeElement(QDataStream &stream, const MapSymbolElement &symbol)
{
    stream << symbol.name << symbol.type << symbol.coordinate;
}

void writeElement(QDataStream &stream, const MapImageElement &image)
{
    stream << image.name << image.file << image.pixmap << image.northwest << image.southeast;
}

void writeElement(QDataStream &stream, const MapElementGroup &group)
{
    stream << group.name << group.className;
    writeList(stream, group.polylines);
    writeList(stream, group.polygons);
    writeList(stream, group.labels); // before the symbols: the format's order, not the fields'
    writeList(stream, group.symbols);
    writeList(stream, group.images);
}

template <class Element>
void writeList(QDataStream &stream, const QList<Element> &list)
{
    stream << quint32(list.size());
    for (const Element &element : list) {
        writeElement(stream, element);
    }
}

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
    writeList(stream, map.groups);
    return stream.status() == QDataStream::Ok;
}
