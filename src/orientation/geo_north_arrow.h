#pragma once

#include "view/geo_layer.h"

#include <QColor>

// Where north is, in the upper right corner of a view that is turned away from it; nothing in a view that is not.
class GeoNorthArrow final : public GeoLayer {
    Q_OBJECT

public:
    explicit GeoNorthArrow(QObject *parent = nullptr);

    void placeTexts(const GeoView &view, TextRoom &room) override;
    void paint(QPainter &painter, const GeoView &view) override;
    // Shown where compass rose or scale bar are.
    void applyConfig(const Config &config) override;
    SettingGroups settings() const override;

private:
    QColor m_color;
    QColor m_ground;
    QPointF m_middle; // pixels of the frame
    bool m_shown = false;
};
