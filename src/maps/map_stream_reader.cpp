#include "maps/map_stream_reader.h"

#include <QDebug>
#include <QtEndian>

#include <algorithm>
#include <bit>

namespace {

constexpr qsizetype OctetsPerStep = 65536;
constexpr quint32 NullText = 0xFFFFFFFF;

// The least octets that an element takes: a text or a list takes its length, a coordinate three numbers.
constexpr qsizetype TextSize = 4;
constexpr qsizetype ListSize = 4;
constexpr qsizetype PixmapSize = 4;
constexpr qsizetype CoordinateSize = 24;
constexpr qsizetype ShapeSize = TextSize + ListSize;
constexpr qsizetype PlaceSize = 2 * TextSize + CoordinateSize;
constexpr qsizetype ImageSize = TextSize + PixmapSize + 2 * CoordinateSize;
constexpr qsizetype GroupSize = 2 * TextSize + 5 * ListSize;

// Chunks of a PNG file: length, four letters, contents, check sum.
constexpr qsizetype PngSignatureSize = 8;
constexpr qsizetype PngFrameSize = 12;

} // namespace

MapStreamReader::MapStreamReader(const QByteArray &octets, int version, Step step)
    : m_octets(octets), m_version(version), m_step(std::move(step))
{
}

bool MapStreamReader::read(MapData &map)
{
    for (QString *field : {&map.name, &map.title, &map.author, &map.version, &map.description, &map.comment}) {
        *field = text();
    }
    return readList(map.groups, GroupSize);
}

// Moves behind so many octets, if there are.
bool MapStreamReader::take(qsizetype count)
{
    m_good = m_good && count <= left();
    if (m_good) {
        m_at += count;
    }
    return m_good;
}

bool MapStreamReader::checkStep()
{
    if (m_at - m_lastStep < OctetsPerStep) {
        return m_good;
    }
    m_lastStep = m_at;
    m_good = m_good && (!m_step || m_step(m_at));
    return m_good;
}

template <class Number>
Number MapStreamReader::number()
{
    constexpr auto Octets = static_cast<qsizetype>(sizeof(Number));
    return take(Octets) ? qFromBigEndian<Number>(m_octets.constData() + m_at - Octets) : Number();
}

QString MapStreamReader::text()
{
    const auto size = number<quint32>();
    if (size == NullText) {
        return {};
    }
    m_good = m_good && size % 2 == 0;
    if (!take(static_cast<qsizetype>(size))) {
        return {};
    }
    QString text(static_cast<qsizetype>(size / 2), Qt::Uninitialized);
    qFromBigEndian<char16_t>(m_octets.constData() + m_at - size, static_cast<qsizetype>(size / 2), text.data());
    return text;
}

GeoCoordinate MapStreamReader::coordinate()
{
    const auto latitude = std::bit_cast<double>(number<quint64>());
    const auto longitude = std::bit_cast<double>(number<quint64>());
    const auto altitude = std::bit_cast<double>(number<quint64>());
    GeoCoordinate coordinate;
    coordinate.setLatitude(latitude);
    coordinate.setLongitude(longitude);
    coordinate.setAltitude(altitude);
    return coordinate;
}

QPixmap MapStreamReader::pixmap()
{
    if (number<quint32>() == 0) {
        return {};
    }
    const qsizetype size = pngSize();
    m_good = m_good && size > 0;
    if (!take(size)) {
        return {};
    }
    const QPixmap pixmap = m_images.readPng(m_octets.mid(m_at - size, size));
    if (pixmap.isNull()) {
        qDebug() << "Failed to load image in map file at" << m_at - size;
    }
    return pixmap;
}

// Of the PNG file that begins here; 0 when there is none, or not all of it.
qsizetype MapStreamReader::pngSize() const
{
    const auto rest = QByteArrayView(m_octets).sliced(m_at);
    if (!rest.startsWith("\x89PNG\r\n\x1a\n")) {
        return 0;
    }
    qsizetype at = PngSignatureSize;
    while (rest.size() - at >= PngFrameSize) {
        const auto length = static_cast<qsizetype>(qFromBigEndian<quint32>(rest.data() + at));
        if (length > rest.size() - at - PngFrameSize) {
            return 0;
        }
        const bool last = rest.sliced(at + 4).startsWith("IEND");
        at += length + PngFrameSize;
        if (last) {
            return at;
        }
    }
    return 0;
}

template <class Element>
bool MapStreamReader::readList(QList<Element> &list, qsizetype smallest)
{
    const auto count = static_cast<qsizetype>(number<quint32>());
    m_good = m_good && count <= left() / smallest;
    if (!m_good) {
        return false;
    }
    list.reserve(count);
    for (qsizetype i = 0; i < count && checkStep(); ++i) {
        readElement(list.emplaceBack());
    }
    return m_good;
}

template <class Shape>
void MapStreamReader::readElement(Shape &shape)
{
    shape.name = text();
    readList(shape.points, CoordinateSize);
}

void MapStreamReader::readElement(MapLabelElement &label)
{
    label.name = text();
    label.caption = text();
    label.coordinate = coordinate();
}

void MapStreamReader::readElement(MapSymbolElement &symbol)
{
    symbol.name = text();
    symbol.type = text();
    symbol.coordinate = coordinate();
}

void MapStreamReader::readElement(MapImageElement &image)
{
    image.name = text();
    if (m_version > 1) {
        image.file = text();
    }
    image.pixmap = pixmap();
    image.northwest = coordinate();
    image.southeast = coordinate();
}

void MapStreamReader::readElement(MapElementGroup &group)
{
    group.name = text();
    group.className = text();
    readList(group.polylines, ShapeSize);
    readList(group.polygons, ShapeSize);
    readList(group.labels, PlaceSize);
    readList(group.symbols, PlaceSize);
    readList(group.images, ImageSize);
}
