#include "display/track_trail_painter.h"

#include "display/track_frame.h"

#include <QPainter>

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int DotSize = 2; // pixels
constexpr int DotsApart = 4; // pixels from one to the next, lest a trail becomes a line
constexpr float Freshest = 0.85f; // opacities
constexpr float Faintest = 0.15f;

qsizetype shownDots(const TrackFrame &frame, const ShownTrack &shown)
{
    return frame.look.trailVisible ? std::min<qsizetype>(frame.look.trailDots, shown.track->trail.size()) : 0;
}

QRect dotAt(const TrackFrame &frame, const QPointF &planePoint)
{
    const QPoint dot = frame.view.toScreen(planePoint).toPoint();
    return QRect(dot.x() - DotSize / 2, dot.y() - DotSize / 2, DotSize, DotSize);
}

} // namespace

void TrackTrailPainter::paint(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown)
{
    const qsizetype dots = shownDots(frame, shown);
    for (qsizetype i = 0; i < dots; ++i) {
        m_dots[0].push_back(dotAt(frame, shown.track->trail[i]));
    }
    drawDots(painter, 0, frame.look.colors.symbol);
}

void TrackTrailPainter::paintFading(QPainter *painter, const TrackFrame &frame)
{
    for (const ShownTrack &shown : frame.tracks) {
        const qsizetype dots = shownDots(frame, shown);
        QPoint last = shown.place;
        int apart = frame.look.symbolSize / 2; // a dot inside a small symbol would look like a part of it
        for (qsizetype i = 0; i < dots; ++i) {
            const QRect dot = dotAt(frame, shown.track->trail[i]);
            const QPoint step = dot.center() - last;
            if (std::max(std::abs(step.x()), std::abs(step.y())) >= apart) {
                m_dots[static_cast<std::size_t>(i) * Steps / static_cast<std::size_t>(dots)].push_back(dot);
                last = dot.center();
                apart = DotsApart;
            }
        }
    }
    QColor color = frame.look.colors.symbol;
    for (std::size_t step = 0; step < Steps; ++step) {
        color.setAlphaF(Freshest + (Faintest - Freshest) * static_cast<float>(step) / static_cast<float>(Steps - 1));
        drawDots(painter, step, color);
    }
}

// Dots as small rectangles: what a pen of that width draws as points, at a quarter of the cost.
void TrackTrailPainter::drawDots(QPainter *painter, std::size_t step, const QColor &color)
{
    std::vector<QRect> &dots = m_dots[step];
    if (dots.empty()) {
        return;
    }
    painter->setPen(Qt::NoPen);
    painter->setBrush(color);
    painter->drawRects(dots.data(), static_cast<int>(dots.size()));
    painter->setBrush(Qt::NoBrush);
    dots.clear();
}
