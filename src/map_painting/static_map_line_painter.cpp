#include "map_painting/static_map_line_painter.h"

#include "map_painting/static_map_frame.h"
#include "map_painting/static_map_stroke.h"
#include "maps/map_style_sheet.h"

#include <QPainter>

void StaticMapLinePainter::paint(
    QPainter &painter, const StaticMapFrame &frame, const StaticMapGroup &group, const MapStyleClass &style)
{
    strokeShapes(painter, frame, group.lines, style.pen);
}

void StaticMapLinePainter::paintCasing(
    QPainter &painter, const StaticMapFrame &frame, const StaticMapGroup &group, const MapStyleClass &style)
{
    strokeShapes(painter, frame, group.lines, casingPen(style.pen));
}
