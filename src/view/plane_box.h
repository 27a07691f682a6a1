#pragma once

#include <QPointF>
#include <QRectF>

#include <algorithm>
#include <limits>

// A rectangle of the plane, metres. Unlike a QRectF it may hold a single point or a line along an axis.
struct PlaneBox {
    double west = std::numeric_limits<double>::infinity();
    double south = std::numeric_limits<double>::infinity();
    double east = -std::numeric_limits<double>::infinity();
    double north = -std::numeric_limits<double>::infinity();

    static PlaneBox of(const QRectF &rect) { return {rect.left(), rect.top(), rect.right(), rect.bottom()}; }

    void include(const QPointF &point)
    {
        west = std::min(west, point.x());
        east = std::max(east, point.x());
        south = std::min(south, point.y());
        north = std::max(north, point.y());
    }

    void include(const PlaneBox &other)
    {
        west = std::min(west, other.west);
        east = std::max(east, other.east);
        south = std::min(south, other.south);
        north = std::max(north, other.north);
    }

    bool touches(const PlaneBox &other) const
    {
        return west <= other.east && other.west <= east && south <= other.north && other.south <= north;
    }

    bool contains(const PlaneBox &other) const
    {
        return west <= other.west && other.east <= east && south <= other.south && other.north <= north;
    }

    bool contains(const QPointF &point) const
    {
        return west <= point.x() && point.x() <= east && south <= point.y() && point.y() <= north;
    }

    PlaneBox grown(double margin) const { return {west - margin, south - margin, east + margin, north + margin}; }
    PlaneBox moved(double eastward) const { return {west + eastward, south, east + eastward, north}; }

    // The longer side; negative when nothing is inside.
    double extent() const { return std::max(east - west, north - south); }
};
