#include "tracking/tracker.h"

#include "geo/projector.h"
#include "modes/mode_s_message.h"
#include "tracking/adsb_tracker.h"
#include "tracking/mlat_tracker.h"
#include "tracking/radar_tracker.h"
#include "tracking/sdps_tracker.h"
#include "tracking/smr_tracker.h"

#include <cmath>

namespace {

constexpr qint64 ExhaustionWarningPeriodMs = 10000;

// Part of the time between two reports. More than half, so that two aircraft under one address cannot take the track
// from each other for ever; less than one, so that an aircraft's new number, reported a little early, is taken.
constexpr double NumberInUse = 0.75;

// A track that was reported under its own number a moment ago is another aircraft, or a reflection, with the same
// address.
bool isNumberInUse(const Track &track, const QDateTime &now, double reportPeriod)
{
    return static_cast<double>(track.lastUpdate().msecsTo(now)) < reportPeriod * NumberInUse * 1000.0;
}

} // namespace

Tracker::Tracker(const QSharedPointer<TrackManager> &trackManager, Projector *projector, QObject *parent)
    : QObject(parent), m_trackManager(trackManager), m_projector(projector)
{
}

QSharedPointer<Tracker> Tracker::create(const QSharedPointer<SensorInfo> &sensor,
    const QSharedPointer<TrackManager> &trackManager, Projector *projector, QObject *parent)
{
    if (const auto radar = sensor.dynamicCast<RadarSensorInfo>()) {
        return QSharedPointer<RadarTracker>::create(radar, trackManager, projector, parent);
    }
    if (const auto adsb = sensor.dynamicCast<AdsbSensorInfo>()) {
        return QSharedPointer<AdsbTracker>::create(adsb, trackManager, projector, parent);
    }
    if (const auto mlat = sensor.dynamicCast<MlatSensorInfo>()) {
        return QSharedPointer<MlatTracker>::create(mlat, trackManager, projector, parent);
    }
    if (const auto sdps = sensor.dynamicCast<SdpsSensorInfo>()) {
        return QSharedPointer<SdpsTracker>::create(sdps, trackManager, projector, parent);
    }
    if (const auto smr = sensor.dynamicCast<SmrSensorInfo>()) {
        return QSharedPointer<SmrTracker>::create(smr, trackManager, projector, parent);
    }
    return {};
}

void Tracker::procAleniaSirMMessage(const QSharedPointer<AleniaSirMRadarMessage> &message)
{
    if (m_ledger) {
        m_ledger->takeSirM(*message, ReportOutcome::WrongSensorKind);
    }
}

void Tracker::handIn(const korvane::modes::ModeSMessage &message, const Taken &taken) const
{
    if (!m_ledger) {
        return;
    }
    const auto &frame = message.frame();
    TakenReport report{
        TakenReport::Form::ModeS, 0, frame.length, frame.octets, nullptr, &message, nullptr, nullptr, 0, taken};
    report.fate.address = message.icaoAddr();
    m_ledger->take(report);
}

void Tracker::refuse(const _ast_datablock_t &block) const
{
    for (const auto &record : block.records) {
        handIn(block, record, [] { return Taken{ReportOutcome::WrongSensorKind}; });
    }
}

void Tracker::refuse(const korvane::modes::ModeSMessage &message) const
{
    handIn(message, {ReportOutcome::WrongSensorKind});
}

QSharedPointer<Track> Tracker::createTrack()
{
    auto track = m_trackManager->createTrack();
    if (track) {
        return track;
    }
    const auto now = m_trackManager->now();
    if (!m_lastExhaustion.isValid() || m_lastExhaustion.msecsTo(now) >= ExhaustionWarningPeriodMs) {
        m_lastExhaustion = now;
        Q_EMIT message(
            LogLevel::Warning, tr("All system track numbers are in use, reports of further targets are not shown."));
    }
    return {};
}

QSharedPointer<Track> Tracker::findOrCreate(unsigned int number)
{
    if (auto known = findByNumber(number)) {
        return known;
    }
    const auto track = createTrack();
    if (track) {
        track->setOtherTrackNumber(number);
        m_trackManager->registerTrack(track);
    }
    return track;
}

