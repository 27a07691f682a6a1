#include "traffic/adsb_station.h"

#include "traffic/earth.h"

#include <cmath>

namespace {

constexpr double SecondsAnHour = 3600;
constexpr double ReceptionToReport = 0.1; // seconds
constexpr std::uint64_t SourceMcp = 2; // of a selected altitude
constexpr std::uint64_t LargeAircraft = 3;
constexpr std::uint64_t GeneralEmergency = 1;

} // namespace

AdsbStation::AdsbStation(const ScenarioAdsb &station, const Scenario &scenario)
    : CyclicStation(station, scenario.startTime, station.interval,
        {.category = 21, .edition = station.edition.toStdString(), .lastTrackNumber = 4095, .largestRecord = 110}),
      m_station(station), m_magneticVariation(scenario.magneticVariation),
      m_isOld(station.edition.startsWith(QLatin1String("0.")))
{
}

bool AdsbStation::sees(const AirTarget &target) const
{
    if (target.flight->vehicle || target.flight->transponder != ScenarioFlight::Transponder::ModeS) {
        return false;
    }
    const double miles = milesTo(target);
    const double horizon = Earth::radioHorizon(target.aircraft.state().altitude, m_station.antennaAltitude);
    return miles <= m_station.coverage && (!m_station.horizon || miles <= horizon);
}

// What is not received is not reported, and the end of a track is not either.
void AdsbStation::report(const Sight &sight)
{
    if (sight.coasting || sight.last) {
        return;
    }
    const ScenarioFlight &flight = *sight.target.flight;
    const std::uint16_t squawk = sight.target.squawkAt(sight.time);
    beginRecord();
    encoder().setRaw("040/ARC", 1); // 25 feet
    encoder().setRaw("040/SIM", 1);
    if (m_isOld) {
        encoder().setRaw("040/ATP", 1); // an aircraft address
    }
    encoder().setRaw("080", flight.address);
    encoder().setRaw("020", LargeAircraft);
    if (!flight.callsign.isEmpty()) {
        encoder().setText("170", flight.callsign.toStdString());
    }
    encoder().setRaw("070/MODE3A", squawk); // edition 0.23 has none
    if (isEmergency(squawk)) {
        encoder().setRaw(m_isOld ? "200" : "200/PS", GeneralEmergency);
    }
    if (!m_isOld) {
        encoder().setRaw("161/TRNUM", sight.trackNumber);
    }
    writeTimes(sight.time);
    writePosition(sight.state());
    writeMovement(sight);
    writeQuality();
    encoder().endRecord();
}

void AdsbStation::writeTimes(double time)
{
    if (m_isOld) {
        encoder().setRaw("030", clock().timeBits(time));
        return;
    }
    encoder().setRaw("071", clock().timeBits(time));
    encoder().setRaw("073", clock().timeBits(time));
    encoder().setRaw("075", clock().timeBits(time));
    encoder().setRaw("077", clock().timeBits(time + ReceptionToReport));
}

void AdsbStation::writePosition(const Aircraft::State &state)
{
    encoder().set("130/LAT", state.latitude);
    encoder().set("130/LON", state.longitude);
    encoder().set("131/LAT", state.latitude); // from edition 2.1 on
    encoder().set("131/LON", state.longitude);
    encoder().set("140", state.altitude);
    encoder().set("145", state.altitude / 100);
}

void AdsbStation::writeMovement(const Sight &sight)
{
    const Aircraft::State &state = sight.state();
    encoder().set("160/GS", state.speed / SecondsAnHour);
    setAngle("160/TA", state.track);
    setAngle("152", state.track - m_magneticVariation);
    setEither("151", "151/TAS", std::round(state.speed));
    setEither("155", "155/BVR", state.verticalRate);
    encoder().setRaw("146/SAS", 1);
    encoder().setRaw(m_isOld ? "146/SRC" : "146/S", SourceMcp);
    encoder().set("146/ALT", sight.target.aircraft.selectedAltitude());
}

void AdsbStation::writeQuality()
{
    if (m_isOld) {
        encoder().set("090/PA", 7);
        encoder().setRaw("210/MDS", 1);
        return;
    }
    encoder().setRaw("090/NUCPNIC", 8);
    encoder().setRaw("090/NACP", 9);
    encoder().setRaw("210/VN", 2);
    encoder().setRaw("210/LTT", 2); // 1090 MHz extended squitter
}
