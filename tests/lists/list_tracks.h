#pragma once

#include "engine/display_snapshot.h"

#include <QSharedPointer>

// A track with that flight level in feet; 0: not known.
inline TrackSnapshot listTrack(quint64 id, const QString &callsign, int level)
{
    TrackSnapshot snapshot;
    snapshot.incarnationId = id;
    snapshot.trackNumber = static_cast<unsigned int>(id) + 100;
    snapshot.callsign = callsign;
    snapshot.callsignValid = !callsign.isEmpty();
    snapshot.level = level;
    snapshot.levelValid = level != 0;
    return snapshot;
}

inline QSharedPointer<const DisplaySnapshot> listPicture(const QList<TrackSnapshot> &tracks)
{
    auto picture = QSharedPointer<DisplaySnapshot>::create();
    picture->tracks = tracks;
    picture->time = QDateTime(QDate(2024, 5, 1), QTime(12, 0, 0), Qt::UTC);
    return picture;
}
