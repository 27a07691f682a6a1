#pragma once

#include "geo/geo_coordinate.h"
#include "orientation/antenna_sweep.h"
#include "orientation/ring_labels.h"
#include "view/geo_layer.h"
#include "view/sheet_picture.h"

#include <QColor>
#include <QLineF>
#include <QPolygonF>
#include <QSharedPointer>

#include <functional>
#include <vector>

class Projector;
class SensorInfo;

// The sensor: its site, its name with the ranges of its coverage if they are wanted, its coverage, and for a turning
// antenna the line where it looks and a flash of the north marker when it passes north.
class GeoSensorMap final : public GeoLayer {
    Q_OBJECT

public:
    // The projector must outlive the layer.
    explicit GeoSensorMap(Projector *projector, QObject *parent = nullptr);

    void placeTexts(const GeoView &view, TextRoom &room) override;
    void paint(QPainter &painter, const GeoView &view) override;
    void applyConfig(const Config &config) override;
    SettingGroups settings() const override { return SettingGroup::SensorLayer | SettingGroup::PlanView; }

    // False, and nothing written, without a located sensor.
    bool sitePosition(QPointF &planePoint) const;

    // Replaces the steady clock, milliseconds from any start.
    void setClock(std::function<qint64()> clock);

public Q_SLOTS:
    // Takes a copy of what it draws; null shows nothing. Forgets where the antenna was.
    void setSensor(const QSharedPointer<SensorInfo> &sensor);
    void showCoverage(bool visible);
    void showNorthMarker(bool visible);
    void showAntennaLine(bool visible);

    // Sector crossing, degrees clockwise from true north.
    void antennaRotated(double azimuthDegrees);
    void antennaNorthCrossed();

private:
    void layOut();
    void paintCoverage(QPainter &painter, const GeoView &view);
    void paintNorthMarker(QPainter &painter, const GeoView &view) const;
    void paintAntennaLine(QPainter &painter, const GeoView &view) const;
    QLineF northMark(const GeoView &view) const;
    void paintSite(QPainter &painter, const GeoView &view) const;

    Projector *m_projector;
    std::function<qint64()> m_clock;
    AntennaSweep m_sweep;

    QString m_sensorName;
    GeoCoordinate m_location;
    std::vector<double> m_coverages; // nautical miles, largest first
    bool m_turning = false;

    QPointF m_site; // plane
    std::vector<QPolygonF> m_coverageRings; // plane, one a coverage
    SheetPicture m_coveragePicture;
    std::vector<RingLabel> m_texts; // of the frame: name and ranges
    QPolygonF m_rim; // plane, where the antenna line ends: one point a degree from north, clockwise

    bool m_coverageVisible = false;
    bool m_northMarkerVisible = false;
    bool m_antennaLineVisible = false;
    bool m_nameVisible = false;
    bool m_northMarkerShort = false;
    QColor m_ground;
    QColor m_color;
    QColor m_northMarkerColor;
    QColor m_antennaLineColor;
};