// A known track number decides. Otherwise the aircraft address does, so that a track first seen by its address keeps
// its identity when the sensor gives it a number, or gives it a new one after having lost it. Finders may return a
// track that has gone on to another key; such an entry does not count as known.
QSharedPointer<Track> Tracker::find(const Identity &identity, const QDateTime &now)
{
    QSharedPointer<Track> track;
    if (identity.number != 0) {
        track = findByNumber(identity.number);
    }
    if (!track && identity.address.value_or(0) != 0) {
        track = findByAddress(identity, now);
    }
    return track;
}

QSharedPointer<Track> Tracker::associate(const Identity &identity, const QDateTime &now)
{
    auto track = find(identity, now);
    if (!track) {
        track = createTrack();
    }
    if (!track) {
        return {};
    }
    if (identity.address) {
        track->setIcaoAddr(*identity.address);
    }
    if (identity.number != 0) {
        track->setOtherTrackNumber(identity.number);
    }
    m_trackManager->registerTrack(track);
    return track;
}

unsigned int Tracker::endTrack(const Identity &identity, const QDateTime &now)
{
    const auto track = find(identity, now);
    if (!track) {
        return 0;
    }
    track->setState(Track::Terminated);
    m_trackManager->removeTrack(track);
    return track->trackNumber();
}

// A track whose report has no place is shown at its last one.
Tracker::Taken Tracker::takenBy(Track &track, const Identity &identity, const std::optional<Place> &place)
{
    Taken taken{ReportOutcome::Track, track.trackNumber(), &track.newestReport(), identity.number, identity.address};
    if (place && !place->valid) {
        taken.outcome = ReportOutcome::OutOfRange;
    } else if (!place && !track.carCoordinateValid()) {
        taken.outcome = ReportOutcome::NoPosition;
    }
    return taken;
}

Tracker::Taken Tracker::takenAsPlot(const std::optional<Place> &place, bool isTest)
{
    if (!place) {
        return {ReportOutcome::NoIdentity};
    }
    if (!place->valid) {
        return {ReportOutcome::OutOfRange};
    }
    return {isTest ? ReportOutcome::TestTarget : ReportOutcome::Plot, 0, nullptr, 0, {}, place->plane};
}

Tracker::Taken Tracker::notNumbered(const Identity &identity, const std::optional<Place> &place)
{
    const bool placed = place && place->valid;
    return {ReportOutcome::NoTrackNumber, 0, nullptr, identity.number, identity.address,
        placed ? std::optional(place->plane) : std::nullopt};
}

Tracker::Taken Tracker::notPlaced(const Identity &identity)
{
    return {ReportOutcome::NoPosition, 0, nullptr, identity.number, identity.address};
}

Tracker::Taken Tracker::ended(const Identity &identity, unsigned int trackNumber)
{
    return {ReportOutcome::TrackEnd, trackNumber, nullptr, identity.number, identity.address};
}

QSharedPointer<Track> Tracker::findByNumber(unsigned int number)
{
    const auto track = m_trackManager->findTrackByOtherTrackNum(number);
    return track && track->otherTrackNumber() == number ? track : QSharedPointer<Track>();
}

QSharedPointer<Track> Tracker::findByAddress(const Identity &identity, const QDateTime &now)
{
    const auto track = m_trackManager->findTrackByICAOAddr(*identity.address);
    if (!track || track->icaoAddr() != *identity.address) {
        return {};
    }
    const bool renumbered =
        identity.number != 0 && track->otherTrackNumberValid() && track->otherTrackNumber() != identity.number;
    const bool otherAircraft = renumbered && isNumberInUse(*track, now, identity.reportPeriod);
    return otherAircraft ? QSharedPointer<Track>() : track;
}

Tracker::Place Tracker::placeOf(double latitude, double longitude) const
{
    Place place{latitude, longitude, std::abs(latitude) <= 90.0 && std::abs(longitude) <= 180.0};
    if (place.valid) {
        place.plane = m_projector->toCartesian(latitude, longitude);
    }
    return place;
}

Tracker::Place Tracker::placeOf(const PolarOrigin &origin, double distance, double bearing) const
{
    const auto [latitude, longitude] = origin.at(distance, bearing);
    return placeOf(latitude, longitude);
}

void Tracker::put(Track &track, const Place &place)
{
    track.setGeoCoordinate({place.latitude, place.longitude});
    if (place.valid) {
        track.setCarCoordinate(place.plane);
    }
}
