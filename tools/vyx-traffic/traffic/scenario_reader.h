#pragma once

#include "traffic/json_object_reader.h"
#include "traffic/scenario.h"

#include <QHash>
#include <QJsonObject>

// Reads scenarios from files and from those that are built in.
class ScenarioReader {
    Q_DECLARE_TR_FUNCTIONS(ScenarioReader)

public:
    // Names of the built-in scenarios, sorted.
    static QStringList builtInNames();

    // A built-in scenario's name, or a file's. Nothing on failure: error() then is one line with file, place and
    // reason.
    std::optional<Scenario> read(const QString &nameOrFile);
    // source: named in the error.
    std::optional<Scenario> parse(const QByteArray &json, const QString &source);
    QString error() const { return m_error; }

private:
    using Fixes = QHash<QString, ScenarioFix>;

    static void readRadar(JsonObjectReader &reader, Scenario &scenario);
    static void readFix(JsonObjectReader &reader, Fixes &fixes);
    void readFlight(JsonObjectReader &reader, Scenario &scenario) const;
    static void readSquawks(JsonObjectReader &reader, ScenarioFlight &flight);
    static void readPerformance(JsonObjectReader &reader, ScenarioPerformance &performance);
    void readWaypoint(const QJsonValue &value, const QString &path, QString &error, ScenarioFlight &flight) const;
    void readRandom(JsonObjectReader &reader, ScenarioRandomTraffic &random) const;
    void readAirways(JsonObjectReader &reader, ScenarioRandomTraffic &random) const;
    void readScenario(JsonObjectReader &reader, Scenario &scenario);

    Fixes m_fixes;
    QString m_error;
};

// The radar as an object of a sensor file; coverage in nautical miles, antenna altitude in metres.
QJsonObject sensorJson(const ScenarioRadar &radar);
