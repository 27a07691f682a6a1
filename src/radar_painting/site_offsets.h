#pragma once

#include "geo/geo_coordinate.h"

#include <QSize>

#include <vector>

class Projector;
class QTransform;

// Where the device pixels of a picture lie as seen from a site: metres east and north, so that their length is the true
// distance over the ground and their direction the true bearing. Worked out at a coarse grid of pixels and interpolated
// between them; the error stays below a tenth of a pixel wherever radar coverage is more than a few pixels wide.
class SiteOffsets {
public:
    // The site must be valid. The transform is from the picture's device pixels to the plane.
    SiteOffsets(Projector &projector, const GeoCoordinate &site, const QTransform &toPlane, const QSize &size);

    // Writes the offsets of the centres of pixels that follow each other in a row.
    void row(int y, int first, int count, float *east, float *north) const;
    // The longest ground distance from one pixel to the next, in metres, within a distance from the site.
    double pixelMetres(double withinMetres) const;

private:
    struct Offset {
        float east = 0.0f;
        float north = 0.0f;
    };

    const Offset &node(int column, int row) const
    {
        return m_nodes[static_cast<std::size_t>(row * m_columns + column)];
    }
    double stepMetres(int column, int row) const;

    int m_spacing = 32; // device pixels between nodes
    int m_columns = 0;
    int m_rows = 0;
    std::vector<Offset> m_nodes; // row by row; node (0, 0) is the corner of the first pixel
};
