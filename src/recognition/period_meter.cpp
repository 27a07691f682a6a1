#include "recognition/period_meter.h"

#include <algorithm>

namespace {

constexpr qint64 ShortestTurnMs = 400; // surface movement radars turn in one second
constexpr qint64 LongestTurnMs = 40000;
constexpr std::size_t LeastTurns = 3;
constexpr std::size_t MostTurns = 4096;

} // namespace

void PeriodMeter::note(int kind, qint64 ms)
{
    const auto [last, isFirst] = m_lastMs.try_emplace(kind, ms);
    const qint64 turnMs = ms - last->second;
    last->second = ms;
    if (!isFirst && turnMs >= ShortestTurnMs && turnMs <= LongestTurnMs && m_turnsMs.size() < MostTurns) {
        m_turnsMs.push_back(turnMs);
    }
}

// The median: events that were lost make some intervals longer by whole turns.
std::optional<double> PeriodMeter::period() const
{
    if (m_turnsMs.size() < LeastTurns) {
        return std::nullopt;
    }
    std::vector<qint64> turns = m_turnsMs;
    const auto middle = turns.begin() + static_cast<std::ptrdiff_t>(turns.size() / 2);
    std::nth_element(turns.begin(), middle, turns.end());
    return static_cast<double>(*middle) / 1000.0;
}
