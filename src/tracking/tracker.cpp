#include "tracking/tracker.h"

#include "geo/projector.h"
#include "tracking/radar_tracker.h"

Tracker::Tracker(const QSharedPointer<TrackManager> &trackManager, Projector *projector, QObject *parent)
    : QObject(parent), m_trackManager(trackManager), m_projector(projector)
{
}

QSharedPointer<Tracker> Tracker::create(const QSharedPointer<SensorInfo> &sensor,
    const QSharedPointer<TrackManager> &trackManager, Projector *projector, QObject *parent)
{
    if (const auto radar = sensor.dynamicCast<RadarSensorInfo>())
        return QSharedPointer<RadarTracker>::create(radar, trackManager, projector, parent);
    return {};
}

void Tracker::project(Track &track) const
{
    if (!track.geoCoordinateValid())
        return;
    QPointF point;
    m_projector->toCartesian(
        &point.rx(), &point.ry(), track.geoCoordinate().latitude(), track.geoCoordinate().longitude());
    track.setCarCoordinate(point);
}
