#pragma once

#include <QDateTime>

#include <functional>
#include <limits>
#include <memory>

// The time by which everything in the pipeline is stamped and ages, UTC. Belongs to the thread of its readers, and is
// told by its owner what kind of time it shows:
//  - live, as made: the system's UTC. It never goes back, and a step of the system's clock is worked off little by
//    little, so that nothing ages by it.
//  - held: stands still, and with it everything that ages.
//  - recorded: what advanceTo() says.
class Clock {
public:
    // Milliseconds: since 1970 UTC for the system's clock, from any origin for the monotonic one.
    using Source = std::function<qint64()>;

    Clock();
    Clock(Source system, Source monotonic);

    QDateTime now() const;
    qint64 nowMs() const;
    // What now() said last.
    qint64 lastMs() const { return m_readingMs; }

    // Whether the time is, or was when it was held, a recording's.
    bool isRecorded() const { return m_recorded; }

    // The system's UTC as it is now, whatever was shown before.
    void startLive();
    // Live time goes on where it would be had it not been held.
    void hold();
    void release() { m_held = false; }

    // A recording begins, or is played from another place: time jumps, in whichever direction.
    void startRecorded(const QDateTime &time);
    // Recorded time passes. Earlier times than now change nothing.
    void advanceTo(const QDateTime &time);

private:
    qint64 liveMs() const;

    Source m_system;
    Source m_monotonic;
    // Live time at the last reading, on both clocks.
    mutable qint64 m_liveMs = 0;
    mutable qint64 m_monotonicMs = 0;
    mutable QDateTime m_reading; // the last one: many reports come in a millisecond
    mutable qint64 m_readingMs = std::numeric_limits<qint64>::min();
    qint64 m_stillMs = 0; // recorded or held
    bool m_recorded = false;
    bool m_held = false;
};

// As managers and processors share it with the owner, who drives it.
using SharedClock = std::shared_ptr<const Clock>;
