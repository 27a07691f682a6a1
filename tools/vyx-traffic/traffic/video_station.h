#pragma once

#include "traffic/day_clock.h"
#include "traffic/traffic_random.h"
#include "traffic/traffic_station.h"

#include "asterix/encoder.h"

#include <array>
#include <vector>

// The video of a primary radar in category 240, one radial of 8-bit cells a datagram: noise, the clutter of the ground
// around the antenna, and the echoes of the flights as wide as the beam.
class VideoStation final : public TrafficStation {
public:
    // index: of the video radar in the scenario; gives it a noise of its own.
    VideoStation(const Scenario &scenario, std::size_t index, std::uint64_t seed);

    double nextTime() const final;
    const std::vector<QByteArray> &next(const AirTraffic &traffic) final;
    double lookInterval() const final { return m_radar.rotationPeriod; }

private:
    struct Echo {
        double azimuth = 0; // degrees
        double cell = 0;
        double amplitude = 0;
    };

    void makeNoise();
    void makeClutter(std::uint64_t seed);
    std::vector<Echo> echoes(const AirTraffic &traffic) const;
    void paintRadial(int radial, const std::vector<Echo> &echoes);
    void paintNoise();
    void paintClutter(int radial);
    void paintEcho(const Echo &echo, double azimuth);
    QByteArray encodeRadial(int radial, double time);

    ScenarioVideoRadar m_radar;
    DayClock m_clock;
    TrafficRandom m_random;
    double m_cellMetres = 0;
    int m_batches = 0; // a turn
    std::int64_t m_batch = 0; // since the start
    std::uint32_t m_sequence = 0;
    std::array<unsigned char, 256> m_noise{}; // amplitudes of equal probability
    int m_clutterCells = 0;
    std::vector<unsigned char> m_clutter; // amplitudes of the nearest cells of all radials
    std::vector<unsigned char> m_cells; // of the radial at hand, whole video blocks
    korvane::asterix::BlockEncoder m_encoder;
    std::vector<QByteArray> m_datagrams;
};
