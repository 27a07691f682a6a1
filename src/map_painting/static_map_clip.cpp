#include "map_painting/static_map_clip.h"

#include "map_painting/static_map_frame.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double LongestSegment = 2048.0; // pixels

PlaneBox boxOf(const QPointF &from, const QPointF &to)
{
    return {
        std::min(from.x(), to.x()), std::min(from.y(), to.y()), std::max(from.x(), to.x()), std::max(from.y(), to.y())};
}

QPointF between(const QPointF &from, const QPointF &to, double part)
{
    return from + (to - from) * part;
}

} // namespace

StaticMapClip::StaticMapClip(const StaticMapFrame &frame, double margin)
    : m_sight(frame.sight.grown(margin * frame.metresPerPixel)), m_metresPerPixel(frame.metresPerPixel),
      m_longest(LongestSegment * frame.metresPerPixel), m_m11(frame.toScreen.m11()), m_m12(frame.toScreen.m12()),
      m_m21(frame.toScreen.m21()), m_m22(frame.toScreen.m22()), m_dx(frame.toScreen.dx()), m_dy(frame.toScreen.dy())
{
}

void StaticMapClip::append(const QPointF &planePoint)
{
    m_points.emplace_back(
        m_m11 * planePoint.x() + m_m21 * planePoint.y() + m_dx, m_m12 * planePoint.x() + m_m22 * planePoint.y() + m_dy);
}

void StaticMapClip::endRun()
{
    if (m_open) {
        m_runs.back().count = m_points.size() - m_runs.back().first;
    }
    m_open = false;
}

// In how many equal parts, a power of two, a segment may be cut.
int StaticMapClip::stepsOf(const QPointF &from, const QPointF &to) const
{
    const double extent = std::max(std::abs(to.x() - from.x()), std::abs(to.y() - from.y()));
    return extent <= m_longest ? 1 : static_cast<int>(std::exp2(std::ceil(std::log2(extent / m_longest))));
}

void StaticMapClip::clipLine(const StaticMapShape::Level &level, bool withDistances)
{
    m_points.clear();
    m_runs.clear();
    m_open = false;
    for (const StaticMapShape::Block &block : level.blocks) {
        if (!m_sight.touches(block.bounds)) {
            endRun();
            continue;
        }
        m_distance = block.distance;
        for (std::size_t i = block.first; i < block.last; ++i) {
            const QPointF &from = level.points[i];
            const QPointF &to = level.points[i + 1];
            addSegment(from, to);
            if (withDistances) {
                m_distance += std::hypot(to.x() - from.x(), to.y() - from.y());
            }
        }
    }
    endRun();
}

void StaticMapClip::addSegment(const QPointF &from, const QPointF &to)
{
    if (!m_sight.touches(boxOf(from, to))) {
        endRun();
        return;
    }
    const int steps = stepsOf(from, to);
    if (steps > 1) {
        addLongSegment(from, to, steps);
        return;
    }
    if (!m_open) {
        m_runs.push_back({m_points.size(), 0, m_distance / m_metresPerPixel});
        m_open = true;
        append(from);
    }
    append(to);
}

void StaticMapClip::addLongSegment(const QPointF &from, const QPointF &to, int steps)
{
    double begin = 0.0;
    double end = 1.0;
    if (!visiblePart(from, to, begin, end)) {
        endRun();
        return;
    }
    begin = std::floor(begin * steps) / steps;
    end = std::ceil(end * steps) / steps;
    if (begin > 0.0) {
        endRun();
    }
    if (!m_open) {
        const double distance = m_distance + begin * std::hypot(to.x() - from.x(), to.y() - from.y());
        m_runs.push_back({m_points.size(), 0, distance / m_metresPerPixel});
        m_open = true;
        append(between(from, to, begin));
    }
    append(between(from, to, end));
    if (end < 1.0) {
        endRun();
    }
}

// Liang and Barsky, A new concept and method for line clipping, 1984.
bool StaticMapClip::visiblePart(const QPointF &from, const QPointF &to, double &begin, double &end) const
{
    const auto narrow = [&begin, &end](double direction, double room) {
        if (direction == 0.0) {
            return room >= 0.0;
        }
        const double part = room / direction;
        if (direction < 0.0) {
            begin = std::max(begin, part);
        } else {
            end = std::min(end, part);
        }
        return begin <= end;
    };
    const QPointF step = to - from;
    return narrow(-step.x(), from.x() - m_sight.west) && narrow(step.x(), m_sight.east - from.x())
        && narrow(-step.y(), from.y() - m_sight.south) && narrow(step.y(), m_sight.north - from.y());
}

// One side of Sutherland and Hodgman, Reentrant polygon clipping, 1974; but the cut lies a little outside.
template <typename Side>
void StaticMapClip::cutOff(Side outside)
{
    m_spare.clear();
    if (m_points.empty()) {
        return;
    }
    QPointF from = m_points.back();
    double fromOutside = outside(from);
    const auto addCut = [this](const QPointF &inner, const QPointF &outer, double innerOutside, double outerOutside) {
        const double steps = stepsOf(inner, outer);
        const double part = innerOutside / (innerOutside - outerOutside);
        m_spare.push_back(between(inner, outer, std::ceil(part * steps) / steps));
    };
    for (const QPointF &to : m_points) {
        const double toOutside = outside(to);
        if (fromOutside <= 0.0 && toOutside > 0.0) {
            addCut(from, to, fromOutside, toOutside);
        } else if (fromOutside > 0.0 && toOutside <= 0.0) {
            addCut(to, from, toOutside, fromOutside);
        }
        if (toOutside <= 0.0) {
            m_spare.push_back(to);
        }
        from = to;
        fromOutside = toOutside;
    }
    std::swap(m_points, m_spare);
}

void StaticMapClip::clipArea(const StaticMapShape &shape, const StaticMapShape::Level &level)
{
    m_points.clear();
    m_runs.clear();
    // Of what lies wholly on one side of what is seen it does not matter how it gets from its first point to its last.
    for (const StaticMapShape::Block &block : level.blocks) {
        const std::size_t last = m_sight.touches(block.bounds) ? block.last : block.first + 1;
        m_points.insert(m_points.end(), level.points.begin() + static_cast<std::ptrdiff_t>(block.first),
            level.points.begin() + static_cast<std::ptrdiff_t>(last));
    }
    if (!m_sight.contains(shape.bounds())) {
        cutOff([this](const QPointF &point) { return m_sight.west - point.x(); });
        cutOff([this](const QPointF &point) { return point.x() - m_sight.east; });
        cutOff([this](const QPointF &point) { return m_sight.south - point.y(); });
        cutOff([this](const QPointF &point) { return point.y() - m_sight.north; });
    }
    std::swap(m_points, m_spare);
    m_points.clear();
    for (const QPointF &point : m_spare) {
        append(point);
    }
}
