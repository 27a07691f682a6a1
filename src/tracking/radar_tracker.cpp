#include "tracking/radar_tracker.h"

#include "geo/wgs84.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

constexpr qint64 DownlinkLifeSpan = 12000; // milliseconds that a value from a Mode S register stays valid
constexpr double MaximumVerticalRate = 6000.0; // feet per minute; beyond it a register is not believed
constexpr double LevelFlightRate = 200.0; // feet per minute; up to it, itself included, a track is level
constexpr int FeetPerQuarterLevel = 25;

constexpr double ShortestRotationPeriod = 1.0; // seconds; anything shorter was not entered
constexpr double AssumedRotationPeriod = 4.0; // seconds
// Part of a revolution. More than half, so that two aircraft under one address cannot take the track from each other
// for ever; less than one, so that a new number one revolution later, a little early in azimuth, is taken.
constexpr double NumberInUse = 0.75;

constexpr unsigned char Bds40 = 0x40;
constexpr unsigned char Bds60 = 0x60;

constexpr unsigned char NorthMarker = 1;
constexpr unsigned char SectorCrossing = 2;

// Detection types of CAT048, index is the TYP field.
constexpr Track::Type Cat048Types[] = {Track::Unknown, Track::Psr, Track::Ssr, Track::PsrSsr, Track::ModeS,
    Track::ModeS, Track::ModeSPsr, Track::ModeSPsr};

// Detection types of CAT001, index is the SSRPSR field.
constexpr Track::Type Cat001Types[] = {Track::Unknown, Track::Psr, Track::Ssr, Track::PsrSsr};

// East-north axes to degrees clockwise from north, between -90 and 270.
double bearingOf(double x, double y)
{
    return std::atan2(y, x) / -wgs84::Pi * 180.0 + 90.0;
}

// The register's seven octets; null when the item has none of that code. Only the first of a code counts.
const unsigned char *findRegister(const _ast_item_registers_t &item, unsigned char code)
{
    constexpr int registerSize = 8;
    for (int i = 0; item.present && i < item.count; ++i) {
        const unsigned char *octets = item.octets + i * registerSize;
        if (octets[registerSize - 1] == code)
            return octets;
    }
    return nullptr;
}

std::optional<int> selectedAltitude(const _ast_item_registers_t &item)
{
    const unsigned char *octets = findRegister(item, Bds40);
    if (!octets)
        return {};
    const auto intention = ast_bds_40_decode(octets);
    if (!intention.success)
        return {};
    if (intention.mcpAltitudeStatus)
        return intention.mcpAltitude;
    if (intention.fmsAltitudeStatus)
        return intention.fmsAltitude;
    return {};
}

std::optional<double> verticalRate(const _ast_item_registers_t &item)
{
    const unsigned char *octets = findRegister(item, Bds60);
    if (!octets)
        return {};
    const auto speed = ast_bds_60_decode(octets);
    if (!speed.success)
        return {};
    if (speed.baroRateStatus && std::abs(speed.baroRate) <= MaximumVerticalRate)
        return speed.baroRate;
    if (speed.inertialRateStatus && std::abs(speed.inertialRate) <= MaximumVerticalRate)
        return speed.inertialRate;
    return {};
}

Track::VerticalTrend trendOf(double rate)
{
    if (rate > LevelFlightRate)
        return Track::TrendClimbing;
    return rate < -LevelFlightRate ? Track::TrendDescending : Track::TrendLevel;
}

void setModeA(Track &track, const _ast_item_mode3a_t &item)
{
    if (!item.present)
        return;
    track.setModeACode(item.code);
    track.setModeACodeGarbled(item.g);
    track.setModeACodeSmoothed(item.l);
    track.setModeACodeValid(true);
}

void setLevel(Track &track, const _ast_item_flight_level_t &item)
{
    const bool usable = item.present && !item.g;
    track.setLevel(usable ? item.level * FeetPerQuarterLevel : 0);
    track.setLevelValid(usable);
}

void setVelocity(Track &track, const _ast_item_velocity_t &item)
{
    track.setGroundSpeed(item.present ? item.groundSpeed : 0.0);
    track.setGroundSpeedValid(item.present);
    track.setHeading(item.present ? item.heading : 0.0);
    track.setHeadingValid(item.present);
}

