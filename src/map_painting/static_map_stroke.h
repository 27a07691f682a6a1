#pragma once

#include <QPen>

#include <vector>

class QPainter;
class StaticMapShape;
struct StaticMapFrame;

// The pen for a rim round lines of this one, in black or white, whichever stands out from them.
QPen casingPen(const QPen &pen);

// Draws lines with a pen, nothing without one. Dashes begin at a line's start, in sight or not, so that they stay in
// place on the map.
void strokeShapes(
    QPainter &painter, const StaticMapFrame &frame, const std::vector<StaticMapShape> &shapes, const QPen &pen);
