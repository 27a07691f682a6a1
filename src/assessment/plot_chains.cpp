#include "assessment/plot_chains.h"

#include "geo/wgs84.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

constexpr int MostTurns = 5; // without a detection; a chain that is longer without is over
constexpr double SameTurn = 0.5; // of a turn: what comes sooner is the same look of the antenna
constexpr std::size_t MostChains = 20000;
constexpr std::size_t MostLoners = 4096;
constexpr double FastestTarget = 500.0; // metres per second, of targets without a transponder
constexpr double ChainSpeed = 1000.0; // beyond which a chain has jumped to another target
constexpr double Tolerance = 1000.0; // metres, of the measurement
constexpr double PrimaryShare = 0.99;

enum class KeyKind : quint64 { Address = 1, TrackNumber, Squawk };

quint64 keyOfKind(KeyKind kind, unsigned value)
{
    return static_cast<quint64>(kind) << 32 | value;
}

double distanceBetween(double range, double azimuth, double otherRange, double otherAzimuth)
{
    const double angle = wgs84::radians(azimuth - otherAzimuth);
    return std::sqrt(std::max(range * range + otherRange * otherRange - 2 * range * otherRange * std::cos(angle), 0.0));
}

} // namespace

std::optional<quint64> PlotChains::keyOf(const RadarPlot &plot)
{
    if (plot.address.value_or(0) != 0) {
        return keyOfKind(KeyKind::Address, *plot.address);
    }
    if (plot.trackNumber) {
        return keyOfKind(KeyKind::TrackNumber, *plot.trackNumber);
    }
    return plot.squawk ? std::optional(keyOfKind(KeyKind::Squawk, *plot.squawk)) : std::nullopt;
}

// A target that only the primary radar detected has its track number and no address in this turn.
std::optional<quint64> PlotChains::chainKey(const RadarPlot &plot)
{
    std::optional<quint64> key = keyOf(plot);
    if (!plot.trackNumber) {
        return key;
    }
    if (plot.address) {
        m_chainOfNumber[*plot.trackNumber] = *key;
    } else if (const auto known = m_chainOfNumber.find(*plot.trackNumber); known != m_chainOfNumber.end()) {
        key = known->second;
    }
    return key;
}

bool PlotChains::isRepeated(const RadarPlot &plot, const std::optional<quint64> &key) const
{
    const auto isSame = [&plot](const auto &last) {
        return last.time == plot.time && last.range == plot.range && last.azimuth == plot.azimuth;
    };
    if (!key) {
        return std::any_of(m_loners.begin(), m_loners.end(), isSame);
    }
    const auto known = m_chains.find(*key);
    return known != m_chains.end() && isSame(known->second);
}

bool PlotChains::add(const RadarPlot &plot, double period)
{
    if (period <= 0.0) {
        return true;
    }
    const std::optional<quint64> key = chainKey(plot);
    if (isRepeated(plot, key)) {
        return false;
    }
    m_begin = m_begin.value_or(plot.time);
    m_end = std::max(m_end, plot.time);
    ++m_false.plots;
    if (plot.primary) {
        const auto mile = static_cast<std::size_t>(plot.range / wgs84::MetresPerNauticalMile);
        ++m_primaryHits[std::min(mile, m_primaryHits.size() - 1)];
    }
    if (!key) {
        addLoner(plot, period);
        return true;
    }
    const auto known = m_chains.find(*key);
    if (known != m_chains.end()) {
        addToChain(known->second, plot, period);
    } else if (m_chains.size() < MostChains) {
        begin(m_chains[*key], plot);
    }
    return true;
}

