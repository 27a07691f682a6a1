#pragma once

#include "map_painting/static_map_clip.h"

#include <QLineF>
#include <QPen>

#include <vector>

class QPainter;
class StaticMapShape;
struct StaticMapFrame;

// The pen for a rim round lines of this one, in black or white, whichever stands out from them.
QPen casingPen(const QPen &pen);

// Draws lines with a pen. Dashes begin at the line's start, in sight or not, so that they stay in place on the map.
class StaticMapStroke {
public:
    // All must outlive this.
    StaticMapStroke(QPainter &painter, const StaticMapFrame &frame, const QPen &pen);

    void draw(const StaticMapShape &shape);

private:
    void drawSegments(const StaticMapClip::Run &run);

    QPainter &m_painter;
    const StaticMapFrame &m_frame;
    QPen m_pen;
    StaticMapClip m_clip;
    double m_dashLength = 0.0; // pixels after which the pattern repeats; 0 for a solid line
    bool m_segmentWise = false;
    double m_detailScale = 1.0; // metres per pixel of the detail that the pen can show
    std::vector<QLineF> m_segments;
};
