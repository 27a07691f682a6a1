#include "display/track_leader_painter.h"

#include "display/track_frame.h"
#include "display/track_label_visibility.h"

#include <QLineF>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int Drop = 4; // pixels below the top of the padded label
constexpr double SymbolGap = 3.0; // pixels; the symbol's casing and a little air
constexpr double ShortestLine = 3.0; // pixels

// A point a little below the label's upper corner that lies on the track's side.
QPoint corner(const TrackLook &look, const ShownTrack &shown)
{
    const QRect rect = shown.labelRect.translated(-shown.place);
    const QRect padded = look.padded(rect);
    const int x = rect.left() + rect.right() < -1 ? padded.right() : padded.left();
    return shown.place + QPoint(x, padded.top() + Drop);
}

// From outside the symbol to the nearest point of the label; null where they all but touch.
QLineF nearest(const TrackLook &look, const ShownTrack &shown)
{
    const QRect padded = look.padded(shown.labelRect);
    const QPoint end(std::clamp(shown.place.x(), padded.left(), padded.right() + 1),
        std::clamp(shown.place.y(), padded.top(), padded.bottom() + 1));
    QLineF line(end, shown.place);
    const double length = line.length() - look.symbolSize / 2.0 - SymbolGap;
    if (length < ShortestLine) {
        return {};
    }
    line.setLength(length);
    return QLineF(line.p2(), line.p1());
}

} // namespace

void TrackLeaderPainter::prepare(const TrackFrame &frame)
{
    m_pens.prepare(frame.view.devicePixelRatio());
}

void TrackLeaderPainter::paint(
    QPainter *painter, const TrackFrame &frame, const ShownTrack &shown, const TrackLabelVisibility *labels)
{
    if (!shown.label) {
        return;
    }
    if (frame.look.isCompact() && shown.labelVisible.isEmpty()) {
        return; // a leader to a label that is hidden leads to another one
    }
    const QLineF line =
        frame.look.isCompact() ? nearest(frame.look, shown) : QLineF(shown.place, corner(frame.look, shown));
    if (line.isNull() || (labels && labels->isHidden(QRectF(line.p1(), line.p2()).normalized()))) {
        return;
    }
    painter->setPen(m_pens.line(frame.leaderColor(shown), shown.track->coasting));
    painter->drawLine(line);
}
