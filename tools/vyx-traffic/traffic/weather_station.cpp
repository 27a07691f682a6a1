#include "traffic/weather_station.h"

#include "traffic/target_writer.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace {

enum MessageType { PolarVectors = 1, StartOfPicture = 254, EndOfPicture = 255 };

constexpr int LargestRange = 255; // steps
constexpr std::size_t VectorsARecord = 200;
constexpr std::size_t LargestRecord = 4 * VectorsARecord + 16; // octets
constexpr std::size_t MostVectors = 65535; // that the end of a picture can count

// The finest step with which the range can be said.
int scaleFor(double range)
{
    int scale = -16;
    while (std::ldexp(LargestRange, scale - 7) < range) {
        ++scale;
    }
    return scale;
}

} // namespace

WeatherStation::WeatherStation(const Scenario &scenario, std::size_t index, std::uint64_t seed)
    : m_radar(scenario.weatherRadars[index]), m_clock(scenario.startTime), m_cells(m_radar, seed, index),
      m_scale(scaleFor(m_radar.range)), m_encoder(8), m_packer(LargestRecord)
{
}

double WeatherStation::nextTime() const
{
    return static_cast<double>(m_pictures) * m_radar.period;
}

const std::vector<QByteArray> &WeatherStation::next(const AirTraffic &)
{
    const double time = nextTime();
    m_cells.advanceTo(time);
    m_packer.begin();
    m_encoder.beginBlock();
    beginMessage(StartOfPicture);
    m_encoder.setRaw("090", m_clock.timeBits(time));
    m_encoder.set("100/F", m_scale);
    endMessage();
    const Levels levels = scan();
    std::size_t count = 0;
    for (int level = 1; level <= StormCells::HighestLevel; ++level) {
        writeVectors(level, levels[static_cast<std::size_t>(level)]);
        count += levels[static_cast<std::size_t>(level)].size();
    }
    beginMessage(EndOfPicture);
    m_encoder.setRaw("120", std::min(count, MostVectors));
    endMessage();
    m_packer.endBlock(m_encoder);
    ++m_pictures;
    return m_packer.datagrams();
}

WeatherStation::Levels WeatherStation::scan() const
{
    const double step = std::ldexp(1.0, m_scale - 7);
    const int steps = std::min(static_cast<int>(m_radar.range / step), LargestRange);
    const int azimuths = static_cast<int>(std::lround(360 / m_radar.azimuthStep));
    Levels levels;
    for (int i = 0; i < azimuths; ++i) {
        const double azimuth = i * 360.0 / azimuths;
        for (const StormCells::Run &run : m_cells.runs(azimuth, step, steps)) {
            levels[static_cast<std::size_t>(run.level)].push_back({run.from, run.to, azimuth});
        }
    }
    return levels;
}

void WeatherStation::writeVectors(int level, const std::vector<Vector> &vectors)
{
    for (std::size_t at = 0; at < vectors.size(); at += VectorsARecord) {
        beginMessage(PolarVectors);
        m_encoder.set("020/I", level);
        for (const Vector &vector : std::span(vectors).subspan(at, std::min(VectorsARecord, vectors.size() - at))) {
            m_encoder.addRepetition("034");
            m_encoder.set("034/STR", vector.from);
            m_encoder.set("034/ENDR", vector.to);
            m_encoder.setRaw("034/AZ", angleBits(vector.azimuth));
        }
        endMessage();
    }
}

void WeatherStation::beginMessage(int messageType)
{
    m_encoder.beginRecord();
    m_encoder.setRaw("010/SAC", m_radar.sac);
    m_encoder.setRaw("010/SIC", m_radar.sic);
    m_encoder.setRaw("000", static_cast<std::uint64_t>(messageType));
}

void WeatherStation::endMessage()
{
    m_encoder.endRecord();
    m_packer.recordWritten(m_encoder);
}
