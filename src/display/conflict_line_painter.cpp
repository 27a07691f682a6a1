#include "display/conflict_line_painter.h"

#include "display/track_frame.h"
#include "geo/wgs84.h"
#include "tracking/conflict_geometry.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

constexpr double EndGap = 4.0; // pixels
constexpr double TextMargin = 3.0;
constexpr double LongestTime = 600.0; // seconds; beyond it nothing can be said of two aircraft
constexpr double LongestLine = 1e5; // pixels; further out the painter's numbers lose their meaning

// Between the symbols; null where they touch.
QLineF visibleLine(const TrackFrame &frame, const QPointF &from, const QPointF &to)
{
    const QLineF whole(from, to);
    const double gap = frame.look.symbolSize / 2.0 + EndGap;
    if (whole.length() <= 2.0 * gap || whole.length() > LongestLine) {
        return {};
    }
    return QLineF(whole.pointAt(gap / whole.length()), whole.pointAt(1.0 - gap / whole.length()));
}

// On the middle of a line that is long enough for it, else below both symbols.
QRectF textPlace(const QLineF &whole, const QSizeF &size, double symbolSize)
{
    QRectF place(QPointF(), size + QSizeF(2.0 * TextMargin, 0.0));
    place.moveCenter(whole.center());
    if (whole.length() < place.width() + 2.0 * symbolSize) {
        place.moveTop(std::max(whole.y1(), whole.y2()) + symbolSize / 2.0 + EndGap);
    }
    place.moveTopLeft(place.topLeft().toPoint());
    return place;
}

// Those that last, of tracks that have places.
template <typename Paint>
void forEachConflict(const TrackFrame &frame, const QList<AlertBoard::Entry> &alerts,
    const ConflictLinePainter::Tracks &tracks, Paint paint)
{
    for (const AlertBoard::Entry &alert : alerts) {
        const bool conflict =
            frame.look.fields.alertIndicator && alert.type == Alert::STCA && alert.state == Alert::Active;
        const TrackSnapshot *one = conflict ? tracks.value(alert.track1) : nullptr;
        const TrackSnapshot *other = conflict ? tracks.value(alert.track2) : nullptr;
        if (one && other && one->carCoordinateValid && other->carCoordinateValid) {
            paint(*one, *other);
        }
    }
}

} // namespace

QString ConflictLinePainter::text(const ConflictGeometry &geometry)
{
    const auto tr = [](const char *text) { return QCoreApplication::translate("ConflictLinePainter", text); };
    QStringList parts{tr("%1 NM").arg(geometry.distance / wgs84::MetresPerNauticalMile, 0, 'f', 1)};
    if (geometry.levelDifference) {
        parts.append(tr("%1 ft").arg(*geometry.levelDifference));
    }
    if (geometry.timeToClosestApproach && *geometry.timeToClosestApproach <= LongestTime) {
        parts.append(tr("%1 s").arg(std::lround(*geometry.timeToClosestApproach)));
    }
    return parts.join(QLatin1Char(' '));
}

void ConflictLinePainter::paintLines(
    QPainter *painter, const TrackFrame &frame, const QList<AlertBoard::Entry> &alerts, const Tracks &tracks) const
{
    forEachConflict(frame, alerts, tracks,
        [&](const TrackSnapshot &one, const TrackSnapshot &other) { paintLine(painter, frame, one, other); });
}

void ConflictLinePainter::paintTexts(
    QPainter *painter, const TrackFrame &frame, const QList<AlertBoard::Entry> &alerts, const Tracks &tracks) const
{
    forEachConflict(frame, alerts, tracks,
        [&](const TrackSnapshot &one, const TrackSnapshot &other) { paintText(painter, frame, one, other); });
}

void ConflictLinePainter::paintLine(
    QPainter *painter, const TrackFrame &frame, const TrackSnapshot &one, const TrackSnapshot &other)
{
    const QLineF line =
        visibleLine(frame, frame.view.toScreen(one.carCoordinate), frame.view.toScreen(other.carCoordinate));
    if (line.isNull()) {
        return;
    }
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(frame.look.colors.labelAlert, 1.5, Qt::DashLine));
    painter->drawLine(line);
    painter->setRenderHint(QPainter::Antialiasing, false);
}

void ConflictLinePainter::paintText(
    QPainter *painter, const TrackFrame &frame, const TrackSnapshot &one, const TrackSnapshot &other)
{
    const auto geometry = conflictGeometry(one, other);
    if (!geometry) {
        return;
    }
    const QFontMetricsF metrics(frame.look.labelFont);
    const QString words = text(*geometry);
    const QLineF whole(frame.view.toScreen(one.carCoordinate), frame.view.toScreen(other.carCoordinate));
    const QRectF place =
        textPlace(whole, QSizeF(metrics.horizontalAdvance(words), metrics.height()), frame.look.symbolSize);
    painter->setFont(frame.look.labelFont);
    QColor ground = frame.look.colors.labelBackground;
    ground.setAlpha(255); // it may stand on the text of a label
    painter->fillRect(place, ground);
    painter->setPen(frame.look.colors.labelAlert);
    painter->drawText(place, int(Qt::AlignCenter | Qt::TextDontClip), words);
}
