#include "tracking/adsb_tracker.h"

#include "modes/mode_s_message.h"
#include "tracking/report_items.h"

#include <cmath>

namespace {

constexpr qint64 ReportLifeSpan = 4000; // milliseconds that selected altitude and vertical rate stay valid
constexpr qint64 CleanupPauseMs = 4000;
constexpr qint64 RefusalReportPeriodMs = 60000;

void setIdentity(Track &track, const korvane::modes::ADSBTarget &target)
{
    if (target.callsignValid()) {
        reports::setCallsign(track, target.callsign().c_str());
    } else if (target.callsignExpired()) {
        track.setModeSCallsign({});
    }
    if (target.squawkValid()) {
        reports::setModeA(track, target.squawk(), false, false);
    } else if (target.squawkExpired()) {
        track.setModeACodeValid(false);
    }
}

void setStatus(Track &track, const _ast_datarecord_t &record, const QDateTime &now)
{
    const auto status = ast_datarecord_021_get_targetstatus(record);
    auto emergency = reports::emergencyOf(status.priority);
    if (emergency == Track::NoEmergency && status.militaryEmergency) {
        emergency = Track::GeneralEmergency;
    }
    reports::setEmergency(track, status.present ? std::optional(emergency) : std::nullopt, now);
    track.setSpi(status.spi);
}

void setMovement(Track &track, const _ast_datarecord_t &record)
{
    const auto speed = ast_datarecord_get_speed(record);
    track.setGroundSpeed(speed.speed);
    track.setGroundSpeedValid(speed.present);
    const auto heading = ast_datarecord_get_heading(record);
    const bool available = heading.present && (heading.trackAngleAvailable || heading.magneticHeadingAvailable);
    track.setHeading(available ? heading.heading : 0.0);
    track.setHeadingValid(available);
}

// In feet, without fractions.
std::optional<int> whole(const _ast_altitude_t &altitude)
{
    return altitude.present ? std::optional(static_cast<int>(altitude.altitude)) : std::nullopt;
}

void setVerticalMovement(Track &track, const _ast_datarecord_t &record, const QDateTime &now)
{
    reports::setLevel(track, whole(ast_datarecord_get_flightlevel(record)));
    reports::setSelectedAltitude(track, whole(ast_datarecord_021_get_selaltitude(record)), now, ReportLifeSpan);
    const auto rate = ast_datarecord_get_vrate(record);
    reports::setVerticalRate(track, rate.present ? std::optional(rate.rate) : std::nullopt, now, ReportLifeSpan);
}

} // namespace

AdsbTracker::AdsbTracker(const QSharedPointer<AdsbSensorInfo> &sensor, const QSharedPointer<TrackManager> &trackManager,
    Projector *projector, QObject *parent)
    : Tracker(trackManager, projector, parent)
{
    if (sensor->location().isValid()) {
        m_modesTracker.setReferencePosition(sensor->location().latitude(), sensor->location().longitude());
    }
}

void AdsbTracker::setAltituteBaroChecking(bool enable, unsigned int checkingTime, unsigned int maxChange)
{
    m_modesTracker.setAltituteBaroChecking(enable, checkingTime, maxChange);
}

void AdsbTracker::procAsterixMessage(const _ast_datablock_t &block)
{
    if (!block.valid) {
        return;
    }
    if (block.category != 21) {
        refuse(block);
        return;
    }
    for (const auto &record : block.records) {
        handIn(
            block, record, [&] { return record.valid ? procCat021Record(record) : Taken{ReportOutcome::Malformed}; });
    }
}

Tracker::Taken AdsbTracker::procCat021Record(const _ast_datarecord_t &record)
{
    const auto now = trackManager().now();
    const auto place = takePlace(record, now);
    // Stations send 0 for want of an address: what has it would become a new track with every report.
    const auto address = ast_datarecord_get_icaoaddr(record);
    if (!address.present || address.address == 0) {
        return takenAsPlot(place, ast_datarecord_021_get_testbit(record));
    }
    const Identity identity{0, address.address, 0.0};
    const auto track = trackOf(address.address);
    if (!track) {
        return notNumbered(identity, place);
    }
    track->setState(Track::Confirmed);
    // Stations send blanks or zeros for a call sign that they have not heard yet, or not again.
    if (const auto callsign = ast_datarecord_get_callsign(record); callsign.text[0]) {
        reports::setCallsign(*track, callsign.text);
    }
    if (const auto ground = ast_datarecord_021_get_groundbit(record); ground.present) {
        track->setGround(ground.onGround);
    }
    if (place) {
        put(*track, *place);
    }
    reports::setModeA(*track, ast_datarecord_021_get_squawk(record));
    setStatus(*track, record, now);
    setMovement(*track, record);
    setVerticalMovement(*track, record, now);
    track->recordHistory(now);
    return takenBy(*track, identity, place);
}

