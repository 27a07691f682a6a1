#include "assessment_report/chart_frame.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double LeftRoom = 52.0; // for figures and title; in the units of the painter, as are the others
constexpr double BottomRoom = 34.0;
constexpr double OtherRoom = 8.0;
constexpr double FigureHeight = 12.0;
constexpr double FigureWidth = 60.0;

ChartFrame::Axis withExtent(ChartFrame::Axis axis)
{
    if (!(axis.high - axis.low > 1e-9)) {
        axis.low -= 0.5;
        axis.high = axis.low + 1.0;
    }
    return axis;
}

int decimalsOf(double step)
{
    return std::clamp(static_cast<int>(std::ceil(-std::log10(step) - 1e-9)), 0, 6);
}

} // namespace

ChartFrame::ChartFrame(const QRectF &area, const Axis &x, const Axis &y)
    : m_area(area), m_plot(area.adjusted(LeftRoom, OtherRoom, -OtherRoom, -BottomRoom)), m_x(withExtent(x)),
      m_y(withExtent(y))
{
}

QList<double> ChartFrame::ticks(double low, double high, int about)
{
    const double rough = (high - low) / std::max(about, 1);
    const double power = std::pow(10.0, std::floor(std::log10(rough)));
    const double part = rough / power;
    const double step = power * (part < 1.5 ? 1.0 : part < 3.5 ? 2.0 : part < 7.5 ? 5.0 : 10.0);
    QList<double> values;
    for (double value = std::ceil(low / step - 1e-9) * step; value <= high + step * 1e-9; value += step) {
        values += std::abs(value) < step * 1e-9 ? 0.0 : value;
    }
    return values;
}

QPointF ChartFrame::at(double x, double y) const
{
    return {m_plot.left() + (x - m_x.low) / (m_x.high - m_x.low) * m_plot.width(),
        m_plot.bottom() - (y - m_y.low) / (m_y.high - m_y.low) * m_plot.height()};
}

bool ChartFrame::contains(double x, double y) const
{
    return x >= m_x.low && x <= m_x.high && y >= m_y.low && y <= m_y.high;
}

void ChartFrame::paint(QPainter &painter, const ChartLook &look) const
{
    paintTicks(painter, look, true);
    paintTicks(painter, look, false);
    painter.setPen(QPen(look.ink, 0.8));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(m_plot);
    painter.drawText(QRectF(m_plot.left(), m_area.bottom() - FigureHeight - 3, m_plot.width(), FigureHeight + 3),
        Qt::AlignCenter, m_x.title);
    painter.save();
    painter.translate(m_area.left(), m_plot.center().y());
    painter.rotate(-90);
    painter.drawText(QRectF(-m_plot.height() / 2, 0, m_plot.height(), FigureHeight + 3), Qt::AlignCenter, m_y.title);
    painter.restore();
}

void ChartFrame::paintTicks(QPainter &painter, const ChartLook &look, bool isX) const
{
    const Axis &axis = isX ? m_x : m_y;
    const double length = isX ? m_plot.width() : m_plot.height();
    const QList<double> values = ticks(axis.low, axis.high, static_cast<int>(length / (isX ? 60 : 32)));
    const int decimals = values.size() > 1 ? decimalsOf(values[1] - values[0]) : 2;
    for (const double value : values) {
        const QPointF from = isX ? at(value, m_y.low) : at(m_x.low, value);
        const QPointF to = isX ? at(value, m_y.high) : at(m_x.high, value);
        painter.setPen(QPen(look.grid, 0.6));
        painter.drawLine(from, to);
        painter.setPen(look.ink);
        const QRectF place = isX
            ? QRectF(from.x() - FigureWidth / 2, from.y() + 2, FigureWidth, FigureHeight + 2)
            : QRectF(from.x() - FigureWidth - 4, from.y() - FigureHeight / 2 - 1, FigureWidth, FigureHeight + 2);
        painter.drawText(place, isX ? Qt::AlignHCenter | Qt::AlignTop : Qt::AlignRight | Qt::AlignVCenter,
            QString::number(value, 'f', decimals));
    }
}
