#include "traffic/radar_model.h"

#include "traffic/earth.h"

#include "geo/line_of_sight.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::uint64_t FirstNoiseStream = 100;
constexpr std::uint16_t LastTrackNumber = 4095;
constexpr int TentativeReports = 2;
constexpr int TurnRegisterInterval = 3; // every third turn the radar reads BDS 5,0 as well

// Where it was so many seconds ago, as the time of its report says; good for the fraction of a turn that reports wait
// for the end of their sector.
Aircraft::State earlier(Aircraft::State state, double seconds)
{
    const double metres = state.speed * Earth::MetresPerNauticalMile / 3600 * seconds;
    Earth::advance(state.latitude, state.longitude, Earth::normalized(state.track + 180), metres);
    state.altitude -= state.verticalRate / 60 * seconds;
    return state;
}

} // namespace

RadarModel::RadarModel(const ScenarioRadar &radar, std::size_t index, std::uint64_t seed, double magneticVariation)
    : m_radar(radar), m_random(seed, FirstNoiseStream + index), m_magneticVariation(magneticVariation),
      m_numbers(LastTrackNumber)
{
}

double RadarModel::nextSectorTime() const
{
    return static_cast<double>(m_sectorsEntered) * m_radar.rotationPeriod / m_radar.sectors;
}

SectorReport RadarModel::enterSector(const AirTraffic &traffic)
{
    SectorReport report;
    const std::int64_t sector = m_sectorsEntered % m_radar.sectors;
    report.time = nextSectorTime();
    report.northMarker = sector == 0;
    report.azimuth = static_cast<double>(sector) * 360 / m_radar.sectors;
    for (const AirTarget &target : traffic.targets()) {
        look(target, report.azimuth, report.time, report.targets);
    }
    addFalsePlots(report.azimuth, report.time, report.targets);
    std::stable_sort(report.targets.begin(), report.targets.end(),
        [](const TargetReport &a, const TargetReport &b) { return a.time < b.time; });
    if (report.northMarker) {
        forgetGone(report.time);
    }
    ++m_sectorsEntered;
    return report;
}

// The look goes back over two sectors, so that a target which flies against the antenna's turn across the border of two
// sectors is not left out; one that flies with it is not reported twice.
void RadarModel::look(const AirTarget &target, double sweepEnd, double now, std::vector<TargetReport> &reports)
{
    const Aircraft::State &state = target.aircraft.state();
    const double azimuth = Earth::bearing(m_radar.latitude, m_radar.longitude, state.latitude, state.longitude);
    const double behind = Earth::normalized(sweepEnd - azimuth);
    const double time = now - behind / 360 * m_radar.rotationPeriod;
    if (behind <= 0 || behind > 2 * 360.0 / m_radar.sectors || time < 0) {
        return;
    }
    const bool isStamped = m_radar.category != ScenarioRadar::TargetCategory::SirM;
    const Look look = lookAt(target, isStamped ? earlier(state, now - time) : state, time);
    if (!look.inPrimary && !look.inSecondary && !m_tracks.contains(target.id)) {
        return;
    }
    Track &track = m_tracks[target.id];
    if (look.time - track.lastLook < m_radar.rotationPeriod / 2) {
        return;
    }
    track.lastLook = look.time;
    if (track.ended) {
        return;
    }
    const bool leaving = target.endedAt || (!look.inPrimary && !look.inSecondary);
    const bool primary = detects(look.inPrimary, target, look.time);
    const bool secondary = detects(look.inSecondary, target, look.time);
    if (!leaving && !primary && !secondary) {
        missed(track, target, look, reports);
        return;
    }
    if (!leaving || primary || secondary) {
        track.byPrimary = primary;
        track.bySecondary = secondary;
    }
    if (!leaving || track.number != 0) {
        detected(track, target, look, reports);
    }
    if (leaving) {
        endTrack(track);
    }
    track.ended = target.endedAt.has_value();
}

