#include "traffic/sdps_station.h"

#include "traffic/earth.h"

#include <cmath>

namespace {

constexpr double MetresPerSecond = Earth::MetresPerNauticalMile / 3600; // of a knot
constexpr double FastestLevel = 200; // feet per minute: what climbs or descends no faster is level
constexpr std::uint64_t SourceTriangulation = 4; // of the calculated altitude; any would do
constexpr std::uint64_t SourceMcp = 2; // of the selected altitude
constexpr std::size_t PlanCallsign = 7; // characters
constexpr std::size_t LargestRecord = 130;
constexpr std::uint16_t LastTrackNumber = 9999;

} // namespace

SdpsStation::SdpsStation(const ScenarioSdps &sdps, const Scenario &scenario)
    : CyclicStation(sdps, scenario.startTime, sdps.interval,
        {.category = 62, .edition = {}, .lastTrackNumber = LastTrackNumber, .largestRecord = LargestRecord}),
      m_sdps(sdps), m_magneticVariation(scenario.magneticVariation)
{
}

bool SdpsStation::sees(const AirTarget &target) const
{
    return !target.flight->vehicle && milesTo(target) <= m_sdps.coverage;
}

void SdpsStation::report(const Sight &sight)
{
    beginRecord();
    encoder().setRaw("015", 1);
    encoder().setRaw("070", clock().timeBits(sight.time));
    encoder().setRaw("040", sight.trackNumber);
    writePosition(sight.state());
    writeMovement(sight.state());
    writeStatus(sight);
    if (sight.hasTransponder()) {
        writeTransponder(sight);
    }
    if (sight.hasModeS()) {
        writeAircraftData(sight);
    }
    encoder().endRecord();
}

void SdpsStation::writePosition(const Aircraft::State &state)
{
    if (m_sdps.positions.wgs84) {
        encoder().set("105/LAT", state.latitude);
        encoder().set("105/LON", state.longitude);
    }
    if (m_sdps.positions.cartesian) {
        const Earth::Plane plane = Earth::plane(m_sdps.latitude, m_sdps.longitude, state.latitude, state.longitude);
        encoder().set("100/X", plane.east);
        encoder().set("100/Y", plane.north);
    }
}

void SdpsStation::writeMovement(const Aircraft::State &state)
{
    const double track = Earth::radians(state.track);
    encoder().set("185/VX", state.speed * MetresPerSecond * std::sin(track));
    encoder().set("185/VY", state.speed * MetresPerSecond * std::cos(track));
    const bool isLevel = std::abs(state.verticalRate) <= FastestLevel;
    const std::uint64_t turn = std::abs(state.turnRate) < 0.1 ? 0 : state.turnRate > 0 ? 1 : 2;
    encoder().setRaw("200/TRANS", turn);
    encoder().setRaw("200/VERT", isLevel ? 0 : state.verticalRate > 0 ? 1 : 2);
}

void SdpsStation::writeStatus(const Sight &sight)
{
    encoder().setRaw("080/SRC", SourceTriangulation);
    encoder().setRaw("080/CNF", sight.tentative ? 1 : 0);
    encoder().setRaw("080/SIM", 1);
    encoder().setRaw("080/TSE", sight.last ? 1 : 0);
    encoder().setRaw("080/CST", sight.coasting ? 1 : 0);
    encoder().set("290/TRK", std::fmin(sight.time - sight.target.startedAt, 63));
    const double age = sight.coasting ? interval() : 0.0;
    encoder().set("290/PSR", age);
    if (sight.hasTransponder()) {
        encoder().set("290/SSR", age);
    }
    if (sight.hasModeS()) {
        encoder().set("290/MDS", age);
    }
}

// Altitudes are known from transponders alone.
void SdpsStation::writeTransponder(const Sight &sight)
{
    const Aircraft::State &state = sight.state();
    encoder().setRaw("060/MODE3A", sight.target.squawkAt(sight.time));
    if (!sight.coasting) {
        encoder().set("136", state.altitude / 100);
    }
    encoder().set("135/CTB", state.altitude / 100);
    encoder().set("220", state.verticalRate);
}

void SdpsStation::writeAircraftData(const Sight &sight)
{
    const ScenarioFlight &flight = *sight.target.flight;
    encoder().setRaw("380/ADR", flight.address);
    setAngle("380/MHG", sight.state().track - m_magneticVariation);
    encoder().set("380/TAS", std::round(sight.state().speed));
    encoder().setRaw("380/SAL/SAS", 1);
    encoder().setRaw("380/SAL/SRC", SourceMcp);
    encoder().set("380/SAL/ALT", sight.target.aircraft.selectedAltitude());
    encoder().set("380/BVR", sight.state().verticalRate);
    const std::string callsign = flight.callsign.toStdString();
    if (callsign.empty()) {
        return;
    }
    encoder().setText("380/ID", callsign);
    encoder().setText("390/CS", std::string_view(callsign).substr(0, PlanCallsign));
}
