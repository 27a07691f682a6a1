#include "traffic/mlat_station.h"

#include "traffic/earth.h"
#include "traffic/mode_s_registers.h"

#include <cmath>

namespace {

constexpr double MetresPerSecond = Earth::MetresPerNauticalMile / 3600; // of a knot
constexpr std::uint64_t NoVerticalTrend = 3; // positions in the plane tell nothing of it
constexpr std::uint64_t CallsignDownlinked = 2;

} // namespace

MlatStation::MlatStation(const ScenarioMlat &mlat, const Scenario &scenario)
    : CyclicStation(mlat, scenario.startTime, mlat.interval,
        {.category = 20, .edition = {}, .lastTrackNumber = 4095, .largestRecord = 110}),
      m_mlat(mlat), m_magneticVariation(scenario.magneticVariation)
{
}

bool MlatStation::sees(const AirTarget &target) const
{
    return target.flight->transponder != ScenarioFlight::Transponder::None && milesTo(target) <= m_mlat.coverage;
}

void MlatStation::report(const Sight &sight)
{
    beginRecord();
    encoder().setRaw("020/SSR", sight.hasModeS() ? 0 : 1);
    encoder().setRaw("020/MS", sight.hasModeS() ? 1 : 0);
    encoder().setRaw("020/SIM", 1);
    encoder().setRaw("140", clock().timeBits(sight.time));
    encoder().setRaw("161/TRN", sight.trackNumber);
    encoder().setRaw("170/CNF", sight.tentative ? 1 : 0);
    encoder().setRaw("170/TRE", sight.last ? 1 : 0);
    encoder().setRaw("170/CST", sight.coasting ? 1 : 0);
    encoder().setRaw("170/CDM", NoVerticalTrend);
    encoder().setRaw("070/MODE3A", sight.target.squawkAt(sight.time));
    encoder().set("090/FL", sight.state().altitude / 100);
    writePosition(sight.state());
    writeMovement(sight);
    if (sight.hasModeS()) {
        writeModeS(sight);
    }
    encoder().endRecord();
}

void MlatStation::writePosition(const Aircraft::State &state)
{
    if (m_mlat.positions.wgs84) {
        encoder().set("041/LAT", state.latitude);
        encoder().set("041/LON", state.longitude);
    }
    if (m_mlat.positions.cartesian) {
        const Earth::Plane plane = Earth::plane(m_mlat.latitude, m_mlat.longitude, state.latitude, state.longitude);
        encoder().set("042/X", plane.east);
        encoder().set("042/Y", plane.north);
    }
}

void MlatStation::writeMovement(const Sight &sight)
{
    const double track = Earth::radians(sight.state().track);
    encoder().set("202/VX", sight.state().speed * MetresPerSecond * std::sin(track));
    encoder().set("202/VY", sight.state().speed * MetresPerSecond * std::cos(track));
}

void MlatStation::writeModeS(const Sight &sight)
{
    const ScenarioFlight &flight = *sight.target.flight;
    encoder().setRaw("220", flight.address);
    if (!flight.callsign.isEmpty()) {
        encoder().setRaw("245/STI", CallsignDownlinked);
        encoder().setText("245/CHR", flight.callsign.toStdString());
    }
    for (const ModeSRegister &bds : {selectedVerticalIntention(sight.target.aircraft.selectedAltitude()),
             headingAndSpeed(sight.state(), m_magneticVariation)}) {
        encoder().addRepetition("250");
        encoder().setExplicit("250/BDSDATA", bds.octets);
        encoder().setRaw("250/BDS1", bds.code >> 4);
        encoder().setRaw("250/BDS2", bds.code & 0x0F);
    }
}
