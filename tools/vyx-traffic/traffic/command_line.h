#pragma once

#include "traffic/scenario.h"
#include "traffic/udp_destination.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QStringList>

#include <cstdint>
#include <optional>

// What the command line asks for.
struct TrafficOptions {
    enum class Action { Run, Load, List, SensorJson, Help, Version };

    Action action = Action::Run;
    QString scenario = QStringLiteral("demo");
    std::optional<UdpDestination> destination;
    QString pcapFile;
    QString blockFile; // raw data blocks back to back
    std::optional<std::uint64_t> seed; // instead of the scenario's own, as what follows
    std::optional<double> duration; // seconds of the scenario's time
    std::optional<QDateTime> startTime;
    std::optional<ScenarioRadar::TargetCategory> category;
    double speed = 1; // scenario seconds a second; 0: as fast as possible
    bool wallClock = false; // the scenario starts now
    bool withParent = false; // ends when the program that started it does
    int aircraft = 0; // load mode
    double rate = 0; // load mode: datagrams a second
};

class TrafficCommandLine {
    Q_DECLARE_TR_FUNCTIONS(TrafficCommandLine)

public:
    // arguments: the program's name first. False, with error() set to one line, for wrong arguments.
    bool parse(const QStringList &arguments);

    const TrafficOptions &options() const { return m_options; }
    QString error() const { return m_error; }
    static QString helpText();

private:
    bool apply(const QString &option, const QString &value);
    bool applyOutput(const QString &option, const QString &value);
    bool applyTime(const QString &option, const QString &value);
    bool applyNumber(const QString &option, const QString &value);
    bool checkTogether();
    bool fail(const QString &error);

    TrafficOptions m_options;
    QString m_error;
    bool m_scenarioGiven = false;
    bool m_speedGiven = false;
};
