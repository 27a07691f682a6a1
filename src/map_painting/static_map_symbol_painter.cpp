#include "map_painting/static_map_symbol_painter.h"

#include "map_painting/static_map_frame.h"
#include "map_painting/static_map_symbols.h"
#include "maps/map_style_sheet.h"

#include <QPainter>

#include <cmath>

void StaticMapSymbolPainter::paint(
    QPainter &painter, const StaticMapFrame &frame, const StaticMapGroup &group, const MapStyleClass &style)
{
    const PlaneBox sight = frame.sight.grown(frame.symbolSize * frame.metresPerPixel);
    for (const StaticMapSymbol &symbol : group.symbols) {
        if (!sight.contains(symbol.place)) {
            continue;
        }
        const QPointF place = wholePixel(frame.toScreen.map(symbol.place));
        const int half = frame.symbolSize / 2;
        painter.drawImage(place - QPointF(half, half), drawing(symbol.type, style.color, frame));
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
        const int pixels = int(std::ceil(m_size * m_ratio));
        image = QImage(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(m_ratio);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        drawStaticMapSymbol(painter, type, m_size, color);
    }
    return image;
}
