#include "view/map_text.h"

#include "view/contrast.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

namespace {

constexpr int PointSize = 9;
constexpr double LegibleContrast = 2.5;
constexpr double HaloWidth = 1.0; // pixels

void drawOnHalo(QPainter &painter, const QPointF &center, const QString &text, const QColor &color, const QColor &halo)
{
    const QFontMetricsF metrics(painter.font());
    const QPointF place(std::round(center.x() - metrics.horizontalAdvance(text) / 2.0),
        std::round(center.y() + (metrics.ascent() - metrics.descent()) / 2.0));
    painter.setPen(halo);
    for (const QPointF &step :
        {QPointF(-HaloWidth, 0), QPointF(HaloWidth, 0), QPointF(0, -HaloWidth), QPointF(0, HaloWidth)}) {
        painter.drawText(place + step, text);
    }
    painter.setPen(color);
    painter.drawText(place, text);
}

} // namespace

QFont mapFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSize(PointSize);
    return font;
}

void drawMapText(QPainter &painter, const QPointF &center, const QString &text, const QColor &color)
{
    QColor halo = groundFor(color);
    halo.setAlpha(110);
    drawOnHalo(painter, center, text, color, halo);
}

void drawMapText(
    QPainter &painter, const QPointF &center, const QString &text, const QColor &color, const QColor &ground)
{
    if (contrastRatio(color, ground) < LegibleContrast) {
        drawMapText(painter, center, text, color);
        return;
    }
    QColor halo = ground;
    halo.setAlpha(190);
    drawOnHalo(painter, center, text, color, halo);
}

QRectF mapTextRect(const QPointF &center, const QString &text)
{
    const QFontMetricsF metrics(mapFont());
    const QSizeF half(metrics.horizontalAdvance(text) / 2.0 + 2.0 * HaloWidth, metrics.height() / 2.0 + HaloWidth);
    return QRectF(center - QPointF(half.width(), half.height()), center + QPointF(half.width(), half.height()));
}
