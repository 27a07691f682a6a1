#pragma once

#include "traffic/scenario.h"
#include "traffic/traffic_random.h"

#include <vector>

// Storm cells that are born, grow, move with the wind and decay; as one ends another begins. The plane is that around
// the weather radar, in nautical miles east and north.
class StormCells {
public:
    static constexpr int HighestLevel = 7;

    StormCells(const ScenarioWeatherRadar &radar, std::uint64_t seed, std::size_t index);

    // Seconds from the scenario's start; not before the time of the call before.
    void advanceTo(double time);

    // A run of one intensity along an azimuth.
    struct Run {
        int level = 0; // 1 to 7
        int from = 0; // in steps from the radar on
        int to = 0; // excluded
    };
    // What the radar sees at an azimuth in degrees, nearest first.
    std::vector<Run> runs(double azimuth, double stepMiles, int steps) const;
    // 0 to 7.
    int levelAt(double east, double north) const;

private:
    // A cell is a handful of round lobes side by side.
    struct Lobe {
        double east = 0; // miles, from the middle of the cell
        double north = 0;
        double radius = 0;
        double strength = 0; // 0 to 1
    };
    struct Cell {
        double east = 0; // where it was born
        double north = 0;
        double born = 0; // seconds
        double life = 0;
        std::vector<Lobe> lobes;
    };
    struct Blob { // a lobe as it is at the moment
        double east = 0;
        double north = 0;
        double radius = 0;
        double strength = 0;
    };

    Cell makeCell(double born);
    void placeBlobs(const Cell &cell);

    ScenarioWeatherRadar m_radar;
    TrafficRandom m_random;
    double m_now = 0;
    std::vector<Cell> m_cells;
    std::vector<Blob> m_blobs;
};
