#include "traffic/sir_m_maker.h"

#include "traffic/earth.h"

#include "sirm/alenia_sir_m_radar_encoder.h"

#include <cmath>

namespace {

constexpr double KilometresPerNauticalMile = Earth::MetresPerNauticalMile / 1000;
constexpr double MetresPerSecond = Earth::MetresPerNauticalMile / 3600; // of a knot
constexpr double FastestLevel = 200; // feet per minute: what climbs or descends no faster is level
constexpr double FeetAQuarterLevel = 25;

unsigned typeOf(const TargetReport &report)
{
    return (report.byPrimary ? 1U : 0U) + (report.bySecondary ? 2U : 0U);
}

unsigned trendOf(double verticalRate)
{
    if (std::abs(verticalRate) <= FastestLevel) {
        return 0;
    }
    return verticalRate > 0 ? 1 : 2;
}

AleniaSirMRadarPlotRecord plotOf(const TargetReport &report)
{
    AleniaSirMRadarPlotRecord plot;
    plot.setPlotType(typeOf(report));
    plot.setPolar(report.slantRange * KilometresPerNauticalMile, report.azimuth);
    if (report.codesValid) {
        plot.setModeACode(report.squawk);
        plot.setModeCHeight(report.flightLevelQuarters * FeetAQuarterLevel);
    }
    return plot;
}

AleniaSirMRadarTrackRecord trackOf(const TargetReport &report)
{
    AleniaSirMRadarTrackRecord track;
    track.setTrackNumber(report.trackNumber);
    track.setTrackType(typeOf(report));
    track.setCoasting(report.coasting);
    track.setTrackEnd(report.trackEnd);
    const double range = report.slantRange * KilometresPerNauticalMile;
    const double azimuth = Earth::radians(report.azimuth);
    track.setPosition(range * std::sin(azimuth), range * std::cos(azimuth));
    const double speed = report.speed * MetresPerSecond;
    const double course = Earth::radians(report.track);
    track.setVelocity(speed * std::sin(course), speed * std::cos(course), !report.tentative);
    track.setVerticalTrend(report.codesValid ? trendOf(report.verticalRate) : 3);
    if (!report.codesValid) {
        return track;
    }
    track.setModeACode(report.squawk);
    track.setModeCHeight(report.flightLevelQuarters * FeetAQuarterLevel);
    track.setRateOfClimbDescent(report.verticalRate * Earth::MetresPerFoot / 60);
    return track;
}

QByteArray encoded(const AleniaSirMRadarMessage &message)
{
    const std::vector<unsigned char> octets = AleniaSirMRadarEncoder::encode(message);
    return {reinterpret_cast<const char *>(octets.data()), static_cast<qsizetype>(octets.size())};
}

} // namespace

SirMMaker::SirMMaker(const ScenarioRadar &radar, const QDateTime &startTime) : m_radar(radar), m_clock(startTime) { }

const std::vector<QByteArray> &SirMMaker::datagrams(const SectorReport &report)
{
    m_datagrams.clear();
    if (report.northMarker) {
        appendNorthMarker(report.time);
    }
    appendData(report);
    return m_datagrams;
}

unsigned SirMMaker::milliseconds(double time) const
{
    return static_cast<unsigned>(m_clock.secondsOfDay(time) * 1000);
}

void SirMMaker::appendNorthMarker(double time)
{
    AleniaSirMRadarNorthMarkerMessage marker;
    marker.setRadarId(m_radar.sic);
    marker.setTimeOfDay(milliseconds(time));
    marker.setRotationPeriod(static_cast<unsigned>(std::lround(m_radar.rotationPeriod * 1000)));
    m_datagrams.push_back(encoded(marker));
}

void SirMMaker::appendData(const SectorReport &report)
{
    AleniaSirMRadarDataMessage data;
    data.setRadarId(m_radar.sic);
    data.setTimeOfDay(milliseconds(report.time));
    data.setSector(static_cast<unsigned>(std::lround(report.azimuth * Sectors / 360)) % Sectors);
    for (const TargetReport &target : report.targets) {
        if (target.positionValid && !target.coasting && !target.trackEnd) {
            data.addPlotRecord(plotOf(target));
        }
        data.addTrackRecord(trackOf(target));
    }
    m_datagrams.push_back(encoded(data));
}
