#pragma once

#include "sensors/sensor_info.h"

#include <QList>

// An ADS-B ground station network.
class AdsbSensorInfo final : public SensorInfo {
    Q_OBJECT

public:
    using SensorInfo::SensorInfo;
    using SensorInfo::type;

    Type type() const override { return AdsbSensor; }
    QJsonObject jsonObject() const override;
    bool setJsonObject(const QJsonObject &object) override;
    QList<double> coverages() const override { return {static_cast<double>(m_coverage)}; }
    double reportPeriod() const override { return m_updateInterval; }
    std::optional<TrackLife> trackLife() const override { return TrackLife{0.5, 1.5, 3.0, 3000, 15000}; }

    unsigned int coverage() const { return m_coverage; } // radius, nautical miles
    void setCoverage(const unsigned int &coverage) { m_coverage = coverage; }
    double updateInterval() const { return m_updateInterval; } // seconds between reports of one target
    void setUpdateInterval(double interval) { m_updateInterval = interval; }
    // The versions of the ADS-B link that the stations receive: "0", "1", "2".
    QList<QString> versions() const { return m_versions; }
    void setVersions(const QList<QString> &versions) { m_versions = versions; }

private:
    unsigned int m_coverage = 0;
    double m_updateInterval = 0.0;
    QList<QString> m_versions;
};
