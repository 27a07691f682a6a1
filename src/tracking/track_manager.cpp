#include "tracking/track_manager.h"

#include <algorithm>

namespace {

void fill(TrackSnapshot &snapshot, const Track &track)
{
    snapshot.incarnationId = track.incarnationId();
    snapshot.trackNumber = track.trackNumber();
    snapshot.sensorTrackNumber = track.otherTrackNumber();
    snapshot.icaoAddr = track.icaoAddr();
    snapshot.icaoAddrValid = track.icaoAddrValid();
    snapshot.icaoAddrString = track.icaoAddrString();
    snapshot.callsign = track.modeSCallsign();
    snapshot.callsignValid = track.modeSCallsignValid();
    snapshot.modeACode = track.modeACode();
    snapshot.modeACodeValid = track.modeACodeValid();
    snapshot.modeACodeSmoothed = track.modeACodeSmoothed();
    snapshot.modeACodeGarbled = track.modeACodeGarbled();
    snapshot.modeAString = track.modeAString();
    snapshot.type = track.type();
    snapshot.state = track.state();
    snapshot.coasting = track.coasting();
    snapshot.geoCoordinate = track.geoCoordinate();
    snapshot.geoCoordinateValid = track.geoCoordinateValid();
    snapshot.carCoordinate = track.carCoordinate();
    snapshot.carCoordinateValid = track.carCoordinateValid();
    snapshot.groundSpeed = track.groundSpeed();
    snapshot.groundSpeedValid = track.groundSpeedValid();
    snapshot.heading = track.heading();
    snapshot.headingValid = track.headingValid();
    snapshot.onGround = track.isGround();
    snapshot.level = track.level();
    snapshot.levelValid = track.levelValid();
    snapshot.selectedAltitude = track.selectedAltitude();
    snapshot.selectedAltitudeValid = track.selectedAltitudeValid();
    snapshot.verticalRate = track.verticalRate();
    snapshot.verticalRateValid = track.verticalRateValid();
    snapshot.verticalTrend = track.verticalTrend();
    snapshot.detectedBy = track.detectedBy();
    snapshot.emergency = track.emergency();
    snapshot.spi = track.spi();
    snapshot.lastUpdate = track.lastUpdate();
    snapshot.alertsString = track.alertsString();
}

// The newest positions, those without a plane position skipped.
QList<QPointF> trailOf(const std::deque<TrackHistoryElement> &history, int trailDots)
{
    QList<QPointF> trail;
    trail.reserve(std::min(static_cast<qsizetype>(history.size()), static_cast<qsizetype>(trailDots)));
    for (const auto &element : history) {
        if (trail.size() >= trailDots) {
            break;
        }
        if (element.carCoordinateValid()) {
            trail.append(element.carCoordinate());
        }
    }
    return trail;
}

} // namespace

TrackManager::TrackManager(QObject *parent) : QObject(parent), m_lifeTimer(this)
{
    connect(&m_lifeTimer, &QTimer::timeout, this, [this] {
        if (!m_clock->isRecorded()) {
            checkLife();
        }
    });
    m_lifeTimer.start(1000);
}

TrackManager::~TrackManager() = default;

void TrackManager::reset()
{
    m_trackList.clear();
    m_tracksByNumber.clear();
    m_tracksByIcaoAddr.clear();
    m_tracksByOtherTrackNumber.clear();
    m_numbersInUse = 0;
    m_unindexedCount = std::make_shared<int>(0);
    m_nextTrackNumber = 1;
}

void TrackManager::setTrackNumberCount(unsigned int count)
{
    m_maxTrackNumber = m_minTrackNumber + std::clamp(count, 2u, MaximumTrackNumbers) - 1;
    m_numbersInUse = static_cast<unsigned int>(std::count_if(m_tracksByNumber.cbegin(), m_tracksByNumber.cend(),
        [this](const auto &track) { return isGivenOut(track->trackNumber()); }));
}

bool TrackManager::isGivenOut(unsigned int trackNumber) const
{
    return trackNumber >= m_minTrackNumber && trackNumber <= m_maxTrackNumber;
}

// Numbers go round, so that a number that has become free rests as long as possible. One number fewer is tried than the
// range holds: with all but one in use the search may miss the free one.
unsigned int TrackManager::nextValidTrackNum()
{
    const unsigned int span = m_maxTrackNumber - m_minTrackNumber;
    if (span > 0 && m_numbersInUse == span + 1) {
        // A full store refuses every report of a further target. It does so at once, with the rotation where the search
        // would have left it.
        const unsigned int first = isGivenOut(m_nextTrackNumber) ? m_nextTrackNumber : m_minTrackNumber;
        m_nextTrackNumber = m_minTrackNumber + (first - m_minTrackNumber + span - 1) % (span + 1) + 1;
        return 0;
    }
    for (unsigned int i = 0; i < span; ++i) {
        if (m_nextTrackNumber < m_minTrackNumber || m_nextTrackNumber > m_maxTrackNumber) {
            m_nextTrackNumber = m_minTrackNumber;
        }
        const unsigned int candidate = m_nextTrackNumber++;
        if (!hasTrackNum(candidate)) {
            return candidate;
        }
    }
    return 0;
}

QSharedPointer<Track> TrackManager::insertNewTrack(unsigned int trackNumber)
{
    auto track = QSharedPointer<Track>::create(trackNumber, now());
    track->setIncarnationId(m_nextIncarnationId++);
    store(track);
    return track;
}

