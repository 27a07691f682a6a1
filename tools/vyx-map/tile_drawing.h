#pragma once

#include "geo/web_mercator_projector.h"
#include "map_painting/geo_static_map.h"
#include "tiles/tile_geometry.h"

#include <QColor>
#include <QImage>

// Draws static maps as tiles of web maps, on the sphere that those are cut from. GUI thread; needs an event loop's
// thread, but no loop.
class TileDrawing {
public:
    // Columns and rows that are drawn at once: labels at the seams of two drawings are placed by each of them.
    static constexpr int BlockSize = 8;

    // Waits for the maps to be brought into the plane. An invalid ground is transparent.
    TileDrawing(const QList<MapLibrary::Map> &maps, const MapStyleSheet &styles, int symbolSize, const QColor &ground);

    // A picture of these tiles side by side; a few rows and columns.
    QImage drawn(const TileRange &range);

private:
    WebMercatorProjector m_projector;
    GeoStaticMap m_maps;
    const QColor m_ground;
};
