#pragma once

#include "engine/replay_speed.h"
#include "tracking/clock.h"

#include <functional>

// Moves the pipeline's clock by the time stamps of a recording. It goes as the newest of them: sources whose clocks
// differ, and packets in disorder, neither turn it back nor slow it down.
class ReplayClock {
public:
    // everySecond is called each time that the clock has come to another full second of recorded time, so that tracks
    // and alerts age in the same steps at whatever speed.
    ReplayClock(std::shared_ptr<Clock> clock, std::function<void()> everySecond);

    // The recording is played from a packet on that is stamped so.
    void begin(const QDateTime &stamp);
    bool hasBegun() const { return m_begun; }

    // A packet is due.
    void reach(const QDateTime &stamp);

    // Real time has passed while the next packet, stamped so, is waited for.
    void runOn(qint64 realMs, ReplaySpeed::Speed speed, const QDateTime &nextStamp);

    // Milliseconds from the newest time so far to the packet's, 0 for an older one.
    qint64 untilStamp(const QDateTime &stamp) const;

private:
    qint64 pictureTime(const QDateTime &stamp) const { return stamp.toMSecsSinceEpoch() + m_offsetMs; }
    void advanceTo(qint64 timeMs);

    std::shared_ptr<Clock> m_clock;
    std::function<void()> m_everySecond;
    bool m_begun = false;
    qint64 m_newestMs = 0; // of the packets
    qint64 m_nextSecondMs = 0;
    qint64 m_offsetMs = 0; // of the picture's time to the packets', once the recorder's clock was set back
    int m_latePackets = 0; // in a row
};
