#include "view/map_text.h"

#include "view/contrast.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

namespace {

constexpr int PointSize = 9;

} // namespace

QFont mapFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSize(PointSize);
    return font;
}

void drawMapText(QPainter &painter, const QPointF &center, const QString &text, const QColor &color)
{
    const QFontMetricsF metrics(painter.font());
    const QPointF place(std::round(center.x() - metrics.horizontalAdvance(text) / 2.0),
        std::round(center.y() + (metrics.ascent() - metrics.descent()) / 2.0));
    QColor halo = groundFor(color);
    halo.setAlpha(110);
    painter.setPen(halo);
    for (const QPoint &step : {QPoint(-1, 0), QPoint(1, 0), QPoint(0, -1), QPoint(0, 1)}) {
        painter.drawText(place + step, text);
    }
    painter.setPen(color);
    painter.drawText(place, text);
}
