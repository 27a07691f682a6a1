#include "traffic/radar_station.h"

#include "traffic/datagram_maker.h"
#include "traffic/sir_m_maker.h"

namespace {

std::unique_ptr<SectorWriter> makeWriter(const ScenarioRadar &radar, const QDateTime &startTime)
{
    if (radar.category == ScenarioRadar::TargetCategory::SirM) {
        return std::make_unique<SirMMaker>(radar, startTime);
    }
    return std::make_unique<DatagramMaker>(radar, startTime);
}

} // namespace

RadarStation::RadarStation(const Scenario &scenario, std::size_t index, std::uint64_t seed)
    : m_model(scenario.radars[index], index, seed, scenario.magneticVariation),
      m_writer(makeWriter(scenario.radars[index], scenario.startTime))
{
}

const std::vector<QByteArray> &RadarStation::next(const AirTraffic &traffic)
{
    return m_writer->datagrams(m_model.enterSector(traffic));
}
