#include "tracking/report_items.h"

#include "geo/wgs84.h"

#include <cmath>

namespace {

constexpr double MaximumVerticalRate = 6000.0; // feet per minute; beyond it a register is not believed
constexpr double LevelFlightRate = 200.0; // feet per minute; up to it, itself included, a track is level

constexpr qint64 EmergencyLifeSpan = 20000; // milliseconds

constexpr unsigned char Bds40 = 0x40;
constexpr unsigned char Bds60 = 0x60;

// The register's seven octets; null when the item has none of that code. Only the first of a code counts.
const unsigned char *findRegister(const _ast_item_registers_t &item, unsigned char code)
{
    constexpr int RegisterSize = 8;
    for (int i = 0; item.present && i < item.count; ++i) {
        const unsigned char *octets = item.octets + i * RegisterSize;
        if (octets[RegisterSize - 1] == code) {
            return octets;
        }
    }
    return nullptr;
}

Track::VerticalTrend trendOf(double rate)
{
    if (rate > LevelFlightRate) {
        return Track::TrendClimbing;
    }
    return rate < -LevelFlightRate ? Track::TrendDescending : Track::TrendLevel;
}

} // namespace

double reports::bearingOf(double x, double y)
{
    return std::atan2(y, x) / -wgs84::Pi * 180.0 + 90.0;
}

void reports::setModeA(Track &track, const _ast_item_mode3a_t &item)
{
    if (item.present) {
        setModeA(track, item.code, item.g, item.l);
        track.setModeACodeValidated(!item.v);
    }
}

void reports::setModeA(Track &track, unsigned int code, bool garbled, bool smoothed)
{
    track.setModeACode(code);
    track.setModeACodeGarbled(garbled);
    track.setModeACodeSmoothed(smoothed);
    track.setModeACodeValid(true);
}

void reports::setEmergency(Track &track, std::optional<Track::Emergency> emergency, const QDateTime &now)
{
    if (emergency.value_or(Track::NoEmergency) != Track::NoEmergency) {
        track.setReportedEmergency(*emergency, now);
        return;
    }
    const bool ended = emergency || track.reportedEmergencyLastUpdate().msecsTo(now) > EmergencyLifeSpan;
    if (track.reportedEmergency() != Track::NoEmergency && ended) {
        track.setReportedEmergency(Track::NoEmergency, now);
    }
}

Track::Emergency reports::emergencyOf(unsigned int priorityStatus)
{
    switch (priorityStatus) {
    case 1:
    case 6:
        return Track::GeneralEmergency;
    case 4:
        return Track::RadioFailure;
    case 5:
        return Track::UnlawfulInterference;
    default:
        return Track::NoEmergency;
    }
}

bool reports::isSpi(unsigned int flightStatus)
{
    return flightStatus == 4 || flightStatus == 5;
}

void reports::setCallsign(Track &track, const char *text)
{
    // Almost every report repeats the call sign: no text is made of it unless it changed.
    if (!track.modeSCallsignValid() || track.modeSCallsign() != QLatin1String(text)) {
        track.setModeSCallsign(QString::fromLatin1(text));
    }
}

void reports::setVelocity(Track &track, const _ast_item_velocity_t &item)
{
    setVelocity(track, item.present, item.groundSpeed, item.heading);
}

void reports::setVelocity(Track &track, bool valid, double groundSpeed, double heading)
{
    track.setGroundSpeed(valid ? groundSpeed : 0.0);
    track.setGroundSpeedValid(valid);
    track.setHeading(valid ? heading : 0.0);
    track.setHeadingValid(valid);
}

void reports::setVelocityFromComponents(Track &track, bool valid, double vx, double vy)
{
    constexpr double KnotsPerMetrePerSecond = 3600.0 / wgs84::MetresPerNauticalMile;
    const double bearing = bearingOf(vx, vy);
    setVelocity(track, valid, std::hypot(vx, vy) * KnotsPerMetrePerSecond, bearing < 0.0 ? bearing + 360.0 : bearing);
}

void reports::setLevel(Track &track, std::optional<int> level)
{
    track.setLevel(level.value_or(0));
    track.setLevelValid(level.has_value());
}

void reports::setSelectedAltitude(Track &track, std::optional<int> altitude, const QDateTime &now, qint64 lifeSpan)
{
    if (altitude) {
        track.setSelectedAltitude(*altitude, now);
        track.setSelectedAltitudeValid(true);
    }
    if (track.selectedAltitudeValid() && track.selectedAltitudeLastUpdate().msecsTo(now) > lifeSpan) {
        track.setSelectedAltitudeValid(false);
    }
}

void reports::setVerticalRate(Track &track, std::optional<double> rate, const QDateTime &now, qint64 lifeSpan)
{
    if (rate) {
        track.setVerticalRate(static_cast<int>(std::lround(*rate)), now);
        track.setVerticalRateValid(true);
        track.setVerticalTrend(trendOf(*rate));
    }
    if (track.verticalRateValid() && track.verticalRateLastUpdate().msecsTo(now) > lifeSpan) {
        track.setVerticalRateValid(false);
    }
    if (!track.verticalRateValid()) {
        track.setVerticalTrend(Track::TrendUnknown);
    }
}

std::optional<int> reports::selectedAltitude(const _ast_item_registers_t &item)
{
    const unsigned char *octets = findRegister(item, Bds40);
    if (!octets) {
        return {};
    }
    const auto intention = ast_bds_40_decode(octets);
    if (!intention.success) {
        return {};
    }
    if (intention.mcpAltitudeStatus) {
        return intention.mcpAltitude;
    }
    if (intention.fmsAltitudeStatus) {
        return intention.fmsAltitude;
    }
    return {};
}

std::optional<double> reports::verticalRate(const _ast_item_registers_t &item)
{
    const unsigned char *octets = findRegister(item, Bds60);
    if (!octets) {
        return {};
    }
    const auto speed = ast_bds_60_decode(octets);
    if (!speed.success) {
        return {};
    }
    if (speed.baroRateStatus && std::abs(speed.baroRate) <= MaximumVerticalRate) {
        return speed.baroRate;
    }
    if (speed.inertialRateStatus && std::abs(speed.inertialRate) <= MaximumVerticalRate) {
        return speed.inertialRate;
    }
    return {};
}
