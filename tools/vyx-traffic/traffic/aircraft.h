#pragma once

#include "traffic/scenario.h"

// Flies a route in still air over a spherical Earth: direct legs, turns at the turn rate, climbs and descents that
// level off, racetrack holding patterns. Altitudes are pressure altitudes in the standard atmosphere.
class Aircraft {
public:
    struct State {
        double latitude = 0; // degrees
        double longitude = 0;
        double altitude = 0; // feet
        double track = 0; // degrees clockwise from true north, 0 to 360
        double speed = 0; // knots over the ground
        double verticalRate = 0; // feet per minute
        double turnRate = 0; // degrees per second, right positive
    };

    // Starts at the first waypoint of the route on the track to the second.
    Aircraft(const std::vector<ScenarioWaypoint> &route, const ScenarioPerformance &performance);

    void advance(double seconds);

    const State &state() const { return m_state; }
    // The altitude that it climbs or descends to, or holds; feet.
    double selectedAltitude() const { return m_selectedAltitude; }
    // The last waypoint is behind; the aircraft flies straight on.
    bool routeEnded() const { return m_leg >= m_route.size(); }

private:
    enum class Hold { None, TurnOutbound, Outbound, TurnInbound, ToFix };

    void step(double seconds);
    void steer(double seconds);
    void steerHold(double seconds);
    void turnTowards(double track, double seconds);
    bool turnInHold(double track, double seconds);
    void changeSpeed(double seconds);
    void changeAltitude(double seconds);
    void move(double seconds);
    bool atWaypoint() const;
    void passWaypoint();
    void startLeg();

    std::vector<ScenarioWaypoint> m_route;
    ScenarioPerformance m_performance;
    State m_state;
    std::size_t m_leg = 1; // the waypoint ahead
    double m_selectedAltitude = 0;
    double m_selectedSpeed = 0;
    Hold m_hold = Hold::None;
    int m_holdTurnsLeft = 0;
    double m_holdInbound = 0; // degrees
    double m_holdTimer = 0; // seconds left on the outbound leg
};
