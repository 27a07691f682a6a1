#include "traffic/storm_cells.h"

#include "traffic/earth.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr std::uint64_t FirstStormStream = 300;
constexpr double ShortestLife = 1500; // seconds
constexpr double LongestLife = 4500;
constexpr double Reach = 2.5; // radii, beyond which a lobe has no rain
constexpr double LevelsOfStrength = 7.8; // a lobe of full strength reaches the highest level in its middle

} // namespace

StormCells::StormCells(const ScenarioWeatherRadar &radar, std::uint64_t seed, std::size_t index)
    : m_radar(radar), m_random(seed, FirstStormStream + index)
{
    // The first ones are somewhere in their lives.
    for (int i = 0; i < radar.cells; ++i) {
        m_cells.push_back(makeCell(0));
        m_cells.back().born = -m_random.uniform(0.15, 0.6) * m_cells.back().life;
    }
    advanceTo(0);
}

StormCells::Cell StormCells::makeCell(double born)
{
    Cell cell;
    const double range = m_radar.range * m_random.uniform(0.15, 0.8);
    const double azimuth = Earth::radians(m_random.uniform(0, 360));
    cell.east = range * std::sin(azimuth);
    cell.north = range * std::cos(azimuth);
    cell.born = born;
    cell.life = m_random.uniform(ShortestLife, LongestLife);
    const double size = m_radar.range * m_random.uniform(0.02, 0.06);
    const int lobes = m_random.integer(3, 6);
    for (int i = 0; i < lobes; ++i) {
        cell.lobes.push_back({m_random.uniform(-1.6, 1.6) * size, m_random.uniform(-1.2, 1.2) * size,
            m_random.uniform(0.5, 1.1) * size, m_random.uniform(0.45, 1)});
    }
    return cell;
}

void StormCells::advanceTo(double time)
{
    m_now = time;
    m_blobs.clear();
    for (Cell &cell : m_cells) {
        if (time - cell.born >= cell.life) {
            cell = makeCell(time);
        }
        placeBlobs(cell);
    }
}

// Grows to its full strength at half of its life; a strong cell is a wide one, too.
void StormCells::placeBlobs(const Cell &cell)
{
    const double age = m_now - cell.born;
    const double growth = std::sin(age / cell.life * std::numbers::pi);
    const double driven = age / 3600 * m_radar.windSpeed;
    const double towards = Earth::radians(m_radar.windDirection + 180);
    for (const Lobe &lobe : cell.lobes) {
        m_blobs.push_back(
            {cell.east + lobe.east + driven * std::sin(towards), cell.north + lobe.north + driven * std::cos(towards),
                lobe.radius * (0.4 + 0.6 * growth), lobe.strength * growth});
    }
}

int StormCells::levelAt(double east, double north) const
{
    double strength = 0;
    for (const Blob &blob : m_blobs) {
        const double x = (east - blob.east) / blob.radius;
        const double y = (north - blob.north) / blob.radius;
        const double squared = x * x + y * y;
        if (squared < Reach * Reach) {
            strength = std::max(strength, blob.strength * std::exp(-squared / 2));
        }
    }
    return std::min(static_cast<int>(strength * LevelsOfStrength), HighestLevel);
}

std::vector<StormCells::Run> StormCells::runs(double azimuth, double stepMiles, int steps) const
{
    const double east = std::sin(Earth::radians(azimuth));
    const double north = std::cos(Earth::radians(azimuth));
    std::vector<Run> runs;
    int last = 0;
    for (int step = 0; step < steps; ++step) {
        const double range = (step + 0.5) * stepMiles;
        const int level = levelAt(range * east, range * north);
        if (level > 0 && level == last) {
            runs.back().to = step + 1;
        } else if (level > 0) {
            runs.push_back({level, step, step + 1});
        }
        last = level;
    }
    return runs;
}
