#include "traffic/traffic_source.h"

#include <algorithm>

namespace {

constexpr double LingeringTurns = 2.5; // leaves each radar two looks at a target whose route has ended

double lingering(const Scenario &scenario)
{
    double longest = 0;
    for (const ScenarioRadar &radar : scenario.radars)
        longest = std::max(longest, radar.rotationPeriod);
    return LingeringTurns * longest;
}

} // namespace

TrafficSource::TrafficSource(const Scenario &scenario, std::uint64_t seed)
    : m_traffic(scenario, seed, lingering(scenario))
{
    for (std::size_t i = 0; i < scenario.radars.size(); ++i) {
        const ScenarioRadar &radar = scenario.radars[i];
        m_stations.push_back(
            {RadarModel(radar, i, seed, scenario.magneticVariation), DatagramMaker(radar, scenario.startTime)});
    }
}

double TrafficSource::nextTime() const
{
    return m_stations[nextStation()].radar.nextSectorTime();
}

TrafficSource::Sending TrafficSource::next()
{
    const std::size_t index = nextStation();
    Station &station = m_stations[index];
    const double time = station.radar.nextSectorTime();
    m_traffic.advanceTo(time);
    return {time, index, &station.maker.datagrams(station.radar.enterSector(m_traffic))};
}

std::size_t TrafficSource::nextStation() const
{
    const auto sooner = [](const Station &a, const Station &b) {
        return a.radar.nextSectorTime() < b.radar.nextSectorTime();
    };
    return static_cast<std::size_t>(
        std::min_element(m_stations.begin(), m_stations.end(), sooner) - m_stations.begin());
}
