#include "display/geo_track_display.h"
#include "geo/wgs84.h"
#include "view/geo_view.h"

#include <QFontMetricsF>
#include <QLineF>
#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double OffScreenMargin = 500.0; // pixels round the view from which labels still reach into it
constexpr int TickReach = 2; // pixels to either side of a vector
constexpr int TrailDotSize = 2; // pixels
constexpr int LeaderDrop = 4; // pixels below the top of the padded label

// The direction of an angle in degrees clockwise from the top of the screen.
QPointF direction(double degrees)
{
    const double radians = qDegreesToRadians(degrees);
    return QPointF(std::sin(radians), -std::cos(radians));
}

} // namespace

void GeoTrackDisplay::paint(QPainter *painter)
{
    paint(painter, GeoView::fromPainter(*painter));
}

void GeoTrackDisplay::paint(QPainter *painter, const GeoView &view)
{
    m_labelRects.clear();
    if (!m_snapshot) {
        return;
    }
    collectShown(view);
    scalePens(view.devicePixelRatio());
    painter->save();
    painter->resetTransform();
    painter->setFont(m_labelFont);
    painter->setPen(m_labelPen);
    painter->setRenderHint(QPainter::TextAntialiasing);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    if (view.metresPerPixel() <= DetailLimit) {
        placeLabels();
        findVisibleLabels(view);
        for (const Shown &shown : m_shown) {
            paintDetails(painter, view, shown);
        }
    }
    // After all labels: a label may cover another label, but never a target.
    for (const Shown &shown : m_shown) {
        paintSymbol(painter, view, shown);
    }
    painter->restore();
}

void GeoTrackDisplay::collectShown(const GeoView &view)
{
    const double margin = OffScreenMargin * view.metresPerPixel();
    const QRectF area = view.planeRect().adjusted(-margin, -margin, margin, margin);
    m_shown.clear();
    for (const TrackSnapshot &track : m_snapshot->tracks) {
        if (!track.carCoordinateValid || !area.contains(track.carCoordinate)) {
            continue;
        }
        Shown shown;
        shown.track = &track;
        // On whole pixels, so that nothing shimmers while the track moves or the view is panned.
        shown.place = view.toScreen(track.carCoordinate).toPoint();
        m_shown.push_back(shown);
    }
    std::stable_partition(
        m_shown.begin(), m_shown.end(), [](const Shown &shown) { return shown.track->alertsString.isEmpty(); });
}

void GeoTrackDisplay::placeLabels()
{
    if (!m_labelVisible || !m_fields.any()) {
        return;
    }
    for (const Shown &shown : m_shown) {
        refreshLabel(*shown.track);
    }
    m_labelRects.reserve(qsizetype(m_shown.size()));
    for (Shown &shown : m_shown) {
        // Nothing is added to the table from here on, so its entries stay where they are.
        LabelCacheEntry *label = &*m_labelCache.find(shown.track->incarnationId);
        if (label->lines.empty()) {
            continue;
        }
        const QPoint offset = trackLabelOffset(shown.track->incarnationId);
        const QRect rect(QPoint(offset.x(), -offset.y()), label->size);
        m_labelRects.insert(shown.track->incarnationId, rect);
        shown.label = label;
        shown.labelRect = rect.translated(shown.place);
    }
}

// In a crowd most labels lie under others. What cannot be seen is not painted, so that a frame costs what its pixels
// cost, however many tracks there are. From the topmost label down.
void GeoTrackDisplay::findVisibleLabels(const GeoView &view)
{
    const bool opaque = m_backgroundVisible && m_labelBackgroundColor.alpha() == 255;
    m_cover.reset(view.screenRect().size());
    for (auto shown = m_shown.rbegin(); shown != m_shown.rend(); ++shown) {
        if (!shown->label) {
            continue;
        }
        const QRect padded = paddedRect(shown->labelRect);
        shown->labelVisible = m_cover.visiblePart(padded.adjusted(-1, -1, 1, 1)); // an alert's frame stands outside
        if (shown->labelVisible.isEmpty()) {
            continue;
        }
        const std::vector<LabelLine> &lines = shown->label->lines;
        for (std::size_t i = 0; i < lines.size(); ++i) {
            const int top = shown->labelRect.top() + int(lines[i].y);
            const int bottom = i + 1 < lines.size() ? shown->labelRect.top() + int(lines[i + 1].y) : padded.bottom();
            // Glyphs may lean out of their line a little.
            const QRect line(QPoint(padded.left(), top - 2), QPoint(padded.right(), bottom + 2));
            shown->hiddenLines |= m_cover.visiblePart(line).isEmpty() ? 1u << i : 0u;
        }
        if (opaque) {
            m_cover.cover(padded);
        }
    }
}

