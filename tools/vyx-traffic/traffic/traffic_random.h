#pragma once

#include <cstdint>
#include <random>

// Random numbers that are the same on every platform for the same seed: the distributions of the standard library are
// not, so they are made here, with additions and multiplications alone.
class TrafficRandom {
public:
    // Streams of one seed are independent: noise drawn for one radar does not move the traffic or another radar's.
    TrafficRandom(std::uint64_t seed, std::uint64_t stream);

    // 0 (included) to 1 (excluded).
    double uniform();
    double uniform(double low, double high) { return low + (high - low) * uniform(); }
    // low to high, both included.
    int integer(int low, int high);
    bool chance(double probability) { return uniform() < probability; }
    // Mean 0, deviation 1; never beyond 6 either way.
    double normal();

private:
    std::mt19937_64 m_engine;
};
