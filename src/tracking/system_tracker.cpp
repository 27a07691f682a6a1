#include "tracking/system_tracker.h"

#include "geo/projector.h"

SystemTracker::SystemTracker(const GeoCoordinate &location, const QSharedPointer<TrackManager> &trackManager,
    Projector *projector, QObject *parent)
    : Tracker(trackManager, projector, parent), m_sensorPlanePosition(projector->toCartesian(location))
{
}

void SystemTracker::placeOnPlane(Track &track, const QPointF &position, bool deriveWgs84) const
{
    track.setCarCoordinate(position);
    if (deriveWgs84) {
        track.setGeoCoordinate(projector().toWgs84(position));
    }
}
