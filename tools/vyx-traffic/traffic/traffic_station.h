#pragma once

#include "traffic/air_traffic.h"

#include <QByteArray>

#include <cstdint>
#include <vector>

// One sender of a scenario: a radar, a ground station, a server. It sends at moments of its own choice that follow from
// the scenario and the seed alone.
class TrafficStation {
public:
    virtual ~TrafficStation() = default;

    // Seconds from the scenario's start; never goes back.
    virtual double nextTime() const = 0;
    // What is sent at nextTime(), which is past then: none or some datagrams, valid until the next call. The traffic
    // has to be that of nextTime().
    virtual const std::vector<QByteArray> &next(const AirTraffic &traffic) = 0;
    // The longest time between two looks at one target; 0 where it looks at none.
    virtual double lookInterval() const { return 0; }
    // Under which number it reports a target at present; 0: under none.
    virtual std::uint16_t trackNumber(std::uint64_t) const { return 0; }
};
