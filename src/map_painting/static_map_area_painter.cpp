#include "map_painting/static_map_area_painter.h"

#include "map_painting/static_map_clip.h"
#include "map_painting/static_map_frame.h"
#include "map_painting/static_map_stroke.h"
#include "maps/map_style_sheet.h"

#include <QPainter>

#include <cmath>

namespace {

constexpr double PatternSize = 8.0; // pixels after which a brush's pattern repeats
constexpr double SmallestVisible = 0.5; // pixels

// Not smoothed: areas with a common edge would let the ground shine through between them.
void fill(QPainter &painter, const StaticMapFrame &frame, const StaticMapGroup &group, const QBrush &brush)
{
    const QPointF origin = wholePixel(frame.origin());
    painter.setBrushOrigin(std::remainder(origin.x(), PatternSize), std::remainder(origin.y(), PatternSize));
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.setRenderHint(QPainter::Antialiasing, false);
    StaticMapClip clip(frame, 1.0);
    for (const StaticMapShape &area : group.areas) {
        if (area.bounds().extent() < SmallestVisible * frame.metresPerPixel || !area.bounds().touches(frame.sight)) {
            continue;
        }
        clip.clipArea(area, area.level(frame.metresPerPixel));
        if (clip.points().size() > 2) {
            painter.drawPolygon(clip.points().data(), static_cast<int>(clip.points().size()));
        }
    }
}

} // namespace

void StaticMapAreaPainter::paint(
    QPainter &painter, const StaticMapFrame &frame, const StaticMapGroup &group, const MapStyleClass &style)
{
    if (!group.areas.empty() && style.brush.style() != Qt::NoBrush) {
        fill(painter, frame, group, style.brush);
    }
    strokeShapes(painter, frame, group.areas, style.pen);
}

void StaticMapAreaPainter::paintCasing(
    QPainter &painter, const StaticMapFrame &frame, const StaticMapGroup &group, const MapStyleClass &style)
{
    strokeShapes(painter, frame, group.areas, casingPen(style.pen));
}
