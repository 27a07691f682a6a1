#include "tile_painting/tile_attribution.h"

#include "tile_painting/tile_source.h"
#include "view/contrast.h"
#include "view/geo_view.h"
#include "view/map_text.h"
#include "view/text_room.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace {

constexpr double AttributionMargin = 6.0; // pixels from the corner of the view
constexpr double Padding = 4.0;
constexpr double LogoHeight = 16.0;
constexpr double LegibleContrast = 4.5;
constexpr int VeilOpacity = 190; // of 255
constexpr double WidestShare = 0.6; // of the view

// From the lower right corner upwards, then from the lower left and the upper right one.
QRectF freePlace(const QSizeF &size, TextRoom &room)
{
    constexpr int Steps = 8;
    const QRectF inner =
        room.view().adjusted(AttributionMargin, AttributionMargin, -AttributionMargin, -AttributionMargin);
    const double right = inner.right() - size.width();
    const double bottom = inner.bottom() - size.height();
    for (const auto &[corner, direction] : {std::pair(QPointF(right, bottom), -1.0),
             std::pair(QPointF(inner.left(), bottom), -1.0), std::pair(QPointF(right, inner.top()), 1.0)}) {
        for (int step = 0; step < Steps; ++step) {
            const QRectF rect(corner + QPointF(0.0, direction * step * size.height()), size);
            if (room.takeIfFree(rect)) {
                return rect;
            }
        }
    }
    return {};
}

} // namespace

void TileAttribution::setSource(const TileSource &source)
{
    m_source = &source;
    choose();
}

void TileAttribution::setColors(const QColor &ground, const QColor &text)
{
    m_ground = ground;
    m_plainText = text;
    choose();
}

// The service's own colours where they stand out from the ground.
void TileAttribution::choose()
{
    if (!m_source) {
        return;
    }
    const auto legible = [this](const QColor &color) {
        return color.isValid() && contrastRatio(color, m_ground) >= LegibleContrast;
    };
    const bool onDark = groundFor(m_ground) == QColor(Qt::white);
    const QColor plain = legible(m_plainText) ? m_plainText : QColor(onDark ? Qt::white : Qt::black);
    m_textColor = legible(m_source->copyrightColor) ? m_source->copyrightColor : plain;
    m_logo = m_source->logo ? m_source->logo(onDark ? TileProvider::LogoStyle::Light : TileProvider::LogoStyle::Dark)
                            : QImage();
}

QSizeF TileAttribution::logoSize() const
{
    if (m_logo.isNull()) {
        return {};
    }
    return QSizeF(m_logo.size()).scaled(10.0 * LogoHeight, LogoHeight, Qt::KeepAspectRatio);
}

void TileAttribution::place(const GeoView &view, TextRoom &room)
{
    m_rect = {};
    if (!m_shown || !m_source || (m_source->copyright.isEmpty() && m_logo.isNull())) {
        return;
    }
    const QFontMetricsF metrics(mapFont());
    m_text = metrics.elidedText(m_source->copyright, Qt::ElideRight, view.screenRect().width() * WidestShare);
    const QSizeF logo = logoSize();
    const QSizeF text = m_text.isEmpty() ? QSizeF() : mapTextRect({}, m_text).size();
    const double gap = logo.isEmpty() || text.isEmpty() ? 0.0 : Padding;
    const QSizeF size(logo.width() + gap + text.width() + 2.0 * Padding, std::max(logo.height(), text.height()) + 2.0);
    m_rect = freePlace(size, room);
}

void TileAttribution::paint(QPainter &painter) const
{
    if (m_rect.isEmpty()) {
        return;
    }
    QColor veil = m_ground;
    veil.setAlpha(VeilOpacity);
    painter.fillRect(m_rect, veil);
    const QSizeF logo = logoSize();
    if (!logo.isEmpty()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        const QPointF corner(m_rect.left() + Padding, m_rect.center().y() - logo.height() / 2.0);
        painter.drawImage(QRectF(corner, logo), m_logo);
    }
    if (!m_text.isEmpty()) {
        const double width = mapTextRect({}, m_text).width();
        painter.setFont(mapFont());
        const QPointF center(m_rect.right() - Padding - width / 2.0, m_rect.center().y());
        drawMapText(painter, center, m_text, m_textColor, m_ground);
    }
}
