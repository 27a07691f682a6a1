#include "radar_painting/weather_shapes.h"

#include "geo/projector.h"
#include "geo/wgs84.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double WidestVector = 45.0; // degrees
constexpr double WidestStep = 12.0; // degrees; a picture with larger gaps only shows scattered cells
constexpr double WidestPiece = 2.0; // degrees
constexpr double LongestPiece = 20.0; // nautical miles

// Cuts vectors around one site.
class ShapeMaker {
public:
    ShapeMaker(Projector &projector, const GeoCoordinate &site) : m_projector(projector), m_site(site) { }

    void addPieces(std::vector<WeatherShape> &shapes, const WeatherProcessor::PolarVector &vector, qsizetype number,
        double width) const
    {
        const int across = static_cast<int>(std::ceil(width / WidestPiece));
        const int along = static_cast<int>(std::ceil((vector.endRange - vector.startRange) / LongestPiece));
        const double left = vector.azimuth - width / 2.0;
        const double length = (vector.endRange - vector.startRange) / along;
        for (int i = 0; i < across; ++i) {
            const double from = left + width * i / across;
            const double to = left + width * (i + 1) / across;
            for (int k = 0; k < along; ++k) {
                const double near = vector.startRange + length * k;
                shapes.push_back({vector.intensity, number,
                    {plane(near, from), plane(near + length, from), plane(near + length, to), plane(near, to)}});
            }
        }
    }

private:
    QPointF plane(double range, double azimuth) const
    {
        const QGeoCoordinate place = m_site.atDistanceAndAzimuth(range * wgs84::MetresPerNauticalMile, azimuth);
        // Across the 180th meridian the shape goes on where it was.
        const double longitude = m_site.longitude() + std::remainder(place.longitude() - m_site.longitude(), 360.0);
        return m_projector.toCartesian(place.latitude(), longitude);
    }

    Projector &m_projector;
    const GeoCoordinate &m_site;
};

bool drawable(const WeatherProcessor::PolarVector &vector)
{
    // Farther no radar sees.
    return std::isfinite(vector.azimuth) && vector.startRange >= 0.0 && vector.endRange > vector.startRange
        && vector.endRange < 2000.0;
}

} // namespace

std::vector<WeatherShape> weatherShapes(
    Projector &projector, const GeoCoordinate &site, const QList<WeatherProcessor::PolarVector> &vectors, double width)
{
    std::vector<WeatherShape> shapes;
    if (!site.isValid() || !(width > 0.0)) {
        return shapes;
    }
    shapes.reserve(static_cast<std::size_t>(vectors.size()));
    const ShapeMaker maker(projector, site);
    for (qsizetype i = 0; i < vectors.size(); ++i) {
        if (drawable(vectors[i])) {
            maker.addPieces(shapes, vectors[i], i, std::min(width, WidestVector));
        }
    }
    std::stable_sort(shapes.begin(), shapes.end(),
        [](const WeatherShape &one, const WeatherShape &other) { return one.level < other.level; });
    return shapes;
}

double touchingWidth(const QList<WeatherProcessor::PolarVector> &vectors, double fallback)
{
    std::vector<double> azimuths;
    for (const WeatherProcessor::PolarVector &vector : vectors) {
        if (std::isfinite(vector.azimuth)) {
            azimuths.push_back(vector.azimuth);
        }
    }
    std::sort(azimuths.begin(), azimuths.end());
    std::vector<double> steps;
    for (std::size_t i = 1; i < azimuths.size(); ++i) {
        const double step = azimuths[i] - azimuths[i - 1];
        // Less than the resolution of azimuths is the same azimuth again.
        if (step > 0.006 && step <= WidestStep) {
            steps.push_back(step);
        }
    }
    if (steps.size() < 2) {
        return fallback;
    }
    const auto middle = steps.begin() + static_cast<qsizetype>(steps.size() / 2);
    std::nth_element(steps.begin(), middle, steps.end());
    return *middle;
}
