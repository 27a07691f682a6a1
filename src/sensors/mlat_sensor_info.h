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

    unsigned int coverage() const { return m_coverage; } // radius, nautical miles
    void setCoverage(const unsigned int &coverage) { m_coverage = coverage; }

private:
    unsigned int m_coverage = 0;
};