RadarModel::Look RadarModel::lookAt(const AirTarget &target, const Aircraft::State &state, double time) const
{
    Look look;
    look.time = time;
    look.azimuth = Earth::bearing(m_radar.latitude, m_radar.longitude, state.latitude, state.longitude);
    look.distance = Earth::distance(m_radar.latitude, m_radar.longitude, state.latitude, state.longitude);
    look.height = state.altitude * Earth::MetresPerFoot - m_radar.antennaAltitude;
    look.slantRange = std::hypot(look.distance, look.height);
    if (m_radar.ellipsoid) {
        const double altitude = state.altitude * Earth::MetresPerFoot;
        const LineOfSight antenna(m_radar.latitude, m_radar.longitude, m_radar.antennaAltitude);
        const auto sight = antenna.to(LineOfSight::point(state.latitude, state.longitude, altitude));
        look.azimuth = sight.azimuth;
        look.slantRange = sight.range;
    }
    const double miles = look.distance / Earth::MetresPerNauticalMile;
    const bool visible = !target.flight->vehicle && aboveHorizon(look, state.altitude);
    const bool transponder = target.flight->transponder != ScenarioFlight::Transponder::None;
    look.inPrimary = visible && m_radar.psr && target.flight->primaryEcho && miles <= m_radar.coveragePrimary;
    look.inSecondary = visible && (m_radar.ssr || m_radar.modeS) && transponder && miles <= m_radar.coverageSecondary;
    return look;
}

bool RadarModel::aboveHorizon(const Look &look, double altitude) const
{
    const double miles = look.distance / Earth::MetresPerNauticalMile;
    if (m_radar.horizon && miles > Earth::radioHorizon(altitude, m_radar.antennaAltitude)) {
        return false;
    }
    return std::atan2(look.height, look.distance) >= Earth::radians(m_radar.minimumElevation);
}

bool RadarModel::detects(bool inCoverage, const AirTarget &target, double time)
{
    return inCoverage && m_random.chance(m_radar.detectionProbability)
        && !target.hiddenAt(time, m_radar.rotationPeriod);
}

// A track that is not detected is carried on, silently where the category knows no coasting, until a last report ends
// it.
void RadarModel::missed(Track &track, const AirTarget &target, const Look &look, std::vector<TargetReport> &reports)
{
    if (track.number == 0) {
        return;
    }
    const bool isOver = ++track.misses >= m_radar.missesToDrop;
    if (!isOver && m_radar.category == ScenarioRadar::TargetCategory::SirM) {
        reports.push_back(reportOf(track, target, look));
        reports.back().coasting = true;
    }
    if (!isOver) {
        return;
    }
    TargetReport report;
    report.time = look.time;
    report.trackNumber = track.number;
    report.trackEnd = true;
    report.byModeS = m_radar.modeS && target.flight->transponder == ScenarioFlight::Transponder::ModeS;
    report.address = target.flight->address;
    report.callsign = target.flight->callsign;
    reports.push_back(std::move(report));
    endTrack(track);
}

void RadarModel::detected(Track &track, const AirTarget &target, const Look &look, std::vector<TargetReport> &reports)
{
    if (track.number == 0) {
        track.number = m_numbers.take();
    }
    if (track.number == 0) {
        return;
    }
    ++track.reports;
    track.misses = 0;
    reports.push_back(reportOf(track, target, look));
    reports.back().trackEnd = target.endedAt || (!look.inPrimary && !look.inSecondary);
}

TargetReport RadarModel::reportOf(const Track &track, const AirTarget &target, const Look &look)
{
    TargetReport report;
    report.time = look.time;
    report.trackNumber = track.number;
    report.byPrimary = track.byPrimary;
    report.bySecondary = track.bySecondary;
    report.tentative = track.reports <= TentativeReports;
    report.speed = target.aircraft.state().speed;
    report.track = target.aircraft.state().track;
    report.verticalRate = target.aircraft.state().verticalRate;
    measure(report, look);
    if (track.bySecondary) {
        interrogate(report, target, look, track.reports);
    }
    return report;
}

