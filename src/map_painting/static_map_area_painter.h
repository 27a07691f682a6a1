#pragma once

#include "map_painting/static_map_painter.h"

// Fills areas with the brush and draws their edges with the pen. Patterns keep their size at every scale and stay in
// place on the map.
class StaticMapAreaPainter final : public StaticMapPainter {
public:
    void paint(QPainter &painter, const StaticMapFrame &frame, const StaticMapGroup &group,
        const MapStyleClass &style) override;
    void paintCasing(QPainter &painter, const StaticMapFrame &frame, const StaticMapGroup &group,
        const MapStyleClass &style) override;
};
