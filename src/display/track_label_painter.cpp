#include "display/track_label_painter.h"

#include "display/track_frame.h"
#include "view/contrast.h"

#include <QPainter>

void TrackLabelPainter::prepare(QPainter *painter, const TrackFrame &frame)
{
    const TrackColors &colors = frame.look.colors;
    painter->setFont(frame.look.labelFont);
    painter->setRenderHint(QPainter::TextAntialiasing);
    m_pen = QPen(colors.label);
    m_selectedPen = QPen(colors.labelSelected);
    m_alertPen = QPen(colors.labelAlert);
    m_coastingFramePen = QPen(colors.label, 1, Qt::DashLine);
    m_alertGround = groundFor(colors.labelAlert);
}

void TrackLabelPainter::paint(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown) const
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
    paintText(painter, shown);
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
    if (shown.label->alertHeight > 0) {
        const int height = shown.label->alertHeight + frame.look.shownPadding();
        painter->fillRect(QRect(padded.topLeft(), QSize(padded.width(), height)), m_alertGround);
    }
}

void TrackLabelPainter::paintText(QPainter *painter, const ShownTrack &shown) const
{
    const QPen &pen = shown.selected ? m_selectedPen : m_pen;
    const std::vector<TrackLabelLayout::Line> &lines = shown.label->lines;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (shown.hiddenLines & (1u << i)) {
            continue;
        }
        painter->setPen(lines[i].alert ? m_alertPen : pen);
        painter->drawStaticText(QPointF(shown.labelRect.x(), shown.labelRect.y() + lines[i].y), lines[i].staticText);
    }
}

// What makes alerts and coasting tracks stand out from afar.
void TrackLabelPainter::paintFrame(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown) const
{
    const QRect outline = frame.look.padded(shown.labelRect).adjusted(0, 0, -1, -1);
    if (shown.track->coasting) {
        painter->setPen(m_coastingFramePen);
        painter->drawRect(outline);
    }
    if (shown.label->alertHeight > 0) {
        painter->setPen(m_alertPen);
        painter->drawRect(outline);
        painter->drawRect(outline.adjusted(-1, -1, 1, 1));
    }
}
