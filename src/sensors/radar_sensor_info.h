#pragma once

#include "sensors/sensor_info.h"

// An air surveillance radar.
class RadarSensorInfo final : public SensorInfo {
    Q_OBJECT

public:
    using SensorInfo::SensorInfo;
    using SensorInfo::type;

    Type type() const override { return RadarSensor; }
    QJsonObject jsonObject() const override;
    // A key that is missing becomes 0 or false, unlike in the other subclasses. Mode S does not force secondary here.
    bool setJsonObject(const QJsonObject &object) override;
    QList<double> coverages() const override;
    double reportPeriod() const override { return m_rotationPeriod; }
    bool turns() const override { return true; }
    std::optional<TrackLife> trackLife() const override { return TrackLife{1.0, 1.25, 3.0, 5000, 12000}; }

    int antennaAltitude() const { return m_antennaAltitude; } // metres
    void setAntennaAltitude(int altitude) { m_antennaAltitude = altitude; }
    double rotationPeriod() const { return m_rotationPeriod; } // seconds
    void setRotationPeriod(double period) { m_rotationPeriod = period; }

    // Its slant ranges are made distances over ground where a target's height is known. Of records of the sensor file
    // alone.
    bool slantRangeCorrected() const { return m_slantRangeCorrected; }
    void setSlantRangeCorrected(bool corrected) { m_slantRangeCorrected = corrected; }

    // A Mode S radar is a secondary one, whatever ssr says.
    void setRadarType(bool psr, bool ssr, bool modeS);
    bool isPrimary() const { return m_primary; }
    bool isSecondary() const { return m_secondary || m_modeS; }
    bool isModeS() const { return m_modeS; }

    unsigned int coveragePrimary() const { return m_coveragePrimary; } // radius, nautical miles
    void setCoveragePrimary(const unsigned int &coverage) { m_coveragePrimary = coverage; }
    unsigned int coverageSecondary() const { return m_coverageSecondary; } // radius, nautical miles
    void setCoverageSecondary(const unsigned int &coverage) { m_coverageSecondary = coverage; }

private:
    int m_antennaAltitude = 0;
    double m_rotationPeriod = 0.0;
    bool m_primary = false;
    bool m_secondary = false;
    bool m_modeS = false;
    unsigned int m_coveragePrimary = 0;
    unsigned int m_coverageSecondary = 0;
    bool m_slantRangeCorrected = false;
};
