#include "traffic/air_traffic.h"

#include "traffic/earth.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int PlacingAttempts = 12;
constexpr double ClearDistance = 6 * Earth::MetresPerNauticalMile;
constexpr double ClearHeight = 900; // feet

} // namespace

std::uint16_t AirTarget::squawkAt(double time) const
{
    std::uint16_t code = flight->squawks.empty() ? 0 : flight->squawks.front().code;
    for (const ScenarioFlight::Squawk &squawk : flight->squawks) {
        if (squawk.at <= time - startedAt) {
            code = squawk.code;
        }
    }
    return code;
}

bool AirTarget::hiddenAt(double time, double rotationPeriod) const
{
    const double age = time - startedAt;
    return std::any_of(flight->coasting.begin(), flight->coasting.end(), [&](const ScenarioFlight::Coasting &coasting) {
        return age >= coasting.at && age < coasting.at + coasting.scans * rotationPeriod;
    });
}

bool isEmergency(std::uint16_t squawk)
{
    return squawk == 07500 || squawk == 07600 || squawk == 07700;
}

AirTraffic::AirTraffic(const Scenario &scenario, std::uint64_t seed)
    : m_randomFlights(scenario.random, seed), m_randomCount(scenario.random.count)
{
    for (const ScenarioFlight &flight : scenario.flights) {
        m_departures.push_back({std::make_shared<ScenarioFlight>(flight), flight.start});
    }
}

void AirTraffic::advanceTo(double time)
{
    advanceTargets(time - m_now);
    m_now = time;
    removeGone();
    startDue();
    fillUp();
    m_started = true;
}

void AirTraffic::advanceTargets(double seconds)
{
    for (AirTarget &target : m_targets) {
        target.aircraft.advance(seconds);
    }
}

void AirTraffic::removeGone()
{
    for (AirTarget &target : m_targets) {
        if (!target.endedAt && target.aircraft.routeEnded()) {
            target.endedAt = m_now;
        }
    }
    const auto gone = [this](
                          const AirTarget &target) { return target.endedAt && m_now > *target.endedAt + m_lingering; };
    for (const AirTarget &target : m_targets) {
        if (!gone(target)) {
            continue;
        }
        std::erase(m_randomIds, target.id);
        if (target.flight->repeatAfter) {
            m_departures.push_back({target.flight, m_now + *target.flight->repeatAfter});
        }
    }
    std::erase_if(m_targets, gone);
}

void AirTraffic::startDue()
{
    for (const Departure &departure : m_departures) {
        if (departure.at <= m_now) {
            start(departure.flight, departure.at);
        }
    }
    std::erase_if(m_departures, [this](const Departure &departure) { return departure.at <= m_now; });
}

void AirTraffic::start(const std::shared_ptr<const ScenarioFlight> &flight, double at)
{
    AirTarget target{m_nextId++, flight, Aircraft(flight->route, flight->performance), at, std::nullopt};
    target.aircraft.advance(m_now - at);
    m_targets.push_back(std::move(target));
}

// The first ones are already somewhere along their routes, those that come later enter at the beginning.
void AirTraffic::fillUp()
{
    while (std::ssize(m_randomIds) < m_randomCount) {
        for (int attempt = 1;; ++attempt) {
            const auto flight = std::make_shared<ScenarioFlight>(m_randomFlights.next());
            const double flown = m_started ? 0 : m_randomFlights.flownAtStart(*flight);
            Aircraft aircraft(flight->route, flight->performance);
            aircraft.advance(flown);
            if (attempt < PlacingAttempts && !clearOfOthers(aircraft)) {
                continue;
            }
            m_randomIds.push_back(m_nextId);
            m_targets.push_back({m_nextId++, flight, std::move(aircraft), m_now - flown, std::nullopt});
            break;
        }
    }
}

bool AirTraffic::clearOfOthers(const Aircraft &aircraft) const
{
    const Aircraft::State &own = aircraft.state();
    return std::none_of(m_targets.begin(), m_targets.end(), [&own](const AirTarget &target) {
        const Aircraft::State &other = target.aircraft.state();
        return std::abs(own.altitude - other.altitude) < ClearHeight
            && Earth::distance(own.latitude, own.longitude, other.latitude, other.longitude) < ClearDistance;
    });
}