void setCallsign(Track &track, const _ast_item_callsign_t &item)
{
    // Almost every report repeats the call sign: no text is made of it unless it changed.
    if (!item.present || (track.modeSCallsignValid() && track.modeSCallsign() == QLatin1String(item.text)))
        return;
    track.setModeSCallsign(QString::fromLatin1(item.text));
}

void setSelectedAltitude(Track &track, const _ast_item_registers_t &registers, const QDateTime &now)
{
    if (const auto altitude = selectedAltitude(registers)) {
        track.setSelectedAltitude(*altitude, now);
        track.setSelectedAltitudeValid(true);
    }
    if (track.selectedAltitudeValid() && track.selectedAltitudeLastUpdate().msecsTo(now) > DownlinkLifeSpan)
        track.setSelectedAltitudeValid(false);
}

void setVerticalRate(Track &track, const _ast_item_registers_t &registers, const QDateTime &now)
{
    const auto rate = verticalRate(registers);
    if (rate) {
        track.setVerticalRate(static_cast<int>(std::lround(*rate)), now);
        track.setVerticalRateValid(true);
        track.setVerticalTrend(trendOf(*rate));
    }
    if (track.verticalRateValid() && track.verticalRateLastUpdate().msecsTo(now) > DownlinkLifeSpan)
        track.setVerticalRateValid(false);
    if (!track.verticalRateValid())
        track.setVerticalTrend(Track::TrendUnknown);
}

// Expands every record of a block and hands it on.
template <typename Record, typename Disassemble, typename Handle>
void forEachRecord(const _ast_datablock_t &block, Disassemble disassemble, Handle handle)
{
    for (const auto &generic : block.records) {
        Record record;
        disassemble(&record, generic);
        handle(&record);
    }
}

} // namespace

RadarTracker::RadarTracker(const QSharedPointer<RadarSensorInfo> &sensor,
    const QSharedPointer<TrackManager> &trackManager, Projector *projector, QObject *parent)
    : Tracker(trackManager, projector, parent), m_sensor(sensor)
{
}

void RadarTracker::procAsterixMessage(const _ast_datablock_t &block)
{
    if (!block.valid)
        return;
    switch (block.category) {
    case 1:
        forEachRecord<_ast_datarecord_001_t>(
            block, ast_datarecord_001_disassemble, [this](const auto *record) { procCat001Message(record); });
        break;
    case 2:
        forEachRecord<_ast_datarecord_002_t>(
            block, ast_datarecord_002_disassemble, [this](const auto *record) { procCat002Message(record); });
        break;
    case 34:
        forEachRecord<_ast_datarecord_034_t>(
            block, ast_datarecord_034_disassemble, [this](const auto *record) { procCat034Message(record); });
        break;
    case 48:
        forEachRecord<_ast_datarecord_048_t>(
            block, ast_datarecord_048_disassemble, [this](const auto *record) { procCat048Message(record); });
        break;
    default:
        break;
    }
}

template <typename Record>
void RadarTracker::procAntennaMessage(const Record *record)
{
    if (!record || !record->valid || !record->i000.present)
        return;
    if (record->i000.type == SectorCrossing && record->i020.present)
        Q_EMIT antennaRotated(record->i020.azimuth);
    else if (record->i000.type == NorthMarker)
        Q_EMIT antennaNorthCrossed();
}

void RadarTracker::procCat002Message(const _ast_datarecord_002_t *record)
{
    procAntennaMessage(record);
}

void RadarTracker::procCat034Message(const _ast_datarecord_034_t *record)
{
    procAntennaMessage(record);
}

void RadarTracker::procCat001Message(const _ast_datarecord_001_t *record)
{
    if (!record || !record->valid)
        return;
    const auto now = trackManager().now();
    const auto track = associate(*record);
    if (!track)
        return;
    if (record->i020.present)
        track->setType(Cat001Types[record->i020.ssrpsr & 3]);
    track->setState(record->i170.present && record->i170.con ? Track::Tentative : Track::Confirmed);
    if (record->i040.present)
        place(*track, record->i040.rho, record->i040.theta);
    else if (record->i042.present)
        place(*track, std::hypot(record->i042.x, record->i042.y), bearingOf(record->i042.x, record->i042.y));
    project(*track);
    setModeA(*track, record->i070);
    setLevel(*track, record->i090);
    setVelocity(*track, record->i200);
    track->recordHistory(now);
}

