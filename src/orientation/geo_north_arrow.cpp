#include "orientation/geo_north_arrow.h"

#include "app/config.h"
#include "view/geo_view.h"
#include "view/map_text.h"
#include "view/text_room.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace {

constexpr double LeastRotation = 0.05; // degrees; less is noise of the view's matrix
constexpr double Radius = 26.0; // pixels
constexpr double ArrowMargin = 30.0; // from the corner of the view: figures of the compass rose stand at its rim
constexpr double ShaftLength = 12.0;

// Upwards, its middle in the origin.
QPainterPath arrow()
{
    QPainterPath path(QPointF(0.0, -ShaftLength));
    path.lineTo(5.0, ShaftLength * 0.7);
    path.lineTo(0.0, ShaftLength * 0.35);
    path.lineTo(-5.0, ShaftLength * 0.7);
    path.closeSubpath();
    return path;
}

} // namespace

GeoNorthArrow::GeoNorthArrow(QObject *parent) : GeoLayer(tr("North arrow"), parent)
{
    GeoNorthArrow::applyConfig(Config());
}

void GeoNorthArrow::applyConfig(const Config &config)
{
    m_color = config.mapRangeRingLabelColor;
    m_ground = config.mapBackgroundColor;
    setVisible(config.mapCompassRoseVisible || config.mapScaleBarVisible);
    Q_EMIT polluted();
}

SettingGroups GeoNorthArrow::settings() const
{
    return SettingGroup::Orientation | SettingGroup::PlanView;
}

void GeoNorthArrow::placeTexts(const GeoView &view, TextRoom &room)
{
    m_middle = QRectF(view.screenRect()).topRight() + QPointF(-ArrowMargin - Radius, ArrowMargin + Radius);
    const QPointF half(Radius, Radius);
    m_shown = std::abs(view.rotation()) > LeastRotation && room.takeIfFree(QRectF(m_middle - half, m_middle + half));
}

void GeoNorthArrow::paint(QPainter &painter, const GeoView &view)
{
    if (!m_shown) {
        return;
    }
    painter.resetTransform();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(m_middle);
    painter.rotate(view.rotation());
    painter.strokePath(arrow(), QPen(m_ground, 3));
    painter.fillPath(arrow(), m_color);
    const QPointF letter = painter.transform().map(QPointF(0.0, -ShaftLength - 6.0));
    painter.resetTransform();
    painter.setFont(mapFont());
    drawMapText(painter, letter, tr("N"), m_color, m_ground);
}
