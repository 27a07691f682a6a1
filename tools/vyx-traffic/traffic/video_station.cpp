#include "traffic/video_station.h"

#include "traffic/earth.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <span>

namespace {

constexpr std::uint64_t FirstVideoStream = 400;
constexpr std::uint64_t VideoMessage = 2;
constexpr std::uint64_t EightBits = 4; // resolution code
constexpr std::size_t BlockOctets = 64; // of I240/051
constexpr int MostBatches = 64; // a turn
constexpr double HalfLightSpeed = 299792458 / 2.0; // metres per second
constexpr double FemtosecondsASecond = 1e15;
constexpr double AzimuthUnits = 65536; // a turn
constexpr double StrongestEcho = 245;
constexpr double WeakeningAtRange = 0.4; // of echoes at the end of the range
constexpr double PulseMetres = 220; // half width of an echo in range
constexpr double StrongestClutter = 190;
constexpr double HillMiles = 1.6; // size of what gives clutter
constexpr int Highest = 255;

// 0 to 1, the same for the same corner.
double lattice(std::int64_t x, std::int64_t y, std::uint64_t seed)
{
    std::uint64_t mixed = seed ^ static_cast<std::uint64_t>(x) * 0x9E3779B97F4A7C15ULL
        ^ static_cast<std::uint64_t>(y) * 0xC2B2AE3D27D4EB4FULL;
    mixed = (mixed ^ mixed >> 29) * 0xBF58476D1CE4E5B9ULL;
    mixed = (mixed ^ mixed >> 32) * 0x94D049BB133111EBULL;
    return static_cast<double>(mixed >> 40) / (1 << 24);
}

// Hills: smooth between the corners of a square lattice.
double terrain(double x, double y, std::uint64_t seed)
{
    const double left = std::floor(x);
    const double bottom = std::floor(y);
    const auto eased = [](double part) { return part * part * (3 - 2 * part); };
    const double right = eased(x - left);
    const double up = eased(y - bottom);
    const auto column = static_cast<std::int64_t>(left);
    const auto row = static_cast<std::int64_t>(bottom);
    const auto along = [&](std::int64_t line) {
        return std::lerp(lattice(column, line, seed), lattice(column + 1, line, seed), right);
    };
    return std::lerp(along(row), along(row + 1), up);
}

unsigned char added(unsigned char amplitude, double more)
{
    return static_cast<unsigned char>(std::clamp(amplitude + more, 0.0, static_cast<double>(Highest)));
}

} // namespace

VideoStation::VideoStation(const Scenario &scenario, std::size_t index, std::uint64_t seed)
    : m_radar(scenario.videoRadars[index]), m_clock(scenario.startTime), m_random(seed, FirstVideoStream + index),
      m_cellMetres(m_radar.range * Earth::MetresPerNauticalMile / m_radar.cells),
      m_batches(std::min(m_radar.radials, MostBatches)), m_encoder(240)
{
    const auto cells = static_cast<std::size_t>(m_radar.cells);
    m_cells.resize((cells + BlockOctets - 1) / BlockOctets * BlockOctets);
    makeNoise();
    makeClutter(seed);
}

// Receiver noise behind an envelope detector.
void VideoStation::makeNoise()
{
    for (std::size_t i = 0; i < m_noise.size(); ++i) {
        const double probability = (static_cast<double>(i) + 0.5) / static_cast<double>(m_noise.size());
        m_noise[i] = added(0, m_radar.noise * std::sqrt(-std::log(1 - probability)));
    }
}

void VideoStation::makeClutter(std::uint64_t seed)
{
    const double range = std::min(m_radar.clutterRange, m_radar.range);
    m_clutterCells = static_cast<int>(range * Earth::MetresPerNauticalMile / m_cellMetres);
    m_clutter.reserve(static_cast<std::size_t>(m_radar.radials) * static_cast<std::size_t>(m_clutterCells));
    for (int radial = 0; radial < m_radar.radials; ++radial) {
        const double azimuth = Earth::radians((radial + 0.5) * 360 / m_radar.radials);
        for (int cell = 0; cell < m_clutterCells; ++cell) {
            const double miles = (cell + 0.5) * m_cellMetres / Earth::MetresPerNauticalMile;
            const double x = miles * std::sin(azimuth) / HillMiles;
            const double y = miles * std::cos(azimuth) / HillMiles;
            const double hill = 0.65 * terrain(x, y, seed) + 0.35 * terrain(3.1 * x, 3.1 * y, seed + 1);
            const double fading = 1 - miles / range;
            m_clutter.push_back(added(0, StrongestClutter * 3 * std::max(hill - 0.8 + 0.45 * fading, 0.0)));
        }
    }
}

double VideoStation::nextTime() const
{
    return static_cast<double>(m_batch + 1) * m_radar.rotationPeriod / m_batches;
}

// The radials that the antenna has swept since the batch before.
const std::vector<QByteArray> &VideoStation::next(const AirTraffic &traffic)
{
    const auto batch = static_cast<int>(m_batch % m_batches);
    const std::vector<Echo> echoes = this->echoes(traffic);
    m_datagrams.clear();
    const int end = (batch + 1) * m_radar.radials / m_batches;
    for (int radial = batch * m_radar.radials / m_batches; radial < end; ++radial) {
        paintRadial(radial, echoes);
        const double turns = static_cast<double>(m_batch / m_batches) + (radial + 1.0) / m_radar.radials;
        m_datagrams.push_back(encodeRadial(radial, turns * m_radar.rotationPeriod));
    }
    ++m_batch;
    return m_datagrams;
}

