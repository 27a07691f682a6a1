#pragma once

#include "sensors/sensor_info.h"

// A surveillance data processing system.
class SdpsSensorInfo final : public SensorInfo {
    Q_OBJECT

public:
    using SensorInfo::SensorInfo;
    using SensorInfo::type;

    Type type() const override { return SdpsSensor; }
    QJsonObject jsonObject() const override;
    bool setJsonObject(const QJsonObject &object) override;
    QList<double> coverages() const override { return {static_cast<double>(m_coverage)}; }
    double reportPeriod() const override { return m_updateInterval; }
    std::optional<TrackLife> trackLife() const override { return TrackLife{4.0, 1.5, 3.0, 10000, 20000}; }

    unsigned int coverage() const { return m_coverage; } // radius, nautical miles
    void setCoverage(const unsigned int &coverage) { m_coverage = coverage; }
    double updateInterval() const { return m_updateInterval; } // seconds between updates of one track
    void setUpdateInterval(double interval) { m_updateInterval = interval; }

private:
    unsigned int m_coverage = 0;
    double m_updateInterval = 0.0;
};
