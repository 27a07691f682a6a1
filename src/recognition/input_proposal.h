#pragma once

#include "recognition/stream_findings.h"

#include <QSharedPointer>

class SensorInfo;
class SensorManager;

// How processor and sensor should be set so that as much as possible of a stream is shown.
class InputProposal {
public:
    // Of several sources the one that can be shown best. A sensor of the file with its SAC/SIC is taken as it is.
    // findings must be of a known kind.
    InputProposal(const StreamFindings &findings, const SensorManager &sensors);

    // Never null. Its location is not valid while siteMissing().
    const QSharedPointer<SensorInfo> &sensor() const { return m_sensor; }
    bool isFromSensorFile() const { return m_fromSensorFile; }
    // Positions cannot be placed before somebody says where the sensor stands.
    bool siteMissing() const { return m_siteMissing; }
    // Nor was the time for one turn of its antenna found out.
    bool rotationPeriodMissing() const { return m_rotationPeriodMissing; }

    // The answer to what is missing; period in seconds, of radars.
    void setSite(const GeoCoordinate &site);
    void setRotationPeriod(double period);

    // The settings of processor and sensor. No others are touched.
    void applyTo(Config *config) const;

    // One sentence: what is shown, and as what.
    QString choiceText() const;
    // One sentence: why there is less to see than there is data; empty where there is not.
    QString shortfallText() const { return m_shortfall; }

private:
    struct Candidate;

    void chooseAsterix(const StreamFindings &findings, const SensorManager &sensors);
    void chooseModeS(const ModeSFindings &modeS, const SensorManager &sensors);
    void chooseSirM(const SirMFindings &sirM, const SensorManager &sensors);
    void takeSensor(SensorType type, quint8 sac, quint8 sic, const SensorManager &sensors);
    void describeSource(const SourceFindings &source, SensorType type);
    void placeSource(const SourceFindings &source, SensorType type);

    Config m_processor; // of its settings, those of the processor
    QSharedPointer<SensorInfo> m_sensor;
    bool m_fromSensorFile = false;
    bool m_siteMissing = false;
    bool m_rotationPeriodMissing = false;
    qsizetype m_sourcesLeftOut = 0;
    QString m_shortfall;
};
