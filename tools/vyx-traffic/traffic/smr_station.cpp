#include "traffic/smr_station.h"

#include "traffic/earth.h"

#include <cmath>

namespace {

constexpr std::uint64_t TargetReport = 1;
constexpr std::uint64_t StartOfUpdateCycle = 2;
constexpr std::uint64_t PrimarySurveillance = 3;
constexpr std::uint64_t AircraftTarget = 1;
constexpr std::uint64_t VehicleTarget = 2;
constexpr std::uint64_t MaintenanceFleet = 2; // fleet of vehicles: airport maintenance
constexpr double SecondsAnHour = 3600;
constexpr double MetresPerSecond = Earth::MetresPerNauticalMile / SecondsAnHour; // of a knot

} // namespace

SmrStation::SmrStation(const ScenarioSmr &smr, const Scenario &scenario)
    : CyclicStation(smr, scenario.startTime, smr.rotationPeriod,
        {.category = 10, .edition = {}, .lastTrackNumber = 4095, .largestRecord = 70}),
      m_smr(smr)
{
}

bool SmrStation::sees(const AirTarget &target) const
{
    const double above = target.aircraft.state().altitude - m_smr.antennaAltitude / Earth::MetresPerFoot;
    return above <= m_smr.highest && milesTo(target) <= m_smr.coverage;
}

void SmrStation::beginCycle(double time)
{
    beginRecord();
    encoder().setRaw("000", StartOfUpdateCycle);
    encoder().setRaw("140", clock().timeBits(time));
    encoder().endRecord();
}

void SmrStation::report(const Sight &sight)
{
    if (sight.coasting) {
        return;
    }
    const Aircraft::State &state = sight.state();
    const Earth::Plane plane = Earth::plane(m_smr.latitude, m_smr.longitude, state.latitude, state.longitude);
    beginRecord();
    encoder().setRaw("000", TargetReport);
    encoder().setRaw("140", clock().timeBits(sight.time));
    encoder().setRaw("020/TYP", PrimarySurveillance);
    encoder().setRaw("020/SIM", 1);
    encoder().setRaw("020/TOT", sight.target.flight->vehicle ? VehicleTarget : AircraftTarget);
    encoder().setRaw("161/TRK", sight.trackNumber);
    encoder().setRaw("170/CNF", sight.tentative ? 1 : 0);
    encoder().setRaw("170/TRE", sight.last ? 1 : 0);
    encoder().set("040/RHO", std::hypot(plane.east, plane.north));
    setAngle("040/TH", Earth::normalized(std::atan2(plane.east, plane.north) / Earth::radians(1)));
    encoder().set("042/X", plane.east);
    encoder().set("042/Y", plane.north);
    writeMovement(state);
    writeShape(sight);
    encoder().endRecord();
}

void SmrStation::writeMovement(const Aircraft::State &state)
{
    const double track = Earth::radians(state.track);
    encoder().set("200/GSP", state.speed / SecondsAnHour);
    setAngle("200/TRA", state.track);
    encoder().set("202/VX", state.speed * MetresPerSecond * std::sin(track));
    encoder().set("202/VY", state.speed * MetresPerSecond * std::cos(track));
}

void SmrStation::writeShape(const Sight &sight)
{
    const bool isVehicle = sight.target.flight->vehicle;
    if (isVehicle) {
        encoder().setRaw("300", MaintenanceFleet);
    }
    encoder().set("270/LENGTH", isVehicle ? 6 : 44);
    encoder().set("270/ORIENTATION", std::floor(sight.state().track * 128 / 360) * 360 / 128);
    encoder().set("270/WIDTH", isVehicle ? 2 : 36);
}
