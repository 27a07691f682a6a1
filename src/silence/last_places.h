#pragma once

#include "engine/display_snapshot.h"
#include "silence/silence_watch.h"

#include <QDateTime>
#include <QList>
#include <QPointF>
#include <QString>

#include <vector>

// Where a track was when its reports stopped with all others.
struct LastPlace {
    quint64 track = 0; // incarnation id
    QPointF place; // plane metres
    QString name; // call sign, Mode A code or track number, and the flight level where there is one
    QDateTime time; // of the last report, UTC
};

// The tracks that have ended only because nothing arrives, until data return. A plain value; goes by snapshots.
class LastPlaces {
public:
    // What the next snapshots show is of another input.
    void beginInput();
    // To be called with every snapshot, after the watch has seen it; true when the places have changed.
    bool look(const DisplaySnapshot &snapshot, const SilenceWatch &watch);

    const std::vector<LastPlace> &places() const { return m_places; }

private:
    void addEnded(const QList<TrackSnapshot> &tracks, const SilenceWatch &watch);

    std::vector<LastPlace> m_places;
    QList<TrackSnapshot> m_tracks; // of the snapshot before
};
