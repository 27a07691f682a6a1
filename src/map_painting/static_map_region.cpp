#include "map_painting/static_map_region.h"

#include "view/geo_view.h"

#include <cmath>

namespace {

constexpr double Step = 512.0; // pixels

} // namespace

// One step is added on every side, so that what is just out of sight counts, too.
StaticMapRegion StaticMapRegion::around(const GeoView &view)
{
    const QTransform &toScreen = view.screenTransform();
    const QRectF seen = QRectF(view.screenRect()).translated(-toScreen.dx(), -toScreen.dy());
    const auto down = [](double value) { return (std::floor(value / Step) - 1.0) * Step; };
    const auto up = [](double value) { return (std::ceil(value / Step) + 1.0) * Step; };
    StaticMapRegion region;
    region.toSheet = QTransform(toScreen.m11(), toScreen.m12(), toScreen.m21(), toScreen.m22(), 0.0, 0.0);
    region.sheet = QRectF(QPointF(down(seen.left()), down(seen.top())), QPointF(up(seen.right()), up(seen.bottom())));
    region.plane = PlaneBox::of(region.toSheet.inverted().mapRect(region.sheet));
    return region;
}
