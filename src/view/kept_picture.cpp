#include "view/kept_picture.h"

#include "view/geo_view.h"

#include <QPainter>
#include <QRegion>

#include <cmath>
#include <utility>

namespace {

constexpr double WholeEnough = 1e-3; // pixels

// The device pixels that lie in a part altogether.
QRect insideOf(const QRect &part, double ratio)
{
    const QPointF from = QPointF(part.topLeft()) * ratio;
    const QPointF to = QPointF(part.topLeft() + QPoint(part.width(), part.height())) * ratio;
    const QPoint first(static_cast<int>(std::ceil(from.x())), static_cast<int>(std::ceil(from.y())));
    const QPoint end(static_cast<int>(std::floor(to.x())), static_cast<int>(std::floor(to.y())));
    return QRect(first, end - QPoint(1, 1));
}

} // namespace

void KeptPicture::set(const QImage &picture, const GeoView &of)
{
    m_image = picture;
    m_transform = of.screenTransform();
    m_valid = true;
}

// Whether the view differs from the picture by whole device pixels, and by fewer than there are.
bool KeptPicture::findShift(const GeoView &view, QPoint &shift) const
{
    const QTransform &to = view.screenTransform();
    const double ratio = view.devicePixelRatio();
    const QSize size = m_image.size();
    const bool sameScale = m_transform.m11() == to.m11() && m_transform.m12() == to.m12()
        && m_transform.m21() == to.m21() && m_transform.m22() == to.m22();
    const bool sameScreen =
        m_image.devicePixelRatio() == ratio && size == (QSizeF(view.screenRect().size()) * ratio).toSize();
    const QPointF step = QPointF(to.dx() - m_transform.dx(), to.dy() - m_transform.dy()) * ratio;
    if (!m_valid || !sameScale || !sameScreen || std::abs(step.x()) >= size.width()
        || std::abs(step.y()) >= size.height()) {
        return false;
    }
    shift = step.toPoint();
    const QPointF rest = step - shift;
    return std::abs(rest.x()) <= WholeEnough && std::abs(rest.y()) <= WholeEnough;
}

double KeptPicture::share(const GeoView &view) const
{
    QPoint shift;
    if (!findShift(view, shift)) {
        return 0.0;
    }
    const QSizeF size = m_image.size();
    return (1.0 - std::abs(shift.x()) / size.width()) * (1.0 - std::abs(shift.y()) / size.height());
}

QList<QRect> KeptPicture::turnTo(const GeoView &view)
{
    QPoint shift;
    if (!findShift(view, shift) || shift.isNull()) {
        return {};
    }
    m_transform = view.screenTransform();
    if (m_spare.size() != m_image.size()) {
        m_spare = QImage(m_image.size(), m_image.format());
    }
    const double ratio = view.devicePixelRatio();
    const QRect whole = m_image.rect();
    m_spare.setDevicePixelRatio(1.0);
    m_spare.fill(Qt::transparent);
    QPainter painter(&m_spare);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(whole.translated(shift), m_image, whole);
    painter.end();
    m_spare.setDevicePixelRatio(ratio);
    std::swap(m_image, m_spare);
    QList<QRect> parts;
    const QRegion exposed = QRegion(whole) - whole.translated(shift);
    for (const QRect &part : exposed) {
        parts.append(QRectF(QPointF(part.topLeft()) / ratio, QSizeF(part.size()) / ratio).toAlignedRect());
    }
    return parts;
}

bool KeptPicture::put(const QImage &picture, const QList<QRect> &parts, const GeoView &of)
{
    QPoint shift; // from the present view to that of the parts
    if (!findShift(of, shift)) {
        return false;
    }
    QImage onDevice(m_image.bits(), m_image.width(), m_image.height(), m_image.bytesPerLine(), m_image.format());
    QPainter painter(&onDevice);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (const QRect &part : parts) {
        const QRect source = insideOf(part, of.devicePixelRatio());
        painter.drawImage(source.translated(-shift), picture, source);
    }
    return true;
}
