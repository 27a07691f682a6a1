#include "map_painting/static_map_symbols.h"

#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <iterator>

namespace {

// Drawings stand on a grid of 24 units, the origin in its middle. Strokes are two units wide.
constexpr double Grid = 24.0;
constexpr double Stroke = 2.0;

// The painter's pen and brush have the symbol's colour.
using Drawing = void (*)(QPainter &painter);

QPolygonF regular(int corners, double radius, double firstCornerDegrees)
{
    QPolygonF polygon;
    for (int i = 0; i < corners; ++i) {
        const double angle = qDegreesToRadians(firstCornerDegrees + i * 360.0 / corners);
        polygon << QPointF(radius * std::cos(angle), -radius * std::sin(angle));
    }
    return polygon;
}

void outline(QPainter &painter, const QPolygonF &polygon)
{
    const QBrush brush = painter.brush();
    painter.setBrush(Qt::NoBrush);
    painter.drawPolygon(polygon);
    painter.setBrush(brush);
}

void ring(QPainter &painter, double radius)
{
    const QBrush brush = painter.brush();
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(0, 0), radius, radius);
    painter.setBrush(brush);
}

void disc(QPainter &painter, const QPointF &center, double radius)
{
    const QPen pen = painter.pen();
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(center, radius, radius);
    painter.setPen(pen);
}

void plus(QPainter &painter, double reach)
{
    painter.drawLine(QPointF(-reach, 0), QPointF(reach, 0));
    painter.drawLine(QPointF(0, -reach), QPointF(0, reach));
}

QPolygonF square(double half)
{
    return QPolygonF(QRectF(-half, -half, 2.0 * half, 2.0 * half));
}

QPolygonF triangle()
{
    return QPolygonF({QPointF(0, -8), QPointF(8, 6), QPointF(-8, 6)});
}

void drawUnknown(QPainter &painter)
{
    const double reach = 8.0 * M_SQRT1_2;
    ring(painter, 8);
    painter.drawLine(QPointF(-reach, -reach), QPointF(reach, reach));
    painter.drawLine(QPointF(-reach, reach), QPointF(reach, -reach));
}

void drawAirport(QPainter &painter)
{
    ring(painter, 6);
    painter.drawLine(QPointF(-8, 8), QPointF(8, -8));
}

void drawNavaid(QPainter &painter)
{
    painter.drawPolygon({QPointF(0, -11), QPointF(2.5, -2.5), QPointF(11, 0), QPointF(2.5, 2.5), QPointF(0, 11),
        QPointF(-2.5, 2.5), QPointF(-11, 0), QPointF(-2.5, -2.5)});
}

void drawVor(QPainter &painter)
{
    outline(painter, regular(6, 9, 0));
    disc(painter, QPointF(0, 0), 2);
}

void drawDme(QPainter &painter)
{
    outline(painter, square(8));
    disc(painter, QPointF(0, 0), 2);
}

void drawVorDme(QPainter &painter)
{
    outline(painter, QPolygonF(QRectF(-10, -9, 20, 18)));
    drawVor(painter);
}

void drawNdb(QPainter &painter)
{
    disc(painter, QPointF(0, 0), 3);
    for (const QPointF &dot : regular(12, 9, 0)) {
        disc(painter, dot, 1.2);
    }
}

// A hexagon with a bar on every other side.
void drawTacan(QPainter &painter)
{
    outline(painter, regular(6, 7, 0));
    for (int i = 0; i < 3; ++i) {
        painter.drawRect(QRectF(-3, -10, 6, 4));
        painter.rotate(120.0);
    }
    disc(painter, QPointF(0, 0), 1.5);
}

void drawWaypoint(QPainter &painter)
{
    outline(painter, triangle());
}

void drawReporting(QPainter &painter)
{
    painter.drawPolygon(triangle());
}

void drawObstacle(QPainter &painter)
{
    painter.drawPolyline(QPolygonF({QPointF(-6, 9), QPointF(0, -9), QPointF(6, 9)}));
    disc(painter, QPointF(0, 8), 2);
}

void drawHeliport(QPainter &painter)
{
    ring(painter, 10);
    painter.drawLine(QPointF(-4, -5), QPointF(-4, 5));
    painter.drawLine(QPointF(4, -5), QPointF(4, 5));
    painter.drawLine(QPointF(-4, 0), QPointF(4, 0));
}

// A dish on a mast.
void drawRadar(QPainter &painter)
{
    painter.drawChord(QRectF(-9, -11, 18, 16), 200 * 16, 180 * 16);
    painter.drawLine(QPointF(2, -3), QPointF(7, -9));
    painter.drawLine(QPointF(0, 5), QPointF(0, 10));
    painter.drawLine(QPointF(-6, 10), QPointF(6, 10));
}

void drawCross(QPainter &painter)
{
    plus(painter, 9);
}

void drawCircle(QPainter &painter)
{
    ring(painter, 8);
}

void drawSquare(QPainter &painter)
{
    outline(painter, square(7));
}

void drawDiamond(QPainter &painter)
{
    outline(painter, regular(4, 10, 0));
}

void drawDot(QPainter &painter)
{
    disc(painter, QPointF(0, 0), 4);
}

struct Symbol {
    const char *type;
    Drawing draw;
};

constexpr Symbol Symbols[] = {
    {"airport", drawAirport},
    {"navaid", drawNavaid},
    {"vor", drawVor},
    {"dme", drawDme},
    {"vordme", drawVorDme},
    {"ndb", drawNdb},
    {"tacan", drawTacan},
    {"waypoint", drawWaypoint},
    {"reporting", drawReporting},
    {"obstacle", drawObstacle},
    {"heliport", drawHeliport},
    {"radar", drawRadar},
    {"cross", drawCross},
    {"circle", drawCircle},
    {"square", drawSquare},
    {"diamond", drawDiamond},
    {"dot", drawDot},
};

Drawing drawingOf(const QString &type)
{
    const auto symbol = std::find_if(std::begin(Symbols), std::end(Symbols),
        [&type](const Symbol &candidate) { return type == QLatin1String(candidate.type); });
    return symbol == std::end(Symbols) ? drawUnknown : symbol->draw;
}

} // namespace

QStringList staticMapSymbolTypes()
{
    QStringList types;
    for (const Symbol &symbol : Symbols) {
        types.append(QLatin1String(symbol.type));
    }
    return types;
}

void drawStaticMapSymbol(QPainter &painter, const QString &type, int size, const QColor &color)
{
    painter.save();
    painter.translate(size / 2.0, size / 2.0);
    painter.scale(size / Grid, size / Grid);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, Stroke, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.setBrush(color);
    drawingOf(type)(painter);
    painter.restore();
}
