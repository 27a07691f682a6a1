#include "silence/last_places.h"

#include <QSet>

#include <utility>

namespace {

constexpr QChar Zero('0');

QString nameOf(const TrackSnapshot &track)
{
    QString name;
    if (track.callsignValid) {
        name = track.callsign;
    } else if (track.modeACodeValid) {
        name = QStringLiteral("A") + track.modeAString;
    } else {
        name = QStringLiteral("#%1").arg(track.trackNumber, 4, 10, Zero);
    }
    return track.levelValid ? QStringLiteral("%1 %2").arg(name).arg(track.level / 100, 3, 10, Zero) : name;
}

} // namespace

void LastPlaces::beginInput()
{
    m_places.clear();
    m_tracks.clear();
}

bool LastPlaces::look(const DisplaySnapshot &snapshot, const SilenceWatch &watch)
{
    const std::size_t before = m_places.size();
    if (watch.level() == SilenceWatch::Level::Heard) {
        m_places.clear();
    } else if (snapshot.tracks.size() < m_tracks.size()) { // while nothing comes, none begins
        addEnded(snapshot.tracks, watch);
    }
    m_tracks = snapshot.tracks;
    return m_places.size() != before;
}

// What had no report for long before the silence would have ended without it.
void LastPlaces::addEnded(const QList<TrackSnapshot> &tracks, const SilenceWatch &watch)
{
    QSet<quint64> alive;
    alive.reserve(tracks.size());
    for (const TrackSnapshot &track : tracks) {
        alive.insert(track.incarnationId);
    }
    const auto oldest = watch.since().addMSecs(-qRound64(SilenceWatch::OverduePeriods * watch.period() * 1000.0));
    for (const TrackSnapshot &track : std::as_const(m_tracks)) {
        if (track.carCoordinateValid && track.lastUpdate >= oldest && !alive.contains(track.incarnationId)) {
            m_places.push_back({track.incarnationId, track.carCoordinate, nameOf(track), track.lastUpdate});
        }
    }
}
