#pragma once

#include "maps/map_data.h"
#include "maps/map_image_reader.h"

#include <QByteArray>

#include <functional>

// Reads a map from the data stream of a binary map file. Lengths and counts are believed only as far as there are
// octets left to hold what they announce.
class MapStreamReader {
public:
    // Called about every 64 KiB with the octets read so far; false ends the reading.
    using Step = std::function<bool(qint64 octetsRead)>;

    // The octets behind the file's magic, which must outlive this; version of the file: 1 or 2.
    MapStreamReader(const QByteArray &octets, int version, Step step);

    // False when the octets are no map or the reading was ended; the map is then of no use.
    bool read(MapData &map);
    qsizetype offset() const { return m_at; }

private:
    qsizetype left() const { return m_octets.size() - m_at; }
    bool take(qsizetype count);
    bool checkStep();
    template <class Number>
    Number number();
    QString text();
    GeoCoordinate coordinate();
    QPixmap pixmap();
    qsizetype pngSize() const;

    template <class Element>
    bool readList(QList<Element> &list, qsizetype smallest);
    void readElement(GeoCoordinate &point) { point = coordinate(); }
    template <class Shape>
    void readElement(Shape &shape);
    void readElement(MapLabelElement &label);
    void readElement(MapSymbolElement &symbol);
    void readElement(MapImageElement &image);
    void readElement(MapElementGroup &group);

    const QByteArray &m_octets;
    const int m_version;
    const Step m_step;
    MapImageReader m_images;
    qsizetype m_at = 0;
    qsizetype m_lastStep = 0;
    bool m_good = true;
};
