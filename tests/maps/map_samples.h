#pragma once

#include "maps/map_file.h"
#include "test_files.h"

#include <QRandomGenerator>
#include <QTest>

inline MapData readMap(const QString &path, MapFile::Format format, QString *error = nullptr)
{
    const auto file = MapFile::create(format);
    const MapData map = file->open(QFileInfo(path), format, QIODevice::ReadOnly) ? file->read() : MapData{};
    if (error) {
        *error = file->lastError();
    }
    return map;
}

// The error, empty after a success.
inline QString writeMap(const QString &path, MapFile::Format format, const MapData &map)
{
    const auto file = MapFile::create(format);
    if (file->open(QFileInfo(path), format, QIODevice::WriteOnly)) {
        file->write(map);
    }
    file->close();
    return file->lastError();
}

// Maps of every element, with texts that formats must escape and coordinates on the grid that texts keep.
class MapMaker {
public:
    explicit MapMaker(quint32 seed) : m_random(seed) { }

    MapData map()
    {
        MapData map{text(), text(), text(), text(), text(), text(), {}};
        for (int i = below(4); i >= 0; --i) {
            map.groups.append(group());
        }
        return map;
    }

private:
    int below(int limit) { return m_random.bounded(limit); }

    QString text()
    {
        static const auto letters = QStringLiteral("aB<&>\"'%1 \n;]\u00E4\u6F22\U0001F600");
        QString text;
        for (int i = below(12); i > 0; --i) {
            text += letters.mid(below(int(letters.size()) - 2), 1); // no half of the last
        }
        return below(4) ? text : text + QStringLiteral("\U0001F600");
    }

    GeoCoordinate coordinate()
    {
        if (below(20) == 0) {
            return {};
        }
        return {(below(89 * 720000) - 89 * 360000) / 360000.0, (below(2 * 64799999) - 64799999) / 360000.0};
    }

    QList<GeoCoordinate> points()
    {
        QList<GeoCoordinate> points;
        for (int i = below(20); i > 0; --i) {
            points.append(coordinate());
        }
        return points;
    }

    QPixmap picture()
    {
        QImage image(1 + below(4), 1 + below(4), QImage::Format_ARGB32);
        for (int i = 0; i < image.width() * image.height(); ++i) {
            image.setPixel(
                i % image.width(), i / image.width(), (i % 2 ? 0xFF000000U : 0x80000000U) | (m_random() & 0xFFFFFF));
        }
        return QPixmap::fromImage(image);
    }

    MapElementGroup group()
    {
        MapElementGroup group;
        group.name = text();
        group.className = text();
        for (int i = below(5); i > 0; --i) {
            group.polylines.append({text(), points()});
            group.polygons.append({text(), points()});
            group.labels.append({text(), text(), coordinate()});
            group.symbols.append({text(), text(), coordinate()});
            const QString file = QStringLiteral("pictures/%1.png").arg(++m_pictures);
            group.images.append({text(), file, below(4) ? picture() : QPixmap(), coordinate(), coordinate()});
        }
        return group;
    }

    QRandomGenerator m_random;
    int m_pictures = 0;
};
