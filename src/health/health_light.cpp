#include "health/health_light.h"

#include <QPainter>
#include <QPolygonF>

QPixmap lightPixmap(SourceJudgement::Light light, int size, qreal devicePixelRatio)
{
    using Light = SourceJudgement::Light;
    QPixmap pixmap(QSize(size, size) * devicePixelRatio);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF rect(1.0, 1.0, size - 2.0, size - 2.0);
    painter.setPen(Qt::NoPen);
    switch (light) {
    case Light::Off:
        painter.setPen(QPen(QColor(0x80, 0x86, 0x8C), 1.5));
        painter.drawEllipse(rect.adjusted(1, 1, -1, -1));
        break;
    case Light::Green:
        painter.setBrush(QColor(0x2E, 0xA0, 0x43));
        painter.drawEllipse(rect);
        break;
    case Light::Amber:
        painter.setBrush(QColor(0xF0, 0xAC, 0x20));
        painter.drawPolygon(QPolygonF({QPointF(rect.center().x(), rect.top()), rect.bottomRight(), rect.bottomLeft()}));
        break;
    case Light::Red:
        painter.setBrush(QColor(0xE0, 0x30, 0x30));
        painter.drawRect(rect);
        break;
    }
    return pixmap;
}
