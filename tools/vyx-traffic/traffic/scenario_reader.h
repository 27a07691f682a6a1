#pragma once

#include "traffic/json_object_reader.h"
#include "traffic/scenario.h"
#include "traffic/source_reader.h"

// Reads scenarios from files and from those that are built in.
class ScenarioReader {
    Q_DECLARE_TR_FUNCTIONS(ScenarioReader)

public:
    // Names of the built-in scenarios, sorted.
    static QStringList builtInNames();

    // Nothing where there is none of that name.
    static QString description(const QString &builtInName);

    // A built-in scenario's name, or a file's. Nothing on failure: error() then is one line with file, place and
    // reason.
    std::optional<Scenario> read(const QString &nameOrFile);
    // source: named in the error.
    std::optional<Scenario> parse(const QByteArray &json, const QString &source);
    QString error() const { return m_error; }

private:
    std::optional<Scenario> readNested(const QString &nameOrFile);
    void readTrafficOf(JsonObjectReader &reader, Scenario &scenario);
    static void readFix(JsonObjectReader &reader, ScenarioFixes &fixes);
    void readFlight(JsonObjectReader &reader, Scenario &scenario) const;
    static void readSquawks(JsonObjectReader &reader, ScenarioFlight &flight);
    static void readPerformance(JsonObjectReader &reader, ScenarioPerformance &performance);
    void readWaypoint(const QJsonValue &value, const QString &path, QString &error, ScenarioFlight &flight) const;
    void readRandom(JsonObjectReader &reader, ScenarioRandomTraffic &random) const;
    void readAirways(JsonObjectReader &reader, ScenarioRandomTraffic &random) const;
    void readScenario(JsonObjectReader &reader, Scenario &scenario);

    ScenarioFixes m_fixes;
    bool m_isNested = false; // read for another scenario's sake
    QString m_error;
};
