#include "maps/map_center.h"

#include "maps/map_data.h"

#include <algorithm>

namespace {

// What a map spans. Longitudes are also kept turned by half a circle, for maps across the date line.
class Extent {
public:
    void add(const GeoCoordinate &point)
    {
        if (!point.isValid()) {
            return;
        }
        const double turned = point.longitude() < 0.0 ? point.longitude() + 360.0 : point.longitude();
        m_latitudes.add(point.latitude());
        m_longitudes.add(point.longitude());
        m_turned.add(turned);
    }

    GeoCoordinate center() const
    {
        if (m_latitudes.empty()) {
            return {};
        }
        const bool acrossDateLine = m_turned.width() < m_longitudes.width();
        const double longitude = (acrossDateLine ? m_turned : m_longitudes).middle();
        return {m_latitudes.middle(), longitude > 180.0 ? longitude - 360.0 : longitude};
    }

private:
    struct Range {
        double least = 1e9;
        double greatest = -1e9;

        void add(double value)
        {
            least = std::min(least, value);
            greatest = std::max(greatest, value);
        }
        bool empty() const { return greatest < least; }
        double width() const { return greatest - least; }
        double middle() const { return (least + greatest) / 2.0; }
    };

    Range m_latitudes;
    Range m_longitudes;
    Range m_turned; // 0 to 360
};

} // namespace

GeoCoordinate mapCenter(const MapData &map)
{
    Extent extent;
    const auto addAll = [&extent](const auto &shapes) {
        for (const auto &shape : shapes) {
            std::for_each(shape.points.begin(), shape.points.end(), [&extent](const auto &p) { extent.add(p); });
        }
    };
    const auto addEach = [&extent](const auto &elements) {
        for (const auto &element : elements) {
            extent.add(element.coordinate);
        }
    };
    for (const MapElementGroup &group : map.groups) {
        addAll(group.polylines);
        addAll(group.polygons);
        addEach(group.symbols);
        addEach(group.labels);
        for (const MapImageElement &image : group.images) {
            extent.add(image.northwest);
            extent.add(image.southeast);
        }
    }
    return extent.center();
}
