#include "display/track_trail_painter.h"

#include "display/track_frame.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int DotSize = 2; // pixels

} // namespace

// Dots as small rectangles: what a pen of that width draws as points, at a quarter of the cost.
void TrackTrailPainter::paint(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown)
{
    const QList<QPointF> &trail = shown.track->trail;
    const auto dots = std::min<qsizetype>(frame.look.trailDots, trail.size());
    if (dots == 0 || !frame.look.trailVisible) {
        return;
    }
    m_dots.clear();
    for (qsizetype i = 0; i < dots; ++i) {
        const QPoint dot = frame.view.toScreen(trail[i]).toPoint();
        m_dots.emplace_back(dot.x() - DotSize / 2, dot.y() - DotSize / 2, DotSize, DotSize);
    }
    painter->setPen(Qt::NoPen);
    painter->setBrush(frame.look.colors.symbol);
    painter->drawRects(m_dots.data(), int(m_dots.size()));
    painter->setBrush(Qt::NoBrush);
}
