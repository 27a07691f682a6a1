#pragma once

#include "view/geo_view.h"

#include <QPoint>
#include <QTransform>

#include <optional>

// A view with a margin round it, for a picture that is kept: while the view is dragged about within the margin the
// picture stays as it is and another part of it is shown.
class WideView {
public:
    static constexpr int Margin = 64; // logical pixels

    // Brings the wide view up to date with another view. Returns by how many device pixels what the picture holds has
    // to be moved, mostly by none; nothing: the picture has to be made anew.
    std::optional<QPoint> follow(const GeoView &view);

    // What the picture shows.
    const GeoView &view() const { return m_view; }
    // From the plane to the picture's device pixels.
    const QTransform &deviceTransform() const { return m_deviceTransform; }
    QSize deviceSize() const { return m_view.screenRect().size() * m_view.devicePixelRatio(); }
    // The part of the picture that lies in the view that was followed last, device pixels.
    QRect seen() const { return m_seen; }

private:
    GeoView m_view;
    QTransform m_deviceTransform;
    QRect m_seen;
};
