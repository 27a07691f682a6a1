#pragma once

#include "geo/mercator_projector.h"
#include "map_painting/geo_static_map.h"
#include "painted_view.h"

// Small static maps in the style "style", and a layer that shows them.

inline const QColor Red(255, 0, 0);
inline const QColor Green(0, 255, 0);

inline MapStyleClass styleOf(const QColor &color)
{
    MapStyleClass style = defaultStyleClass(QStringLiteral("style"));
    style.color = color;
    style.pen.setColor(color);
    style.brush.setColor(color);
    return style;
}

inline MapStyleSheet sheet(std::initializer_list<MapStyleClass> styles)
{
    MapStyleSheet result;
    for (const MapStyleClass &style : styles) {
        result.setStyle(style);
    }
    return result;
}

inline QList<GeoCoordinate> box(double south, double west, double north, double east)
{
    return {{south, west}, {south, east}, {north, east}, {north, west}};
}

inline MapElementGroup group(const QString &className = QStringLiteral("style"))
{
    MapElementGroup result;
    result.className = className;
    return result;
}

inline MapElementGroup lineGroup(const QList<GeoCoordinate> &points)
{
    MapElementGroup result = group();
    result.polylines = {{{}, points}};
    return result;
}

inline MapElementGroup areaGroup(const QList<GeoCoordinate> &points, const QString &className = QStringLiteral("style"))
{
    MapElementGroup result = group(className);
    result.polygons = {{{}, points}};
    return result;
}

inline MapElementGroup labelGroup(const QList<MapLabelElement> &labels)
{
    MapElementGroup result = group();
    result.labels = labels;
    return result;
}

inline MapLibrary::Map mapOf(const QList<MapElementGroup> &groups, quint64 id = 1)
{
    auto data = QSharedPointer<MapData>::create();
    data->groups = groups;
    MapLibrary::Map map;
    map.id = id;
    map.data = data;
    return map;
}

class StaticMapScene {
public:
    QPointF plane(const GeoCoordinate &place)
    {
        double x = 0.0;
        double y = 0.0;
        projector.toCartesian(&x, &y, place.latitude(), place.longitude());
        return QPointF(x, y);
    }

    PaintedView painted(GeoStaticMap &layer, double metresPerPixel, const QPointF &center, double rotation = 0.0)
    {
        PaintedView view(metresPerPixel, center, rotation);
        view.paint([&](QPainter &painter, const GeoView &geoView) { layer.paint(painter, geoView); });
        return view;
    }

    PaintedView painted(const QList<MapLibrary::Map> &maps, const MapStyleSheet &styles, double metresPerPixel,
        const GeoCoordinate &center, double rotation = 0.0)
    {
        GeoStaticMap layer(&projector);
        layer.setStyleSheet(styles);
        layer.setMaps(maps);
        layer.setSymbolSize(20);
        return painted(layer, metresPerPixel, plane(center), rotation);
    }

    MercatorProjector projector;
};
