#pragma once

#include "engine/display_snapshot.h"
#include "engine/source_statistics.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

// The air picture as JSON: {"time", "recordedTime", "tracks": [...], "alerts": [...], "alertStatus": {"MSAW", "APW",
// "STCA"}}. Values that are not valid are null; times are ISO 8601, UTC, with milliseconds; units as in TrackSnapshot.
class SnapshotJson {
public:
    static QJsonObject toJson(const DisplaySnapshot &snapshot);

    // An object a source, in their order: {"form": "asterix", "modeS" or "sirM", "sac", "sic", "category", "edition",
    // "endpoint", "datagrams", "blocks", "records", "octets", "rate10", "rate60", "firstArrival", "lastArrival",
    // "expectedInterval", "delay": {"samples", "median", "percentile95", "smallest", "jumps"}, "antenna": {"period",
    // "deviation", "revolutions", "northMarkers", "sectorCrossings", "missingSectors"}, "outcomes": {name: count}}. SAC
    // and SIC are null where none is sent, the interval where it is not known; delay and antenna are there where they
    // were measured; outcomes that did not occur are left out. Last, where the table was full, the sums of all others
    // with "others": how often one had no room.
    static QJsonArray sources(const InputStatistics &statistics);

    // Writes the file whole or leaves the one that was there. False on failure, with the reason in error when given.
    static bool save(const QJsonObject &picture, const QString &fileName, QString *error = nullptr);
};
