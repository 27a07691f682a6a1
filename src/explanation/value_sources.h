#pragma once

#include "explanation/report_view.h"

#include <span>

// The values that tracks have beside each other, in the order in which they are explained.
enum class TrackValue {
    Callsign,
    ModeA,
    Address,
    SensorNumber,
    TimeOfDay,
    Position,
    Level,
    GroundSpeed,
    Heading,
    VerticalRate,
    VerticalTrend,
    SelectedAltitude,
    Type,
    State,
    OnGround,
    Emergency,
    Spi,
};

// An item that trackers take a value from. Of several for one value and category the first that a report has counts.
struct ValueSource {
    static constexpr int LastReport = 0; // only if the last report has it
    static constexpr int Kept = -1; // from report to report until another comes

    TrackValue value;
    int category; // as in ReportView
    const char *keys; // of the fields that make it, with blanks between; the first one must be there
    int lifeMs; // how long it stays valid without being sent again
    const char *rule; // to be translated in the context "TrackExplanation"; may be empty
};

std::span<const ValueSource> valueSources();