std::optional<Tracker::Place> AdsbTracker::takePlace(const _ast_datarecord_t &record, const QDateTime &now) const
{
    const auto position = ast_datarecord_get_wgs84coord(record);
    if (!position.present) {
        return {};
    }
    const auto place = placeOf(position.latitude, position.longitude);
    if (place.valid && !ast_datarecord_021_get_testbit(record)) {
        addPlot(place.plane, Track::Adsb, now);
    }
    return place;
}

QSharedPointer<Track> AdsbTracker::trackOf(unsigned int address)
{
    if (const auto known = trackManager().findTrackByICAOAddr(address)) {
        return known;
    }
    const auto track = createTrack();
    if (track) {
        track->setType(Track::Adsb);
        track->setIcaoAddr(address);
        trackManager().registerTrack(track);
    }
    return track;
}

void AdsbTracker::procModeSMessage(const std::shared_ptr<korvane::modes::ModeSMessage> &message)
{
    handIn(*message, takeMessage(message));
}

// Other messages than squitters of an aircraft that sends none make no target: nothing in them says where it is.
Tracker::Taken AdsbTracker::takeMessage(const std::shared_ptr<korvane::modes::ModeSMessage> &message)
{
    const auto refused = m_modesTracker.positionsOutOfRange();
    const auto target = m_modesTracker.procModeSMsg(message);
    const bool outOfRange = m_modesTracker.positionsOutOfRange() != refused;
    reportRefusedPositions();
    if (!target) {
        return {ReportOutcome::NoPosition};
    }
    // Mode S knows no aircraft 0, either.
    if (!target->icaoAddrValid() || target->icaoAddr() == 0) {
        return {ReportOutcome::NoIdentity};
    }
    const Identity identity{0, target->icaoAddr(), 0.0};
    const auto track = trackOf(target->icaoAddr());
    if (!track) {
        return notNumbered(identity, {});
    }
    track->setState(Track::Confirmed);
    takeTarget(*track, *target);
    track->recordHistory(trackManager().now());
    cleanUpTargets();
    Taken taken = takenBy(*track, identity, {});
    if (outOfRange) {
        taken.outcome = ReportOutcome::OutOfRange;
    }
    return taken;
}

// What has expired is taken from the track; what was never heard is left as it was.
void AdsbTracker::takeTarget(Track &track, const korvane::modes::ADSBTarget &target) const
{
    setIdentity(track, target);
    reports::setEmergency(track, reports::emergencyOf(target.emergency()), trackManager().now());
    if (target.positionValid()) {
        put(track, placeOf(target.latitude(), target.longitude()));
    } else if (target.positionExpired()) {
        track.clearPosition();
    }
    track.setGroundSpeed(target.groundSpeedValid() ? target.groundSpeed() : 0.0);
    track.setGroundSpeedValid(target.groundSpeedValid());
    track.setHeading(target.headingValid() ? target.heading() : 0.0);
    track.setHeadingValid(target.headingValid());
    reports::setLevel(track, target.altitudeBaroValid() ? std::optional(target.altitudeBaro()) : std::nullopt);
}

void AdsbTracker::reportRefusedPositions()
{
    const auto refused = m_modesTracker.positionsOutOfRange() - m_reportedRefusals;
    if (refused == 0) {
        return;
    }
    const auto now = trackManager().now();
    if (m_lastRefusalReport.isValid() && std::abs(m_lastRefusalReport.msecsTo(now)) < RefusalReportPeriodMs) {
        return;
    }
    m_lastRefusalReport = now;
    m_reportedRefusals = m_modesTracker.positionsOutOfRange();
    Q_EMIT message(LogLevel::Warning,
        tr("ADS-B Tracker: %1 positions more than 1,000 km from the sensor were not taken, is its location right?")
            .arg(refused));
}

// Runs after a pause only: what is flying is heard all the time, and the library's memory of it is worth keeping.
void AdsbTracker::cleanUpTargets()
{
    const auto now = trackManager().now();
    if (m_lastTargetCleanup.isValid() && m_lastTargetCleanup.msecsTo(now) > CleanupPauseMs) {
        const auto oldest = now.toMSecsSinceEpoch() - static_cast<qint64>(m_noUpdatedTargetDeletionTime) * 1000;
        m_modesTracker.killTargets(static_cast<unsigned long long>(oldest));
    }
    m_lastTargetCleanup = now;
}
