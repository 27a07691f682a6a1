#pragma once

#include "engine/display_snapshot.h"

#include <QHash>
#include <QList>

#include <optional>

// What in the newest snapshot asks for the operator's attention, and what of it he has acknowledged: safety-net alerts,
// and tracks that tell of an emergency or identify themselves. An acknowledged alert asks again when it worsens: when
// its type changes, when it becomes active again after it had ended, when it takes in another track, and when the
// tracks of an STCA have come closer than WorseDistance of what they were apart at the acknowledgement. A track's
// emergency asks again when it becomes another one. GUI thread.
class AlertBoard {
public:
    static constexpr double WorseDistance = 0.75; // part of the distance
    // Metres that tracks must have come closer as well: what their positions jitter by worsens nothing.
    static constexpr double LeastApproach = 200.0;

    using Key = quint64; // of an entry, as long as it lasts

    struct Entry {
        Key key = 0;
        bool ofTrack = false; // a track's own, not of the safety nets: an emergency, else the special pulse
        Alert::Type type = Alert::None; // of an alert
        Alert::State state = Alert::Active;
        Track::Emergency emergency = Track::NoEmergency;
        quint64 track1 = 0; // incarnation ids, 0: no track of ours
        quint64 track2 = 0;
        QString track1Text;
        QDateTime since; // of an emergency: the picture that it was first seen in
        double distance = 0.0; // of an STCA, metres; 0: not known
        bool acknowledged = false;

        // An alert that has ended and a special pulse ask for nothing.
        bool isAsking() const
        {
            return state == Alert::Active && (!ofTrack || emergency != Track::NoEmergency) && !acknowledged;
        }
        bool concerns(quint64 track) const { return track != 0 && (track == track1 || track == track2); }
    };

    enum class Attention { None, Acknowledged, Asked };

    static Key keyOf(const AlertSnapshot &alert) { return alert.id; }
    static Key keyOf(const TrackSnapshot &track);

    // A null snapshot forgets everything.
    void take(const DisplaySnapshot *snapshot);

    // The alerts in the snapshot's order, then the tracks'.
    const QList<Entry> &entries() const { return m_entries; }
    bool isAcknowledged(Key key) const { return m_acknowledged.contains(key); }
    // How far the operator has dealt with the active alerts and the emergency of a track.
    Attention attention(quint64 track) const { return m_attention.value(track, Attention::None); }
    int askingCount() const;

    // False when nothing that asked was meant.
    bool acknowledge(Key key);
    bool acknowledgeTrack(quint64 track);
    bool acknowledgeAll();

private:
    template <typename Meant>
    bool acknowledgeIf(Meant meant);
    void addAlert(const AlertSnapshot &alert, const QHash<quint64, const TrackSnapshot *> &tracks);
    void addTrack(const TrackSnapshot &track, const QDateTime &since);
    bool hasWorsened(const Entry &entry) const;
    void dropStaleAcknowledgements();
    void noteAttention();

    QList<Entry> m_entries;
    QHash<Key, QDateTime> m_since; // of the tracks' entries
    QHash<Key, Entry> m_acknowledged; // as they were then
    QHash<quint64, Attention> m_attention; // by track
};
