#pragma once

#include "airdb/country.h"

namespace korvane::airdb {

// Whose sensors use a system area code.
struct SACDictItem {
    unsigned sac = 0;
    Country country;

    bool isValid() const { return country.isValid(); }
};

// The name of one sensor.
struct SensorDictItem {
    unsigned sac = 0;
    unsigned sic = 0;
    QString name;

    bool isValid() const { return !name.isEmpty(); }
};

// What is known of the aircraft with an address. Any text but the registration may be empty.
struct Aircraft {
    quint32 address = 0;
    QString registration;
    QString type; // ICAO designator: "A320"
    QString aircraftOperator;

    bool isValid() const { return !registration.isEmpty(); }
};

} // namespace korvane::airdb
