#pragma once

#include <QList>
#include <QPolygonF>
#include <QRect>
#include <QString>

#include <vector>

class GeoView;
class QColor;
class QImage;
class QPainter;
class QPen;
class TextRoom;

// A text that stands on a ring, on the screen.
struct RingLabel {
    QPointF center;
    QString text;
};

// Takes places for a text on the ring at four bearings (045, 135, 225 and 315). Where that is out of the view or taken,
// the text slides along its quarter of the ring to the nearest place that is not; a quarter without such a place has no
// text, and two texts of one ring never crowd each other. At most that many texts, the first bearings first. The ring
// is on the screen, in points evenly by bearing from north clockwise, closed by its first point.
std::vector<RingLabel> placeOnRing(const QPolygonF &ring, const QString &text, TextRoom &room, std::size_t most = 4);

// What the texts take up: lines that leave it out leave the texts legible.
QList<QRect> placesOf(const std::vector<RingLabel> &labels);

// Rings of the plane, on a picture of that view.
void drawRings(QImage &picture, const GeoView &view, const std::vector<QPolygonF> &rings, const QPen &pen);

void drawRingLabels(QPainter &painter, const std::vector<RingLabel> &labels, const QColor &color, const QColor &ground);