// Cosmetic widths count device pixels.
void GeoTrackDisplay::scalePens(double devicePixelRatio)
{
    if (m_symbolPen.widthF() == devicePixelRatio) {
        return;
    }
    m_symbolPen.setWidthF(devicePixelRatio);
    m_coastingPen.setWidthF(devicePixelRatio);
}

void GeoTrackDisplay::paintDetails(QPainter *painter, const GeoView &view, const Shown &shown)
{
    if (m_trailVisible && !shown.track->trail.isEmpty()) {
        paintTrail(painter, view, *shown.track);
    }
    if (m_vectorVisible && shown.track->headingValid) {
        paintVector(painter, view, shown);
    }
    if (!shown.label) {
        return;
    }
    if (!shown.labelVisible.isEmpty()) {
        paintLabel(painter, shown);
    }
    paintLeader(painter, shown);
}

// Dots as small rectangles: what a pen of that width draws as points, at a quarter of the cost.
void GeoTrackDisplay::paintTrail(QPainter *painter, const GeoView &view, const TrackSnapshot &track)
{
    const auto dots = std::min<qsizetype>(m_trailDots, track.trail.size());
    m_trailDotRects.clear();
    for (qsizetype i = 0; i < dots; ++i) {
        const QPoint dot = view.toScreen(track.trail[i]).toPoint();
        m_trailDotRects.emplace_back(
            dot.x() - TrailDotSize / 2, dot.y() - TrailDotSize / 2, TrailDotSize, TrailDotSize);
    }
    painter->setPen(Qt::NoPen);
    painter->setBrush(m_trailColor);
    painter->drawRects(m_trailDotRects.data(), int(m_trailDotRects.size()));
    painter->setBrush(Qt::NoBrush);
}

double GeoTrackDisplay::vectorUnitPixels(const TrackSnapshot &track, double metresPerPixel) const
{
    if (!m_vectorTimeMode) {
        return wgs84::MetresPerNauticalMile / metresPerPixel;
    }
    if (!track.groundSpeedValid || !(track.groundSpeed > 0.0)) {
        return 0.0;
    }
    return track.groundSpeed / 60.0 * wgs84::MetresPerNauticalMile / metresPerPixel;
}

void GeoTrackDisplay::paintVector(QPainter *painter, const GeoView &view, const Shown &shown)
{
    const double unit = vectorUnitPixels(*shown.track, view.metresPerPixel());
    const double length = unit * m_vectorRange;
    if (length < 1.0) {
        return;
    }
    const QPointF ahead = direction(shown.track->heading + view.rotation());
    const QPointF across = QPointF(-ahead.y(), ahead.x()) * TickReach;
    m_vectorLines.clear();
    m_vectorLines.emplace_back(shown.place, shown.place + ahead * length);
    for (int i = 1; i < m_vectorRange && m_vectorTicksVisible; ++i) {
        const QPointF tick = shown.place + ahead * (i * unit);
        m_vectorLines.emplace_back(tick - across, tick + across);
    }
    painter->setPen(shown.track->coasting ? m_coastingPen : m_symbolPen);
    painter->drawLines(m_vectorLines.data(), int(m_vectorLines.size()));
}

void GeoTrackDisplay::refreshLabel(const TrackSnapshot &track)
{
    LabelCacheEntry &label = m_labelCache[track.incarnationId];
    if (label.contentRevision == m_contentRevision) {
        return;
    }
    TrackLabelLines content = trackLabelLines(track, m_fields);
    if (label.contentRevision == 0 || !(content == label.content)) {
        label.content = std::move(content);
        layOutLabel(label);
    }
    label.contentRevision = m_contentRevision;
}

// Of a line that stays the same its layout stays too: mostly it is only the speed or the level that changes. The static
// texts lay out their glyphs when they are first drawn, so labels that nobody sees cost little.
void GeoTrackDisplay::layOutLabel(LabelCacheEntry &label) const
{
    const QFontMetricsF metrics(m_labelFont);
    std::vector<LabelLine> before = std::exchange(label.lines, {});
    double width = 0.0;
    for (int i = 0; i < TrackLabelLines::Count; ++i) {
        const QString &text = label.content.text[std::size_t(i)];
        if (text.isEmpty()) {
            continue;
        }
        const auto same =
            std::find_if(before.begin(), before.end(), [&text](const LabelLine &line) { return line.text == text; });
        LabelLine line = same != before.end() ? std::move(*same) : textLine(text, metrics);
        line.y = double(label.lines.size()) * metrics.lineSpacing();
        line.alert = i == TrackLabelLines::Alert;
        width = std::max(width, line.width);
        label.lines.push_back(std::move(line));
    }
    const double above = (double(label.lines.size()) - 1.0) * metrics.lineSpacing();
    label.alertHeight = label.lines.empty() || !label.lines.front().alert ? 0 : qRound(metrics.lineSpacing());
    label.size = QSize(int(std::ceil(width)), int(std::ceil(above + metrics.height())));
}

