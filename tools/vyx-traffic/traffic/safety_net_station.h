#pragma once

#include "traffic/conflict.h"
#include "traffic/datagram_packer.h"
#include "traffic/day_clock.h"
#include "traffic/traffic_station.h"

#include "asterix/encoder.h"

#include <compare>
#include <map>

// A safety net server: watches the tracks of another source for predicted conflicts (STCA), for flight below minimum
// altitudes (MSAW) and in restricted areas (APW), and sends category 004: a message for each alert at each look, one
// when it is over, and alive messages.
class SafetyNetStation final : public TrafficStation {
public:
    // tracks: outlives this.
    SafetyNetStation(const ScenarioSafetyNet &net, const Scenario &scenario, const TrafficStation &tracks);

    double nextTime() const final;
    const std::vector<QByteArray> &next(const AirTraffic &traffic) final;

private:
    using Targets = std::vector<const AirTarget *>; // with a track number

    // What an alert is about: two aircraft, or an aircraft and the place of an area in its list.
    struct Subject {
        int messageType = 0;
        std::uint64_t target = 0;
        std::uint64_t other = 0;

        auto operator<=>(const Subject &) const = default;
    };
    struct Alert {
        std::uint16_t id = 0;
        std::uint16_t trackNumber = 0;
        std::uint16_t otherTrackNumber = 0; // 0: none
        double lastTime = -1; // of the last look that found it
    };

    void sendAlive(double time);
    void watchConflicts(const Targets &targets, double time);
    void watchAreas(const Targets &targets, const std::vector<ScenarioArea> &areas, int messageType, double time);
    void sendConflict(const AirTarget &one, const AirTarget &other, const Conflict &conflict, double time);
    void sendIntrusion(const AirTarget &target, const ScenarioArea &area, std::size_t index, int messageType,
        double seconds, double time);
    void endOthers(double time);

    void beginMessage(int messageType, double time);
    void beginAlert(const Subject &subject, double time);
    void setAircraft(const char *item, const AirTarget &target, double seconds, double time);
    void setSeparations(const Conflict &conflict);
    void endMessage();

    ScenarioSafetyNet m_net;
    const TrafficStation &m_tracks;
    DayClock m_clock;
    std::int64_t m_looks = 0;
    double m_nextAlive = 0;
    std::uint16_t m_lastId = 0;
    std::map<Subject, Alert> m_alerts;
    korvane::asterix::BlockEncoder m_encoder;
    DatagramPacker m_packer;
};
