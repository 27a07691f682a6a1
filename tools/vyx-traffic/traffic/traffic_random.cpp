#include "traffic/traffic_random.h"

namespace {

// Spreads neighbouring seeds and streams over the whole state space.
std::uint64_t mixed(std::uint64_t value)
{
    value += 0x9E3779B97F4A7C15ULL;
    value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9ULL;
    value = (value ^ (value >> 27)) * 0x94D049BB133111EBULL;
    return value ^ (value >> 31);
}

} // namespace

TrafficRandom::TrafficRandom(std::uint64_t seed, std::uint64_t stream) : m_engine(mixed(seed) ^ mixed(~stream)) { }

double TrafficRandom::uniform()
{
    return static_cast<double>(m_engine() >> 11) * 0x1p-53;
}

int TrafficRandom::integer(int low, int high)
{
    return low + static_cast<int>(uniform() * (static_cast<double>(high) - low + 1));
}

double TrafficRandom::normal()
{
    // Twelve uniform numbers have a variance of one: near enough to the bell for measurement noise.
    double sum = -6;
    for (int i = 0; i < 12; ++i) {
        sum += uniform();
    }
    return sum;
}
