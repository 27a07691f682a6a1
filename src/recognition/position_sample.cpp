#include "recognition/position_sample.h"

#include "geo/wgs84.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::size_t MostKept = 2048;
constexpr double ShareWithin = 0.9;

double valueAt(std::vector<double> values, double share)
{
    const auto place = static_cast<std::size_t>(share * static_cast<double>(values.size() - 1));
    std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(place), values.end());
    return values[place];
}

} // namespace

void PositionSample::add(double latitude, double longitude)
{
    if (!GeoCoordinate(latitude, longitude).isValid()) {
        return;
    }
    if (m_count++ % m_stride != 0) {
        return;
    }
    const double phi = wgs84::radians(latitude);
    const double lambda = wgs84::radians(longitude);
    m_directions.push_back({std::cos(phi) * std::cos(lambda), std::cos(phi) * std::sin(lambda), std::sin(phi)});
    if (m_directions.size() == MostKept) {
        for (std::size_t i = 0; i < MostKept / 2; ++i) {
            m_directions[i] = m_directions[2 * i];
        }
        m_directions.resize(MostKept / 2);
        m_stride *= 2;
    }
}

// Medians, so that a few wrong positions do not move the centre.
PositionArea PositionSample::area() const
{
    PositionArea area;
    area.positions = m_count;
    if (m_directions.empty()) {
        return area;
    }
    Direction middle = {};
    std::vector<double> values(m_directions.size());
    for (std::size_t axis = 0; axis < middle.size(); ++axis) {
        std::transform(m_directions.begin(), m_directions.end(), values.begin(),
            [axis](const Direction &direction) { return direction[axis]; });
        middle[axis] = valueAt(values, 0.5);
    }
    const double height = std::hypot(middle[0], middle[1]);
    area.center =
        GeoCoordinate(wgs84::degrees(std::atan2(middle[2], height)), wgs84::degrees(std::atan2(middle[1], middle[0])));
    std::transform(m_directions.begin(), m_directions.end(), values.begin(), [&area](const Direction &direction) {
        const double latitude = wgs84::degrees(std::asin(std::clamp(direction[2], -1.0, 1.0)));
        return area.center.distanceTo(GeoCoordinate(latitude, wgs84::degrees(std::atan2(direction[1], direction[0]))));
    });
    area.radius = valueAt(values, ShareWithin);
    return area;
}
