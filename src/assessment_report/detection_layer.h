#pragma once

#include "assessment_report/detection_scale.h"
#include "geo/geo_coordinate.h"
#include "view/geo_layer.h"

#include <QColor>
#include <QPolygonF>

#include <vector>

class Projector;

// How well a radar detects, where it does, over the map: the cells of its grid in the colours of the scale, with a key.
// Slant ranges are taken as distances over ground. Hidden at first.
class DetectionLayer final : public GeoLayer {
    Q_OBJECT

public:
    // The projector must outlive the layer.
    explicit DetectionLayer(Projector *projector, QObject *parent = nullptr);

    // Without a valid site, nothing is drawn. The title stands over the key.
    void setDetection(const GeoCoordinate &site, const DetectionGrid &grid, const QString &title);

    void placeTexts(const GeoView &view, TextRoom &room) override;
    void paint(QPainter &painter, const GeoView &view) override;
    QRectF readOutPlace() const override { return m_keyPlace; }
    void applyConfig(const Config &config) override;
    SettingGroups settings() const override { return SettingGroup::PlanView; }

private:
    struct Cell {
        QPolygonF outline; // plane metres
        QColor color;
    };

    void paintKey(QPainter &painter) const;

    Projector *m_projector;
    std::vector<Cell> m_cells;
    QString m_title;
    QColor m_ground;
    QRectF m_keyPlace; // pixels of the frame; empty: there was no room, or there is nothing to explain
};
