#include "engine/replay_clock.h"

#include <algorithm>
#include <utility>

namespace {

constexpr qint64 SecondMs = 1000;
// Nothing lives that long without a report; after it a gap is passed over in one step.
constexpr qint64 LongestGapMs = 3600 * SecondMs;

// So many packets in a row that are that much older than the newest are no disorder: the recorder's clock was set back.
// Waiting for the time to come again would keep the picture from ageing.
constexpr qint64 LateMs = 10 * SecondMs;
constexpr int LatePackets = 50;

QDateTime timeOf(qint64 timeMs)
{
    return QDateTime::fromMSecsSinceEpoch(timeMs, Qt::UTC);
}

} // namespace

ReplayClock::ReplayClock(std::shared_ptr<Clock> clock, std::function<void()> everySecond)
    : m_clock(std::move(clock)), m_everySecond(std::move(everySecond))
{
}

void ReplayClock::begin(const QDateTime &stamp)
{
    m_begun = true;
    m_newestMs = stamp.toMSecsSinceEpoch();
    m_nextSecondMs = (m_newestMs / SecondMs + 1) * SecondMs;
    m_offsetMs = 0;
    m_latePackets = 0;
    m_clock->startRecorded(stamp);
}

void ReplayClock::reach(const QDateTime &stamp)
{
    const qint64 timeMs = pictureTime(stamp);
    m_latePackets = timeMs < m_newestMs - LateMs ? m_latePackets + 1 : 0;
    if (m_latePackets == LatePackets) {
        m_latePackets = 0;
        m_offsetMs += m_newestMs - timeMs;
    }
    m_newestMs = std::max(m_newestMs, timeMs);
    advanceTo(m_newestMs);
}

void ReplayClock::runOn(qint64 realMs, ReplaySpeed::Speed speed, const QDateTime &nextStamp)
{
    const qint64 timeMs = m_clock->nowMs() + ReplaySpeed::recorded(realMs, speed);
    advanceTo(std::min(timeMs, std::max(m_newestMs, pictureTime(nextStamp))));
}

qint64 ReplayClock::untilStamp(const QDateTime &stamp) const
{
    return std::max<qint64>(0, pictureTime(stamp) - m_newestMs);
}

void ReplayClock::advanceTo(qint64 timeMs)
{
    const qint64 lastStepMs = std::min(timeMs, m_nextSecondMs + LongestGapMs);
    for (; m_nextSecondMs <= lastStepMs; m_nextSecondMs += SecondMs) {
        m_clock->advanceTo(timeOf(m_nextSecondMs));
        m_everySecond();
    }
    m_nextSecondMs = std::max(m_nextSecondMs, (timeMs / SecondMs + 1) * SecondMs);
    m_clock->advanceTo(timeOf(timeMs));
}
