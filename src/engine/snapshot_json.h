#pragma once

#include "engine/display_snapshot.h"

#include <QJsonObject>
#include <QString>

// The air picture as JSON: {"time", "recordedTime", "tracks": [...], "alerts": [...], "alertStatus": {"MSAW", "APW",
// "STCA"}}. Values that are not valid are null; times are ISO 8601, UTC, with milliseconds; units as in TrackSnapshot.
class SnapshotJson {
public:
    static QJsonObject toJson(const DisplaySnapshot &snapshot);

    // Writes the file whole or leaves the one that was there. False on failure, with the reason in error when given.
    static bool save(const QJsonObject &picture, const QString &fileName, QString *error = nullptr);
};
