#pragma once

#include <QColor>
#include <QList>
#include <QPointF>
#include <QRectF>
#include <QString>

class QPainter;

// Colours of charts: on paper, or of the window's theme.
struct ChartLook {
    QColor ground = Qt::white;
    QColor ink = QColor(0x20, 0x24, 0x28); // texts and axes
    QColor grid = QColor(0xd8, 0xdc, 0xe0);
    QColor first = QColor(0x21, 0x66, 0xac); // series; dots of scatters
    QColor second = QColor(0xd9, 0x5f, 0x02);
    QColor third = QColor(0x1b, 0x9e, 0x77);
};

// The axes of a chart with their scales: turns values into places.
class ChartFrame {
public:
    struct Axis {
        QString title;
        double low = 0.0;
        double high = 1.0;
    };

    // area: with titles and figures. An axis without extent gets some.
    ChartFrame(const QRectF &area, const Axis &x, const Axis &y);

    // Grid, figures, titles.
    void paint(QPainter &painter, const ChartLook &look) const;

    QRectF plotArea() const { return m_plot; }
    QPointF at(double x, double y) const;
    bool contains(double x, double y) const;

    // Round values from low to high, about as many as are asked for.
    static QList<double> ticks(double low, double high, int about);

private:
    void paintTicks(QPainter &painter, const ChartLook &look, bool isX) const;

    QRectF m_area;
    QRectF m_plot;
    Axis m_x;
    Axis m_y;
};
