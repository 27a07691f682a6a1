#include "traffic/aircraft.h"

#include "traffic/earth.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double LongestStep = 1.0; // seconds
constexpr double HoldOutbound = 60; // seconds
constexpr double LevelOff = 3; // feet per minute for each foot that is left, so that the rate fades out
constexpr double SlowestRate = 300; // feet per minute
constexpr double CaptureDistance = 200; // metres, of what is fast
constexpr double CaptureTime = 2.5; // seconds, of what is slow

} // namespace

Aircraft::Aircraft(const std::vector<ScenarioWaypoint> &route, const ScenarioPerformance &performance)
    : m_route(route), m_performance(performance)
{
    const ScenarioWaypoint &first = m_route.front();
    m_state.latitude = first.latitude;
    m_state.longitude = first.longitude;
    m_state.altitude = first.altitude.value_or(0);
    m_state.speed = first.speed.value_or(performance.speed);
    m_state.track = Earth::bearing(first.latitude, first.longitude, m_route[1].latitude, m_route[1].longitude);
    m_selectedAltitude = m_state.altitude;
    m_selectedSpeed = m_state.speed;
    startLeg();
}

void Aircraft::advance(double seconds)
{
    while (seconds > 0) {
        const double part = std::min(seconds, LongestStep);
        step(part);
        seconds -= part;
    }
}

void Aircraft::step(double seconds)
{
    steer(seconds);
    changeSpeed(seconds);
    changeAltitude(seconds);
    move(seconds);
    if (!routeEnded() && (m_hold == Hold::None || m_hold == Hold::ToFix) && atWaypoint()) {
        passWaypoint();
    }
}

void Aircraft::steer(double seconds)
{
    m_state.turnRate = 0;
    if (m_hold != Hold::None && m_hold != Hold::ToFix) {
        steerHold(seconds);
    } else if (!routeEnded()) {
        const ScenarioWaypoint &next = m_route[m_leg];
        turnTowards(Earth::bearing(m_state.latitude, m_state.longitude, next.latitude, next.longitude), seconds);
    }
}

void Aircraft::steerHold(double seconds)
{
    if (m_hold == Hold::TurnOutbound && turnInHold(m_holdInbound + 180, seconds)) {
        m_hold = Hold::Outbound;
        m_holdTimer = HoldOutbound;
    } else if (m_hold == Hold::Outbound) {
        m_holdTimer -= seconds;
        if (m_holdTimer <= 0) {
            m_hold = Hold::TurnInbound;
        }
    } else if (m_hold == Hold::TurnInbound && turnInHold(m_holdInbound, seconds)) {
        m_hold = Hold::ToFix;
    }
}

void Aircraft::turnTowards(double track, double seconds)
{
    const double most = m_performance.turnRate * seconds;
    const double turn = std::clamp(Earth::turnBetween(m_state.track, track), -most, most);
    m_state.track = Earth::normalized(m_state.track + turn);
    m_state.turnRate = turn / seconds;
}

// Turns to the side of the holding pattern, even where the other way round is shorter. True when on the track.
bool Aircraft::turnInHold(double track, double seconds)
{
    const double side = static_cast<double>(m_route[m_leg].holdDirection);
    const double left = Earth::normalized(side * (track - m_state.track));
    const double turn = std::min(left, m_performance.turnRate * seconds);
    m_state.track = Earth::normalized(m_state.track + side * turn);
    m_state.turnRate = side * turn / seconds;
    return turn == left;
}

void Aircraft::changeSpeed(double seconds)
{
    const double most = m_performance.acceleration * seconds;
    m_state.speed += std::clamp(m_selectedSpeed - m_state.speed, -most, most);
}

void Aircraft::changeAltitude(double seconds)
{
    const double left = m_selectedAltitude - m_state.altitude;
    const double fastest = left > 0 ? m_performance.climbRate : m_performance.descentRate;
    const double rate = std::min(fastest, std::max(std::abs(left) * LevelOff, SlowestRate));
    if (std::abs(left) <= rate * seconds / 60) {
        m_state.altitude = m_selectedAltitude;
        m_state.verticalRate = 0;
        return;
    }
    m_state.verticalRate = std::copysign(rate, left);
    m_state.altitude += m_state.verticalRate * seconds / 60;
}

void Aircraft::move(double seconds)
{
    const double metres = m_state.speed * Earth::MetresPerNauticalMile / 3600 * seconds;
    Earth::advance(m_state.latitude, m_state.longitude, m_state.track, metres);
}

// True where the turn to the leg after has to begin, and when the waypoint was passed abeam.
bool Aircraft::atWaypoint() const
{
    const ScenarioWaypoint &next = m_route[m_leg];
    const double distance = Earth::distance(m_state.latitude, m_state.longitude, next.latitude, next.longitude);
    const double metresPerSecond = m_state.speed * Earth::MetresPerNauticalMile / 3600;
    const double radius = metresPerSecond / Earth::radians(m_performance.turnRate);
    const double ahead = Earth::bearing(m_state.latitude, m_state.longitude, next.latitude, next.longitude);
    if (distance < 3 * radius && std::abs(Earth::turnBetween(m_state.track, ahead)) > 90) {
        return true;
    }
    double lead = std::min(CaptureDistance, CaptureTime * metresPerSecond);
    if (m_leg + 1 < m_route.size() && next.holdTurns == 0) {
        const ScenarioWaypoint &after = m_route[m_leg + 1];
        const double out = Earth::bearing(next.latitude, next.longitude, after.latitude, after.longitude);
        const double turn = std::min(std::abs(Earth::turnBetween(m_state.track, out)), 120.0);
        lead = std::max(lead, radius * std::tan(Earth::radians(turn) / 2));
    }
    return distance <= lead;
}

void Aircraft::passWaypoint()
{
    if (m_hold == Hold::None) {
        m_holdTurnsLeft = m_route[m_leg].holdTurns;
        m_holdInbound = m_state.track;
    }
    if (m_holdTurnsLeft > 0) {
        --m_holdTurnsLeft;
        m_hold = Hold::TurnOutbound;
        return;
    }
    m_hold = Hold::None;
    ++m_leg;
    startLeg();
}

void Aircraft::startLeg()
{
    if (routeEnded()) {
        return;
    }
    m_selectedAltitude = m_route[m_leg].altitude.value_or(m_selectedAltitude);
    m_selectedSpeed = m_route[m_leg].speed.value_or(m_selectedSpeed);
}
