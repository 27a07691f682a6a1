#pragma once

#include <QDateTime>
#include <QtGlobal>

struct DisplaySnapshot;
class SensorInfo;

// Whether anything comes in from the input that is open, by the time of the pictures: the system's for a live input,
// the recording's own for one that is played. A plain value; whoever has the snapshots hands them in.
class SilenceWatch {
public:
    // Heard: something came within two of the sensor's report periods. Overdue: nothing for two. Silent: nothing for
    // three, by which tracks have ended.
    enum class Level { Heard, Overdue, Silent };

    static constexpr double OverduePeriods = 2.0;
    static constexpr double SilentPeriods = 3.0;
    static constexpr double ShortestPeriod = 1.0; // seconds; what reports faster sends its reports in bundles
    static constexpr double AssumedPeriod = 4.0; // seconds, of a sensor whose period is not known

    // The sensor's revolution or update interval. Null: not known.
    void setSensor(const SensorInfo *sensor);
    // What was measured, seconds; counts where it is longer than what the sensor is said to have. 0: nothing was.
    void setMeasuredPeriod(double seconds) { m_measuredPeriod = seconds; }
    double period() const; // seconds

    // What the next snapshots show is of another input.
    void beginInput();
    // Nothing is expected of an input that is paused or closed. After a pause the time counts anew.
    void setExpecting(bool expecting);

    // To be called with every snapshot; true when the level has changed.
    bool look(const DisplaySnapshot &snapshot);

    Level level() const { return m_level; }
    // When something came last, UTC; while nothing has come at all, when the input began.
    QDateTime since() const;
    bool everHeard() const { return m_everHeard; } // in this input
    // Since the last of it.
    qint64 silentMs() const { return m_nowMs - m_lastMs; }
    bool recorded() const { return m_recorded; } // the times are a recording's

private:
    void begin(const DisplaySnapshot &snapshot);
    Level levelNow() const;

    double m_sensorPeriod = AssumedPeriod;
    double m_measuredPeriod = 0.0;
    bool m_expecting = false;
    bool m_begun = false; // a picture was seen since something has been expected
    bool m_everHeard = false;
    bool m_recorded = false;
    Level m_level = Level::Heard;
    quint64 m_run = 0; // of the newest picture
    quint64 m_endedRun = 0; // of an input before
    quint64 m_messages = 0;
    qint64 m_lastMs = 0;
    qint64 m_nowMs = 0;
};
