#include "display/plot_marks.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace {

constexpr double Reach = 5.0; // logical pixels from the middle
// Parts of it.
constexpr double OpenMark = 0.6; // without the arms that stick out
constexpr double Cross = 0.8;
constexpr double FilledMark = 0.4;
constexpr double Dot = 0.2;
constexpr double FaintestOpacity = 0.2;

void drawCross(QPainter &painter, double arm)
{
    painter.drawLine(QPointF(-arm, 0.0), QPointF(arm, 0.0));
    painter.drawLine(QPointF(0.0, -arm), QPointF(0.0, arm));
}

// The arms of a cross alone, so that the mark within stays open.
void drawArms(QPainter &painter, double from, double to)
{
    for (const QPointF direction : {QPointF(1.0, 0.0), QPointF(0.0, 1.0), QPointF(-1.0, 0.0), QPointF(0.0, -1.0)}) {
        painter.drawLine(direction * from, direction * to);
    }
}

void drawSquare(QPainter &painter, double half)
{
    painter.drawRect(QRectF(-half, -half, 2.0 * half, 2.0 * half));
}

// With the middle at the origin and whole device pixels as the unit, reach of them to each side.
void drawMark(QPainter &painter, Track::Type type, int reach)
{
    const auto part = [reach](double share) { return std::round(reach * share); };
    const double outer = reach;
    const double middle = part(Cross);
    const double inner = part(OpenMark);
    switch (type) {
    case Track::Psr:
        return drawCross(painter, middle);
    case Track::PsrSsr:
        drawArms(painter, inner, outer);
        [[fallthrough]];
    case Track::Ssr:
        return painter.drawEllipse(QPointF(), inner - 0.25, inner - 0.25);
    case Track::ModeSPsr:
        drawArms(painter, inner, outer);
        [[fallthrough]];
    case Track::ModeS:
        return drawSquare(painter, inner);
    case Track::Adsb:
        painter.drawPolygon(QPolygonF({{0.0, -middle}, {middle, 0.0}, {0.0, middle}, {-middle, 0.0}}));
        return;
    case Track::Mlat:
        painter.drawPolygon(QPolygonF({{0.0, -middle}, {middle, inner}, {-middle, inner}}));
        return;
    case Track::Smr:
        painter.setBrush(painter.pen().color());
        return drawSquare(painter, part(FilledMark));
    default:
        painter.setBrush(painter.pen().color());
        return drawSquare(painter, part(Dot));
    }
}

// How far the ink reaches from the middle of a square picture, pixels.
int inkReach(const QImage &image)
{
    const int middle = image.width() / 2;
    int reach = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const bool ink = qAlpha(image.pixel(x, y)) > 0;
            reach = std::max(reach, ink ? std::max(std::abs(x - middle), std::abs(y - middle)) : 0);
        }
    }
    return reach;
}

} // namespace

void PlotMarks::prepare(const QColor &color, double devicePixelRatio)
{
    if (m_color == color && m_ratio == devicePixelRatio) {
        return;
    }
    m_color = color;
    m_ratio = devicePixelRatio;
    m_reach = static_cast<int>(std::ceil(Reach * devicePixelRatio)) + 1;
    for (std::size_t kind = 0; kind < Kinds; ++kind) {
        for (int step = 0; step < FadeSteps; ++step) {
            const double opacity = 1.0 - (1.0 - FaintestOpacity) * step / (FadeSteps - 1);
            m_marks[kind][static_cast<std::size_t>(step)] = drawn(static_cast<Track::Type>(kind), opacity);
        }
    }
}

const QImage &PlotMarks::mark(Track::Type type, int step) const
{
    return m_marks[kindOf(type)][static_cast<std::size_t>(step)];
}

// At full strength first, so that lines that cross are not darker where they do. Without what is empty around it: of
// many thousands of marks every pixel counts.
QImage PlotMarks::drawn(Track::Type type, double opacity) const
{
    const int side = 2 * m_reach + 1;
    QImage solid(side, side, QImage::Format_ARGB32_Premultiplied);
    solid.fill(Qt::transparent);
    QPainter drawing(&solid);
    drawing.setRenderHint(QPainter::Antialiasing);
    drawing.translate(m_reach + 0.5, m_reach + 0.5);
    drawing.setPen(
        QPen(QColor(m_color.rgb()), std::max(1.0, std::round(m_ratio)), Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    drawMark(drawing, type, m_reach - 1);
    drawing.end();
    const int reach = inkReach(solid);
    QImage faded(2 * reach + 1, 2 * reach + 1, solid.format());
    faded.fill(Qt::transparent);
    QPainter fading(&faded);
    fading.setOpacity(opacity * m_color.alphaF());
    fading.drawImage(reach - m_reach, reach - m_reach, solid);
    return faded;
}
