#include "traffic/traffic_run.h"

#include "traffic/load_generator.h"
#include "traffic/paced_clock.h"
#include "traffic/traffic_output.h"
#include "traffic/traffic_source.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double LoadTick = 0.001; // seconds between two batches
constexpr double LongestLag = 0.1; // seconds; what is later than this is not sent afterwards in one burst
constexpr std::size_t LargestBatch = 256; // datagrams handed to the system at once

// Makes and sends as many blocks as are asked for.
void sendBatch(LoadGenerator &load, TrafficOutput &output, std::size_t count, std::vector<unsigned char> &octets,
    std::vector<std::size_t> &ends)
{
    octets.clear();
    ends.assign(1, 0);
    for (std::size_t i = 0; i < count; ++i) {
        const std::span<const unsigned char> block = load.next();
        octets.insert(octets.end(), block.begin(), block.end());
        ends.push_back(octets.size());
    }
    std::vector<UdpSender::Octets> datagrams;
    datagrams.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        datagrams.emplace_back(octets.data() + ends[i], ends[i + 1] - ends[i]);
    }
    const std::size_t sent = output.sender()->sendMany(datagrams);
    output.count(sent, ends[sent], count - sent);
}

} // namespace

TrafficRun::TrafficRun(const TrafficOptions &options, Scenario scenario, const std::atomic<bool> &stop)
    : m_options(options), m_scenario(std::move(scenario)), m_stop(stop)
{
    m_scenario.seed = options.seed.value_or(m_scenario.seed);
    m_scenario.duration = options.duration.value_or(m_scenario.duration);
    m_scenario.startTime = options.startTime.value_or(m_scenario.startTime);
    if (options.wallClock) {
        m_scenario.startTime = QDateTime::currentDateTimeUtc();
    }
    for (ScenarioRadar &radar : m_scenario.radars) {
        if (radar.category != ScenarioRadar::TargetCategory::SirM) {
            radar.category = options.category.value_or(radar.category);
        }
    }
    if (!options.destination) {
        m_options.speed = 0;
    }
}

bool TrafficRun::run()
{
    if (m_options.action == TrafficOptions::Action::Load) {
        return runLoad();
    }
    if (!m_options.destination && m_scenario.duration <= 0) {
        return fail(tr("scenario %1 has no end: give --duration").arg(m_scenario.name));
    }
    return runScenario();
}

bool TrafficRun::runScenario()
{
    TrafficOutput output;
    if (!output.open(m_options)) {
        return fail(output.lastError());
    }
    TrafficSource source(m_scenario, m_scenario.seed);
    PacedClock clock(m_options.speed, m_stop);
    const double end = m_scenario.duration > 0 ? m_scenario.duration : std::numeric_limits<double>::infinity();
    double reached = 0;
    while (source.nextTime() < end) {
        const TrafficSource::Sending sending = source.next();
        if (!clock.waitFor(sending.time)) {
            break;
        }
        reached = sending.time;
        const QDateTime time = m_scenario.startTime.addMSecs(std::llround(sending.time * 1000));
        for (const QByteArray &datagram : *sending.datagrams) {
            if (!output.write(datagram, time, sending.station, sending.portOffset)) {
                return fail(output.lastError());
            }
        }
    }
    return finish(output, reached);
}

bool TrafficRun::runLoad()
{
    if (m_scenario.radars.empty()) {
        return fail(tr("scenario %1 has no radar to send load for").arg(m_scenario.name));
    }
    TrafficOutput output;
    if (!output.open(m_options)) {
        return fail(output.lastError());
    }
    LoadGenerator load(
        m_scenario.radars.front(), m_scenario.startTime, m_options.aircraft, m_options.rate, m_scenario.seed);
    PacedClock clock(1, m_stop);
    const double end = m_scenario.duration > 0 ? m_scenario.duration : std::numeric_limits<double>::infinity();
    std::vector<unsigned char> octets;
    std::vector<std::size_t> ends;
    double made = 0;
    double skipped = 0;
    for (std::int64_t tick = 0; clock.waitFor(static_cast<double>(tick) * LoadTick);) {
        const double now = clock.elapsed();
        double due = std::floor(std::min(now, end) * m_options.rate) - made - skipped;
        const double late = std::floor(due - LongestLag * m_options.rate);
        if (late > 0) {
            skipped += late;
            due -= late;
        }
        for (; due > 0; due -= static_cast<double>(LargestBatch)) {
            const double count = std::min(due, static_cast<double>(LargestBatch));
            sendBatch(load, output, static_cast<std::size_t>(count), octets, ends);
            made += count;
        }
        if (now >= end) {
            break;
        }
        tick = static_cast<std::int64_t>(now / LoadTick) + 1;
    }
    return finish(output, clock.elapsed());
}

bool TrafficRun::finish(TrafficOutput &output, double seconds)
{
    if (!output.close()) {
        return fail(output.lastError());
    }
    m_text = tr("%1: %2 in %3 s").arg(m_scenario.name, output.summary()).arg(seconds, 0, 'f', 1);
    if (m_options.action == TrafficOptions::Action::Load) {
        m_text += tr(", %1 a second").arg(static_cast<double>(output.datagrams()) / std::max(seconds, 1e-3), 0, 'f', 0);
    }
    return output.datagrams() > 0 || output.refused() == 0;
}

bool TrafficRun::fail(const QString &error)
{
    m_text = error;
    return false;
}
