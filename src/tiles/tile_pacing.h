#pragma once

#include <QByteArray>
#include <QDateTime>

#include <functional>

// When a tile service may be asked again after it, or the way to it, failed.
class TilePacing {
public:
    using Clock = std::function<QDateTime()>; // UTC

    static constexpr int MaxDelay = 300; // seconds of back-off
    static constexpr int AuthenticationBlock = 1800; // seconds

    TilePacing();

    void setClock(Clock clock) { m_clock = std::move(clock); }
    QDateTime now() const { return m_clock(); }

    // With the value of a "Retry-After" header, or without one. A value that says nothing useful counts as none; then
    // the delay is 1, 2, 4, 8, 16, 30, 30 ... seconds, counted from the last reset.
    void enterBackoff(const QByteArray &retryAfter = {});
    void resetBackoff();
    void blockAuthentication();
    void resetAuthBlock();

    bool authenticationBlocked() const { return !m_authBlockUntil.isNull(); }
    bool backingOff() const { return !m_backoffUntil.isNull(); }

    // Milliseconds until requests may be sent, at least 50; 0: they may be now. Deadlines that have passed are cleared.
    int delay();

private:
    int secondsOf(const QByteArray &retryAfter) const;
    int delayUntil(QDateTime &deadline, int longest);

    Clock m_clock;
    QDateTime m_backoffUntil; // null: none
    QDateTime m_authBlockUntil; // null: none
    int m_backoffs = 0;
};
