#pragma once

#include "sensors/sensor_info.h"

// A multilateration system.
class MlatSensorInfo final : public SensorInfo {
    Q_OBJECT

public:
    using SensorInfo::SensorInfo;
    using SensorInfo::type;

    Type type() const override { return MlatSensor; }
    QJsonObject jsonObject() const override;
    bool setJsonObject(const QJsonObject &object) override;
    QList<double> coverages() const override { return {static_cast<double>(m_coverage)}; }
    std::optional<TrackLife> trackLife() const override { return TrackLife{0.0, 0.0, 0.0, 3000, 15000}; }

    unsigned int coverage() const { return m_coverage; } // radius, nautical miles
    void setCoverage(const unsigned int &coverage) { m_coverage = coverage; }

private:
    unsigned int m_coverage = 0;
};
