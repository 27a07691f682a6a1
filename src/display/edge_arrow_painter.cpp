#include "display/edge_arrow_painter.h"

#include "display/track_frame.h"
#include "display/track_label_lines.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPolygonF>
#include <QSet>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

constexpr double Inset = 6.0; // pixels from the edge to an arrow's point
constexpr double ArrowLength = 13.0;
constexpr double ArrowHalfWidth = 7.0;
constexpr double ArrowTextGap = 4.0;

// Where the way from the middle of the rectangle to a point outside leaves it.
QPointF exitPoint(const QRectF &rect, const QPointF &outside)
{
    const QPointF away = outside - rect.center();
    const double across = rect.width() / 2.0 / std::max(std::abs(away.x()), 1e-9);
    const double along = rect.height() / 2.0 / std::max(std::abs(away.y()), 1e-9);
    return rect.center() + away * std::min(across, along);
}

QPolygonF arrow(const QPointF &point, double angle)
{
    const QPointF ahead(std::cos(angle), std::sin(angle));
    const QPointF across(-ahead.y(), ahead.x());
    const QPointF foot = point - ahead * ArrowLength;
    return QPolygonF({point, foot + across * ArrowHalfWidth, foot - across * ArrowHalfWidth});
}

// Inwards of the arrow, whole within the view.
QRectF textPlace(const QRectF &view, const QRectF &arrow, const QSizeF &size)
{
    QRectF place(QPointF(), size);
    place.moveCenter(arrow.center());
    if (std::abs(arrow.center().x() - view.center().x()) / view.width()
        > std::abs(arrow.center().y() - view.center().y()) / view.height()) {
        const bool left = arrow.center().x() < view.center().x();
        left ? place.moveLeft(arrow.right() + ArrowTextGap) : place.moveRight(arrow.left() - ArrowTextGap);
    } else {
        const bool above = arrow.center().y() < view.center().y();
        above ? place.moveTop(arrow.bottom() + ArrowTextGap) : place.moveBottom(arrow.top() - ArrowTextGap);
    }
    place.moveLeft(std::clamp(place.left(), view.left(), std::max(view.left(), view.right() - size.width())));
    place.moveTop(std::clamp(place.top(), view.top(), std::max(view.top(), view.bottom() - size.height())));
    place.moveTopLeft(place.topLeft().toPoint());
    return place;
}

} // namespace

void EdgeArrowPainter::prepare(const TrackFrame &frame, const AlertBoard &board, const Tracks &tracks)
{
    m_arrows.clear();
    if (!frame.look.fields.alertIndicator) {
        return;
    }
    const QRectF view = frame.view.screenRect();
    QSet<quint64> shown;
    for (const AlertBoard::Entry &entry : board.entries()) {
        for (const quint64 id : {entry.track1, entry.track2}) {
            const TrackSnapshot *track = tracks.value(id);
            const auto attention = board.attention(id);
            if (!track || !track->carCoordinateValid || attention == AlertBoard::Attention::None || shown.contains(id)
                || view.contains(frame.view.toScreen(track->carCoordinate))) {
                continue;
            }
            shown.insert(id);
            add(frame, *track, attention != AlertBoard::Attention::Asked || frame.blinkOn);
        }
    }
}

void EdgeArrowPainter::add(const TrackFrame &frame, const TrackSnapshot &track, bool filled)
{
    const QRectF view = QRectF(frame.view.screenRect()).adjusted(Inset, Inset, -Inset, -Inset);
    const QPointF place = frame.view.toScreen(track.carCoordinate);
    const QPointF away = place - view.center();
    Arrow added;
    added.shape = arrow(exitPoint(view, place), std::atan2(away.y(), away.x()));
    added.color = track.alertsString.isEmpty() ? frame.look.colors.caution : frame.look.colors.labelAlert;
    added.filled = filled;
    added.words = (track.alertsString + ' ' + trackMarks(track)).simplified() + ' ' + trackName(track);
    const QFontMetricsF metrics(frame.look.labelFont);
    const QSizeF size(metrics.horizontalAdvance(added.words) + 2.0 * ArrowTextGap, metrics.height());
    const QRect text = textPlace(view, added.shape.boundingRect(), size).toAlignedRect();
    const bool taken = std::any_of(
        m_arrows.begin(), m_arrows.end(), [&text](const Arrow &other) { return other.text.intersects(text); });
    added.text = taken ? QRect() : text;
    m_arrows.push_back(added);
}

QList<QRect> EdgeArrowPainter::places() const
{
    QList<QRect> places;
    for (const Arrow &arrow : m_arrows) {
        places.append(arrow.shape.boundingRect().toAlignedRect() | arrow.text);
    }
    return places;
}

void EdgeArrowPainter::paint(QPainter *painter, const TrackFrame &frame) const
{
    const QColor ground = frame.look.alertGround();
    painter->setFont(frame.look.labelFont);
    for (const Arrow &arrow : m_arrows) {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(arrow.color, 1.5));
        painter->setBrush(arrow.filled ? arrow.color : ground);
        painter->drawPolygon(arrow.shape);
        painter->setRenderHint(QPainter::Antialiasing, false);
        painter->setBrush(Qt::NoBrush);
        if (!arrow.text.isNull()) {
            painter->fillRect(arrow.text, ground);
            painter->drawText(arrow.text, static_cast<int>(Qt::AlignCenter | Qt::TextDontClip), arrow.words);
        }
    }
}
