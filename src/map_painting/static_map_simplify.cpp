#include "map_painting/static_map_simplify.h"

#include <algorithm>
#include <cmath>

namespace {

// Douglas-Peucker takes time in proportion to the square of the number of points at worst. So the line is taken in
// pieces of this many segments, whose ends stay.
constexpr std::size_t PieceSize = 128;

double squaredDistance(const QPointF &point, const QPointF &from, const QPointF &to)
{
    const QPointF base = to - from;
    const QPointF offset = point - from;
    const double squaredLength = QPointF::dotProduct(base, base);
    const double along =
        squaredLength > 0.0 ? std::clamp(QPointF::dotProduct(offset, base) / squaredLength, 0.0, 1.0) : 0.0;
    const QPointF away = offset - base * along;
    return QPointF::dotProduct(away, away);
}

struct Simplifier {
    const std::vector<QPointF> &points;
    const double squaredTolerance;
    std::vector<QPointF> kept;

    // Keeps what is needed of the points after the first, up to the last.
    void keepBetween(std::size_t first, std::size_t last)
    {
        std::size_t farthest = first;
        double largest = squaredTolerance;
        for (std::size_t i = first + 1; i < last; ++i) {
            const double distance = squaredDistance(points[i], points[first], points[last]);
            if (distance > largest) {
                largest = distance;
                farthest = i;
            }
        }
        if (farthest == first) {
            kept.push_back(points[last]);
            return;
        }
        keepBetween(first, farthest);
        keepBetween(farthest, last);
    }
};

} // namespace

std::vector<QPointF> simplified(const std::vector<QPointF> &points, double tolerance)
{
    if (points.size() < 3) {
        return points;
    }
    Simplifier simplifier{points, tolerance * tolerance, {}};
    simplifier.kept.reserve(points.size());
    simplifier.kept.push_back(points.front());
    const std::size_t lastPoint = points.size() - 1;
    for (std::size_t first = 0; first < lastPoint; first += PieceSize) {
        simplifier.keepBetween(first, std::min(first + PieceSize, lastPoint));
    }
    return std::move(simplifier.kept);
}
