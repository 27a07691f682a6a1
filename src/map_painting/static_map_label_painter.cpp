#include "map_painting/static_map_label_painter.h"

#include "map_painting/static_map_frame.h"
#include "map_painting/static_map_label_layout.h"
#include "maps/map_style_sheet.h"
#include "view/map_text.h"

#include <QFontMetricsF>
#include <QPainter>

namespace {

constexpr qsizetype MostOctets = 16 * 1024 * 1024;

QImage draw(const StaticMapLabelLayout::Placed &placed, const MapStyleClass &style, const StaticMapFrame &frame)
{
    QImage image((placed.size * frame.devicePixelRatio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(frame.devicePixelRatio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setFont(style.font);
    const QStringList lines = placed.label->caption.split(QLatin1Char('\n'));
    const double lineHeight = placed.size.height() / static_cast<double>(lines.size());
    QPointF center(placed.size.width() / 2.0, lineHeight / 2.0);
    for (const QString &line : lines) {
        drawMapText(painter, center, line, style.color, frame.ground);
        center += QPointF(0.0, lineHeight);
    }
    return image;
}

} // namespace

StaticMapLabelPainter::StaticMapLabelPainter() : m_drawings(MostOctets) { }

void StaticMapLabelPainter::paint(
    QPainter &painter, const StaticMapFrame &frame, const StaticMapGroup &group, const MapStyleClass &style)
{
    if (m_ratio != frame.devicePixelRatio) {
        m_drawings.clear();
    }
    m_ratio = frame.devicePixelRatio;
    for (const StaticMapLabelLayout::Placed &placed : frame.labels->placed(group, frame.copy)) {
        const QPointF corner = wholePixel(frame.toScreen.map(placed.label->place)) + placed.offset;
        const QRectF rect(corner, placed.size);
        if (!PlaneBox::of(frame.toScreen.inverted().mapRect(rect)).touches(frame.sight)) {
            continue;
        }
        const QImage *drawing = m_drawings.object(placed.label);
        if (drawing) {
            painter.drawImage(corner, *drawing);
            continue;
        }
        const QImage fresh = draw(placed, style, frame);
        painter.drawImage(corner, fresh);
        m_drawings.insert(placed.label, new QImage(fresh), fresh.sizeInBytes());
    }
}