std::vector<VideoStation::Echo> VideoStation::echoes(const AirTraffic &traffic) const
{
    std::vector<Echo> echoes;
    for (const AirTarget &target : traffic.targets()) {
        const Aircraft::State &state = target.aircraft.state();
        if (!target.flight->primaryEcho || target.flight->vehicle || target.endedAt) {
            continue;
        }
        const double distance = Earth::distance(m_radar.latitude, m_radar.longitude, state.latitude, state.longitude);
        const double miles = distance / Earth::MetresPerNauticalMile;
        if (miles > m_radar.range || miles > Earth::radioHorizon(state.altitude, m_radar.antennaAltitude)) {
            continue;
        }
        const double height = state.altitude * Earth::MetresPerFoot - m_radar.antennaAltitude;
        echoes.push_back({Earth::bearing(m_radar.latitude, m_radar.longitude, state.latitude, state.longitude),
            std::hypot(distance, height) / m_cellMetres,
            StrongestEcho * (1 - WeakeningAtRange * miles / m_radar.range)});
    }
    return echoes;
}

void VideoStation::paintRadial(int radial, const std::vector<Echo> &echoes)
{
    paintNoise();
    paintClutter(radial);
    const double azimuth = (radial + 0.5) * 360 / m_radar.radials;
    for (const Echo &echo : echoes) {
        if (std::abs(Earth::turnBetween(azimuth, echo.azimuth)) < 1.5 * m_radar.beamWidth) {
            paintEcho(echo, azimuth);
        }
    }
    std::fill(m_cells.begin() + m_radar.cells, m_cells.end(), static_cast<unsigned char>(0));
}

void VideoStation::paintNoise()
{
    constexpr std::size_t CellsADraw = 6;
    std::uint64_t drawn = 0;
    for (std::size_t i = 0; i < m_cells.size(); ++i) {
        if (i % CellsADraw == 0) {
            drawn = static_cast<std::uint64_t>(m_random.uniform() * 0x1p48);
        }
        m_cells[i] = m_noise[drawn & 0xFF];
        drawn >>= 8;
    }
}

// Flutters a little with the noise that it covers.
void VideoStation::paintClutter(int radial)
{
    const auto cells = static_cast<std::size_t>(m_clutterCells);
    const unsigned char *clutter = m_clutter.data() + static_cast<std::size_t>(radial) * cells;
    for (std::size_t i = 0; i < cells; ++i) {
        m_cells[i] = added(m_cells[i], clutter[i]);
    }
}

// The beam weighs an echo on the way out and on the way back.
void VideoStation::paintEcho(const Echo &echo, double azimuth)
{
    const double off = Earth::turnBetween(azimuth, echo.azimuth) / m_radar.beamWidth;
    const double amplitude = echo.amplitude * std::exp(-4 * std::numbers::ln2 * off * off);
    const double width = std::max(PulseMetres / m_cellMetres, 0.8); // cells
    const int last = std::min(static_cast<int>(std::ceil(echo.cell + 2 * width)), m_radar.cells - 1);
    for (int cell = std::max(static_cast<int>(echo.cell - 2 * width), 0); cell <= last; ++cell) {
        const double away = (cell + 0.5 - echo.cell) / width;
        const auto i = static_cast<std::size_t>(cell);
        m_cells[i] = std::max(m_cells[i], added(0, amplitude * std::exp(-std::numbers::ln2 * away * away)));
    }
}

QByteArray VideoStation::encodeRadial(int radial, double time)
{
    const auto azimuthBits = [this](int border) {
        return static_cast<std::uint64_t>(std::llround(border * AzimuthUnits / m_radar.radials)) & 0xFFFF;
    };
    m_encoder.beginBlock();
    m_encoder.beginRecord();
    m_encoder.setRaw("010/SAC", m_radar.sac);
    m_encoder.setRaw("010/SIC", m_radar.sic);
    m_encoder.setRaw("000", VideoMessage);
    m_encoder.setRaw("020", m_sequence++);
    m_encoder.setRaw("041/STARTAZ", azimuthBits(radial));
    m_encoder.setRaw("041/ENDAZ", azimuthBits(radial + 1));
    m_encoder.setRaw("041/STARTRG", 0);
    m_encoder.set("041/CELLDUR", std::round(m_cellMetres / HalfLightSpeed * FemtosecondsASecond));
    m_encoder.setRaw("048/C", 0);
    m_encoder.setRaw("048/RES", EightBits);
    m_encoder.setRaw("049/NBVB", static_cast<std::uint64_t>(m_radar.cells));
    m_encoder.setRaw("049/NBCELLS", static_cast<std::uint64_t>(m_radar.cells));
    for (std::size_t at = 0; at < m_cells.size(); at += BlockOctets) {
        m_encoder.setExplicit("051", std::span(m_cells).subspan(at, BlockOctets));
    }
    m_encoder.setRaw("140", m_clock.timeBits(time));
    m_encoder.endRecord();
    const std::span<const unsigned char> block = m_encoder.block();
    return {reinterpret_cast<const char *>(block.data()), static_cast<qsizetype>(block.size())};
}
