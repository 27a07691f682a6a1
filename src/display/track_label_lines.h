#pragma once

#include <QDateTime>
#include <QString>

#include <array>

struct TrackSnapshot;

// Which fields a track label shows.
struct TrackLabelFields {
    bool alertIndicator = true;
    bool trackNum = false;
    bool callsign = true;
    bool icaoAddr = false;
    bool squawk = true;
    bool level = true;
    bool selectedAltitude = false;
    bool verticalRate = false;
    bool groundSpeed = true;
    bool heading = false;

    bool any() const;
    bool operator==(const TrackLabelFields &other) const = default;
};

// The lines of a track label from top to bottom. A place for each kind of line; an empty one is not shown.
struct TrackLabelLines {
    enum Line { Alert, Mark, Identity, Callsign, Level, Rate, Count };

    std::array<QString, Count> text;

    bool operator==(const TrackLabelLines &other) const = default;
};

// What the aircraft says of itself beside its alerts: "HIJ", "RDO" or "EMG", and "SPI"; empty for most.
QString trackMarks(const TrackSnapshot &track);

// What to call a track by: its callsign, else "A7000" by its Mode A code, else "#0042" by its number.
QString trackName(const TrackSnapshot &track);

TrackLabelLines trackLabelLines(const TrackSnapshot &track, const TrackLabelFields &fields);

// The same fields on fewer lines, and nothing for what is not known: who it is ("KVN72 3102", "A7000" without a call
// sign, "#0208" without either; of a coasting track how long it has been silent at the given time, "KVN72 3102➘12s"),
// level, trend and speed ("F350↑ S370 452"; "GND" on the ground), and below them what an
// operator switches on beside. The identity line stays empty.
TrackLabelLines compactLabelLines(
    const TrackSnapshot &track, const TrackLabelFields &fields, const QDateTime &time = {});
