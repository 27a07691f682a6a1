#include "map_import/ring_shape.h"

#include "geo/wgs84.h"

#include <QPair>
#include <QPointF>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double MetresPerDegree = 111'195.0;

// Metres on a plane that touches the globe at the origin's latitude.
QPointF planeFrom(const LonLat &origin, const LonLat &point)
{
    const double shrink = std::cos(wgs84::radians(origin.latitude));
    return {(point.longitude - origin.longitude) * MetresPerDegree * shrink,
        (point.latitude - origin.latitude) * MetresPerDegree};
}

double distanceToSegment(const LonLat &point, const LonLat &a, const LonLat &b)
{
    const QPointF from = planeFrom(point, a);
    const QPointF way = planeFrom(point, b) - from;
    const double length = QPointF::dotProduct(way, way);
    const double part = length > 0 ? std::clamp(-QPointF::dotProduct(from, way) / length, 0.0, 1.0) : 0.0;
    const QPointF nearest = from + part * way;
    return std::hypot(nearest.x(), nearest.y());
}

// Marks the points that stay between the ends.
void markKept(const LonLatLine &line, double tolerance, QList<bool> &kept)
{
    QList<QPair<qsizetype, qsizetype>> stretches{{0, line.size() - 1}};
    while (!stretches.isEmpty()) {
        const auto [from, to] = stretches.takeLast();
        qsizetype farthest = -1;
        double distance = tolerance;
        for (qsizetype i = from + 1; i < to; ++i) {
            const double d = distanceToSegment(line[i], line[from], line[to]);
            if (d > distance) {
                farthest = i;
                distance = d;
            }
        }
        if (farthest < 0) {
            continue;
        }
        kept[farthest] = true;
        stretches.append({from, farthest});
        stretches.append({farthest, to});
    }
}

qsizetype nearestPoint(const LonLatLine &ring, const LonLat &place)
{
    const double shrink = std::cos(wgs84::radians(place.latitude));
    qsizetype best = 0;
    double least = std::numeric_limits<double>::infinity();
    for (qsizetype i = 0; i < ring.size(); ++i) {
        const double east = (ring[i].longitude - place.longitude) * shrink;
        const double north = ring[i].latitude - place.latitude;
        if (east * east + north * north < least) {
            least = east * east + north * north;
            best = i;
        }
    }
    return best;
}

// The longitudes where the parallel goes in and out, in order.
QList<double> crossingsAt(const LonLatLine &ring, double latitude)
{
    QList<double> result;
    for (qsizetype i = 0; i < ring.size(); ++i) {
        const LonLat &a = ring[i];
        const LonLat &b = ring[(i + 1) % ring.size()];
        if ((a.latitude > latitude) == (b.latitude > latitude)) {
            continue;
        }
        const double part = (latitude - a.latitude) / (b.latitude - a.latitude);
        result.append(a.longitude + part * (b.longitude - a.longitude));
    }
    std::sort(result.begin(), result.end());
    return result;
}

LonLat centreOfGravity(const LonLatLine &ring)
{
    const LonLat &origin = ring.first();
    double area = 0;
    double east = 0;
    double north = 0;
    for (qsizetype i = 0; i < ring.size(); ++i) {
        const double ax = ring[i].longitude - origin.longitude;
        const double ay = ring[i].latitude - origin.latitude;
        const double bx = ring[(i + 1) % ring.size()].longitude - origin.longitude;
        const double by = ring[(i + 1) % ring.size()].latitude - origin.latitude;
        const double cross = ax * by - bx * ay;
        area += cross;
        east += (ax + bx) * cross;
        north += (ay + by) * cross;
    }
    if (std::abs(area) < std::numeric_limits<double>::epsilon()) {
        return origin;
    }
    return {origin.longitude + east / (3 * area), origin.latitude + north / (3 * area)};
}

} // namespace

LonLatLine RingShape::unwound(const LonLatLine &line)
{
    LonLatLine result;
    result.reserve(line.size());
    double shift = 0;
    for (qsizetype i = 0; i < line.size(); ++i) {
        const double step = i > 0 ? line[i].longitude - line[i - 1].longitude : 0.0;
        if (std::abs(step) > 180.0) {
            shift -= std::copysign(360.0, step);
        }
        result.append({line[i].longitude + shift, line[i].latitude});
    }
    return result;
}

LonLatLine RingShape::withHoles(const LonLatArea &area)
{
    LonLatLine ring = area.value(0);
    for (const LonLatLine &hole : area.mid(1)) {
        if (ring.isEmpty() || hole.isEmpty()) {
            continue;
        }
        // Near is enough for a seam, and looking for the nearest pair of all takes far longer.
        const qsizetype start = nearestPoint(hole, ring[nearestPoint(ring, hole.first())]);
        const qsizetype at = nearestPoint(ring, hole[start]);
        // In at one point, round the hole to where it began, and back to the same point.
        const LonLatLine round = hole.mid(start) + hole.first(start + 1);
        ring = ring.first(at + 1) + round + ring.mid(at);
    }
    return ring;
}

LonLatLine RingShape::simplified(const LonLatLine &line, double tolerance)
{
    if (tolerance <= 0 || line.size() < 3) {
        return line;
    }
    QList<bool> kept(line.size(), false);
    kept.first() = kept.last() = true;
    markKept(unwound(line), tolerance, kept);
    LonLatLine result;
    for (qsizetype i = 0; i < line.size(); ++i) {
        if (kept[i]) {
            result.append(line[i]);
        }
    }
    return result;
}

LonLatLine RingShape::simplifiedRing(const LonLatLine &ring, double tolerance)
{
    if (tolerance <= 0 || ring.size() < 4) {
        return ring;
    }
    LonLatLine closed = simplified(ring + LonLatLine{ring.first()}, tolerance);
    closed.removeLast();
    return closed.size() < 3 ? ring : closed;
}

LonLat RingShape::labelPlace(const LonLatLine &outline)
{
    if (outline.isEmpty()) {
        return {};
    }
    const LonLatLine ring = unwound(outline);
    LonLat place = centreOfGravity(ring);
    const QList<double> crossings = crossingsAt(ring, place.latitude);
    double widest = 0;
    double longitude = place.longitude;
    for (qsizetype i = 0; i + 1 < crossings.size(); i += 2) {
        if (crossings[i] <= place.longitude && place.longitude <= crossings[i + 1]) {
            return place;
        }
        if (crossings[i + 1] - crossings[i] > widest) {
            widest = crossings[i + 1] - crossings[i];
            longitude = (crossings[i] + crossings[i + 1]) / 2;
        }
    }
    return {longitude, place.latitude};
}
