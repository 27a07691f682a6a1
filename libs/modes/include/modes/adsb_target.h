#pragma once

#include "modes/cpr.h"

#include <cstdint>
#include <optional>
#include <string>

namespace korvane::modes {

// One aircraft or vehicle as its squitters describe it: the last value of each kind. A value that was not heard for its
// life, as of the target's newest message, is not valid before it is heard again; it has expired then.
class ADSBTarget {
public:
    static constexpr unsigned long long PositionLife = 60000; // milliseconds
    static constexpr unsigned long long EmergencyLife = 60000;
    static constexpr unsigned long long ValueLife = 300000; // of all the others

    std::uint32_t icaoAddr() const { return m_address; }
    // False where the 24 bits are no aircraft address: anonymous targets, TIS-B track files.
    bool icaoAddrValid() const { return m_isAddressValid; }

    const std::string &callsign() const { return m_callsign; } // without filling
    bool callsignValid() const { return isFresh(m_callsignTime, ValueLife); }
    bool callsignExpired() const { return hasExpired(m_callsignTime, ValueLife); }

    std::uint16_t squawk() const { return m_squawk.value_or(0); } // binary value of the octal digits
    bool squawkValid() const { return isFresh(m_squawkTime, ValueLife); }
    bool squawkExpired() const { return hasExpired(m_squawkTime, ValueLife); }

    // 0 none, 1 general, 2 medical, 3 fuel, 4 radio, 5 unlawful interference, 6 downed, as heard in the last minute.
    std::uint8_t emergency() const { return isFresh(m_emergencyTime, EmergencyLife) ? m_emergency : 0; }

    double latitude() const { return m_position ? m_position->latitude : 0; } // degrees, WGS-84
    double longitude() const { return m_position ? m_position->longitude : 0; }
    bool positionValid() const { return m_position && isFresh(m_positionTime, PositionLife); }
    bool positionExpired() const { return hasExpired(m_positionTime, PositionLife); }
    unsigned long long positionTime() const { return m_positionTime.value_or(0); } // milliseconds

    int altitudeBaro() const { return m_altitude.value_or(0); } // feet
    bool altitudeBaroValid() const { return isFresh(m_altitudeTime, ValueLife); }

    double groundSpeed() const { return m_groundSpeed.value_or(0); } // knots
    bool groundSpeedValid() const { return m_groundSpeed && isFresh(m_movementTime, ValueLife); }

    double heading() const { return m_heading.value_or(0); } // degrees: track over ground, else heading
    bool headingValid() const { return m_heading && isFresh(m_movementTime, ValueLife); }

    int verticalRate() const { return m_verticalRate.value_or(0); } // feet per minute
    bool verticalRateValid() const { return m_verticalRate && isFresh(m_movementTime, ValueLife); }

    bool onGround() const { return m_isOnGround; }
    unsigned long long lastSeen() const { return m_lastSeen; } // milliseconds

private:
    friend class ADSBTracker;

    using Time = std::optional<unsigned long long>; // milliseconds; empty: never

    // Either way round: the clock of the messages goes back when a recording is played from further ahead.
    bool isFresh(const Time &time, unsigned long long life) const
    {
        return time && (*time < m_lastSeen ? m_lastSeen - *time : *time - m_lastSeen) <= life;
    }
    bool hasExpired(const Time &time, unsigned long long life) const { return time && !isFresh(time, life); }

    // The newest report of one set of zones.
    struct Report {
        CprPosition position;
        unsigned long long time = 0;
    };

    std::uint32_t m_address = 0;
    bool m_isAddressValid = false;
    bool m_isOnGround = false;
    std::string m_callsign;
    Time m_callsignTime;
    std::optional<std::uint16_t> m_squawk;
    Time m_squawkTime;
    std::uint8_t m_emergency = 0;
    Time m_emergencyTime;
    std::optional<LatLon> m_position; // kept beyond its life: it vouches for the next
    Time m_positionTime; // kept when the position is given up
    std::optional<Report> m_reports[2]; // even, odd
    int m_refusedPositions = 0; // one after the other
    std::optional<int> m_altitude;
    Time m_altitudeTime;
    std::optional<double> m_groundSpeed;
    std::optional<double> m_heading;
    std::optional<int> m_verticalRate;
    Time m_movementTime; // of the three
    unsigned long long m_lastSeen = 0;
};

} // namespace korvane::modes
