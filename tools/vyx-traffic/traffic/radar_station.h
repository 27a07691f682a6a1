#pragma once

#include "traffic/radar_model.h"
#include "traffic/sector_writer.h"
#include "traffic/traffic_station.h"

#include <memory>

// A radar that sends, at each sector border, what it has in the format of its category.
class RadarStation final : public TrafficStation {
public:
    // index: of the radar in the scenario.
    RadarStation(const Scenario &scenario, std::size_t index, std::uint64_t seed);

    double nextTime() const final { return m_model.nextSectorTime(); }
    const std::vector<QByteArray> &next(const AirTraffic &traffic) final;
    double lookInterval() const final { return m_model.radar().rotationPeriod; }
    std::uint16_t trackNumber(std::uint64_t target) const final { return m_model.trackNumber(target); }

private:
    RadarModel m_model;
    std::unique_ptr<SectorWriter> m_writer;
};
