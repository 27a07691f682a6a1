#include "map_painting/static_map_symbol_painter.h"

#include "map_painting/static_map_frame.h"
#include "map_painting/static_map_symbols.h"
#include "maps/map_style_sheet.h"
#include "view/contrast.h"

#include <QPainter>

#include <cmath>

void StaticMapSymbolPainter::paint(
    QPainter &painter, const StaticMapFrame &frame, const StaticMapGroup &group, const MapStyleClass &style)
{
    draw(painter, frame, group, style.color, {});
}

void StaticMapSymbolPainter::paintCasing(
    QPainter &painter, const StaticMapFrame &frame, const StaticMapGroup &group, const MapStyleClass &style)
{
    for (const QPointF &offset : {QPointF(-1, 0), QPointF(1, 0), QPointF(0, -1), QPointF(0, 1)}) {
        draw(painter, frame, group, groundFor(style.color), offset);
    }
}

void StaticMapSymbolPainter::draw(QPainter &painter, const StaticMapFrame &frame, const StaticMapGroup &group,
    const QColor &color, const QPointF &offset)
{
    const PlaneBox sight = frame.sight.grown(frame.symbolSize * frame.metresPerPixel);
    for (const StaticMapSymbol &symbol : group.symbols) {
        if (!sight.contains(symbol.place)) {
            continue;
        }
        const QPointF place = wholePixel(frame.toScreen.map(symbol.place)) + offset;
        const int half = frame.symbolSize / 2;
        painter.drawImage(place - QPointF(half, half), drawing(symbol.type, color, frame));
    }
}

const QImage &StaticMapSymbolPainter::drawing(const QString &type, const QColor &color, const StaticMapFrame &frame)
{
    if (m_size != frame.symbolSize || m_ratio != frame.devicePixelRatio) {
        m_drawings.clear();
    }
    m_size = frame.symbolSize;
    m_ratio = frame.devicePixelRatio;
    QImage &image = m_drawings[{type, color.rgba()}];
    if (image.isNull()) {
        const int pixels = static_cast<int>(std::ceil(m_size * m_ratio));
        image = QImage(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(m_ratio);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        drawStaticMapSymbol(painter, type, m_size, color);
    }
    return image;
}
