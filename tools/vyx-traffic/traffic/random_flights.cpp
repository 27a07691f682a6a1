#include "traffic/random_flights.h"

#include "traffic/earth.h"

#include <algorithm>

namespace {

constexpr std::uint64_t RandomStream = 1;
constexpr double ApproachGradient = 320; // feet for each nautical mile to go
constexpr double OverThreshold = 1000; // feet above the airport where routes begin and end

double milesBetween(const ScenarioFix &from, const ScenarioFix &to)
{
    return Earth::distance(from.latitude, from.longitude, to.latitude, to.longitude) / Earth::MetresPerNauticalMile;
}

double speedOnApproach(double milesToGo, double cruisingSpeed)
{
    if (milesToGo < 12) {
        return 160;
    }
    if (milesToGo < 30) {
        return 220;
    }
    return milesToGo < 60 ? std::min(cruisingSpeed, 300.0) : cruisingSpeed;
}

void planDeparture(std::vector<ScenarioWaypoint> &route, const std::vector<ScenarioFix> &airway)
{
    if (!airway.front().elevation) {
        return;
    }
    route.front().altitude = *airway.front().elevation + OverThreshold;
    route.front().speed = 170;
}

// Levels on the way down follow from the distance that is left to the airport.
void planArrival(std::vector<ScenarioWaypoint> &route, const std::vector<ScenarioFix> &airway)
{
    if (!airway.back().elevation) {
        return;
    }
    double milesToGo = 0;
    for (std::size_t i = airway.size() - 1; i > 0; --i) {
        const double profile = *airway.back().elevation + OverThreshold + milesToGo * ApproachGradient;
        route[i].altitude = std::min(*route[i].altitude, profile);
        route[i].speed = speedOnApproach(milesToGo, *route[i].speed);
        milesToGo += milesBetween(airway[i - 1], airway[i]);
    }
}

} // namespace

RandomFlights::RandomFlights(const ScenarioRandomTraffic &rules, std::uint64_t seed)
    : m_rules(rules), m_random(seed, RandomStream)
{
}

ScenarioFlight RandomFlights::next()
{
    ScenarioFlight flight;
    const std::vector<ScenarioFix> airway = drawAirway();
    drawIdentity(flight);
    drawPerformance(flight);
    const double cruise = drawCruisingAltitude(airway);
    for (const ScenarioFix &fix : airway) {
        flight.route.push_back({.latitude = fix.latitude,
            .longitude = fix.longitude,
            .altitude = cruise,
            .speed = flight.performance.speed});
    }
    planDeparture(flight.route, airway);
    planArrival(flight.route, airway);
    return flight;
}

double RandomFlights::flownAtStart(const ScenarioFlight &flight)
{
    double miles = 0;
    for (std::size_t i = 1; i < flight.route.size(); ++i) {
        miles += Earth::distance(flight.route[i - 1].latitude, flight.route[i - 1].longitude, flight.route[i].latitude,
                     flight.route[i].longitude)
            / Earth::MetresPerNauticalMile;
    }
    return m_random.uniform(0.05, 0.9) * miles / flight.performance.speed * 3600;
}

std::vector<ScenarioFix> RandomFlights::drawAirway()
{
    const int last = static_cast<int>(m_rules.airways.size()) - 1;
    std::vector<ScenarioFix> airway = m_rules.airways[static_cast<std::size_t>(m_random.integer(0, last))];
    if (m_random.chance(0.5)) {
        std::reverse(airway.begin(), airway.end());
    }
    return airway;
}

void RandomFlights::drawIdentity(ScenarioFlight &flight)
{
    const int lastPrefix = static_cast<int>(m_rules.callsignPrefixes.size()) - 1;
    const int lastBlock = static_cast<int>(m_rules.addressBlocks.size()) - 1;
    flight.callsign = m_rules.callsignPrefixes[static_cast<std::size_t>(m_random.integer(0, lastPrefix))]
        + QString::number(m_random.integer(101, 8999));
    flight.address = m_rules.addressBlocks[static_cast<std::size_t>(m_random.integer(0, lastBlock))]
        + static_cast<std::uint32_t>(m_random.integer(0, 4095));
    flight.squawks = {{0, static_cast<std::uint16_t>(m_random.integer(00101, 06777))}};
    flight.transponder =
        m_random.chance(0.93) ? ScenarioFlight::Transponder::ModeS : ScenarioFlight::Transponder::ModeAC;
}

void RandomFlights::drawPerformance(ScenarioFlight &flight)
{
    flight.performance.speed = m_random.integer(410, 485);
    flight.performance.climbRate = m_random.integer(14, 26) * 100;
    flight.performance.descentRate = m_random.integer(14, 22) * 100;
    flight.performance.turnRate = 1.5;
}

// Odd thousands eastbound, even ones westbound.
double RandomFlights::drawCruisingAltitude(const std::vector<ScenarioFix> &airway)
{
    const double course = Earth::bearing(
        airway.front().latitude, airway.front().longitude, airway.back().latitude, airway.back().longitude);
    const int odd = course < 180 ? 1 : 0;
    const int thousands = m_random.integer(m_rules.lowestLevel / 10, m_rules.highestLevel / 10);
    return (thousands % 2 == odd ? thousands : std::max(thousands - 1, 1)) * 1000.0;
}
