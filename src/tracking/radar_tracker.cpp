#include "tracking/radar_tracker.h"

#include "geo/wgs84.h"
#include "tracking/report_items.h"

#include <cmath>
#include <optional>

namespace {

constexpr qint64 DownlinkLifeSpan = 12000; // milliseconds that a value from a Mode S register stays valid
constexpr int FeetPerQuarterLevel = 25;

constexpr double ShortestRotationPeriod = 1.0; // seconds; anything shorter was not entered
constexpr double AssumedRotationPeriod = 4.0; // seconds

constexpr unsigned char NorthMarker = 1;
constexpr unsigned char SectorCrossing = 2;

// Detection types of CAT048, index is the TYP field.
constexpr Track::Type Cat048Types[] = {Track::Unknown, Track::Psr, Track::Ssr, Track::PsrSsr, Track::ModeS,
    Track::ModeS, Track::ModeSPsr, Track::ModeSPsr};

// Detection types of CAT001, index is the SSRPSR field.
constexpr Track::Type Cat001Types[] = {Track::Unknown, Track::Psr, Track::Ssr, Track::PsrSsr};

// Unknown where the report does not say.
Track::Type typeOf(const _ast_datarecord_001_t &record)
{
    return Cat001Types[record.i020.ssrpsr & 3];
}

Track::Type typeOf(const _ast_datarecord_048_t &record)
{
    return Cat048Types[record.i020.typ & 7];
}

// A garbled level is none.
std::optional<int> levelOf(const _ast_item_flight_level_t &item)
{
    return item.present && !item.g ? std::optional(item.level * FeetPerQuarterLevel) : std::nullopt;
}

Track::Emergency emergencyOf(const _ast_datarecord_001_t &record)
{
    constexpr Track::Emergency Emergencies[] = {
        Track::NoEmergency, Track::UnlawfulInterference, Track::RadioFailure, Track::GeneralEmergency};
    const auto emergency = Emergencies[record.i020.emergency & 3];
    return emergency == Track::NoEmergency && record.i020.me ? Track::GeneralEmergency : emergency;
}

} // namespace

RadarTracker::RadarTracker(const QSharedPointer<RadarSensorInfo> &sensor,
    const QSharedPointer<TrackManager> &trackManager, Projector *projector, QObject *parent)
    : Tracker(trackManager, projector, parent), m_sensor(sensor), m_site(sensor->location())
{
}

void RadarTracker::procAsterixMessage(const _ast_datablock_t &block)
{
    if (!block.valid) {
        return;
    }
    switch (block.category) {
    case 1:
        takeEach<_ast_datarecord_001_t>(
            block, ast_datarecord_001_disassemble, [this](const auto &record) { return procCat001Message(record); });
        break;
    case 2:
        takeEach<_ast_datarecord_002_t>(
            block, ast_datarecord_002_disassemble, [this](const auto &record) { return procAntennaMessage(record); });
        break;
    case 34:
        takeEach<_ast_datarecord_034_t>(
            block, ast_datarecord_034_disassemble, [this](const auto &record) { return procAntennaMessage(record); });
        break;
    case 48:
        takeEach<_ast_datarecord_048_t>(
            block, ast_datarecord_048_disassemble, [this](const auto &record) { return procCat048Message(record); });
        break;
    default:
        refuse(block);
    }
}

// CAT002 and CAT034 tell of the antenna in the same way.
template <typename Record>
Tracker::Taken RadarTracker::procAntennaMessage(const Record &record)
{
    if (!record.i000.present) {
        return {ReportOutcome::Incomplete};
    }
    if (record.i000.type == NorthMarker) {
        Q_EMIT antennaNorthCrossed();
        return {ReportOutcome::SourceStatus};
    }
    if (record.i000.type != SectorCrossing) {
        return {ReportOutcome::NoReader};
    }
    if (!record.i020.present) {
        return {ReportOutcome::Incomplete};
    }
    Q_EMIT antennaRotated(record.i020.azimuth);
    return {ReportOutcome::SourceStatus};
}

template <typename Record>
Tracker::Taken RadarTracker::takeTracked(const QSharedPointer<Track> &track, const Record &record,
    const Identity &identity, const std::optional<Place> &place, const QDateTime &now)
{
    if (!track) {
        return notNumbered(identity, place);
    }
    if (place) {
        put(*track, *place);
    }
    takeReport(*track, record, now);
    return takenBy(*track, identity, place);
}

Tracker::Taken RadarTracker::procCat001Message(const _ast_datarecord_001_t &record)
{
    const auto now = trackManager().now();
    const Identity identity{record.i161.present ? record.i161.trackNumber : 0u, {}, 0.0};
    const auto place = takePlace(record, identity, 1.0, now);
    if (!record.i161.present) {
        debug([] { return tr("Radar Tracker: CAT001 message has no valid track number (I001/161), ignore."); });
        return takenAsPlot(place, record.i020.tst);
    }
    return takeTracked(findOrCreate(identity.number), record, identity, place, now);
}

