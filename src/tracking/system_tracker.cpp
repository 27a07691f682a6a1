#include "tracking/system_tracker.h"

#include "geo/projector.h"
#include "geo/wgs84.h"
#include "sensors/sensor_type_text.h"

#include <cmath>

namespace {
constexpr double LargestDisagreement = wgs84::MetresPerNauticalMile; // in the plane
} // namespace

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

void SystemTracker::comparePositions(const Track &track, const _ast_sacsic_t &code)
{
    Source &sender = source(code);
    if (sender.warnedOfPositions || !track.geoCoordinateValid()) {
        return;
    }
    const QPointF apart = projector().toCartesian(track.geoCoordinate()) - track.carCoordinate();
    const double distance = std::hypot(apart.x(), apart.y());
    if (distance <= LargestDisagreement) {
        return;
    }
    sender.warnedOfPositions = true;
    Q_EMIT message(LogLevel::Warning,
        tr("%1 Tracker: the WGS-84 and Cartesian positions of SAC/SIC %2/%3 lie %4 NM apart, see the settings \"Ignore "
           "WGS-84 positions\" and \"Ignore Cartesian positions\".")
            .arg(sensorTypeText(type()))
            .arg(code.sac)
            .arg(code.sic)
            .arg(distance / wgs84::MetresPerNauticalMile, 0, 'f', 1));
}
