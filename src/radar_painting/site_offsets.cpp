#include "radar_painting/site_offsets.h"

#include "geo/projector.h"
#include "geo/wgs84.h"

#include <QTransform>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double WidePixel = 2000.0; // plane metres

// Pixels between nodes. The more ground lies between nodes, the more the plane bends there.
int spacingFor(const QTransform &toPlane)
{
    return std::hypot(toPlane.m11(), toPlane.m12()) > WidePixel ? 16 : 32;
}

// With the nodes behind the last pixels.
int nodesFor(int pixels, int spacing)
{
    return (pixels + spacing - 1) / spacing + 1;
}

} // namespace

SiteOffsets::SiteOffsets(Projector &projector, const GeoCoordinate &site, const QTransform &toPlane, const QSize &size)
    : m_spacing(spacingFor(toPlane)), m_columns(nodesFor(size.width(), m_spacing)),
      m_rows(nodesFor(size.height(), m_spacing))
{
    m_nodes.reserve(static_cast<std::size_t>(m_columns * m_rows));
    for (int i = 0; i < m_columns * m_rows; ++i) {
        const QPointF point = toPlane.map(QPointF(i % m_columns, i / m_columns) * m_spacing);
        double latitude = 0.0;
        double longitude = 0.0;
        projector.toWgs84(&latitude, &longitude, point.x(), point.y());
        // Beyond the 180th meridian the ground goes on at the other end of the plane.
        const QGeoCoordinate place(std::clamp(latitude, -90.0, 90.0), std::remainder(longitude, 360.0));
        const double distance = site.distanceTo(place);
        const double azimuth = wgs84::radians(site.azimuthTo(place));
        m_nodes.push_back(
            {static_cast<float>(distance * std::sin(azimuth)), static_cast<float>(distance * std::cos(azimuth))});
    }
}

void SiteOffsets::row(int y, int first, int count, float *east, float *north) const
{
    const int nodeRow = y / m_spacing;
    const float down = (static_cast<float>(y - nodeRow * m_spacing) + 0.5f) / static_cast<float>(m_spacing);
    const auto between = [down](const Offset &above, const Offset &below) {
        return Offset{above.east + (below.east - above.east) * down, above.north + (below.north - above.north) * down};
    };
    const auto at = [&](int column) { return between(node(column, nodeRow), node(column, nodeRow + 1)); };
    int column = first / m_spacing;
    Offset left = at(column);
    for (int x = column * m_spacing; x < first + count; x += m_spacing) {
        const Offset right = at(++column);
        const Offset step{(right.east - left.east) / static_cast<float>(m_spacing),
            (right.north - left.north) / static_cast<float>(m_spacing)};
        const int end = std::min(m_spacing, first + count - x);
        for (int i = std::max(first - x, 0); i < end; ++i) {
            east[x - first + i] = left.east + step.east * (static_cast<float>(i) + 0.5f);
            north[x - first + i] = left.north + step.north * (static_cast<float>(i) + 0.5f);
        }
        left = right;
    }
}

double SiteOffsets::stepMetres(int column, int row) const
{
    const Offset &here = node(column, row);
    const Offset &right = node(column + 1, row);
    const Offset &below = node(column, row + 1);
    return std::max(std::hypot(right.east - here.east, right.north - here.north),
               std::hypot(below.east - here.east, below.north - here.north))
        / m_spacing;
}

double SiteOffsets::pixelMetres(double withinMetres) const
{
    double longest = 0.0;
    double nearest = std::numeric_limits<double>::max();
    double nearestStep = 0.0;
    for (int row = 0; row + 1 < m_rows; ++row) {
        for (int column = 0; column + 1 < m_columns; ++column) {
            const Offset &here = node(column, row);
            const double distance = std::hypot(here.east, here.north);
            const double step = stepMetres(column, row);
            if (distance <= withinMetres) {
                longest = std::max(longest, step);
            }
            if (distance < nearest) {
                nearest = distance;
                nearestStep = step;
            }
        }
    }
    return std::max(longest, nearestStep);
}
