#include "traffic/traffic_source.h"

#include "traffic/adsb_station.h"
#include "traffic/mlat_station.h"
#include "traffic/mode_s_receiver.h"
#include "traffic/radar_station.h"
#include "traffic/safety_net_station.h"
#include "traffic/sdps_station.h"
#include "traffic/smr_station.h"
#include "traffic/video_station.h"
#include "traffic/weather_station.h"

#include <algorithm>

namespace {

constexpr double LingeringLooks = 2.5; // leaves each station two looks at a target whose route has ended

} // namespace

TrafficSource::TrafficSource(const Scenario &scenario, std::uint64_t seed) : m_traffic(scenario, seed)
{
    addTrackers(scenario, seed);
    addOthers(scenario, seed);
    double longest = 0;
    for (const Place &place : m_stations) {
        longest = std::max(longest, place.station->lookInterval());
    }
    m_traffic.setLingering(LingeringLooks * longest);
}

void TrafficSource::add(const ScenarioSource &source, std::unique_ptr<TrafficStation> station)
{
    if (!m_indices.contains(source.name)) {
        m_indices.insert(source.name, m_stations.size());
    }
    m_stations.push_back({std::move(station), source.portOffset});
}

void TrafficSource::addTrackers(const Scenario &scenario, std::uint64_t seed)
{
    for (std::size_t i = 0; i < scenario.radars.size(); ++i) {
        add(scenario.radars[i], std::make_unique<RadarStation>(scenario, i, seed));
    }
    for (const ScenarioMlat &mlat : scenario.mlat) {
        add(mlat, std::make_unique<MlatStation>(mlat, scenario));
    }
    for (const ScenarioSdps &sdps : scenario.sdps) {
        add(sdps, std::make_unique<SdpsStation>(sdps, scenario));
    }
    for (const ScenarioSmr &smr : scenario.smr) {
        add(smr, std::make_unique<SmrStation>(smr, scenario));
    }
    for (const ScenarioAdsb &adsb : scenario.adsb) {
        add(adsb, std::make_unique<AdsbStation>(adsb, scenario));
    }
    for (const ScenarioModeSReceiver &receiver : scenario.modeSReceivers) {
        add(receiver, std::make_unique<ModeSReceiver>(receiver, scenario));
    }
}

void TrafficSource::addOthers(const Scenario &scenario, std::uint64_t seed)
{
    for (const ScenarioSafetyNet &net : scenario.safetyNets) {
        const TrafficStation &tracks = *m_stations[m_indices.value(net.tracksOf, 0)].station;
        add(net, std::make_unique<SafetyNetStation>(net, scenario, tracks));
    }
    for (std::size_t i = 0; i < scenario.weatherRadars.size(); ++i) {
        add(scenario.weatherRadars[i], std::make_unique<WeatherStation>(scenario, i, seed));
    }
    for (std::size_t i = 0; i < scenario.videoRadars.size(); ++i) {
        add(scenario.videoRadars[i], std::make_unique<VideoStation>(scenario, i, seed));
    }
}

double TrafficSource::nextTime() const
{
    return m_stations[nextStation()].station->nextTime();
}

TrafficSource::Sending TrafficSource::next()
{
    const std::size_t index = nextStation();
    TrafficStation &station = *m_stations[index].station;
    const double time = station.nextTime();
    m_traffic.advanceTo(time);
    return {time, index, m_stations[index].portOffset, &station.next(m_traffic)};
}

std::size_t TrafficSource::nextStation() const
{
    const auto sooner = [](const Place &a, const Place &b) { return a.station->nextTime() < b.station->nextTime(); };
    return static_cast<std::size_t>(
        std::min_element(m_stations.begin(), m_stations.end(), sooner) - m_stations.begin());
}
