#include "vyx-map/tile_drawing.h"

#include "app/config.h"
#include "geo/wgs84.h"
#include "view/geo_view.h"

#include <QCoreApplication>
#include <QPainter>

#include <cmath>

namespace {

// From the spherical plane to the pixels of a picture whose upper left tile is this one.
QTransform toPicture(const TileRange &range)
{
    const double halfWorld = wgs84::Pi * wgs84::SemiMajorAxis;
    const double pixelsPerMetre = TileGeometry::TileSize * std::ldexp(1.0, range.level) / (2.0 * halfWorld);
    QTransform transform =
        QTransform::fromTranslate(-range.left * TileGeometry::TileSize, -range.top * TileGeometry::TileSize);
    transform.scale(pixelsPerMetre, -pixelsPerMetre);
    transform.translate(halfWorld, -halfWorld);
    return transform;
}

} // namespace

TileDrawing::TileDrawing(
    const QList<MapLibrary::Map> &maps, const MapStyleSheet &styles, int symbolSize, const QColor &ground)
    : m_maps(&m_projector), m_ground(ground)
{
    Config config;
    config.mapSmoothPixmapTransform = true;
    config.mapStaticSymbolSize = symbolSize;
    if (ground.isValid()) {
        config.mapBackgroundColor = ground;
    }
    m_maps.applyConfig(config);
    m_maps.setStyleSheet(styles);
    m_maps.setMaps(maps);
    while (m_maps.preparing()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

QImage TileDrawing::drawn(const TileRange &range)
{
    const QSize size(range.right - range.left + 1, range.bottom - range.top + 1);
    QImage picture(
        size * TileGeometry::TileSize, m_ground.isValid() ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    picture.fill(m_ground.isValid() ? m_ground : QColor(Qt::transparent));
    QPainter painter(&picture);
    const GeoView view(toPicture(range), picture.size());
    painter.setWorldTransform(view.screenTransform());
    m_maps.paint(painter, view);
    return picture;
}
