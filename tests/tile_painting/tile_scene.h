#pragma once

#include "app/config.h"
#include "geo/mercator_projector.h"
#include "tile_painting/geo_tile_map.h"
#include "tile_painting/tile_plane.h"
#include "view/geo_view.h"

#include <QCoreApplication>
#include <QHash>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

// Tiles that are made up, and a view of them.

inline QImage plainTile(const QColor &color)
{
    QImage image(TileGeometry::TileSize, TileGeometry::TileSize, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

// Waves over the whole map, in the pixels of a level: red ones from west to east, green ones from north to south. What
// colour a place has tells where it is, to a fraction of a pixel.
struct TileWaves {
    static constexpr double Length = 64.0; // pixels

    static double at(double pixel) { return 127.0 + 100.0 * std::sin(2.0 * 3.141592653589793 * pixel / Length); }

    static QImage tile(const TileIndex &index)
    {
        QImage image(TileGeometry::TileSize, TileGeometry::TileSize, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const double red = at(index.x * 256.0 + x + 0.5);
                const double green = at(index.y * 256.0 + y + 0.5);
                image.setPixel(x, y, qRgb(int(std::lround(red)), int(std::lround(green)), 60));
            }
        }
        return image;
    }
};

// A source whose tiles come and go as a test wants.
struct TileSupply {
    QHash<TileIndex, QImage> tiles;
    std::function<QImage(const TileIndex &)> make; // those that are not in the list; may be null
    int asked = 0;
    int deepestAsked = 0;
    int minLevel = 1;
    int maxLevel = 14;

    TileSource source()
    {
        TileSource source;
        source.image = [this](const TileIndex &index) {
            ++asked;
            deepestAsked = std::max<int>(deepestAsked, index.level);
            if (!tiles.contains(index) && make) {
                tiles.insert(index, make(index));
            }
            return tiles.value(index);
        };
        source.levelFor = [this](double metresPerPixel) {
            return std::clamp(TileGeometry::groundResolutionToLevel(metresPerPixel), minLevel, maxLevel);
        };
        source.minLevel = minLevel;
        source.maxLevel = maxLevel;
        return source;
    }
};

class TileView {
public:
    TileView(double metresPerPixel, const GeoCoordinate &center, double rotation = 0.0, double ratio = 1.0,
        const QSize &size = QSize(300, 200))
        : m_size(size), m_ratio(ratio)
    {
        MercatorProjector projector;
        const QPointF middle = projector.toCartesian(center);
        m_toScreen = QTransform::fromTranslate(size.width() / 2, size.height() / 2);
        m_toScreen.rotate(rotation);
        m_toScreen.scale(1.0 / metresPerPixel, -1.0 / metresPerPixel);
        m_toScreen.translate(-middle.x(), -middle.y());
    }

    GeoView view() const { return GeoView(m_toScreen, m_size, m_ratio); }
    void pan(int x, int y) { m_toScreen *= QTransform::fromTranslate(x, y); }

    // One frame.
    QImage frame(GeoLayer &layer, const QColor &ground = Qt::black) const
    {
        QImage image(m_size * m_ratio, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(m_ratio);
        image.fill(ground);
        QPainter painter(&image);
        painter.setWorldTransform(m_toScreen);
        layer.paint(painter, view());
        return image;
    }

    // The first frame for which nothing is under way in the background.
    QImage painted(GeoTileMap &layer, const QColor &ground = Qt::black) const
    {
        QImage image = frame(layer, ground);
        while (layer.drawing()) {
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
            image = frame(layer, ground);
        }
        return image;
    }

    // What pixel of a level's map, in fractions, lies in the middle of a device pixel.
    QPointF mapPixel(const QPoint &devicePixel, int level) const
    {
        const QPointF plane = view().toPlane((QPointF(devicePixel) + QPointF(0.5, 0.5)) / m_ratio);
        const double pixel = TilePlane::span(level) / TileGeometry::TileSize;
        return QPointF(plane.x() + TilePlane::HalfWorld, TilePlane::HalfWorld - TilePlane::toSphericalY(plane.y()))
            / pixel;
    }

private:
    QTransform m_toScreen;
    QSize m_size;
    double m_ratio;
};

inline const GeoCoordinate Steep(35.3, 25.0); // where sphere and plane drift apart the quickest

inline int differing(const QImage &image, const QColor &color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixelColor(x, y) != color;
        }
    }
    return count;
}

// Pixels whose red or green differ by more than that.
inline int differing(const QImage &one, const QImage &other, int shades)
{
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb here = one.pixel(x, y);
            const QRgb there = other.pixel(x, y);
            const int most = std::max(std::abs(qRed(here) - qRed(there)), std::abs(qGreen(here) - qGreen(there)));
            count += most > shades ? 1 : 0;
        }
    }
    return count;
}

inline Config brightConfig()
{
    Config config;
    config.mapTileDimming = 0;
    config.mapTileDesaturation = 0;
    config.mapBackgroundColor = Qt::black;
    return config;
}

// In the colours of its tiles.
inline void showBright(GeoTileMap &layer, TileSupply &supply)
{
    layer.applyConfig(brightConfig());
    layer.setSource(supply.source());
}