GeoTrackDisplay::LabelLine GeoTrackDisplay::textLine(const QString &text, const QFontMetricsF &metrics)
{
    LabelLine line;
    line.text = text;
    line.staticText.setTextFormat(Qt::PlainText);
    line.staticText.setText(text);
    line.width = metrics.horizontalAdvance(text);
    return line;
}

// The padding goes round the label, except below it.
QRect GeoTrackDisplay::paddedRect(const QRect &labelRect) const
{
    return labelRect.adjusted(-shownPadding(), -shownPadding(), shownPadding(), 0);
}

void GeoTrackDisplay::paintLabel(QPainter *painter, const Shown &shown) const
{
    // Of a label that shows only a corner only the corner is worth painting. A clip of the caller's stays untouched.
    const bool clipped = !shown.labelVisible.contains(paddedRect(shown.labelRect)) && !painter->hasClipping();
    if (clipped) {
        painter->setClipRect(shown.labelVisible);
    }
    paintLabelGround(painter, shown);
    const QPen &pen = shown.track->incarnationId == m_selectedTrack ? m_labelSelectedPen : m_labelPen;
    const std::vector<LabelLine> &lines = shown.label->lines;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (shown.hiddenLines & (1u << i)) {
            continue;
        }
        painter->setPen(lines[i].alert ? m_labelAlertPen : pen);
        painter->drawStaticText(QPointF(shown.labelRect.x(), shown.labelRect.y() + lines[i].y), lines[i].staticText);
    }
    paintLabelFrame(painter, shown);
    if (clipped) {
        painter->setClipping(false);
    }
}

void GeoTrackDisplay::paintLabelGround(QPainter *painter, const Shown &shown) const
{
    const QRect padded = paddedRect(shown.labelRect);
    if (m_backgroundVisible) {
        painter->fillRect(padded, m_labelBackgroundColor);
    }
    const int alertHeight = shown.label->alertHeight;
    if (alertHeight > 0) {
        painter->fillRect(
            QRect(padded.topLeft(), QSize(padded.width(), alertHeight + shownPadding())), m_labelAlertGround);
    }
}

// What makes alerts and coasting tracks stand out from afar.
void GeoTrackDisplay::paintLabelFrame(QPainter *painter, const Shown &shown) const
{
    const QRect frame = paddedRect(shown.labelRect).adjusted(0, 0, -1, -1);
    if (shown.track->coasting) {
        painter->setPen(QPen(m_labelPen.color(), 1, Qt::DashLine));
        painter->drawRect(frame);
    }
    if (shown.label->alertHeight > 0) {
        painter->setPen(m_labelAlertPen);
        painter->drawRect(frame);
        painter->drawRect(frame.adjusted(-1, -1, 1, 1));
    }
}

// To a point a little below the label's upper corner that lies on the track's side.
void GeoTrackDisplay::paintLeader(QPainter *painter, const Shown &shown) const
{
    const QRect rect = shown.labelRect.translated(-shown.place);
    const int x = rect.left() + rect.right() < -1 ? rect.right() + shownPadding() : rect.left() - shownPadding();
    painter->setPen(shown.track->coasting ? m_coastingPen : m_symbolPen);
    painter->drawLine(shown.place, shown.place + QPoint(x, rect.top() - shownPadding() + LeaderDrop));
}

void GeoTrackDisplay::paintSymbol(QPainter *painter, const GeoView &view, const Shown &shown)
{
    const TrackSnapshot &track = *shown.track;
    const bool byTarget = m_targetTypeSymbol && track.headingValid;
    const QPixmap &symbol = byTarget
        ? m_symbols.aircraft(track.heading + view.rotation(), view.devicePixelRatio())
        : m_symbols.pixmap(TrackSymbols::forTrackType(track.type), view.devicePixelRatio());
    painter->drawPixmap(shown.place - QPoint(m_symbolSize / 2, m_symbolSize / 2), symbol);
}
