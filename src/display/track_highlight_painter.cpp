#include "display/track_highlight_painter.h"

#include "display/track_frame.h"
#include "display/track_label_lines.h"

#include <QFontMetrics>
#include <QPainter>

namespace {

constexpr double RingGap = 4.0; // pixels round the symbol
constexpr double SelectedRing = 2.0; // width
constexpr double HoveredRing = 1.0;
constexpr int HeadGap = 4;
constexpr int HeadMargin = 3;

} // namespace

void TrackHighlightPainter::paint(QPainter *painter, const TrackFrame &frame) const
{
    for (const ShownTrack &shown : frame.tracks) {
        if (shown.selected || shown.hovered) {
            paintRing(painter, frame, shown);
        }
        if (!shown.label && (shown.alerting || shown.inDistress)) {
            paintHead(painter, frame, shown);
        }
    }
}

void TrackHighlightPainter::paintRing(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown)
{
    const double radius = frame.look.symbolSize / 2.0 + RingGap;
    const TrackColors &colors = frame.look.colors;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(shown.selected ? QPen(colors.labelSelected, SelectedRing) : QPen(colors.label, HoveredRing));
    painter->drawEllipse(QPointF(shown.place), radius, radius);
    painter->restore();
}

void TrackHighlightPainter::paintHead(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown)
{
    if (!frame.look.fields.alertIndicator) {
        return;
    }
    const QString words = (shown.track->alertsString + QLatin1Char(' ') + trackMarks(*shown.track)).simplified();
    const QFontMetrics metrics(frame.look.labelFont);
    const int beside = frame.look.symbolSize / 2 + HeadGap;
    const QRect head(shown.place + QPoint(beside, -beside - metrics.height()),
        QSize(metrics.horizontalAdvance(words) + 2 * HeadMargin, metrics.height()));
    const TrackColors &colors = frame.look.colors;
    const QColor &color = shown.alerting ? colors.labelAlert : colors.caution;
    painter->setFont(frame.look.labelFont);
    painter->fillRect(head, shown.blinkedOff ? colors.labelBackground : color);
    painter->setPen(color);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(head.adjusted(0, 0, -1, -1));
    painter->setPen(shown.blinkedOff ? color : colors.labelAlertText);
    painter->drawText(head, static_cast<int>(Qt::AlignCenter | Qt::TextDontClip), words);
}
