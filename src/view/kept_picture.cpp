#include "view/kept_picture.h"

#include "view/geo_view.h"

#include <QPainter>

#include <cmath>
#include <utility>

namespace {

constexpr double WholeEnough = 1e-3; // pixels

} // namespace

QList<QRect> KeptPicture::turnTo(const GeoView &view)
{
    const QRect screen = view.screenRect();
    QPoint shift;
    if (m_valid && findShift(view, shift)) {
        if (shift.isNull()) {
            return {};
        }
        m_transform = view.screenTransform();
        return move(screen, shift);
    }
    const double ratio = view.devicePixelRatio();
    const QSize size = (QSizeF(screen.size()) * ratio).toSize();
    if (m_image.size() != size) {
        m_image = QImage(size, QImage::Format_ARGB32_Premultiplied);
    }
    m_image.setDevicePixelRatio(ratio);
    m_image.fill(Qt::transparent);
    m_transform = view.screenTransform();
    m_valid = true;
    return {screen};
}

bool KeptPicture::put(const QImage &picture, const QList<QRect> &parts, const GeoView &of)
{
    QPoint shift; // from the present view to that of the parts
    if (!m_valid || !findShift(of, shift)) {
        return false;
    }
    QPainter painter(&m_image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (const QRect &part : parts) {
        painter.setClipRect(part.translated(-shift));
        painter.drawImage(-shift, picture);
    }
    return true;
}

// Whether the view differs from the picture by whole pixels and by fewer than there are.
bool KeptPicture::findShift(const GeoView &view, QPoint &shift) const
{
    const QTransform &to = view.screenTransform();
    const double ratio = view.devicePixelRatio();
    const bool sameScale = m_transform.m11() == to.m11() && m_transform.m12() == to.m12()
        && m_transform.m21() == to.m21() && m_transform.m22() == to.m22();
    if (!sameScale || m_image.devicePixelRatio() != ratio || m_image.size() != view.screenRect().size() * ratio) {
        return false;
    }
    const QPointF step(to.dx() - m_transform.dx(), to.dy() - m_transform.dy());
    if (std::abs(step.x()) >= view.screenRect().width() || std::abs(step.y()) >= view.screenRect().height()) {
        return false;
    }
    shift = step.toPoint();
    const QPointF rest = step - shift;
    if (std::abs(rest.x()) > WholeEnough || std::abs(rest.y()) > WholeEnough) {
        return false;
    }
    return shift.isNull() || ratio == std::floor(ratio);
}

QList<QRect> KeptPicture::move(const QRect &screen, const QPoint &shift)
{
    if (m_spare.size() != m_image.size()) {
        m_spare = QImage(m_image.size(), m_image.format());
    }
    m_spare.setDevicePixelRatio(m_image.devicePixelRatio());
    m_spare.fill(Qt::transparent);
    QPainter painter(&m_spare);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(shift, m_image);
    painter.end();
    std::swap(m_image, m_spare);
    const QRect kept = screen.translated(shift) & screen;
    QList<QRect> parts;
    const QRegion exposed = QRegion(screen) - kept;
    for (const QRect &part : exposed) {
        parts.append(part);
    }
    return parts;
}
