#pragma once

#include "traffic/datagram_packer.h"
#include "traffic/day_clock.h"
#include "traffic/storm_cells.h"
#include "traffic/traffic_station.h"

#include "asterix/encoder.h"

#include <array>

// A weather radar: each period a picture in category 008, between its start and end messages polar vectors, level by
// level.
class WeatherStation final : public TrafficStation {
public:
    // index: of the weather radar in the scenario; gives it weather of its own.
    WeatherStation(const Scenario &scenario, std::size_t index, std::uint64_t seed);

    double nextTime() const final;
    const std::vector<QByteArray> &next(const AirTraffic &traffic) final;

    // The weather at the time of the last picture.
    const StormCells &cells() const { return m_cells; }

private:
    struct Vector {
        int from = 0; // in steps
        int to = 0;
        double azimuth = 0; // degrees
    };
    using Levels = std::array<std::vector<Vector>, StormCells::HighestLevel + 1>;

    Levels scan() const;
    void writeVectors(int level, const std::vector<Vector> &vectors);
    void beginMessage(int messageType);
    void endMessage();

    ScenarioWeatherRadar m_radar;
    DayClock m_clock;
    StormCells m_cells;
    int m_scale = 0; // exponent: a step of range is 2^(m_scale - 7) nautical miles
    std::int64_t m_pictures = 0;
    korvane::asterix::BlockEncoder m_encoder;
    DatagramPacker m_packer;
};
