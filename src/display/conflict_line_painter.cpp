#include "display/conflict_line_painter.h"

#include "display/track_frame.h"
#include "geo/wgs84.h"
#include "tracking/conflict_geometry.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double EndGap = 4.0; // pixels
constexpr int FiguresMargin = 3;
constexpr double LongestTime = 600.0; // seconds; beyond it nothing can be said of two aircraft
constexpr double LongestLine = 1e5; // pixels; further out the painter's numbers lose their meaning

// Between the symbols; null where they touch.
QLineF visibleLine(const TrackFrame &frame, const QLineF &whole)
{
    const double gap = frame.look.symbolSize / 2.0 + EndGap;
    if (whole.length() <= 2.0 * gap || whole.length() > LongestLine) {
        return {};
    }
    return QLineF(whole.pointAt(gap / whole.length()), whole.pointAt(1.0 - gap / whole.length()));
}

QSize figuresSize(const QFont &font, const QString &words)
{
    const QFontMetricsF metrics(font);
    return QSize(static_cast<int>(std::ceil(metrics.horizontalAdvance(words))) + 2 * FiguresMargin,
        static_cast<int>(std::ceil(metrics.height())));
}

// Where the figures may stand, the most usual place first: on the middle of a line that is long enough for them, then
// below both symbols, above, and to either side.
constexpr int SideCount = 5;
std::array<QRect, SideCount> figurePlaces(const QLineF &whole, const QSize &size, int symbolSize)
{
    const int reach = symbolSize / 2 + static_cast<int>(EndGap);
    const QPoint middle = whole.center().toPoint();
    const QRect ends = QRect(whole.p1().toPoint(), whole.p2().toPoint()).normalized();
    QRect place(QPoint(), size);
    place.moveCenter(middle);
    const int x = place.x();
    const int y = place.y();
    const QRect below(QPoint(x, ends.bottom() + reach), size);
    const bool longEnough = whole.length() >= size.width() + 2.0 * symbolSize;
    return {longEnough ? place : below, below, QRect(QPoint(x, ends.top() - reach - size.height()), size),
        QRect(QPoint(ends.right() + reach, y), size), QRect(QPoint(ends.left() - reach - size.width(), y), size)};
}

} // namespace

QString ConflictLinePainter::text(const ConflictGeometry &geometry)
{
    QStringList parts{tr("%1 NM").arg(geometry.distance / wgs84::MetresPerNauticalMile, 0, 'f', 1)};
    if (geometry.levelDifference) {
        parts.append(tr("%1 ft").arg(*geometry.levelDifference));
    }
    if (geometry.timeToClosestApproach && *geometry.timeToClosestApproach <= LongestTime) {
        parts.append(tr("%1 s").arg(std::lround(*geometry.timeToClosestApproach)));
    }
    return parts.join(QLatin1Char(' '));
}

// Those alerts that last, of tracks that have places.
void ConflictLinePainter::prepare(
    const TrackFrame &frame, const QList<AlertBoard::Entry> &alerts, const Tracks &tracks, const QList<QRect> &keptFree)
{
    m_conflicts.clear();
    QHash<AlertBoard::Key, int> sides;
    for (const AlertBoard::Entry &alert : alerts) {
        const bool conflict =
            frame.look.fields.alertIndicator && alert.type == Alert::STCA && alert.state == Alert::Active;
        const TrackSnapshot *one = conflict ? tracks.value(alert.track1) : nullptr;
        const TrackSnapshot *other = conflict ? tracks.value(alert.track2) : nullptr;
        if (one && other && one->carCoordinateValid && other->carCoordinateValid) {
            add(frame, alert.key, *one, *other, keptFree);
            sides.insert(alert.key, m_sides.value(alert.key));
        }
    }
    m_sides.swap(sides);
}

void ConflictLinePainter::add(const TrackFrame &frame, AlertBoard::Key alert, const TrackSnapshot &one,
    const TrackSnapshot &other, const QList<QRect> &keptFree)
{
    const QLineF whole(frame.view.toScreen(one.carCoordinate), frame.view.toScreen(other.carCoordinate));
    Conflict conflict;
    conflict.line = visibleLine(frame, whole);
    const auto geometry = conflictGeometry(one, other);
    if (geometry && whole.length() < LongestLine) {
        conflict.words = text(*geometry);
        const auto places =
            figurePlaces(whole, figuresSize(frame.look.labelFont, conflict.words), frame.look.symbolSize);
        int &side = m_sides[alert];
        for (int tried = 0; tried < SideCount && !isFree(frame, places[static_cast<std::size_t>(side)], keptFree);
             ++tried) {
            side = tried;
        }
        side = isFree(frame, places[static_cast<std::size_t>(side)], keptFree) ? side : 0;
        conflict.place = places[static_cast<std::size_t>(side)];
    }
    m_conflicts.push_back(conflict);
}

bool ConflictLinePainter::isFree(const TrackFrame &frame, const QRect &place, const QList<QRect> &keptFree) const
{
    const auto meets = [&place](const QRect &rect) { return rect.intersects(place); };
    if (!frame.view.screenRect().contains(place) || std::any_of(keptFree.begin(), keptFree.end(), meets)) {
        return false;
    }
    const int reach = frame.look.symbolSize / 2;
    const QRect near = place.adjusted(-reach, -reach, reach, reach);
    const bool covers = std::any_of(frame.tracks.begin(), frame.tracks.end(), [&](const ShownTrack &shown) {
        return near.contains(shown.place) || (shown.label && meets(frame.look.padded(shown.labelRect)));
    });
    return !covers && std::none_of(m_conflicts.begin(), m_conflicts.end(), [&](const Conflict &other) {
        return meets(other.place);
    });
}

QList<QRect> ConflictLinePainter::textPlaces() const
{
    QList<QRect> places;
    for (const Conflict &conflict : m_conflicts) {
        if (!conflict.words.isEmpty()) {
            places.append(conflict.place);
        }
    }
    return places;
}

QList<QLine> ConflictLinePainter::lines() const
{
    QList<QLine> lines;
    for (const Conflict &conflict : m_conflicts) {
        if (!conflict.line.isNull()) {
            lines.append(conflict.line.toLine());
        }
    }
    return lines;
}

void ConflictLinePainter::paintLines(QPainter *painter, const TrackFrame &frame) const
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(frame.look.colors.labelAlert, 1.5, Qt::DashLine));
    for (const Conflict &conflict : m_conflicts) {
        if (!conflict.line.isNull()) {
            painter->drawLine(conflict.line);
        }
    }
    painter->setRenderHint(QPainter::Antialiasing, false);
}

void ConflictLinePainter::paintTexts(QPainter *painter, const TrackFrame &frame) const
{
    const QColor ground = frame.look.alertGround();
    painter->setFont(frame.look.labelFont);
    painter->setPen(frame.look.colors.labelAlert);
    for (const Conflict &conflict : m_conflicts) {
        if (!conflict.words.isEmpty()) {
            painter->fillRect(conflict.place, ground);
            painter->drawText(conflict.place, static_cast<int>(Qt::AlignCenter | Qt::TextDontClip), conflict.words);
        }
    }
}
