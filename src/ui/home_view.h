#pragma once

#include "geo/geo_coordinate.h"

#include <QPointF>
#include <QString>

class Config;
class GeoRangeRingMap;
class GeoWidget;
class Projector;

// Where the view begins and where the range rings stand: as the last run left them, or fitted to the sensor. Knows the
// places on the ground of what the plan view shows. GUI thread.
class HomeView final {
public:
    // All must outlive this object; the plan view has its map by now.
    HomeView(GeoWidget *plan, Projector *projector, const Config *config);

    // The configured sensor's place, or the display centre; invalid: neither.
    GeoCoordinate place() const;
    QPointF planePoint(const GeoCoordinate &coordinate) const;
    // Invalid off the globe.
    GeoCoordinate viewCenter() const;
    GeoCoordinate ringCenter() const;

    // The sensor's coverage, north up. Nothing without a place.
    void showSensor();
    void jumpTo(const GeoCoordinate &center);
    // Distance in nautical miles. The operator's choice of a centre outlives the run.
    void placeRings(const GeoCoordinate &center, int number, double distance);
    // They stand where the operator has clicked.
    void noteRingsPlaced() { m_ringsPlaced = true; }

    // The view of the last run. False when there was none, or of another sensor.
    bool restore(const QString &group);
    void save(const QString &group) const;

private:
    GeoCoordinate coordinate(const QPointF &planePoint) const;
    GeoRangeRingMap *rings() const;

    GeoWidget *m_plan;
    Projector *m_projector;
    const Config *m_config;
    bool m_ringsPlaced = false;
};
