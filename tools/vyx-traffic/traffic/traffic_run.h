#pragma once

#include "traffic/command_line.h"
#include "traffic/scenario.h"

#include <QCoreApplication>

#include <atomic>

// Plays a scenario, or load, to its end or until it is told to stop.
class TrafficOutput;

class TrafficRun {
    Q_DECLARE_TR_FUNCTIONS(TrafficRun)

public:
    // The scenario is changed by what the options say otherwise. stop may be set by a signal handler; outlives this.
    TrafficRun(const TrafficOptions &options, Scenario scenario, const std::atomic<bool> &stop);

    // False, with text() saying why, when an output fails or the options do not fit the scenario; else text() is a
    // summary. Either is one line.
    bool run();
    QString text() const { return m_text; }

private:
    bool runScenario();
    bool runLoad();
    bool finish(TrafficOutput &output, double seconds);
    bool fail(const QString &error);

    TrafficOptions m_options;
    Scenario m_scenario;
    const std::atomic<bool> &m_stop;
    QString m_text;
};
