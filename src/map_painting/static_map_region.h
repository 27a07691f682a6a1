#pragma once

#include "view/plane_box.h"

#include <QRectF>
#include <QTransform>

class GeoView;

// The view and what is near it, in steps: the same for all views of one scale and rotation that lie within one step.
// What is decided for a region stays as it is while the view is moved, and is the same however the view came there.
struct StaticMapRegion {
    QTransform toSheet; // from the plane to pixels from its origin, y down
    QRectF sheet; // in these pixels
    PlaneBox plane;

    static StaticMapRegion around(const GeoView &view);

    bool operator==(const StaticMapRegion &other) const { return toSheet == other.toSheet && sheet == other.sheet; }
};
