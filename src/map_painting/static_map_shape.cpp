#include "map_painting/static_map_shape.h"

#include "map_painting/static_map_simplify.h"

#include <cmath>

namespace {

constexpr std::size_t BlockSize = 64; // segments
constexpr std::size_t SmallestSimplified = 6; // points
// A level is good until its error, which adds up to twice the tolerance over the levels, comes near a pixel.
constexpr double TolerancePerPixel = 0.35;
constexpr double CoarsestScale = 32768.0; // metres per pixel
constexpr double WorthKeeping = 0.75; // of the points of the level before

double distanceBetween(const QPointF &from, const QPointF &to)
{
    return std::hypot(to.x() - from.x(), to.y() - from.y());
}

StaticMapShape::Level makeLevel(std::vector<QPointF> points, double detail)
{
    StaticMapShape::Level level;
    level.detail = detail;
    level.points = std::move(points);
    level.points.shrink_to_fit();
    const std::size_t lastPoint = level.points.size() - 1;
    level.blocks.reserve(lastPoint / BlockSize + 1);
    double distance = 0.0;
    for (std::size_t first = 0; first < lastPoint; first += BlockSize) {
        StaticMapShape::Block block;
        block.first = first;
        block.last = std::min(first + BlockSize, lastPoint);
        block.distance = distance;
        block.bounds.include(level.points[first]);
        for (std::size_t i = first + 1; i <= block.last; ++i) {
            block.bounds.include(level.points[i]);
            distance += distanceBetween(level.points[i - 1], level.points[i]);
        }
        level.blocks.push_back(block);
    }
    return level;
}

// A small part of the usual distance between the points: a smaller tolerance would hardly remove any.
double firstTolerance(const std::vector<QPointF> &points)
{
    double length = 0.0;
    for (std::size_t i = 1; i < points.size(); ++i) {
        length += distanceBetween(points[i - 1], points[i]);
    }
    const double spacing = length / static_cast<double>(points.size());
    return std::exp2(std::floor(std::log2(std::max(spacing / 8.0, 0.1)))) * TolerancePerPixel;
}

} // namespace

StaticMapShape::StaticMapShape(std::vector<QPointF> points)
{
    for (const QPointF &point : points) {
        m_bounds.include(point);
    }
    m_levels.push_back(makeLevel(std::move(points), 0.0));
    addLevels();
}

void StaticMapShape::addLevels()
{
    if (m_levels.front().points.size() < SmallestSimplified) {
        return;
    }
    // Beyond the extent of the shape there is nothing left to remove.
    const double coarsest = std::min(CoarsestScale * TolerancePerPixel, m_bounds.extent());
    for (double tolerance = firstTolerance(m_levels.front().points); tolerance <= coarsest; tolerance *= 2.0) {
        const std::vector<QPointF> &finer = m_levels.back().points;
        std::vector<QPointF> points = simplified(finer, tolerance);
        if (static_cast<double>(points.size()) < WorthKeeping * static_cast<double>(finer.size())) {
            m_levels.push_back(makeLevel(std::move(points), tolerance));
        }
        if (m_levels.back().points.size() < SmallestSimplified) {
            return;
        }
    }
}

const StaticMapShape::Level &StaticMapShape::level(double metresPerPixel) const
{
    const double tolerable = metresPerPixel * TolerancePerPixel;
    std::size_t coarsest = 0;
    while (coarsest + 1 < m_levels.size() && m_levels[coarsest + 1].detail <= tolerable) {
        ++coarsest;
    }
    return m_levels[coarsest];
}