void TrackManager::store(const QSharedPointer<Track> &track)
{
    auto &entry = m_tracksByNumber[track->trackNumber()];
    if (entry == track) {
        return;
    }
    if (entry) {
        release(*entry);
    } else if (isGivenOut(track->trackNumber())) {
        ++m_numbersInUse;
    }
    entry = track;
    track->m_unindexedCount = m_unindexedCount;
    track->m_indexed = false;
    ++*m_unindexedCount;
}

void TrackManager::release(Track &track)
{
    *m_unindexedCount -= track.m_indexed ? 0 : 1;
    track.m_indexed = false;
    track.m_unindexedCount.reset();
}

void TrackManager::indexUnder(Index &index, unsigned int key, const QSharedPointer<Track> &track)
{
    auto &entry = index[key];
    if (entry == track) {
        return;
    }
    if (entry) {
        entry->markUnindexed(); // it may still have the key
    }
    entry = track;
}

void TrackManager::removeKey(Index &index, unsigned int key, const Track &track)
{
    const auto entry = index.take(key);
    if (entry && entry.data() != &track) {
        entry->markUnindexed();
    }
}

QSharedPointer<Track> TrackManager::createTrack()
{
    const unsigned int number = nextValidTrackNum();
    return number == 0 ? QSharedPointer<Track>() : insertNewTrack(number);
}

QSharedPointer<Track> TrackManager::createTrack(unsigned int trackNumber)
{
    const auto existing = findTrackByTrackNum(trackNumber);
    return existing ? existing : insertNewTrack(trackNumber);
}

void TrackManager::registerTrack(const QSharedPointer<Track> &track)
{
    if (!track || (track->m_indexed && track->m_unindexedCount == m_unindexedCount)) {
        return; // as nearly all are: nothing about them has changed
    }
    if (track->incarnationId() == 0) {
        track->setIncarnationId(m_nextIncarnationId++);
    }
    store(track);
    if (track->icaoAddrValid()) {
        indexUnder(m_tracksByIcaoAddr, track->icaoAddr(), track);
    }
    if (track->otherTrackNumberValid()) {
        indexUnder(m_tracksByOtherTrackNumber, track->otherTrackNumber(), track);
    }
    *m_unindexedCount -= track->m_indexed ? 0 : 1;
    track->m_indexed = true;
}

void TrackManager::removeTrack(const QSharedPointer<Track> &track)
{
    if (!track) {
        return;
    }
    if (const auto stored = m_tracksByNumber.take(track->trackNumber())) {
        release(*stored);
        m_numbersInUse -= isGivenOut(track->trackNumber()) ? 1 : 0;
        if (m_removalObserver) {
            m_removalObserver(*stored);
        }
    }
    if (track->icaoAddrValid()) {
        removeKey(m_tracksByIcaoAddr, track->icaoAddr(), *track);
    }
    if (track->otherTrackNumberValid()) {
        removeKey(m_tracksByOtherTrackNumber, track->otherTrackNumber(), *track);
    }
}

QSharedPointer<Track> TrackManager::findTrackByTrackNum(unsigned int trackNumber) const
{
    return m_tracksByNumber.value(trackNumber);
}

// Looks the key up and, when it is not indexed, goes through all tracks and indexes what it finds.
template <typename Matches>
QSharedPointer<Track> TrackManager::find(const Index &index, unsigned int key, Matches matches)
{
    if (const auto indexed = index.constFind(key); indexed != index.constEnd()) {
        return *indexed;
    }
    if (*m_unindexedCount == 0) {
        return {};
    }
    const auto found = std::find_if(m_tracksByNumber.cbegin(), m_tracksByNumber.cend(), matches);
    if (found == m_tracksByNumber.cend()) {
        return {};
    }
    const auto track = *found;
    registerTrack(track);
    return track;
}

QSharedPointer<Track> TrackManager::findTrackByICAOAddr(unsigned int address)
{
    return find(m_tracksByIcaoAddr, address,
        [address](const auto &track) { return track->icaoAddrValid() && track->icaoAddr() == address; });
}

QSharedPointer<Track> TrackManager::findTrackByOtherTrackNum(unsigned int number)
{
    return find(m_tracksByOtherTrackNumber, number,
        [number](const auto &track) { return track->otherTrackNumberValid() && track->otherTrackNumber() == number; });
}

const QList<QSharedPointer<Track>> &TrackManager::allTracks()
{
    m_trackList = m_tracksByNumber.values();
    return m_trackList;
}

void TrackManager::setTrackLifeSpan(unsigned int coastingMs, unsigned int terminationMs)
{
    m_coastingSpan = coastingMs;
    m_terminationSpan = std::max(coastingMs, terminationMs);
}

void TrackManager::checkLife()
{
    const auto time = now();
    const auto tracks = m_tracksByNumber.values(); // a copy: tracks are removed on the way
    for (const auto &track : tracks) {
        age(track, time);
        if (track->terminated()) {
            removeTrack(track);
        }
    }
}

void TrackManager::age(const QSharedPointer<Track> &track, const QDateTime &now)
{
    const qint64 elapsed = track->lastUpdate().msecsTo(now);
    if (elapsed >= m_terminationSpan && !track->terminated()) {
        track->setState(Track::Terminated);
    } else if (elapsed >= m_coastingSpan && !track->coasting() && !track->terminated()) {
        track->setState(Track::Coasting);
    }
}

QList<TrackSnapshot> TrackManager::snapshotTracks(int trailDots) const
{
    QList<TrackSnapshot> snapshots;
    snapshots.reserve(m_tracksByNumber.size());
    for (const auto &track : m_tracksByNumber) {
        auto &snapshot = snapshots.emplaceBack();
        fill(snapshot, *track);
        if (trailDots > 0) {
            snapshot.trail = trailOf(track->history(), trailDots);
        }
    }
    return snapshots;
}
