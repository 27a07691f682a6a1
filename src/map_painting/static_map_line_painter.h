#pragma once

#include "map_painting/static_map_painter.h"

class StaticMapLinePainter final : public StaticMapPainter {
public:
    void paint(QPainter &painter, const StaticMapFrame &frame, const StaticMapGroup &group,
        const MapStyleClass &style) override;
    void paintCasing(QPainter &painter, const StaticMapFrame &frame, const StaticMapGroup &group,
        const MapStyleClass &style) override;
};
