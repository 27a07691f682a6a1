#pragma once

#include "traffic/mode_s_registers.h"
#include "traffic/scenario.h"
#include "traffic/traffic_station.h"

#include "modes/encoder.h"

#include <string>

// A Mode S receiver: the squitters of all aircraft with such a transponder in its reach, and their replies to radars
// that are not part of the scenario. Ten times a second the frames of a tenth are sent, as many as fit in a
// datagram.
class ModeSReceiver final : public TrafficStation {
public:
    ModeSReceiver(const ScenarioModeSReceiver &receiver, const Scenario &scenario);

    double nextTime() const final;
    const std::vector<QByteArray> &next(const AirTraffic &traffic) final;
    double lookInterval() const final;

private:
    bool hears(const AirTarget &target) const;
    void receive(const AirTarget &target, double time);
    void receiveSquitters(const AirTarget &target, int phase, double time);
    void receiveReplies(const AirTarget &target, int phase, double time);
    void append(korvane::modes::ModeSFrame frame, const AirTarget &target, double time);

    ScenarioModeSReceiver m_receiver;
    double m_magneticVariation;
    std::int64_t m_tick = 0;
    int m_framesOfTarget = 0; // in this tick
    std::string m_octets;
    std::vector<QByteArray> m_datagrams;
};
