#include "radar_painting/wide_view.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double WholeEnough = 1e-3; // pixels

// By how many pixels one view lies beside another; nothing where they differ by anything else.
std::optional<QPoint> wholePixelShift(const QTransform &from, const QTransform &to)
{
    const QPointF shift(to.dx() - from.dx(), to.dy() - from.dy());
    const QPointF rest = shift - QPointF(shift.toPoint());
    const bool sameScale =
        from.m11() == to.m11() && from.m12() == to.m12() && from.m21() == to.m21() && from.m22() == to.m22();
    if (!sameScale || rest.manhattanLength() > WholeEnough) {
        return std::nullopt;
    }
    return shift.toPoint();
}

} // namespace

std::optional<QPoint> WideView::follow(const GeoView &view)
{
    const double ratio = view.devicePixelRatio();
    const GeoView wide(view.screenTransform() * QTransform::fromTranslate(Margin, Margin),
        view.screenRect().size() + QSize(2 * Margin, 2 * Margin), ratio);
    const QTransform toDevice = wide.screenTransform() * QTransform::fromScale(ratio, ratio);
    const int margin = qRound(Margin * ratio);
    const bool sameSize = m_view.screenRect() == wide.screenRect() && m_view.devicePixelRatio() == ratio;
    const auto shift = sameSize ? wholePixelShift(m_deviceTransform, toDevice) : std::nullopt;
    m_seen = QRect(QPoint(margin, margin), view.screenRect().size() * ratio);
    if (shift && std::max(std::abs(shift->x()), std::abs(shift->y())) <= margin) {
        m_seen.translate(-*shift);
        return QPoint();
    }
    m_view = wide;
    m_deviceTransform = toDevice;
    return shift;
}
