#pragma once

#include "map_painting/static_map_painter.h"

#include <QColor>
#include <QHash>
#include <QImage>
#include <QPointF>
#include <QString>

// Draws symbols upright in the colour of their class. Keeps a drawing of each.
class StaticMapSymbolPainter final : public StaticMapPainter {
public:
    void paint(QPainter &painter, const StaticMapFrame &frame, const StaticMapGroup &group,
        const MapStyleClass &style) override;
    void paintCasing(QPainter &painter, const StaticMapFrame &frame, const StaticMapGroup &group,
        const MapStyleClass &style) override;
    void forget() override { m_drawings.clear(); }

private:
    void draw(QPainter &painter, const StaticMapFrame &frame, const StaticMapGroup &group, const QColor &color,
        const QPointF &offset);
    const QImage &drawing(const QString &type, const QColor &color, const StaticMapFrame &frame);

    QHash<QPair<QString, QRgb>, QImage> m_drawings; // all of one size
    int m_size = 0;
    double m_ratio = 0.0;
};
