#include "map_editor/map_style_preview.h"

#include "map_painting/static_map_symbols.h"

#include <QPainter>

namespace {

constexpr int SymbolSize = 24; // pixels

} // namespace

MapStylePreview::MapStylePreview(QWidget *parent) : QWidget(parent), m_style(defaultStyleClass(QString()))
{
    setMinimumHeight(80);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void MapStylePreview::setStyle(const MapStyleClass &style)
{
    m_style = style;
    update();
}

void MapStylePreview::setGround(const QColor &color)
{
    m_ground = color;
    update();
}

QSize MapStylePreview::sizeHint() const
{
    return QSize(240, 90);
}

void MapStylePreview::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), m_ground);
    const double part = width() / 4.0;
    const double middle = height() / 2.0;
    painter.setPen(m_style.pen);
    painter.setBrush(m_style.brush);
    painter.drawPolygon(QPolygonF({{part * 0.15, height() * 0.8}, {part * 0.3, height() * 0.2},
        {part * 0.85, height() * 0.3}, {part * 0.75, height() * 0.85}}));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(
        QPolygonF({{part * 1.1, height() * 0.8}, {part * 1.5, height() * 0.3}, {part * 1.95, height() * 0.6}}));
    painter.save();
    painter.translate(part * 2.4 - SymbolSize / 2, middle - SymbolSize / 2);
    drawStaticMapSymbol(painter, QStringLiteral("vordme"), SymbolSize, m_style.color);
    painter.restore();
    painter.setPen(m_style.color);
    painter.setFont(m_style.font);
    painter.drawText(QRectF(part * 2.75, 0, part * 1.25, height()), Qt::AlignVCenter | Qt::AlignLeft, tr("LABEL"));
}
