#pragma once

#include "tracking/clock.h"
#include "tracking/track.h"
#include "tracking/track_snapshot.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QSharedPointer>
#include <QTimer>

#include <functional>

// All tracks of the current input: numbers, look-up, ageing once a second and the copy for the display. Everything
// happens on the thread that it lives on; nothing is locked.
class TrackManager final : public QObject {
    Q_OBJECT

public:
    static constexpr unsigned int DefaultTrackNumbers = 4096;
    static constexpr unsigned int MaximumTrackNumbers = 65535;

    explicit TrackManager(QObject *parent = nullptr);
    ~TrackManager() override;

    // Forgets all tracks and starts numbering at 1 again. Incarnation ids count on.
    void reset();

    // How many track numbers are given out, from 1 on; brought into 2 to MaximumTrackNumbers. Tracks above a lower
    // number keep theirs while they live.
    void setTrackNumberCount(unsigned int count);
    unsigned int trackNumberCount() const { return m_maxTrackNumber - m_minTrackNumber + 1; }

    // A new tentative track under the next free number; null when no number is free. Trackers fill in its identity and
    // then call registerTrack, so that the next report finds it.
    QSharedPointer<Track> createTrack();
    // The track of that number, new if there was none.
    QSharedPointer<Track> createTrack(unsigned int trackNumber);
    // Indexes a track after its identity changed. Entries under an address or sensor track number that it had before
    // stay: a finder may return a track that carries another key by now.
    void registerTrack(const QSharedPointer<Track> &track);
    // Removes the track's present keys, whichever track stands under them.
    void removeTrack(const QSharedPointer<Track> &track);

    bool hasTrackNum(unsigned int trackNumber) const { return m_tracksByNumber.contains(trackNumber); }
    // Null when nothing matches.
    QSharedPointer<Track> findTrackByTrackNum(unsigned int trackNumber) const;
    // The same; the pointer is good until the track is removed.
    Track *trackByNumber(unsigned int trackNumber) const
    {
        const auto found = m_tracksByNumber.constFind(trackNumber);
        return found == m_tracksByNumber.constEnd() ? nullptr : found->data();
    }
    QSharedPointer<Track> findTrackByICAOAddr(unsigned int address);
    QSharedPointer<Track> findTrackByOtherTrackNum(unsigned int number);

    int trackCount() const { return static_cast<int>(m_tracksByNumber.size()); }
    // In no particular order; valid until the next call.
    const QList<QSharedPointer<Track>> &allTracks();

    // Milliseconds since the last position after which a track coasts and after which it is removed. A termination span
    // shorter than the coasting span is raised to it.
    void setTrackLifeSpan(unsigned int coastingMs, unsigned int terminationMs);
    unsigned int terminationSpan() const { return m_terminationSpan; } // milliseconds

    // Told of each track that is removed, not of those that go with a reset. The observer outlives the manager or takes
    // itself back with an empty one.
    void setRemovalObserver(std::function<void(const Track &)> observer) { m_removalObserver = std::move(observer); }

    // One entry a track, whatever its state, in no particular order; at most trailDots points of trail each.
    QList<TrackSnapshot> snapshotTracks(int trailDots) const;

    // The UTC time by which tracks age; trackers stamp reports with it.
    QDateTime now() const { return m_clock->now(); }
    void setClock(SharedClock clock) { m_clock = std::move(clock); }

public Q_SLOTS:
    // Called by a timer every second, but not in recorded time: whoever drives that calls this each time that a second
    // of it has passed. Makes tracks coast, terminates and removes them by age. Never confirms one: reports do that.
    void checkLife();

private:
    using Index = QHash<unsigned int, QSharedPointer<Track>>;

    bool isGivenOut(unsigned int trackNumber) const;
    unsigned int nextValidTrackNum();
    void store(const QSharedPointer<Track> &track);
    void release(Track &track);
    static void indexUnder(Index &index, unsigned int key, const QSharedPointer<Track> &track);
    static void removeKey(Index &index, unsigned int key, const Track &track);
    QSharedPointer<Track> insertNewTrack(unsigned int trackNumber);
    template <typename Matches>
    QSharedPointer<Track> find(const Index &index, unsigned int key, Matches matches);
    void age(const QSharedPointer<Track> &track, const QDateTime &now);

    unsigned int m_minTrackNumber = 1;
    unsigned int m_maxTrackNumber = DefaultTrackNumbers;
    unsigned int m_numbersInUse = 0; // of those that are given out
    unsigned int m_nextTrackNumber = 1;
    quint64 m_nextIncarnationId = 1;
    Index m_tracksByNumber; // owns the tracks
    Index m_tracksByIcaoAddr;
    Index m_tracksByOtherTrackNumber;
    // Tracks that a finder may have to search for. While there is none, what is not indexed is not there: the first
    // report of each target, and each report that is refused, need no search.
    std::shared_ptr<int> m_unindexedCount = std::make_shared<int>(0);
    QList<QSharedPointer<Track>> m_trackList;
    std::function<void(const Track &)> m_removalObserver;
    QTimer m_lifeTimer;
    unsigned int m_coastingSpan = 2000;
    unsigned int m_terminationSpan = 12000;
    SharedClock m_clock = std::make_shared<Clock>(); // the system's until another is set
};
