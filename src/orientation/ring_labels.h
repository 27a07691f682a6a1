#pragma once

#include <QPolygonF>
#include <QRegion>
#include <QString>

#include <vector>

class GeoView;
class QColor;
class QPainter;
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

// The screen without what the texts take up: lines drawn in it leave the texts legible.
QRegion aroundLabels(const GeoView &view, const std::vector<RingLabel> &labels);

void drawRingLabels(QPainter &painter, const std::vector<RingLabel> &labels, const QColor &color, const QColor &ground);
