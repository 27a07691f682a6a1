#pragma once

#include "asterix/asterix.h"
#include "sensors/sensor_type.h"

#include <optional>

// What one ASTERIX record says about its source and its target, whatever its category.
struct ReportFacts {
    struct Wgs84 {
        double latitude = 0.0; // degrees
        double longitude = 0.0;
    };
    struct Offset {
        double east = 0.0; // metres from the source's reference point
        double north = 0.0;
    };

    bool isTarget = false; // a report of a target
    std::optional<int> trackNumber;
    bool address = false;
    bool polar = false;
    bool cartesian = false;
    std::optional<Wgs84> wgs84;
    std::optional<Offset> offset; // where the category sends metres
    // Of radars: kinds of detection.
    bool primary = false;
    bool secondary = false;
    bool modeS = false;
    // Of the antenna: what recurs once a turn, north as 0 and azimuths of sectors from 1 on; its period in seconds.
    std::optional<int> turnMark;
    std::optional<double> rotationPeriod;
    std::optional<Wgs84> site;

    static ReportFacts of(int category, const _ast_datarecord_t &record);

    // Whether the tracker of that kind of sensor makes a track of it.
    bool trackable(SensorType tracker) const;
};

// The sensor that sends the category; UnknownSensor for those of no tracker. Multilateration of airports sends category
// 10 as surface movement radars do, for which it is taken here.
SensorType sensorTypeOf(int category);
// Whether the category is for reports of targets, rather than for the state of their source.
bool isTargetCategory(int category);
