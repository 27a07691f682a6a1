#include "traffic/load_generator.h"

#include "traffic/earth.h"

#include <numbers>

namespace {

constexpr std::uint64_t LoadStream = 2;
constexpr int TrackNumbers = 4000;
constexpr std::uint32_t FirstAddress = 0x100000;

} // namespace

LoadGenerator::LoadGenerator(
    const ScenarioRadar &radar, const QDateTime &startTime, int aircraft, double reportsPerSecond, std::uint64_t seed)
    : m_random(seed, LoadStream), m_maker(radar, startTime), m_interval(1 / reportsPerSecond)
{
    for (int i = 0; i < aircraft; ++i) {
        m_aircraft.push_back(circler(i, aircraft));
    }
}

LoadGenerator::Circler LoadGenerator::circler(int index, int count)
{
    Circler circler;
    circler.range = m_random.uniform(15, 195);
    circler.azimuth = 360.0 * index / count;
    const double speed = m_random.uniform(250, 480);
    circler.degreesPerSecond = speed / 3600 / circler.range * 180 / std::numbers::pi;
    const double altitude = m_random.integer(50, 400) * 100.0;
    TargetReport &report = circler.report;
    report.trackNumber = static_cast<std::uint16_t>(1 + index % TrackNumbers);
    report.byPrimary = circler.range < 60;
    report.bySecondary = true;
    report.byModeS = true;
    report.positionValid = true;
    report.slantRange = circler.range;
    report.speed = speed;
    report.codesValid = true;
    report.squawk = static_cast<std::uint16_t>(m_random.integer(00101, 06777));
    report.flightLevelQuarters = static_cast<int>(altitude / 25);
    report.address = FirstAddress + static_cast<std::uint32_t>(index);
    report.callsign = QStringLiteral("LOD%1").arg(index);
    Aircraft::State state;
    state.altitude = altitude;
    state.speed = speed;
    report.registers = {selectedVerticalIntention(altitude), headingAndSpeed(state, 0)};
    return circler;
}

std::span<const unsigned char> LoadGenerator::next()
{
    Circler &circler = m_aircraft[m_count % m_aircraft.size()];
    TargetReport &report = circler.report;
    report.time = static_cast<double>(m_count++) * m_interval;
    report.azimuth = Earth::normalized(circler.azimuth + circler.degreesPerSecond * report.time);
    report.track = Earth::normalized(report.azimuth + 90);
    return m_maker.block(report);
}