void RadarTracker::takeReport(Track &track, const _ast_datarecord_001_t &record, const QDateTime &now)
{
    if (record.i020.present) {
        track.setType(typeOf(record));
    }
    track.setState(record.i170.present && record.i170.con ? Track::Tentative : Track::Confirmed);
    reports::setModeA(track, record.i070);
    if (record.i020.present) {
        track.setSpi(record.i020.spi);
        reports::setEmergency(track, emergencyOf(record), now);
    }
    reports::setLevel(track, levelOf(record.i090));
    reports::setVelocity(track, record.i200);
    track.recordHistory(now);
}

Tracker::Taken RadarTracker::procCat048Message(const _ast_datarecord_048_t &record)
{
    const auto now = trackManager().now();
    const auto identity = identityOf(record);
    const auto place = takePlace(record, identity, record.i042.resolution, now);
    if (!identity.usable()) {
        debug([] {
            return tr("Radar Tracker: CAT048 message has neither valid track number (I048/161) nor valid Mode-S "
                      "address (I048/220), ignore.");
        });
        return takenAsPlot(place, record.i020.tst);
    }
    return takeTracked(associate(identity, now), record, identity, place, now);
}

void RadarTracker::takeReport(Track &track, const _ast_datarecord_048_t &record, const QDateTime &now)
{
    if (record.i020.present) {
        track.setType(typeOf(record));
    }
    track.setState(record.i170.present && record.i170.cnf ? Track::Tentative : Track::Confirmed);
    if (record.i240.present) {
        reports::setCallsign(track, record.i240.text);
    }
    reports::setModeA(track, record.i070);
    track.setSpi(record.i020.spi || (record.i230.present && reports::isSpi(record.i230.stat)));
    reports::setEmergency(track, record.i020.me ? Track::GeneralEmergency : Track::NoEmergency, now);
    reports::setLevel(track, levelOf(record.i090));
    reports::setSelectedAltitude(track, reports::selectedAltitude(record.i250), now, DownlinkLifeSpan);
    reports::setVerticalRate(track, reports::verticalRate(record.i250), now, DownlinkLifeSpan);
    reports::setVelocity(track, record.i200);
    track.recordHistory(now);
}

Tracker::Identity RadarTracker::identityOf(const _ast_datarecord_048_t &record) const
{
    Identity identity;
    if (record.i161.present) {
        identity.number = record.i161.trackNumber;
    }
    if (record.i220.present) {
        identity.address = record.i220.address;
    }
    // The antenna sees an aircraft once a revolution.
    identity.reportPeriod =
        m_sensor->rotationPeriod() < ShortestRotationPeriod ? AssumedRotationPeriod : m_sensor->rotationPeriod();
    return identity;
}

template <typename Record>
std::optional<Tracker::Place> RadarTracker::takePlace(
    const Record &record, const Identity &identity, double cartesianUnit, const QDateTime &now)
{
    std::optional<Place> place;
    const std::optional<int> level = levelForPlace(record, identity, now);
    if (record.i040.present) {
        place = polarPlace(record.i040.rho * wgs84::MetresPerNauticalMile, record.i040.theta, level);
    } else if (record.i042.present) {
        const double x = record.i042.x;
        const double y = record.i042.y;
        const double range = cartesianUnit * std::hypot(x, y) * wgs84::MetresPerNauticalMile;
        place = polarPlace(range, reports::bearingOf(x, y), level);
    }
    if (place && place->valid && !record.i020.tst) {
        addPlot(place->plane, typeOf(record), now);
    }
    return place;
}

// A target that only the primary radar sees in this turn is as high as it was in the turn before.
template <typename Record>
std::optional<int> RadarTracker::levelForPlace(const Record &record, const Identity &identity, const QDateTime &now)
{
    if (!m_sensor->slantRangeCorrected()) {
        return std::nullopt;
    }
    const std::optional<int> level = levelOf(record.i090);
    const auto track = level ? QSharedPointer<Track>() : find(identity, now);
    return track && track->levelValid() ? std::optional(track->level()) : level;
}

// Unless it is corrected, the slant range is taken as the distance over ground.
Tracker::Place RadarTracker::polarPlace(double range, double bearing, std::optional<int> level) const
{
    constexpr double MetresPerFoot = 0.3048;
    if (!level || !m_sensor->slantRangeCorrected()) {
        return placeOf(m_site, range, bearing);
    }
    const double ground = PolarOrigin::groundDistance(range, m_sensor->antennaAltitude(), *level * MetresPerFoot);
    return placeOf(m_site, ground, bearing);
}
