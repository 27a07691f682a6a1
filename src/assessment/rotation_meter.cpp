#include "assessment/rotation_meter.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double ShortestTurn = 0.4; // seconds; surface movement radars turn in one
constexpr double LongestTurn = 40.0;
constexpr double LongestPart = 1.5; // of a turn: what takes longer has a lost mark in it
constexpr qint64 LeastTurns = 3;
constexpr double StampResolution = 1.0 / 128; // seconds, of the time stamps of all categories
constexpr qint64 MostTargetsNoted = 100000;
constexpr qint64 TargetsBetweenPeriods = 500;

} // namespace

void RotationMeter::Marks::note(double time)
{
    const double turn = time - m_last;
    const bool isFirst = !m_first;
    m_first = m_first.value_or(time);
    m_last = time;
    const double longest = m_turns >= LeastTurns ? LongestPart * mean() : LongestTurn;
    if (isFirst || turn < ShortestTurn || turn > longest) {
        return;
    }
    const double before = m_turns > 0 ? mean() : turn;
    ++m_turns;
    m_sum += turn;
    m_squares += (turn - before) * (turn - mean());
    m_shortest = m_turns == 1 ? turn : std::min(m_shortest, turn);
    m_longest = std::max(m_longest, turn);
    m_course.add({static_cast<float>(time), static_cast<float>(turn)});
}

// Two stamps are rounded for each turn: that alone makes it vary by their resolution over the root of six.
void RotationMeter::Marks::report(RotationReport *report) const
{
    const double variance = m_turns > 1 ? m_squares / static_cast<double>(m_turns - 1) : 0.0;
    report->turns = m_turns;
    report->period = mean();
    report->jitter = std::sqrt(std::max(variance - StampResolution * StampResolution / 6, 0.0));
    report->shortest = m_shortest;
    report->longest = m_longest;
    report->course = m_course.values();
    std::sort(report->course.begin(), report->course.end(), [](auto &a, auto &b) { return a.time < b.time; });
}

void RotationMeter::noteSector(int sector, double time)
{
    m_sector = m_sector.value_or(sector);
    if (sector == *m_sector) {
        m_sectors.note(time);
    }
}

void RotationMeter::noteTarget(quint64 key, double time)
{
    // They matter only where nothing better is sent.
    if (m_targetsNoted < MostTargetsNoted && !marks()) {
        m_targets.note(static_cast<int>(key ^ key >> 32), static_cast<qint64>(std::llround(time * 1000)));
        ++m_targetsNoted;
    }
}

const RotationMeter::Marks *RotationMeter::marks() const
{
    if (m_north.turns() >= LeastTurns) {
        return &m_north;
    }
    return m_sectors.turns() >= LeastTurns ? &m_sectors : nullptr;
}

double RotationMeter::period() const
{
    if (const Marks *measured = marks()) {
        return measured->mean();
    }
    if (m_reported > 0.0) {
        return m_reported;
    }
    if (m_targetsNoted >= m_targetPeriodOf + TargetsBetweenPeriods) {
        m_targetPeriod = m_targets.period().value_or(0.0);
        m_targetPeriodOf = m_targetsNoted;
    }
    return m_targetPeriod;
}

RotationReport RotationMeter::report() const
{
    using Basis = RotationReport::Basis;
    RotationReport report;
    if (const Marks *measured = marks()) {
        report.basis = measured == &m_north ? Basis::NorthMarkers : Basis::Sectors;
        measured->report(&report);
        return report;
    }
    report.period = m_reported > 0.0 ? m_reported : m_targets.period().value_or(0.0);
    report.basis = m_reported > 0.0 ? Basis::Reported : report.period > 0.0 ? Basis::TrackUpdates : Basis::None;
    return report;
}
