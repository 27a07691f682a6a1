#include "view/view_sheet.h"

#include <cmath>

namespace {

constexpr double WholePixel = 1e-3; // pixels by which a whole number may be missed
constexpr double FarthestPixel = 1e9; // beyond it pixels cannot be counted

QPoint wholePart(const QPointF &shift)
{
    const bool countable = std::abs(shift.x()) < FarthestPixel && std::abs(shift.y()) < FarthestPixel;
    return countable ? shift.toPoint() : QPoint();
}

} // namespace

bool ViewSheet::follow(const GeoView &view)
{
    const double ratio = view.devicePixelRatio();
    const QTransform toDevice = view.screenTransform() * QTransform::fromScale(ratio, ratio);
    const QSize size = (QSizeF(view.screenRect().size()) * ratio).toSize();
    const QPointF shift(toDevice.dx() - m_fromPlane.dx(), toDevice.dy() - m_fromPlane.dy());
    const bool sameScale = m_fromPlane.m11() == toDevice.m11() && m_fromPlane.m12() == toDevice.m12()
        && m_fromPlane.m21() == toDevice.m21() && m_fromPlane.m22() == toDevice.m22();
    const QPoint whole = wholePart(shift);
    if (ratio == m_devicePixelRatio && sameScale && (shift - QPointF(whole)).manhattanLength() < WholePixel) {
        m_seen = QRect(-whole, size);
        return true;
    }
    const QPoint origin = wholePart(QPointF(toDevice.dx(), toDevice.dy()));
    m_fromPlane = toDevice * QTransform::fromTranslate(-origin.x(), -origin.y());
    m_seen = QRect(-origin, size);
    m_devicePixelRatio = ratio;
    return false;
}