void RadarModel::measure(TargetReport &report, const Look &look)
{
    const ScenarioRadarErrors &errors = m_radar.errors;
    const double metres = look.slantRange * (1 + errors.rangeGain) + errors.rangeBias;
    const double miles = metres / Earth::MetresPerNauticalMile;
    report.positionValid = true;
    report.slantRange = std::max(miles + m_radar.rangeSigma * m_random.normal(), 0.0);
    report.azimuth = Earth::normalized(look.azimuth + errors.azimuthBias + m_radar.azimuthSigma * m_random.normal());
}

// Nothing is drawn for a radar that makes none.
void RadarModel::addFalsePlots(double sweepEnd, double now, std::vector<TargetReport> &reports)
{
    const double mean = m_radar.errors.falsePlots / m_radar.sectors;
    if (mean <= 0 || now <= 0) {
        return;
    }
    const int count = static_cast<int>(mean) + (m_random.chance(mean - std::floor(mean)) ? 1 : 0);
    const double sectorTime = m_radar.rotationPeriod / m_radar.sectors;
    for (int i = 0; i < count; ++i) {
        const double part = m_random.uniform(); // of the sector that lies behind
        reports.push_back(
            falsePlot(Earth::normalized(sweepEnd - part * 360 / m_radar.sectors), now - part * sectorTime));
    }
}

TargetReport RadarModel::falsePlot(double azimuth, double time)
{
    TargetReport report;
    report.time = time;
    report.byPrimary = m_radar.psr;
    report.bySecondary = !m_radar.psr;
    report.positionValid = true;
    report.slantRange = m_random.uniform(1, m_radar.psr ? m_radar.coveragePrimary : m_radar.coverageSecondary);
    report.azimuth = azimuth;
    return report;
}

// Both 4,0 and 6,0 are read in every turn: a display that forgets their values after twelve seconds would blink
// whenever a detection fails, were they read in turn.
void RadarModel::interrogate(TargetReport &report, const AirTarget &target, const Look &look, int turn) const
{
    const Aircraft &aircraft = target.aircraft;
    report.codesValid = true;
    report.squawk = target.squawkAt(look.time);
    const double step = target.flight->transponder == ScenarioFlight::Transponder::ModeS ? 25 : 100; // feet
    report.flightLevelQuarters =
        static_cast<int>(std::lround(aircraft.state().altitude / step) * static_cast<long>(step / 25));
    report.byModeS = m_radar.modeS && target.flight->transponder == ScenarioFlight::Transponder::ModeS;
    if (!report.byModeS) {
        return;
    }
    report.address = target.flight->address;
    report.callsign = target.flight->callsign;
    report.registers = {
        selectedVerticalIntention(aircraft.selectedAltitude()), headingAndSpeed(aircraft.state(), m_magneticVariation)};
    if (turn % TurnRegisterInterval == 0) {
        report.registers.push_back(trackAndTurn(aircraft.state()));
    }
}

void RadarModel::endTrack(Track &track)
{
    m_numbers.giveBack(track.number);
    const double lastLook = track.lastLook;
    track = Track();
    track.lastLook = lastLook;
}

std::uint16_t RadarModel::trackNumber(std::uint64_t target) const
{
    const auto track = m_tracks.find(target);
    return track == m_tracks.end() ? 0 : track->second.number;
}

// A target that left the air without a last look takes its number with it no longer than three turns.
void RadarModel::forgetGone(double now)
{
    for (auto it = m_tracks.begin(); it != m_tracks.end();) {
        if (now - it->second.lastLook < 3 * m_radar.rotationPeriod) {
            ++it;
            continue;
        }
        endTrack(it->second);
        it = m_tracks.erase(it);
    }
}
