#include "map_painting/static_map_line_painter.h"

#include "map_painting/static_map_frame.h"
#include "map_painting/static_map_stroke.h"
#include "maps/map_style_sheet.h"

#include <QPainter>

void StaticMapLinePainter::paint(
    QPainter &painter, const StaticMapFrame &frame, const StaticMapGroup &group, const MapStyleClass &style)
{
    if (group.lines.empty() || style.pen.style() == Qt::NoPen) {
        return;
    }
    StaticMapStroke stroke(painter, frame, style.pen);
    for (const StaticMapShape &line : group.lines) {
        stroke.draw(line);
    }
}

void StaticMapLinePainter::paintCasing(
    QPainter &painter, const StaticMapFrame &frame, const StaticMapGroup &group, const MapStyleClass &style)
{
    MapStyleClass casing = style;
    casing.pen = casingPen(style.pen);
    paint(painter, frame, group, casing);
}
