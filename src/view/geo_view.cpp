#include "view/geo_view.h"

#include <QPainter>
#include <QtMath>

#include <cmath>

GeoView::GeoView(const QTransform &screenTransform, const QSize &size, qreal devicePixelRatio)
{
    update(screenTransform, size, devicePixelRatio);
}

GeoView GeoView::fromPainter(const QPainter &painter)
{
    return GeoView(painter.worldTransform(), painter.window().size(), painter.device()->devicePixelRatioF());
}

bool GeoView::update(const QTransform &screenTransform, const QSize &size, qreal devicePixelRatio)
{
    const bool unchanged = m_revision > 0 && m_screenTransform == screenTransform && m_size == size
        && m_devicePixelRatio == devicePixelRatio;
    if (unchanged) {
        return false;
    }
    m_screenTransform = screenTransform;
    m_size = size;
    m_devicePixelRatio = devicePixelRatio;
    ++m_revision;
    derive();
    return true;
}

void GeoView::derive()
{
    m_planeTransform = m_screenTransform.inverted();
    m_planeRect = m_planeTransform.mapRect(QRectF(screenRect()));
    m_metresPerPixel = metresPerPixel(m_screenTransform);
    m_rotation = normalizedRotation(qRadiansToDegrees(std::atan2(m_screenTransform.m21(), m_screenTransform.m11())));
}

double GeoView::metresPerPixel(const QTransform &screenTransform)
{
    return 1.0 / std::sqrt(std::abs(screenTransform.determinant()));
}

double GeoView::normalizedRotation(double degrees)
{
    while (degrees > 180.0) {
        degrees -= 360.0;
    }
    while (degrees <= -180.0) {
        degrees += 360.0;
    }
    return degrees;
}
