#pragma once

#include <QColor>
#include <QFont>
#include <QPointF>
#include <QRectF>
#include <QString>

class QPainter;

// The small monospaced font of texts on the map.
QFont mapFont();

// A text on a halo that keeps it apart from the lines below it, centred on a point; pixels, whatever the view's
// rotation. The halo is white or black, whichever the colour stands out from more.
void drawMapText(QPainter &painter, const QPointF &center, const QString &text, const QColor &color);

// The same where the colour of the ground is known: the halo is of that colour, unless the text would not stand out
// from it.
void drawMapText(
    QPainter &painter, const QPointF &center, const QString &text, const QColor &color, const QColor &ground);

// What a text in the small font takes up when it is centred on a point, halo included.
QRectF mapTextRect(const QPointF &center, const QString &text);
