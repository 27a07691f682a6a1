#pragma once

#include <QtGlobal>

#include <optional>

// Where a turning antenna looks between two of its messages. Times are milliseconds of one steady clock, azimuths
// degrees clockwise from north in [0, 360).
class AntennaSweep {
public:
    // Seconds a revolution, from the sensor's data sheet; used until a whole revolution was heard. A period that is not
    // positive is taken as unknown.
    void setNominalPeriod(double seconds);
    // Forgets what was heard.
    void reset();

    void sectorCrossed(double azimuth, qint64 nowMs);
    void northCrossed(qint64 nowMs);

    // Nothing before the first message, and when nothing was heard for three revolutions (of 12 seconds while none is
    // known; the line then stands where it was heard last).
    std::optional<double> azimuth(qint64 nowMs) const;
    // True for a short while after a north marker.
    bool northFlash(qint64 nowMs) const;
    // Seconds a revolution: measured, else nominal, else 0.
    double period() const;

private:
    struct Passage {
        double azimuth = 0.0;
        qint64 time = 0;
    };

    void revolutionBegun(double azimuth, qint64 nowMs);

    double m_nominalPeriod = 4.0;
    std::optional<double> m_measuredPeriod;
    std::optional<Passage> m_lastHeard;
    std::optional<Passage> m_revolutionStart; // the first message after north
    std::optional<qint64> m_lastNorth;
};
