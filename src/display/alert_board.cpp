#include "display/alert_board.h"

#include "display/track_label_lines.h"
#include "tracking/conflict_geometry.h"

#include <algorithm>

namespace {

double distanceOf(const TrackSnapshot *one, const TrackSnapshot *other)
{
    const auto geometry = one && other ? conflictGeometry(*one, *other) : std::nullopt;
    return geometry ? geometry->distance : 0.0;
}

bool isOtherTrack(quint64 track, quint64 before)
{
    return track != 0 && before != 0 && track != before;
}

} // namespace

// Above all identifiers of alerts.
AlertBoard::Key AlertBoard::keyOf(const TrackSnapshot &track)
{
    constexpr Key OfATrack = Key(1) << 63;
    return OfATrack | track.incarnationId << 2 | static_cast<Key>(track.emergency);
}

void AlertBoard::take(const DisplaySnapshot *snapshot)
{
    m_entries.clear();
    const QHash<Key, QDateTime> before = std::exchange(m_since, {});
    if (snapshot) {
        QHash<quint64, const TrackSnapshot *> conflicting;
        for (const AlertSnapshot &alert : snapshot->alerts) {
            conflicting.insert(alert.track1.incarnationId, nullptr);
            conflicting.insert(alert.track2.incarnationId, nullptr);
        }
        for (const TrackSnapshot &track : snapshot->tracks) {
            if (!conflicting.isEmpty() && conflicting.contains(track.incarnationId)) {
                conflicting[track.incarnationId] = &track;
            }
        }
        for (const AlertSnapshot &alert : snapshot->alerts) {
            addAlert(alert, conflicting);
        }
        for (const TrackSnapshot &track : snapshot->tracks) {
            if (track.emergency != Track::NoEmergency || track.spi) {
                addTrack(track, before.value(keyOf(track), snapshot->time));
            }
        }
    }
    dropStaleAcknowledgements();
    noteAttention();
}

void AlertBoard::addAlert(const AlertSnapshot &alert, const QHash<quint64, const TrackSnapshot *> &tracks)
{
    Entry entry;
    entry.key = keyOf(alert);
    entry.type = alert.type;
    entry.state = alert.state;
    entry.track1 = alert.track1.incarnationId;
    entry.track1Text = alert.track1.text;
    if (alert.track2Applicable) {
        entry.track2 = alert.track2.incarnationId;
        entry.distance = distanceOf(tracks.value(entry.track1), tracks.value(entry.track2));
    }
    m_entries.append(entry);
}

void AlertBoard::addTrack(const TrackSnapshot &track, const QDateTime &since)
{
    Entry entry;
    entry.key = keyOf(track);
    entry.ofTrack = true;
    entry.emergency = track.emergency;
    entry.track1 = track.incarnationId;
    entry.track1Text = trackName(track);
    entry.since = since;
    m_since.insert(entry.key, since);
    m_entries.append(entry);
}

bool AlertBoard::hasWorsened(const Entry &entry) const
{
    const Entry &then = *m_acknowledged.constFind(entry.key);
    const bool closer = entry.distance > 0.0 && entry.distance < then.distance * WorseDistance
        && then.distance - entry.distance > LeastApproach;
    return entry.type != then.type || closer || isOtherTrack(entry.track1, then.track1)
        || isOtherTrack(entry.track2, then.track2);
}

// Of an alert that is no longer active nothing is remembered: should it become so again, it asks again.
void AlertBoard::dropStaleAcknowledgements()
{
    QHash<Key, Entry> kept;
    for (Entry &entry : m_entries) {
        if (m_acknowledged.contains(entry.key) && entry.state == Alert::Active && !hasWorsened(entry)) {
            entry.acknowledged = true;
            kept.insert(entry.key, m_acknowledged.value(entry.key));
        }
    }
    m_acknowledged = std::move(kept);
}

void AlertBoard::noteAttention()
{
    m_attention.clear();
    for (const Entry &entry : std::as_const(m_entries)) {
        if (!entry.isAsking() && !entry.acknowledged) {
            continue;
        }
        const Attention attention = entry.acknowledged ? Attention::Acknowledged : Attention::Asked;
        for (const quint64 track : {entry.track1, entry.track2}) {
            if (track != 0) {
                m_attention[track] = std::max(m_attention.value(track, Attention::None), attention);
            }
        }
    }
}

int AlertBoard::askingCount() const
{
    return static_cast<int>(
        std::count_if(m_entries.begin(), m_entries.end(), [](const Entry &entry) { return entry.isAsking(); }));
}

template <typename Meant>
bool AlertBoard::acknowledgeIf(Meant meant)
{
    bool any = false;
    for (Entry &entry : m_entries) {
        if (entry.isAsking() && meant(entry)) {
            entry.acknowledged = true;
            m_acknowledged.insert(entry.key, entry);
            any = true;
        }
    }
    noteAttention();
    return any;
}

bool AlertBoard::acknowledge(Key key)
{
    return acknowledgeIf([key](const Entry &entry) { return entry.key == key; });
}

bool AlertBoard::acknowledgeTrack(quint64 track)
{
    return acknowledgeIf([track](const Entry &entry) { return entry.concerns(track); });
}

bool AlertBoard::acknowledgeAll()
{
    return acknowledgeIf([](const Entry &) { return true; });
}
