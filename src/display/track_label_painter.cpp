#include "display/track_label_painter.h"

#include "display/track_frame.h"
#include "display/track_label_marks.h"
#include "view/contrast.h"

#include <QPainter>

namespace {

bool isHead(TrackLabelLayout::Kind kind)
{
    return kind == TrackLabelLayout::Kind::Alert || kind == TrackLabelLayout::Kind::Caution;
}

} // namespace

void TrackLabelPainter::prepare(QPainter *painter, const TrackFrame &frame)
{
    const TrackColors &colors = frame.look.colors;
    painter->setFont(frame.look.labelFont);
    painter->setRenderHint(QPainter::TextAntialiasing);
    m_compact = frame.look.isCompact();
    m_pen = QPen(colors.label);
    m_detailPen = QPen(colors.labelDetail);
    m_selectedPen = QPen(colors.labelSelected);
    m_coastingPen = QPen(colors.coasting);
    m_alertPen = QPen(colors.labelAlert);
    m_filledHeadPen = QPen(colors.labelAlertText);
    m_cautionPen = QPen(colors.caution);
    m_coastingFramePen = QPen(colors.label, 1, Qt::DashLine);
    m_alertGround = m_compact ? colors.labelAlert : groundFor(colors.labelAlert);
    m_cautionGround = m_compact ? colors.caution : groundFor(colors.caution);
}

void TrackLabelPainter::paint(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown,
    const std::function<void()> &paintBetween) const
{
    if (!shown.label || shown.labelVisible.isEmpty()) {
        return;
    }
    // Of a label that shows only a corner only the corner is worth painting. A clip of the caller's stays untouched.
    const bool clipped = !shown.labelVisible.contains(frame.look.padded(shown.labelRect)) && !painter->hasClipping();
    if (clipped) {
        painter->setClipRect(shown.labelVisible);
    }
    paintGround(painter, frame, shown);
    if (paintBetween) {
        paintBetween();
    }
    paintText(painter, frame, shown);
    paintFrame(painter, frame, shown);
    if (clipped) {
        painter->setClipping(false);
    }
}

void TrackLabelPainter::paintGround(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown) const
{
    const QRect padded = frame.look.padded(shown.labelRect);
    if (frame.look.backgroundVisible) {
        painter->fillRect(padded, frame.look.colors.labelBackground);
    }
    paintHeads(painter, frame, shown);
}

// The grounds of alert and emergency. Until they are acknowledged they come and go.
void TrackLabelPainter::paintHeads(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown) const
{
    const QRect padded = frame.look.padded(shown.labelRect);
    const std::vector<TrackLabelLayout::Line> &lines = shown.label->lines;
    int top = padded.top();
    for (std::size_t i = 0; i < lines.size() && isHead(lines[i].kind); ++i) { // heads stand above all else
        const bool last = i + 1 == lines.size();
        const int bottom = last ? padded.bottom() + 1 : shown.labelRect.top() + qRound(lines[i + 1].y);
        const bool alert = lines[i].kind == TrackLabelLayout::Kind::Alert;
        if (!shown.blinkedOff && (alert || shown.asking)) {
            const QRect head(padded.left(), top, padded.width(), bottom - top);
            painter->fillRect(head, alert ? m_alertGround : m_cautionGround);
        }
        top = bottom;
    }
}

const QPen &TrackLabelPainter::penFor(TrackLabelLayout::Kind kind, const ShownTrack &shown) const
{
    using Kind = TrackLabelLayout::Kind;
    if (kind == Kind::Alert) {
        return m_compact && !shown.blinkedOff ? m_filledHeadPen : m_alertPen;
    }
    if (kind == Kind::Caution) {
        return m_compact && shown.asking && !shown.blinkedOff ? m_filledHeadPen : m_cautionPen;
    }
    if (shown.selected) {
        return m_selectedPen;
    }
    if (m_compact && shown.track->coasting && !shown.alerting) {
        return shown.overdue ? m_cautionPen : m_coastingPen;
    }
    return kind == Kind::Detail ? m_detailPen : m_pen;
}

void TrackLabelPainter::paintText(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown) const
{
    using Kind = TrackLabelLayout::Kind;
    const std::vector<TrackLabelLayout::Line> &lines = shown.label->lines;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const TrackLabelLayout::Line &line = lines[i];
        if (shown.hiddenLines & (1u << i)) {
            continue;
        }
        if (m_compact) {
            // A static text is laid out again for another font than that which it was first drawn in.
            painter->setFont(line.kind == Kind::Detail ? frame.look.labelFont : frame.look.identityFont);
        }
        const QPointF place(shown.labelRect.x(), shown.labelRect.y() + line.y);
        painter->setPen(penFor(line.kind, shown));
        painter->drawStaticText(place, line.staticText);
        for (const TrackLabelLayout::Mark &mark : line.marks) {
            tracklabel::paintMark(painter, mark.character, mark.cell.translated(place));
        }
    }
}

// What makes alerts and coasting tracks stand out from afar.
void TrackLabelPainter::paintFrame(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown) const
{
    const QRect outline = frame.look.padded(shown.labelRect).adjusted(0, 0, -1, -1);
    if (shown.track->coasting && !m_compact) {
        painter->setPen(m_coastingFramePen);
        painter->drawRect(outline);
    }
    if (shown.label->alertHeight > 0) {
        painter->setPen(m_alertPen);
        painter->drawRect(outline);
        painter->drawRect(outline.adjusted(-1, -1, 1, 1));
    }
}
