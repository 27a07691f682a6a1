#pragma once

#include "modes/cpr.h"

#include <cstdint>
#include <optional>
#include <string>

namespace korvane::modes {

// One aircraft or vehicle as its squitters describe it: the last value of each kind.
class ADSBTarget {
public:
    std::uint32_t icaoAddr() const { return m_address; }
    // False where the 24 bits are no aircraft address: anonymous targets, TIS-B track files.
    bool icaoAddrValid() const { return m_isAddressValid; }

    const std::string &callsign() const { return m_callsign; } // without filling
    bool callsignValid() const { return !m_callsign.empty(); }

    std::uint16_t squawk() const { return m_squawk.value_or(0); } // binary value of the octal digits
    bool squawkValid() const { return m_squawk.has_value(); }

    double latitude() const { return m_position ? m_position->latitude : 0; } // degrees, WGS-84
    double longitude() const { return m_position ? m_position->longitude : 0; }
    bool positionValid() const { return m_position.has_value(); }
    unsigned long long positionTime() const { return m_positionTime; } // milliseconds

    int altitudeBaro() const { return m_altitude.value_or(0); } // feet
    bool altitudeBaroValid() const { return m_altitude.has_value(); }

    double groundSpeed() const { return m_groundSpeed.value_or(0); } // knots
    bool groundSpeedValid() const { return m_groundSpeed.has_value(); }

    double heading() const { return m_heading.value_or(0); } // degrees: track over ground, else heading
    bool headingValid() const { return m_heading.has_value(); }

    int verticalRate() const { return m_verticalRate.value_or(0); } // feet per minute
    bool verticalRateValid() const { return m_verticalRate.has_value(); }

    bool onGround() const { return m_isOnGround; }
    unsigned long long lastSeen() const { return m_lastSeen; } // milliseconds

private:
    friend class ADSBTracker;

    // The newest report of one set of zones.
    struct Report {
        CprPosition position;
        unsigned long long time = 0;
    };

    std::uint32_t m_address = 0;
    bool m_isAddressValid = false;
    bool m_isOnGround = false;
    std::string m_callsign;
    std::optional<std::uint16_t> m_squawk;
    std::optional<LatLon> m_position;
    unsigned long long m_positionTime = 0;
    std::optional<Report> m_reports[2]; // even, odd
    int m_refusedPositions = 0; // one after the other
    std::optional<int> m_altitude;
    unsigned long long m_altitudeTime = 0;
    std::optional<double> m_groundSpeed;
    std::optional<double> m_heading;
    std::optional<int> m_verticalRate;
    unsigned long long m_lastSeen = 0;
};

} // namespace korvane::modes
