#include "tracking/sdps_tracker.h"

#include "tracking/report_items.h"
#include "tracking/system_track_detection.h"

#include <cmath>

namespace {

constexpr qint64 ReportLifeSpan = 10000; // milliseconds that selected altitude and vertical rate stay valid
constexpr double FeetPerQuarterLevel = 25.0;
constexpr qint64 HalfCircleCounts = 0x2000000; // of I062/105

constexpr double ShortestUpdateInterval = 1.0; // seconds; anything shorter was not entered
constexpr double AssumedUpdateInterval = 4.0; // seconds

void addHalfCircleToWesternLongitude(_ast_datarecord_062_t &record)
{
    auto &position = record.i105;
    if (position.present && position.longitudeCount < 0) {
        position.longitude = static_cast<double>(position.longitudeCount + HalfCircleCounts) * position.resolution;
    }
}

Track::State stateOf(const _ast_datarecord_062_t &record)
{
    const auto &status = record.i080;
    if (status.present && status.cnf) {
        return Track::Tentative;
    }
    return status.present && status.cst ? Track::Coasting : Track::Confirmed;
}

// The measured level, else the calculated one unless it is an altitude above the sea.
std::optional<int> levelOf(const _ast_datarecord_062_t &record)
{
    if (record.i136.present) {
        return static_cast<int>(std::lround(record.i136.level * FeetPerQuarterLevel));
    }
    if (record.i135.present && !record.i135.qnhApplied) {
        return static_cast<int>(std::lround(record.i135.level * FeetPerQuarterLevel));
    }
    return {};
}

Track::VerticalTrend trendOf(unsigned int value)
{
    constexpr Track::VerticalTrend Trends[] = {
        Track::TrendLevel, Track::TrendClimbing, Track::TrendDescending, Track::TrendUnknown};
    return Trends[value & 3];
}

void setCallsign(Track &track, const _ast_datarecord_062_t &record)
{
    if (record.i390.callsignPresent) {
        reports::setCallsign(track, record.i390.callsign);
    } else if (record.i380.callsignPresent) {
        reports::setCallsign(track, record.i380.callsign);
    }
}

// Absent where the record has none of the fields that could tell of one.
std::optional<Track::Emergency> emergencyOf(const _ast_datarecord_062_t &record)
{
    if (record.i380.priorityStatus != 0) {
        return reports::emergencyOf(record.i380.priorityStatus);
    }
    if (record.i080.present) {
        return record.i080.me ? Track::GeneralEmergency : reports::emergencyOf(record.i080.ems);
    }
    return record.i380.priorityStatusPresent ? std::optional(Track::NoEmergency) : std::nullopt;
}

void setStatus(Track &track, const _ast_datarecord_062_t &record, const QDateTime &now)
{
    track.setState(stateOf(record));
    track.setSpi(record.i080.spi || reports::isSpi(record.i380.flightStatus));
    reports::setEmergency(track, emergencyOf(record), now);
    if (const auto detectedBy = systemTrackDetection(record)) {
        track.setDetectedBy(*detectedBy);
    }
}

void setVerticalMovement(Track &track, const _ast_datarecord_062_t &record, const QDateTime &now)
{
    const auto altitude =
        record.i380.selectedAltitudePresent ? std::optional<int>(record.i380.selectedAltitude) : std::nullopt;
    reports::setSelectedAltitude(track, altitude, now, ReportLifeSpan);
    const auto rate = record.i220.present ? std::optional(record.i220.rate) : std::nullopt;
    reports::setVerticalRate(track, rate, now, ReportLifeSpan);
    if (record.i200.present) {
        track.setVerticalTrend(trendOf(record.i200.vertical));
    }
}

} // namespace

SdpsTracker::SdpsTracker(const QSharedPointer<SdpsSensorInfo> &sensor, const QSharedPointer<TrackManager> &trackManager,
    Projector *projector, QObject *parent)
    : SystemTracker(sensor->location(), trackManager, projector, parent), m_sensor(sensor)
{
}

void SdpsTracker::procAsterixMessage(const _ast_datablock_t &block)
{
    if (!block.valid) {
        return;
    }
    if (block.category != 62) {
        refuse(block);
        return;
    }
    takeEach<_ast_datarecord_062_t>(block, ast_datarecord_062_disassemble, [this](auto &record) {
        applyOptions(record.i105, record.i100);
        if (m_correctLongitudeWrap) {
            addHalfCircleToWesternLongitude(record);
        }
        return procCat062Message(record);
    });
}

Tracker::Taken SdpsTracker::procCat062Message(const _ast_datarecord_062_t &record)
{
    const auto now = trackManager().now();
    const auto identity = identityOf(record);
    if (!identity.usable()) {
        debug([] {
            return tr("SDPS Tracker: CAT062 message has neither valid track number (I062/040) nor valid Mode-S address "
                      "(I062/380/ADR), ignore.");
        });
        return {ReportOutcome::NoIdentity};
    }
    if (record.i080.present && record.i080.tse) {
        return ended(identity, endTrack(identity, now));
    }
    const auto plane = planePosition(record.i105, record.i100);
    const auto place = reportedPlace(record.i105, plane);
    const auto track = associate(identity, now);
    if (!track) {
        return notNumbered(identity, place);
    }
    track->setType(record.i380.present ? Track::SdpsModeS : Track::Sdps);
    setStatus(*track, record, now);
    setCallsign(*track, record);
    placeReported(*track, record.i010, record.i105, record.i100, plane);
    reports::setModeA(*track, record.i060);
    reports::setLevel(*track, levelOf(record));
    setVerticalMovement(*track, record, now);
    reports::setVelocityFromComponents(*track, record.i185.present, record.i185.vx, record.i185.vy);
    track->recordHistory(now);
    return takenBy(*track, identity, place);
}

Tracker::Identity SdpsTracker::identityOf(const _ast_datarecord_062_t &record) const
{
    Identity identity;
    if (record.i040.present) {
        identity.number = record.i040.trackNumber;
    }
    if (record.i380.addressPresent) {
        identity.address = record.i380.address;
    }
    identity.reportPeriod =
        m_sensor->updateInterval() < ShortestUpdateInterval ? AssumedUpdateInterval : m_sensor->updateInterval();
    return identity;
}
