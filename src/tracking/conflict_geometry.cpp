#include "tracking/conflict_geometry.h"

#include "geo/wgs84.h"

#include <QPointF>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

constexpr double MetresPerSecondPerKnot = wgs84::MetresPerNauticalMile / 3600.0;
constexpr double SlowestRelative = 0.5; // metres per second; below it there is no approach to speak of
constexpr double LongestExtrapolation = 15.0; // seconds; a track that coasts longer may be anywhere

// East and north.
QPointF vectorOf(double length, double bearing)
{
    const double angle = wgs84::radians(bearing);
    return {length * std::sin(angle), length * std::cos(angle)};
}

std::optional<QPointF> velocityOf(const TrackSnapshot &track)
{
    if (!track.groundSpeedValid || !track.headingValid) {
        return {};
    }
    return vectorOf(track.groundSpeed * MetresPerSecondPerKnot, track.heading);
}

// Metres that the track has moved since its last update; none for a track whose velocity is not known.
QPointF movedSince(const TrackSnapshot &track, const std::optional<QPointF> &velocity, const QDateTime &time)
{
    const double seconds = static_cast<double>(track.lastUpdate.msecsTo(time)) / 1000.0;
    return velocity.value_or(QPointF()) * std::clamp(seconds, 0.0, LongestExtrapolation);
}

} // namespace

std::optional<ConflictGeometry> conflictGeometry(const TrackSnapshot &one, const TrackSnapshot &other)
{
    if (!one.geoCoordinateValid || !other.geoCoordinateValid) {
        return {};
    }
    const auto velocity = velocityOf(one);
    const auto otherVelocity = velocityOf(other);
    const QDateTime time = std::max(one.lastUpdate, other.lastUpdate);
    QPointF apart =
        vectorOf(one.geoCoordinate.distanceTo(other.geoCoordinate), one.geoCoordinate.azimuthTo(other.geoCoordinate));
    apart += movedSince(other, otherVelocity, time) - movedSince(one, velocity, time);

    ConflictGeometry geometry;
    geometry.distance = std::hypot(apart.x(), apart.y());
    if (one.levelValid && other.levelValid) {
        geometry.levelDifference = std::abs(one.level - other.level);
    }
    if (velocity && otherVelocity) {
        const QPointF relative = *otherVelocity - *velocity;
        const double approach = -QPointF::dotProduct(apart, relative);
        const double squaredSpeed = QPointF::dotProduct(relative, relative);
        if (approach > 0.0 && squaredSpeed > SlowestRelative * SlowestRelative) {
            geometry.timeToClosestApproach = approach / squaredSpeed;
        }
    }
    return geometry;
}
