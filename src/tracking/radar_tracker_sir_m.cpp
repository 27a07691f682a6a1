// The radar tracker's reports that come as Alenia SIR-M messages.

#include "geo/wgs84.h"
#include "sirm/alenia_sir_m_radar_message.h"
#include "tracking/radar_tracker.h"
#include "tracking/report_items.h"

#include <cmath>

namespace {

constexpr double DegreesPerSector = 360.0 / 16;
constexpr double MetresPerKilometre = 1000.0;
constexpr double FeetPerMinute = 60.0 / 0.3048; // of one metre per second
constexpr double Knots = 1.943844; // of one metre per second

constexpr unsigned int NoTrack = 0;
constexpr unsigned int UnknownTrend = 3;

// Degrees clockwise from north, 0 to 360.
double azimuthOf(double east, double north)
{
    const double azimuth = wgs84::degrees(std::atan2(east, north));
    return azimuth < 0.0 ? azimuth + 360.0 : azimuth;
}

// As plot and track records number them.
Track::Type typeOf(unsigned int number)
{
    constexpr Track::Type Types[] = {Track::Unknown, Track::Psr, Track::Ssr, Track::PsrSsr};
    return number < std::size(Types) ? Types[number] : Track::Unknown;
}

Track::VerticalTrend trendOf(const AleniaSirMRadarTrackRecord &record)
{
    constexpr Track::VerticalTrend Trends[] = {Track::TrendLevel, Track::TrendClimbing, Track::TrendDescending};
    return record.verticalTrend() < UnknownTrend ? Trends[record.verticalTrend()] : Track::TrendUnknown;
}

void setModeA(Track &track, const AleniaSirMRadarTrackRecord &record)
{
    if (record.modeACodeValid()) {
        reports::setModeA(track, record.modeACode(), false, false);
    } else {
        track.setModeACodeValid(false);
    }
}

// In feet.
template <typename Record>
std::optional<int> heightOf(const Record &record)
{
    const auto height = static_cast<int>(std::lround(record.modeCHeightImperial()));
    return record.modeCHeightValid() ? std::optional(height) : std::nullopt;
}

// The radar knows the trend better than the rate, so that the trend does not follow from it.
void setVerticalMovement(Track &track, const AleniaSirMRadarTrackRecord &record, const QDateTime &now)
{
    if (record.rateOfClimbDescentValid()) {
        track.setVerticalRate(static_cast<int>(std::lround(record.rateOfClimbDescent() * FeetPerMinute)), now);
    }
    track.setVerticalRateValid(record.rateOfClimbDescentValid());
    track.setVerticalTrend(trendOf(record));
}

void setVelocity(Track &track, const AleniaSirMRadarTrackRecord &record)
{
    const bool valid = record.velocityPresent() && record.velocityValid();
    reports::setVelocity(
        track, valid, std::hypot(record.vx(), record.vy()) * Knots, azimuthOf(record.vx(), record.vy()));
}

} // namespace

void RadarTracker::procAleniaSirMMessage(const QSharedPointer<AleniaSirMRadarMessage> &message)
{
    if (const auto *marker = dynamic_cast<const AleniaSirMRadarNorthMarkerMessage *>(message.data())) {
        procAleniaSirMNorthMarker(*marker);
        if (ledger()) {
            ledger()->takeSirM(*marker, ReportOutcome::SourceStatus);
        }
    } else if (const auto *data = dynamic_cast<const AleniaSirMRadarDataMessage *>(message.data())) {
        procAleniaSirMDataMessage(*data);
    }
}

void RadarTracker::procAleniaSirMNorthMarker(const AleniaSirMRadarNorthMarkerMessage &marker)
{
    if (marker.northNotSynchronized() != m_northNotSynchronized) {
        m_northNotSynchronized = marker.northNotSynchronized();
        if (m_northNotSynchronized) {
            Q_EMIT message(LogLevel::Warning, tr("Alenia SIR-M Tracker: radar north is not synchronized."));
        } else {
            Q_EMIT message(LogLevel::Debug, tr("Alenia SIR-M Tracker: radar north is synchronized."));
        }
    }
    if (marker.clockNotSynchronized() != m_clockNotSynchronized) {
        m_clockNotSynchronized = marker.clockNotSynchronized();
        if (m_clockNotSynchronized) {
            Q_EMIT message(LogLevel::Warning, tr("Alenia SIR-M Tracker: radar clock is not synchronized."));
        } else {
            Q_EMIT message(LogLevel::Debug, tr("Alenia SIR-M Tracker: radar clock is synchronized."));
        }
    }
    if (!m_northNotSynchronized) {
        Q_EMIT antennaRotated(0.0);
    }
    Q_EMIT antennaNorthCrossed();
}

void RadarTracker::procAleniaSirMDataMessage(const AleniaSirMRadarDataMessage &data)
{
    if (data.sectorValid()) {
        Q_EMIT antennaRotated(data.sector() * DegreesPerSector);
    }
    if (data.plotRecords().empty() && data.trackRecords().empty() && ledger()) {
        ledger()->takeSirM(data, data.sectorValid() ? ReportOutcome::SourceStatus : ReportOutcome::Incomplete);
    }
    for (const auto &record : data.plotRecords()) {
        handInSirM(data, record.octets(), procAleniaSirMPlotRecord(record));
    }
    for (const auto &record : data.trackRecords()) {
        handInSirM(data, record.octets(), procAleniaSirMTrackRecord(record));
    }
}

void RadarTracker::handInSirM(
    const AleniaSirMRadarDataMessage &data, std::span<const unsigned char> record, const Taken &taken) const
{
    if (ledger()) {
        ledger()->takeSirM(data, record, taken);
    }
}

Tracker::Taken RadarTracker::procAleniaSirMPlotRecord(const AleniaSirMRadarPlotRecord &record)
{
    const auto place = polarPlace(record.range() * MetresPerKilometre, record.azimuth(), heightOf(record));
    if (place.valid) {
        addPlot(place.plane, typeOf(record.plotType()), trackManager().now());
    }
    return takenAsPlot(place, false);
}

Tracker::Taken RadarTracker::procAleniaSirMTrackRecord(const AleniaSirMRadarTrackRecord &record)
{
    const Identity identity{record.trackNumber(), {}, 0.0};
    if (record.trackType() == NoTrack || record.trackEnd()) {
        const auto gone = trackManager().findTrackByOtherTrackNum(record.trackNumber());
        trackManager().removeTrack(gone);
        return ended(identity, gone ? gone->trackNumber() : 0);
    }
    const auto now = trackManager().now();
    const auto place = polarPlace(
        std::hypot(record.x(), record.y()) * MetresPerKilometre, azimuthOf(record.x(), record.y()), heightOf(record));
    const auto track = findOrCreate(record.trackNumber());
    if (!track) {
        return notNumbered(identity, place);
    }
    track->setType(typeOf(record.trackType()));
    track->setState(record.coasting() ? Track::Coasting : Track::Confirmed);
    put(*track, place);
    setModeA(*track, record);
    reports::setLevel(*track, heightOf(record));
    setVerticalMovement(*track, record, now);
    setVelocity(*track, record);
    track->recordHistory(now);
    return takenBy(*track, identity, place);
}
