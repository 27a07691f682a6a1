#include "orientation/ring_labels.h"

#include "view/geo_view.h"
#include "view/map_text.h"
#include "view/plane_box.h"
#include "view/text_room.h"

#include <QImage>
#include <QLineF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double Bearings[] = {45.0, 135.0, 225.0, 315.0};
constexpr double Quarter = 45.0; // degrees to either side
constexpr double StepLength = 12.0; // pixels from one place to the next that is tried
constexpr int MostSteps = 2048; // on one side of the ring
constexpr double LeastDistance = 160.0; // pixels between two texts of one ring
constexpr double SmoothEdge = 2.0; // pixels beside a line that smoothing may touch

struct Place {
    QPointF point;
    double bearing = 0.0; // degrees
};

// Steps belong to the ring and not to the view, so that texts stay where they are while the view is moved.
std::vector<Place> placesInSight(const QPolygonF &ring, const QRectF &sight)
{
    std::vector<Place> places;
    const double degrees = 360.0 / static_cast<double>(ring.size() - 1);
    for (qsizetype i = 0; i + 1 < ring.size(); ++i) {
        const QLineF side(ring[i], ring[i + 1]);
        if (!QRectF(side.p1(), side.p2()).normalized().adjusted(-1, -1, 1, 1).intersects(sight)) {
            continue;
        }
        // An even number: one step is at the middle, where the bearings are.
        const int steps = std::clamp(2 * static_cast<int>(std::ceil(side.length() / (2.0 * StepLength))), 2, MostSteps);
        for (int k = 0; k < steps; ++k) {
            const double part = static_cast<double>(k) / steps;
            if (sight.contains(side.pointAt(part))) {
                places.push_back({side.pointAt(part), (static_cast<double>(i) + part) * degrees});
            }
        }
    }
    return places;
}

// Between two bearings of 0 to 360 degrees.
double turn(double from, double to)
{
    const double apart = std::abs(to - from);
    return std::min(apart, 360.0 - apart);
}

struct Candidate {
    QPointF point;
    double turn = 0.0; // degrees from the bearing that is wanted
};

// Those in the bearing's quarter, the nearest first.
std::vector<Candidate> inQuarter(const std::vector<Place> &places, double bearing)
{
    std::vector<Candidate> candidates;
    for (const Place &place : places) {
        const double away = turn(bearing, place.bearing);
        if (away <= Quarter) {
            candidates.push_back({place.point, away});
        }
    }
    std::stable_sort(candidates.begin(), candidates.end(),
        [](const Candidate &one, const Candidate &other) { return one.turn < other.turn; });
    return candidates;
}

bool crowds(const std::vector<RingLabel> &labels, const QPointF &point)
{
    return std::any_of(labels.begin(), labels.end(),
        [&point](const RingLabel &label) { return QLineF(label.center, point).length() < LeastDistance; });
}

// Only those pieces of the line that come into the box: a line costs what its length does.
void drawWithin(QPainter &painter, const QPolygonF &line, const PlaneBox &box)
{
    const auto touches = [&](qsizetype from) {
        PlaneBox side;
        side.include(line[from]);
        side.include(line[from + 1]);
        return side.touches(box);
    };
    const qsizetype sides = line.size() - 1;
    for (qsizetype side = 0; side < sides; ++side) {
        const qsizetype first = side;
        while (side < sides && touches(side)) {
            ++side;
        }
        if (side > first) {
            painter.drawPolyline(line.constData() + first, static_cast<int>(side - first) + 1);
        }
    }
}

} // namespace

std::vector<RingLabel> placeOnRing(const QPolygonF &ring, const QString &text, TextRoom &room, std::size_t most)
{
    std::vector<RingLabel> labels;
    const QRectF box = mapTextRect({}, text);
    const std::vector<Place> places =
        placesInSight(ring, room.view().adjusted(-box.left(), -box.top(), -box.right(), -box.bottom()));
    for (const double bearing : Bearings) {
        if (labels.size() == most) {
            break;
        }
        for (const Candidate &place : inQuarter(places, bearing)) {
            if (crowds(labels, place.point)) {
                break;
            }
            if (room.takeIfFree(box.translated(place.point))) {
                labels.push_back({place.point, text});
                break;
            }
        }
    }
    return labels;
}

QList<QRect> placesOf(const std::vector<RingLabel> &labels)
{
    QList<QRect> places;
    for (const RingLabel &label : labels) {
        places.append(mapTextRect(label.center, label.text).toAlignedRect());
    }
    return places;
}

void drawRings(QImage &picture, const GeoView &view, const std::vector<QPolygonF> &rings, const QPen &pen)
{
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(pen);
    const double reach = pen.widthF() + SmoothEdge;
    const PlaneBox sight = PlaneBox::of(QRectF(view.screenRect()).adjusted(-reach, -reach, reach, reach));
    for (const QPolygonF &ring : rings) {
        if (view.planeRect().intersects(ring.boundingRect())) {
            drawWithin(painter, view.screenTransform().map(ring), sight);
        }
    }
}

void drawRingLabels(QPainter &painter, const std::vector<RingLabel> &labels, const QColor &color, const QColor &ground)
{
    painter.setFont(mapFont());
    for (const RingLabel &label : labels) {
        drawMapText(painter, label.center, label.text, color, ground);
    }
}