QSharedPointer<Track> RadarTracker::associate(const _ast_datarecord_001_t &record)
{
    if (!record.i161.present) {
        Q_EMIT message(
            LogLevel::Debug, tr("Radar Tracker: CAT001 message has no valid track number (I001/161), ignore."));
        return {};
    }
    auto track = trackManager().findTrackByOtherTrackNum(record.i161.trackNumber);
    if (track)
        return track;
    track = trackManager().createTrack();
    if (track) {
        track->setOtherTrackNumber(record.i161.trackNumber);
        trackManager().registerTrack(track);
    }
    return track;
}

void RadarTracker::procCat048Message(const _ast_datarecord_048_t *record)
{
    if (!record || !record->valid)
        return;
    const auto now = trackManager().now();
    const auto track = associate(*record, now);
    if (!track)
        return;
    if (record->i020.present)
        track->setType(Cat048Types[record->i020.typ & 7]);
    track->setState(record->i170.present && record->i170.cnf ? Track::Tentative : Track::Confirmed);
    setCallsign(*track, record->i240);
    if (record->i040.present) {
        place(*track, record->i040.rho, record->i040.theta);
    } else if (record->i042.present) {
        const auto &[present, x, y, resolution] = record->i042;
        place(*track, resolution * std::hypot(x, y), bearingOf(x, y));
    }
    project(*track);
    setModeA(*track, record->i070);
    setLevel(*track, record->i090);
    setSelectedAltitude(*track, record->i250, now);
    setVerticalRate(*track, record->i250, now);
    setVelocity(*track, record->i200);
    track->recordHistory(now);
}

// A known track number decides. Otherwise the aircraft address does, so that a track first seen by its address keeps
// its identity when the radar gives it a number, or gives it a new one after having lost it. Finders may return a track
// that has gone on to another key; such an entry does not count as known.
QSharedPointer<Track> RadarTracker::associate(const _ast_datarecord_048_t &record, const QDateTime &now)
{
    const unsigned int number = record.i161.present ? record.i161.trackNumber : 0;
    const unsigned int address = record.i220.present ? record.i220.address : 0;
    if (number == 0 && address == 0) {
        Q_EMIT message(LogLevel::Debug,
            tr("Radar Tracker: CAT048 message has neither valid track number (I048/161) nor valid Mode-S address "
               "(I048/220), ignore."));
        return {};
    }
    QSharedPointer<Track> track;
    if (number != 0)
        track = findByNumber(number);
    if (!track && address != 0)
        track = findByAddress(address, number, now);
    if (!track)
        track = trackManager().createTrack();
    if (!track)
        return {};
    if (record.i220.present)
        track->setIcaoAddr(address);
    if (number != 0)
        track->setOtherTrackNumber(number);
    trackManager().registerTrack(track);
    return track;
}

QSharedPointer<Track> RadarTracker::findByNumber(unsigned int number)
{
    const auto track = trackManager().findTrackByOtherTrackNum(number);
    return track && track->otherTrackNumber() == number ? track : QSharedPointer<Track>();
}

QSharedPointer<Track> RadarTracker::findByAddress(unsigned int address, unsigned int number, const QDateTime &now)
{
    const auto track = trackManager().findTrackByICAOAddr(address);
    if (!track || track->icaoAddr() != address)
        return {};
    const bool renumbered = number != 0 && track->otherTrackNumberValid() && track->otherTrackNumber() != number;
    const bool otherAircraft = renumbered && isNumberInUse(*track, now);
    return otherAircraft ? QSharedPointer<Track>() : track;
}

// The antenna sees an aircraft once a revolution: a track reported under its own number much less than a revolution ago
// is another aircraft, or a reflection, with the same address.
bool RadarTracker::isNumberInUse(const Track &track, const QDateTime &now) const
{
    const double period =
        m_sensor->rotationPeriod() < ShortestRotationPeriod ? AssumedRotationPeriod : m_sensor->rotationPeriod();
    return static_cast<double>(track.lastUpdate().msecsTo(now)) < period * NumberInUse * 1000.0;
}

// The slant range is taken as the distance over ground.
void RadarTracker::place(Track &track, double range, double bearing) const
{
    track.setGeoCoordinate(m_sensor->location().atDistanceAndAzimuth(range * wgs84::MetresPerNauticalMile, bearing));
}
