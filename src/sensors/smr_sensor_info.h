#pragma once

#include "sensors/sensor_info.h"

// A surface movement radar.
class SmrSensorInfo final : public SensorInfo {
    Q_OBJECT

public:
    using SensorInfo::SensorInfo;
    using SensorInfo::type;

    Type type() const override { return SmrSensor; }
    QJsonObject jsonObject() const override;
    // A missing "acp" becomes 0; the other keys keep their value when missing.
    bool setJsonObject(const QJsonObject &object) override;
    QList<double> coverages() const override { return {m_coverage}; }
    double reportPeriod() const override { return m_rotationPeriod; }
    bool turns() const override { return true; }
    std::optional<TrackLife> trackLife() const override { return TrackLife{1.0, 1.25, 3.0, 1500, 3000}; }

    int antennaAltitude() const { return m_antennaAltitude; } // metres
    void setAntennaAltitude(int altitude) { m_antennaAltitude = altitude; }
    double rotationPeriod() const { return m_rotationPeriod; } // seconds
    void setRotationPeriod(double period) { m_rotationPeriod = period; }
    double coverage() const { return m_coverage; } // radius, nautical miles
    void setCoverage(double coverage) { m_coverage = coverage; }
    unsigned int acp() const { return m_acp; } // azimuth change pulses per revolution
    void setAcp(unsigned int acp) { m_acp = acp; }

private:
    int m_antennaAltitude = 0;
    double m_rotationPeriod = 0.0;
    double m_coverage = 0.0;
    unsigned int m_acp = 0;
};
