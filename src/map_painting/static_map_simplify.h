#pragma once

#include <QPointF>

#include <vector>

// The line without the points that lie off it by no more than the tolerance. First and last point stay. Takes time
// in proportion to the number of points, whatever the shape; so a few points more than needed stay, too.
std::vector<QPointF> simplified(const std::vector<QPointF> &points, double tolerance);
