#pragma once

#include "view/geo_layer.h"

#include <QColor>
#include <QString>

class Projector;

// How far is how far: a bar of a round number of nautical miles in the lower left corner of the view. True in the
// middle of the view and along its width; towards the poles the plane is longer than the ground.
class GeoScaleBar final : public GeoLayer {
    Q_OBJECT

public:
    // The projector must outlive the layer.
    explicit GeoScaleBar(Projector *projector, QObject *parent = nullptr);

    void placeTexts(const GeoView &view, TextRoom &room) override;
    void paint(QPainter &painter, const GeoView &view) override;
    QRectF readOutPlace() const override { return m_length > 0.0 ? m_place : QRectF(); }
    void applyConfig(const Config &config) override;
    SettingGroups settings() const override;

    // The largest of 1, 2 or 5 times a power of ten that is not above the value, which is positive.
    static double roundBelow(double value);

private:
    double metresOverGround(const GeoView &view) const;

    Projector *m_projector;
    QColor m_color;
    QColor m_ground;

    double m_length = 0.0; // pixels of the frame; 0: nothing to draw
    QRectF m_place;
    QString m_text;
};
