#pragma once

#include "app/config.h"
#include "geo/mercator_projector.h"
#include "painted_view.h"
#include "sensors/radar_sensor_info.h"

#include <memory>

inline const GeoCoordinate Site(60.0, 25.0); // far enough north that the plane is twice as large as the ground

inline QSharedPointer<RadarSensorInfo> radarAt(const GeoCoordinate &place)
{
    auto sensor = QSharedPointer<RadarSensorInfo>::create();
    sensor->setLocation(place);
    return sensor;
}

// A layer of what a radar sees, with a clock that is set by hand, and what is painted of it.
template <typename Layer>
class RadarScope {
protected:
    void makeLayer(qint64 nowMs)
    {
        m_now = nowMs;
        m_layer = std::make_unique<Layer>(&m_projector);
        m_layer->setClock([this] { return m_now; });
    }

    QPointF plane(const GeoCoordinate &place) { return m_projector.toCartesian(place.latitude(), place.longitude()); }

    QPointF pixel(const PaintedView &view, double metresAway, double azimuth, const GeoCoordinate &from = Site)
    {
        return view.view().toScreen(plane(from.atDistanceAndAzimuth(metresAway, azimuth)));
    }

    // Metres of the plane.
    PaintedView painted(double metresPerPixel, const QPointF &center, double rotation = 0.0)
    {
        PaintedView view(metresPerPixel, center, rotation);
        repaint(view);
        return view;
    }

    void repaint(PaintedView &view)
    {
        view.paint([this](QPainter &painter, const GeoView &shown) { m_layer->paint(painter, shown); });
    }

    MercatorProjector m_projector;
    std::unique_ptr<Layer> m_layer;
    Config m_config;
    qint64 m_now = 0;
};
