#pragma once

#include <QDateTime>

#include <optional>

namespace korvane::astfile {

// Times of day, one after the other, to points in time in milliseconds since 1970 UTC. Each is taken to be as near to
// the one before as it can be, so that midnights count up and disorder around midnight does no harm.
class DayClock {
public:
    static constexpr qint64 DayMs = 86400000;

    // Begins anew, on the day on which the file was last modified: nothing in it can be later than that, so a first
    // time of day that is belongs to the day before.
    void start(const QDateTime &modified);

    // Goes on from a time as if it were the last one given.
    void resume(qint64 timeMs) { m_lastMs = timeMs; }

    // value: milliseconds into a day, or into a shorter period after which the sender's count begins again.
    qint64 next(qint64 value, qint64 periodMs = DayMs);

    // A time of day on a day known to come days after the last one's.
    qint64 nextOnDay(qint64 msOfDay, int days);

    std::optional<qint64> last() const { return m_lastMs; }

private:
    qint64 m_modifiedMs = 0;
    std::optional<qint64> m_lastMs;
};

} // namespace korvane::astfile
