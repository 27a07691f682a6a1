#include "orientation/geo_scale_bar.h"

#include "app/config.h"
#include "geo/projector.h"
#include "geo/wgs84.h"
#include "view/geo_view.h"
#include "view/map_text.h"
#include "view/text_room.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double LongestBar = 160.0; // pixels
constexpr double WidestPart = 0.35; // of the view
constexpr double BarMargin = 12.0; // pixels from the corner of the view
constexpr double TickHeight = 6.0;
constexpr double TextGap = 6.0;

} // namespace

GeoScaleBar::GeoScaleBar(Projector *projector, QObject *parent)
    : GeoLayer(tr("Scale bar"), parent), m_projector(projector)
{
    GeoScaleBar::applyConfig(Config());
}

void GeoScaleBar::applyConfig(const Config &config)
{
    m_color = config.mapRangeRingLabelColor;
    m_ground = config.mapBackgroundColor;
    setVisible(config.mapScaleBarVisible);
    Q_EMIT polluted();
}

SettingGroups GeoScaleBar::settings() const
{
    return SettingGroup::Orientation | SettingGroup::PlanView;
}

double GeoScaleBar::roundBelow(double value)
{
    const double power = std::pow(10.0, std::floor(std::log10(value)));
    for (const double digit : {5.0, 2.0}) {
        // A hair's breadth above is the round value itself.
        if (digit * power <= value * (1.0 + 1e-9)) {
            return digit * power;
        }
    }
    return power;
}

// Of a pixel along the width in the middle of the view; 0 off the globe.
double GeoScaleBar::metresOverGround(const GeoView &view) const
{
    const QPointF middle = QRectF(view.screenRect()).center();
    const QPointF half(LongestBar / 2.0, 0.0);
    const GeoCoordinate left = m_projector->toWgs84(view.toPlane(middle - half));
    const GeoCoordinate right = m_projector->toWgs84(view.toPlane(middle + half));
    return left.isValid() && right.isValid() ? left.distanceTo(right) / LongestBar : 0.0;
}

void GeoScaleBar::placeTexts(const GeoView &view, TextRoom &room)
{
    m_length = 0.0;
    const double milesPerPixel = metresOverGround(view) / wgs84::MetresPerNauticalMile;
    const double longest = std::min(LongestBar, view.screenRect().width() * WidestPart);
    if (!(milesPerPixel > 0.0) || longest < 1.0) {
        return;
    }
    const double miles = roundBelow(longest * milesPerPixel);
    const double length = std::round(miles / milesPerPixel);
    const QString text = tr("%1 NM").arg(miles);
    const QSizeF textSize = mapTextRect({}, text).size();
    const QSizeF size(length + TextGap + textSize.width(), std::max(TickHeight, textSize.height()));
    const QPointF corner(BarMargin, view.screenRect().height() - BarMargin - size.height());
    if (!room.takeIfFree(QRectF(corner, size))) {
        return;
    }
    m_length = length;
    m_place = QRectF(corner, size);
    m_text = text;
}

// From end to end with a tick in the middle.
void GeoScaleBar::paint(QPainter &painter, const GeoView &)
{
    if (m_length == 0.0) {
        return;
    }
    painter.resetTransform();
    const double left = std::round(m_place.left());
    const double bottom = std::round(m_place.center().y() + TickHeight / 2.0);
    const QColor halo = m_ground;
    for (const auto &[color, width] : {std::pair(halo, 4), std::pair(m_color, 2)}) {
        painter.setPen(QPen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawPolyline(QPolygonF({QPointF(left, bottom - TickHeight), QPointF(left, bottom),
            QPointF(left + m_length, bottom), QPointF(left + m_length, bottom - TickHeight)}));
        painter.drawLine(
            QPointF(left + m_length / 2.0, bottom), QPointF(left + m_length / 2.0, bottom - TickHeight / 2.0));
    }
    painter.setFont(mapFont());
    const double textWidth = m_place.width() - m_length - TextGap;
    drawMapText(painter, QPointF(m_place.right() - textWidth / 2.0, m_place.center().y()), m_text, m_color, m_ground);
}
