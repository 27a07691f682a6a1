#include "display/track_leader_painter.h"

#include "display/track_frame.h"
#include "display/track_pens.h"

#include <QPainter>

namespace {

constexpr int Drop = 4; // pixels below the top of the padded label

// A point a little below the label's upper corner that lies on the track's side.
QPoint corner(const TrackLook &look, const ShownTrack &shown)
{
    const QRect rect = shown.labelRect.translated(-shown.place);
    const QRect padded = look.padded(rect);
    const int x = rect.left() + rect.right() < -1 ? padded.right() : padded.left();
    return shown.place + QPoint(x, padded.top() + Drop);
}

} // namespace

void TrackLeaderPainter::prepare(const TrackFrame &frame)
{
    const double ratio = frame.view.devicePixelRatio();
    m_pen = trackLinePen(frame.look.leaderColor(), ratio);
    m_coastingPen = trackLinePen(frame.look.leaderColor(), ratio, Qt::DashLine);
}

void TrackLeaderPainter::paint(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown) const
{
    if (!shown.label) {
        return;
    }
    painter->setPen(shown.track->coasting ? m_coastingPen : m_pen);
    painter->drawLine(shown.place, corner(frame.look, shown));
}
