#include "radar_scene.h"

#include <algorithm>
#include <cmath>

RadarScene::RadarScene(int radials, int cells, double rangeMetres)
    : m_radials(radials), m_cells(cells), m_cellSize(rangeMetres / cells)
{
}

QSharedPointer<const VideoBatch> RadarScene::next(int radials)
{
    auto batch = QSharedPointer<VideoBatch>::create();
    for (int i = 0; i < radials; ++i) {
        batch->radials.append(radial(m_next++ % m_radials));
    }
    return batch;
}

VideoProcessor::Radial RadarScene::radial(int index)
{
    VideoProcessor::Radial radial;
    radial.sac = 1;
    radial.sic = 2;
    radial.startAzimuth = index * 360.0 / m_radials;
    radial.endAzimuth = std::fmod((index + 1) * 360.0 / m_radials, 360.0);
    radial.cellSize = m_cellSize;
    radial.cellCount = quint32(m_cells);
    radial.amplitudes.reserve(m_cells);
    for (int cell = 0; cell < m_cells; ++cell) {
        radial.amplitudes.append(amplitude(index, cell));
    }
    return radial;
}

unsigned char RadarScene::amplitude(int radial, int cell)
{
    const double azimuth = radial * 360.0 / m_radials;
    const double range = double(cell) / m_cells;
    double level = double(m_random() % 40);
    // Clutter falls off with range and is rough.
    if (m_random() % 3 != 0) {
        level += 220.0 * std::exp(-range * 16.0);
    }
    // A ridge to the east.
    if (azimuth > 60.0 && azimuth < 110.0 && std::abs(range - 0.55 - 0.04 * std::sin(azimuth / 5.0)) < 0.012) {
        level += double(m_random() % 150);
    }
    // Targets 1.4 degrees wide, one every 11 degrees at various ranges.
    const double fromTarget = std::fmod(azimuth, 11.0) - 5.0;
    const double targetRange = 0.2 + 0.75 * std::fmod(std::floor(azimuth / 11.0) * 0.37, 1.0);
    if (std::abs(fromTarget) < 0.7 && std::abs(range - targetRange) < 0.002) {
        level += 200.0 * (1.0 - std::abs(fromTarget));
    }
    return static_cast<unsigned char>(std::min(level, 255.0));
}

WeatherProcessor::Picture stormCells(int vectors)
{
    struct Storm {
        double azimuth;
        double range;
        double size; // nautical miles
    };
    constexpr Storm Storms[] = {{30, 45, 14}, {80, 60, 18}, {140, 25, 10}, {200, 70, 22}, {260, 40, 16}, {320, 85, 20}};
    constexpr double Step = 360.0 / 1024.0;
    WeatherProcessor::Picture picture;
    // Rings of one level around each storm's middle, cut into vectors by azimuth.
    for (int level = 1; level <= 7; ++level) {
        for (const Storm &storm : Storms) {
            const double radius = storm.size * (8.0 - level) / 7.0;
            const double half = std::asin(std::min(0.9, radius / storm.range)) * 57.29578;
            for (double off = -half; off <= half && picture.vectors.size() < vectors; off += Step) {
                const double across = storm.range * std::sin(off / 57.29578);
                const double depth = std::sqrt(std::max(0.0, radius * radius - across * across));
                const double rough = 1.0 + 0.2 * std::sin(off * 3.0 + level);
                const double azimuth = std::round((storm.azimuth + off) / Step) * Step;
                picture.vectors.append(
                    {level, std::max(0.0, storm.range - depth * rough), storm.range + depth * rough, azimuth});
            }
        }
    }
    // The rest as light rain in a belt.
    for (int i = 0; picture.vectors.size() < vectors; ++i) {
        picture.vectors.append({1, 95.0 + 4.0 * (i / 1024), 99.0 + 4.0 * (i / 1024), (i % 1024) * Step});
    }
    return picture;
}
