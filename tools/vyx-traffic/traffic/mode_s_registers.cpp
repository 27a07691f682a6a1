#include "traffic/mode_s_registers.h"

#include "traffic/earth.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double SeaLevelTemperature = 288.15; // kelvin
constexpr double TropopauseTemperature = 216.65;
constexpr double LapseRate = 0.0019812; // kelvin per foot
constexpr double Tropopause = 36089; // feet
constexpr double SeaLevelSoundSpeed = 661.47; // knots
constexpr double StandardGravity = 9.80665;

// Fills a register from its first bit on.
class RegisterWriter {
public:
    explicit RegisterWriter(std::uint8_t code) { m_register.code = code; }

    RegisterWriter &bits(std::uint64_t value, int count)
    {
        m_bits = (m_bits << count) | (value & ((1ULL << count) - 1));
        m_count += count;
        return *this;
    }

    // A status bit that is set, and the value in its units, held within its bits.
    RegisterWriter &value(double value, double lsb, int count)
    {
        const double highest = static_cast<double>((1ULL << count) - 1);
        return bits(1, 1).bits(static_cast<std::uint64_t>(std::clamp(std::round(value / lsb), 0.0, highest)), count);
    }

    // Likewise with a sign bit first, in two's complement.
    RegisterWriter &signedValue(double value, double lsb, int count)
    {
        const double highest = static_cast<double>(1ULL << count);
        const double units = std::clamp(std::round(value / lsb), -highest, highest - 1);
        return bits(1, 1).bits(static_cast<std::uint64_t>(static_cast<std::int64_t>(units)), count + 1);
    }

    ModeSRegister finished()
    {
        bits(0, 56 - m_count);
        for (std::size_t i = 0; i < m_register.octets.size(); ++i) {
            m_register.octets[i] = static_cast<std::uint8_t>(m_bits >> (48 - 8 * i));
        }
        return m_register;
    }

private:
    ModeSRegister m_register;
    std::uint64_t m_bits = 0;
    int m_count = 0;
};

double temperatureAt(double altitude)
{
    return std::max(SeaLevelTemperature - LapseRate * altitude, TropopauseTemperature);
}

// Pressure at the altitude over that at sea level, standard atmosphere.
double pressureRatioAt(double altitude)
{
    const double below = std::pow(temperatureAt(altitude) / SeaLevelTemperature, 5.25588);
    return altitude <= Tropopause ? below : below * std::exp((Tropopause - altitude) / 20806);
}

double machOf(const Aircraft::State &state)
{
    return state.speed / (SeaLevelSoundSpeed * std::sqrt(temperatureAt(state.altitude) / SeaLevelTemperature));
}

double indicatedAirspeedOf(const Aircraft::State &state)
{
    const double mach = machOf(state);
    const double impact = pressureRatioAt(state.altitude) * (std::pow(1 + 0.2 * mach * mach, 3.5) - 1);
    return SeaLevelSoundSpeed * std::sqrt(5 * (std::pow(impact + 1, 2.0 / 7) - 1));
}

// Of a coordinated turn.
double rollAngleOf(const Aircraft::State &state)
{
    const double metresPerSecond = state.speed * Earth::MetresPerNauticalMile / 3600;
    return std::atan(metresPerSecond * Earth::radians(state.turnRate) / StandardGravity) / Earth::radians(1);
}

} // namespace

ModeSRegister selectedVerticalIntention(double selectedAltitude)
{
    return RegisterWriter(0x40)
        .value(selectedAltitude, 16, 12)
        .value(selectedAltitude, 16, 12)
        .value(1013.2 - 800, 0.1, 12)
        .finished();
}

ModeSRegister trackAndTurn(const Aircraft::State &state)
{
    return RegisterWriter(0x50)
        .signedValue(rollAngleOf(state), 45.0 / 256, 9)
        .signedValue(Earth::turnBetween(0, state.track), 90.0 / 512, 10)
        .value(state.speed, 2, 10)
        .signedValue(state.turnRate, 8.0 / 256, 9)
        .value(state.speed, 2, 10)
        .finished();
}

ModeSRegister headingAndSpeed(const Aircraft::State &state, double magneticVariation)
{
    return RegisterWriter(0x60)
        .signedValue(Earth::turnBetween(0, state.track - magneticVariation), 90.0 / 512, 10)
        .value(indicatedAirspeedOf(state), 1, 10)
        .value(machOf(state), 2.048 / 512, 10)
        .signedValue(state.verticalRate, 32, 9)
        .signedValue(state.verticalRate, 32, 9)
        .finished();
}