void PlotChains::addToChain(Chain &chain, const RadarPlot &plot, double period)
{
    const double since = plot.time - chain.time;
    const double distance = distanceBetween(plot.range, plot.azimuth, chain.range, chain.azimuth);
    if (std::abs(since) < SameTurn * period) {
        // Where the chain is, it is one target seen twice; elsewhere another with the same code.
        m_false.doubled += plot.address || distance < Tolerance;
        m_grid.at(plot.range, plot.azimuth).falsePlots += plot.address || distance < Tolerance;
        return;
    }
    const int turns = static_cast<int>(std::lround(std::min(since / period, 1e6)));
    const bool isOther = turns < 1 || turns > MostTurns || distance > Tolerance + ChainSpeed * since;
    if (isOther) {
        if (chain.plots == 1 && chain.time > *m_begin + MostTurns * period) {
            countFalse(chain.range, chain.azimuth);
        }
        begin(chain, plot);
        return;
    }
    chain.transponder = chain.transponder || plot.secondary;
    if (chain.time >= m_silenceEnd || plot.time < m_silenceEnd) {
        countLooks(chain, plot, turns);
    }
    chain.time = plot.time;
    chain.range = plot.range;
    chain.azimuth = plot.azimuth;
    ++chain.plots;
}

// The places of turns without a detection lie on the way between the two detections.
void PlotChains::countLooks(const Chain &chain, const RadarPlot &plot, int turns)
{
    for (int turn = 1; turn <= turns; ++turn) {
        const double part = static_cast<double>(turn) / turns;
        const double turned = std::remainder(plot.azimuth - chain.azimuth, 360.0) * part;
        const double azimuth = std::fmod(chain.azimuth + turned + 360.0, 360.0);
        DetectionGrid::Cell &cell = m_grid.at(chain.range + (plot.range - chain.range) * part, azimuth);
        const bool isHit = turn == turns;
        ++cell.looks;
        cell.hits += isHit;
        cell.primaryHits += isHit && plot.primary;
        cell.secondaryLooks += chain.transponder;
        cell.secondaryHits += isHit && plot.secondary;
    }
}

void PlotChains::begin(Chain &chain, const RadarPlot &plot)
{
    chain = {plot.time, plot.range, plot.azimuth, 1, plot.secondary};
}

void PlotChains::addLoner(const RadarPlot &plot, double period)
{
    Loner added{plot.time, plot.range, plot.azimuth, false};
    for (Loner &loner : m_loners) {
        const double since = std::abs(plot.time - loner.time);
        const double distance = distanceBetween(plot.range, plot.azimuth, loner.range, loner.azimuth);
        if (since >= SameTurn * period && distance <= Tolerance + FastestTarget * since) {
            loner.inCompany = true;
            added.inCompany = true;
        }
    }
    if (m_loners.size() < MostLoners) {
        m_loners.push_back(added);
    }
}

void PlotChains::countFalse(double range, double azimuth)
{
    ++m_false.lone;
    ++m_grid.at(range, azimuth).falsePlots;
}

void PlotChains::settle(double now, double period)
{
    const double over = (MostTurns + 0.5) * period;
    std::erase_if(m_chains, [&](const auto &entry) {
        const Chain &chain = entry.second;
        const bool isOver = now - chain.time > over;
        if (isOver && chain.plots == 1 && chain.time > m_begin.value_or(0.0) + over) {
            countFalse(chain.range, chain.azimuth);
        }
        return isOver;
    });
    std::erase_if(m_chainOfNumber, [this](const auto &entry) { return !m_chains.contains(entry.second); });
    std::erase_if(m_loners, [&](const Loner &loner) {
        const bool isOver = now - loner.time > 2.5 * period;
        if (isOver && !loner.inCompany) {
            countFalse(loner.range, loner.azimuth);
        }
        return isOver;
    });
}

DetectionReport PlotChains::detection() const
{
    DetectionReport report{m_grid, 0.0};
    const qint64 all = std::accumulate(m_primaryHits.begin(), m_primaryHits.end(), qint64(0));
    qint64 within = 0;
    for (std::size_t mile = 0; mile < m_primaryHits.size() && all > 0; ++mile) {
        within += m_primaryHits[mile];
        if (static_cast<double>(within) >= PrimaryShare * static_cast<double>(all)) {
            report.primaryRange = static_cast<double>(mile + 1) * wgs84::MetresPerNauticalMile;
            break;
        }
    }
    return report;
}

FalsePlotReport PlotChains::falsePlots(double period) const
{
    FalsePlotReport report = m_false;
    report.turns = period > 0.0 && m_begin ? (m_end - *m_begin) / period : 0.0;
    return report;
}
