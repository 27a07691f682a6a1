#include "tracking/system_tracker.h"

#include "geo/projector.h"

SystemTracker::SystemTracker(const GeoCoordinate &location, const QSharedPointer<TrackManager> &trackManager,
    Projector *projector, QObject *parent)
    : Tracker(trackManager, projector, parent)
{
    projector->toCartesian(
        &m_sensorPlanePosition.rx(), &m_sensorPlanePosition.ry(), location.latitude(), location.longitude());
}

void SystemTracker::placeOnPlane(Track &track, const QPointF &position, bool deriveWgs84) const
{
    track.setCarCoordinate(position);
    if (!deriveWgs84) {
        return;
    }
    double latitude = 0.0;
    double longitude = 0.0;
    projector().toWgs84(&latitude, &longitude, position.x(), position.y());
    track.setGeoCoordinate({latitude, longitude});
}
