#include "map_painting/static_map_projection.h"

#include "geo/projector.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

constexpr double Turn = 360.0; // degrees
constexpr double Pole = 90.0;

double periodOf(Projector &projector)
{
    const double period = projector.toCartesian(0.0, 10.0 + Turn).x() - projector.toCartesian(0.0, 10.0).x();
    return std::isfinite(period) && period > 1.0 ? period : 0.0;
}

} // namespace

// A line or an edge with longitudes that may go beyond 180 degrees.
struct StaticMapProjection::Chain {
    std::vector<double> latitudes;
    std::vector<double> longitudes;

    explicit Chain(const QList<GeoCoordinate> &points)
    {
        latitudes.reserve(static_cast<std::size_t>(points.size()) + 1);
        longitudes.reserve(static_cast<std::size_t>(points.size()) + 1);
        for (const GeoCoordinate &point : points) {
            if (point.isValid()) {
                append(point.latitude(), point.longitude());
            }
        }
    }

    void append(double latitude, double longitude)
    {
        latitudes.push_back(latitude);
        longitudes.push_back(longitude);
    }

    // Takes the shorter way everywhere; but a step of exactly one turn, which is no way at all or once around the
    // world, as told.
    void unwrap(bool fullTurns)
    {
        double shift = 0.0;
        for (std::size_t i = 1; i < longitudes.size(); ++i) {
            const double step = longitudes[i] + shift - longitudes[i - 1];
            if (std::abs(step) > Turn / 2.0 && !(fullTurns && std::abs(step) == Turn)) {
                shift -= std::copysign(Turn, step);
            }
            longitudes[i] += shift;
        }
    }

    bool hasFullTurns() const
    {
        for (std::size_t i = 1; i < longitudes.size(); ++i) {
            if (std::abs(longitudes[i] - longitudes[i - 1]) == Turn) {
                return true;
            }
        }
        return false;
    }

    bool hasWidth() const
    {
        const auto [west, east] = std::minmax_element(longitudes.begin(), longitudes.end());
        return west != longitudes.end() && *east > *west;
    }

    bool endsWhereItBegins() const { return longitudes.empty() || longitudes.front() == longitudes.back(); }

    // Along the nearer pole back to below the beginning.
    void closeAroundPole()
    {
        const double sum = std::accumulate(latitudes.begin(), latitudes.end(), 0.0);
        const double pole = std::copysign(Pole, sum);
        append(pole, longitudes.back());
        append(pole, longitudes.front());
        append(latitudes.front(), longitudes.front());
    }
};

StaticMapProjection::StaticMapProjection(Projector &projector) : m_projector(projector), m_period(periodOf(projector))
{
}

bool StaticMapProjection::project(const GeoCoordinate &coordinate, QPointF &point) const
{
    return coordinate.isValid() && project(coordinate.latitude(), coordinate.longitude(), point);
}

bool StaticMapProjection::project(double latitude, double longitude, QPointF &point) const
{
    double x = 0.0;
    double y = 0.0;
    if (!m_projector.toCartesian(&x, &y, latitude, longitude) || !std::isfinite(x) || !std::isfinite(y)) {
        return false;
    }
    point = QPointF(x, y);
    return true;
}

std::vector<QPointF> StaticMapProjection::projected(const Chain &chain) const
{
    std::vector<QPointF> points;
    points.reserve(chain.longitudes.size());
    for (std::size_t i = 0; i < chain.longitudes.size(); ++i) {
        QPointF point;
        if (project(chain.latitudes[i], chain.longitudes[i], point)) {
            points.push_back(point);
        }
    }
    return points;
}

std::vector<QPointF> StaticMapProjection::line(const QList<GeoCoordinate> &points) const
{
    Chain chain(points);
    const Chain asGiven = chain;
    chain.unwrap(false);
    if (asGiven.hasFullTurns() && !chain.hasWidth()) {
        chain = asGiven;
        chain.unwrap(true);
    }
    return projected(chain);
}

std::vector<QPointF> StaticMapProjection::edge(const QList<GeoCoordinate> &points) const
{
    Chain chain(points);
    if (chain.longitudes.empty()) {
        return {};
    }
    chain.append(chain.latitudes.front(), chain.longitudes.front());
    const Chain asGiven = chain;
    chain.unwrap(false);
    // Steps of a full turn along a pole or around the whole world are meant as such.
    if (asGiven.hasFullTurns() && (!chain.endsWhereItBegins() || !chain.hasWidth())) {
        Chain around = asGiven;
        around.unwrap(true);
        if (around.endsWhereItBegins()) {
            chain = around;
        }
    }
    if (!chain.endsWhereItBegins()) {
        chain.closeAroundPole();
    }
    return projected(chain);
}
