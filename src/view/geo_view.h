#pragma once

#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QTransform>

class QPainter;

// How the projection plane (metres, x east, y north) lies on the screen (pixels, y down) for one frame. Made once and
// handed to every painter.
class GeoView {
public:
    GeoView() = default;
    GeoView(const QTransform &screenTransform, const QSize &size, qreal devicePixelRatio = 1.0);

    // The view that a painter's world transform, window and device show; its revision is 1.
    static GeoView fromPainter(const QPainter &painter);

    // True, and the revision goes up, when anything changed.
    bool update(const QTransform &screenTransform, const QSize &size, qreal devicePixelRatio);

    const QTransform &screenTransform() const { return m_screenTransform; }
    // The inverse; the identity where the screen transform has none.
    const QTransform &planeTransform() const { return m_planeTransform; }
    double metresPerPixel() const { return m_metresPerPixel; }
    // Degrees clockwise that north is turned away from the top of the screen, in (-180, 180].
    double rotation() const { return m_rotation; }
    QRect screenRect() const { return QRect(QPoint(0, 0), m_size); }
    // The plane rectangle that bounds what is visible; where the view is turned it holds more than that.
    const QRectF &planeRect() const { return m_planeRect; }
    qreal devicePixelRatio() const { return m_devicePixelRatio; }
    // Equal revisions of one view object mean an unchanged view: what was laid out for it may be kept.
    quint64 revision() const { return m_revision; }

    QPointF toScreen(const QPointF &planePoint) const { return m_screenTransform.map(planePoint); }
    QPointF toPlane(const QPointF &screenPoint) const { return m_planeTransform.map(screenPoint); }

    // Metres per pixel of a transform from plane to screen.
    static double metresPerPixel(const QTransform &screenTransform);
    // Brings an angle in degrees into (-180, 180].
    static double normalizedRotation(double degrees);

private:
    void derive();

    QTransform m_screenTransform;
    QTransform m_planeTransform;
    QRectF m_planeRect;
    QSize m_size;
    double m_metresPerPixel = 1.0;
    double m_rotation = 0.0;
    qreal m_devicePixelRatio = 1.0;
    quint64 m_revision = 0;
};
