#pragma once

#include "map_painting/static_map_painter.h"

#include <QCache>
#include <QImage>

struct StaticMapLabel;

// Draws labels upright at the places of the layout. Keeps drawings of those drawn last.
class StaticMapLabelPainter final : public StaticMapPainter {
public:
    StaticMapLabelPainter();

    void paint(QPainter &painter, const StaticMapFrame &frame, const StaticMapGroup &group,
        const MapStyleClass &style) override;
    void forget() override { m_drawings.clear(); }

private:
    QCache<const StaticMapLabel *, QImage> m_drawings; // cost in octets
    double m_ratio = 0.0;
};
