#pragma once

#include "view/geo_view.h"

#include <QRect>
#include <QTransform>

// An endless sheet of device pixels that lies over the plane, of which a view shows a part. Views that differ by whole
// device pixels alone show the same sheet: what has been drawn on it stays where it is while the view is dragged.
class ViewSheet {
public:
    // Looks at another view. False: it shows another sheet than before, and nothing drawn so far is of use.
    bool follow(const GeoView &view);

    // From the plane to the sheet's pixels.
    const QTransform &fromPlane() const { return m_fromPlane; }
    // The part that the view shows.
    const QRect &seen() const { return m_seen; }
    double devicePixelRatio() const { return m_devicePixelRatio; }

private:
    QTransform m_fromPlane;
    QRect m_seen;
    double m_devicePixelRatio = 0.0; // 0 before the first view
};
