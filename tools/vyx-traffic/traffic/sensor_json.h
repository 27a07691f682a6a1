#pragma once

#include "traffic/scenario.h"

#include <QJsonObject>

// The scenario's sensor as an object of a sensor file: the first radar, or else the first of the other sources that
// track. Beside a sensor file's keys it has what a receiver needs to know of the scenario: "processor" ("asterix",
// "modes" or "sirm"), "encapsulation" of Mode S frames ("beast" or "avr"), and whether there is "weather" and "video".
QJsonObject sensorJson(const Scenario &scenario);
