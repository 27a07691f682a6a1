#pragma once

#include "traffic/json_object_reader.h"
#include "traffic/scenario.h"

#include <QHash>

using ScenarioFixes = QHash<QString, ScenarioFix>; // by name

// The object that a place in a list is: itself, or for the name of a fix an object with that.
QJsonValue pointObject(const QJsonValue &value);
// "fix", or "lat" and "lon".
ScenarioPoint readPoint(JsonObjectReader &reader, const ScenarioFixes &fixes);

// Reads what sends in a scenario, each kind an array of objects.
class SourceReader {
    Q_DECLARE_TR_FUNCTIONS(SourceReader)

public:
    // fixes: for the corners of areas. Both outlive the reader.
    SourceReader(Scenario &scenario, const ScenarioFixes &fixes) : m_scenario(scenario), m_fixes(fixes) { }

    // reader: of the scenario's object.
    void read(JsonObjectReader &reader);

private:
    void readRadar(JsonObjectReader &reader);
    void readErrors(JsonObjectReader &reader, ScenarioRadar &radar) const;
    void readAdsb(JsonObjectReader &reader);
    void readModeSReceiver(JsonObjectReader &reader);
    void readMlat(JsonObjectReader &reader);
    void readSdps(JsonObjectReader &reader);
    void readSmr(JsonObjectReader &reader);
    void readSafetyNet(JsonObjectReader &reader);
    void readConflicts(JsonObjectReader &reader, ScenarioSafetyNet &net) const;
    ScenarioArea readArea(JsonObjectReader &reader, bool isMinimum) const;
    void readWeatherRadar(JsonObjectReader &reader);
    void readVideoRadar(JsonObjectReader &reader);

    Scenario &m_scenario;
    const ScenarioFixes &m_fixes;
};
