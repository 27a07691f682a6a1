#pragma once

#include "orientation/ring_labels.h"
#include "view/geo_layer.h"
#include "view/sheet_picture.h"

#include <QColor>
#include <QPolygonF>

#include <vector>

class Projector;

// Rings at equal true distances over the ground around a centre, each with its distance on four bearings if that is
// wanted. Until setRings places it, the centre is the default one.
class GeoRangeRingMap final : public GeoLayer {
    Q_OBJECT

public:
    // The projector must outlive the layer.
    explicit GeoRangeRingMap(Projector *projector, QObject *parent = nullptr);

    void placeTexts(const GeoView &view, TextRoom &room) override;
    void paint(QPainter &painter, const GeoView &view) override;
    // Takes colour, visibility, number and distance; the default centre becomes the configured sensor's place, or the
    // display centre when there is none.
    void applyConfig(const Config &config) override;
    SettingGroups settings() const override
    {
        return SettingGroup::RangeRings | SettingGroup::PlanView | SettingGroup::Sensor;
    }

    QPointF center() const { return m_centerSet ? m_center : m_defaultCenter; } // plane metres
    int number() const { return m_number; }
    double distance() const { return m_distance; } // nautical miles from ring to ring
    // On the screen, in points evenly by true bearing from north clockwise; empty without rings.
    QPolygonF outermostRing(const GeoView &view);
    QColor color() const { return m_color; }

public Q_SLOTS:
    // Plane metres; a number outside 0 to 100 is brought into it, a distance that is not positive draws nothing.
    void setRings(const QPointF &center, int number, double distanceNauticalMiles);
    void setDefaultCenter(const QPointF &center);
    void setColor(const QColor &color);

private:
    void takeLook(const Config &config);
    void forgetRings();
    const std::vector<QPolygonF> &rings();
    int labelledStep(const GeoView &view);

    Projector *m_projector;
    QPointF m_center;
    QPointF m_defaultCenter;
    bool m_centerSet = false;
    int m_number = 0;
    double m_distance = 0.0;
    QColor m_color;
    QColor m_labelColor;
    QColor m_ground;
    bool m_labelsVisible = false;
    bool m_ringsValid = false;
    std::vector<QPolygonF> m_rings; // plane, inner first
    std::vector<RingLabel> m_labels; // of the frame
    SheetPicture m_picture; // of the rings
};
