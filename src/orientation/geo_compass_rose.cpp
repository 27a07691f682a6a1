#include "orientation/geo_compass_rose.h"

#include "app/config.h"
#include "geo/projector.h"
#include "orientation/geo_range_ring_map.h"
#include "view/geo_view.h"
#include "view/map_text.h"
#include "view/text_room.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

constexpr int TickStep = 10; // degrees
constexpr int FigureStep = 30;
constexpr double ShortTick = 5.0; // pixels
constexpr double LongTick = 9.0;
constexpr double FigureGap = 3.0; // pixels between tick and figure
constexpr double RoomOutside = 28.0; // pixels that the figures need outside of a ring
constexpr double SmallestRing = 60.0; // pixels, radius
constexpr double RimStep = 8.0; // pixels
constexpr double LeastSlope = 0.15; // sine of the angle between rim and bearing: flatter ones are not marked

double tickLength(int bearing)
{
    return bearing % FigureStep == 0 ? LongTick : ShortTick;
}

QString figure(int bearing)
{
    return QStringLiteral("%1").arg(bearing, 3, 10, QLatin1Char('0'));
}

// How far a box reaches from its middle in a direction (unit vector).
double reach(const QRectF &box, const QPointF &direction)
{
    return std::abs(direction.x()) * box.width() / 2.0 + std::abs(direction.y()) * box.height() / 2.0;
}

bool fits(const QPolygonF &ring, const QRectF &view)
{
    const QRectF bounds = ring.boundingRect();
    return !ring.isEmpty() && bounds.width() > 2.0 * SmallestRing
        && view.adjusted(RoomOutside, RoomOutside, -RoomOutside, -RoomOutside).contains(bounds);
}

} // namespace

GeoCompassRose::GeoCompassRose(Projector *projector, GeoRangeRingMap *rings, QObject *parent)
    : GeoLayer(tr("Compass rose"), parent), m_projector(projector), m_rings(rings)
{
    GeoCompassRose::applyConfig(Config());
}

void GeoCompassRose::applyConfig(const Config &config)
{
    m_color = config.mapRangeRingLabelColor;
    m_ground = config.mapBackgroundColor;
    setVisible(config.mapCompassRoseVisible);
    Q_EMIT polluted();
}

SettingGroups GeoCompassRose::settings() const
{
    return SettingGroup::Orientation | SettingGroup::PlanView;
}

void GeoCompassRose::makeMarks(const GeoView &view)
{
    QPolygonF ring = m_rings->visible() ? m_rings->outermostRing(view) : QPolygonF();
    if (!fits(ring, view.screenRect())) {
        ring.clear();
    }
    if (m_markedTransform == view.screenTransform() && m_markedSize == view.screenRect().size()
        && m_markedCenter == m_rings->center() && m_markedRing == ring) {
        return;
    }
    m_markedTransform = view.screenTransform();
    m_markedSize = view.screenRect().size();
    m_markedCenter = m_rings->center();
    m_markedRing = ring;
    m_marks.clear();
    if (ring.isEmpty()) {
        marksOnRim(view);
    } else {
        marksOnRing(ring);
    }
}

// Ticks point inwards, the figures stand outside.
void GeoCompassRose::marksOnRing(const QPolygonF &ring)
{
    const qsizetype points = ring.size() - 1;
    for (int bearing = TickStep; bearing <= 360; bearing += TickStep) {
        const QPointF foot = ring[bearing * points / 360 % points];
        const QPointF opposite = ring[(bearing + 180) * points / 360 % points];
        const QLineF outward(opposite, foot);
        const QPointF direction(outward.dx() / outward.length(), outward.dy() / outward.length());
        Mark mark{bearing, foot, direction, QLineF(foot, foot - direction * tickLength(bearing)), {}, false};
        mark.text = foot + direction * (FigureGap + reach(mapTextRect({}, figure(bearing)), direction));
        m_marks.push_back(mark);
    }
}

void GeoCompassRose::marksOnRim(const GeoView &view)
{
    const GeoCoordinate center = m_projector->toWgs84(m_rings->center());
    if (!center.isValid()) {
        return;
    }
    const QPointF middle = view.toScreen(m_rings->center());
    const QRectF rim = QRectF(view.screenRect());
    const QPointF corners[] = {rim.topLeft(), rim.topRight(), rim.bottomRight(), rim.bottomLeft(), rim.topLeft()};
    const QPointF inward[] = {{0, 1}, {-1, 0}, {0, -1}, {1, 0}};
    const auto bearingOf = [&](const QPointF &pixel) -> std::optional<double> {
        const GeoCoordinate place = m_projector->toWgs84(view.toPlane(pixel));
        return place.isValid() ? std::optional(center.azimuthTo(place)) : std::nullopt;
    };
    for (int side = 0; side < 4; ++side) {
        const QLineF line(corners[side], corners[side + 1]);
        const int steps = std::max(1, static_cast<int>(line.length() / RimStep));
        std::optional<double> before = bearingOf(line.p1());
        for (int i = 1; i <= steps; ++i) {
            const std::optional<double> here = bearingOf(line.pointAt(static_cast<double>(i) / steps));
            if (before && here) {
                markBetween(line.pointAt((i - 1.0) / steps), *before, line.pointAt(static_cast<double>(i) / steps),
                    *here, inward[side], middle);
            }
            before = here;
        }
    }
}

// Where the rim crosses bearings between two of its points.
void GeoCompassRose::markBetween(const QPointF &one, double oneBearing, const QPointF &other, double otherBearing,
    const QPointF &inward, const QPointF &middle)
{
    const double turn = std::remainder(otherBearing - oneBearing, 360.0);
    if (std::abs(turn) > 2.0 * TickStep) { // next to the centre itself
        return;
    }
    const int first = static_cast<int>(std::ceil(std::min(oneBearing, oneBearing + turn) / TickStep)) * TickStep;
    for (int bearing = first; bearing < std::max(oneBearing, oneBearing + turn); bearing += TickStep) {
        const QPointF foot = one + (other - one) * ((bearing - oneBearing) / turn);
        const QLineF ray(middle, foot);
        const double slope = QPointF::dotProduct(QPointF(ray.dx(), ray.dy()) / ray.length(), inward);
        if (std::abs(slope) < LeastSlope) {
            continue;
        }
        const QPointF direction = QPointF(ray.dx(), ray.dy()) / ray.length() * (slope < 0.0 ? -1.0 : 1.0);
        const int shown = (bearing + 359) % 360 + 1;
        Mark mark{shown, foot, direction, QLineF(foot, foot + direction * tickLength(shown)), {}, false};
        const double depth = LongTick + FigureGap + reach(mapTextRect({}, figure(shown)), inward);
        mark.text = foot + direction * (depth / std::abs(slope));
        m_marks.push_back(mark);
    }
}

void GeoCompassRose::placeTexts(const GeoView &view, TextRoom &room)
{
    makeMarks(view);
    for (Mark &mark : m_marks) {
        mark.textShown =
            mark.bearing % FigureStep == 0 && room.takeIfFree(mapTextRect(mark.text, figure(mark.bearing)));
    }
}

void GeoCompassRose::paint(QPainter &painter, const GeoView &)
{
    painter.resetTransform();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(m_color, 1));
    for (const Mark &mark : m_marks) {
        painter.drawLine(mark.tick);
    }
    painter.setFont(mapFont());
    for (const Mark &mark : m_marks) {
        if (mark.textShown) {
            drawMapText(painter, mark.text, figure(mark.bearing), m_color, m_ground);
        }
    }
}
