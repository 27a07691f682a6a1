#include "tiles/tile_pacing.h"

#include <algorithm>

namespace {
constexpr int LongestCounted = 30; // seconds
constexpr int MinTimer = 50; // milliseconds
} // namespace

TilePacing::TilePacing() : m_clock(&QDateTime::currentDateTimeUtc) { }

// Seconds as a decimal number, or until a date; 0 where neither can be read.
int TilePacing::secondsOf(const QByteArray &retryAfter) const
{
    const QString text = QString::fromLatin1(retryAfter).trimmed();
    bool isNumber = false;
    qint64 seconds = text.toLongLong(&isNumber);
    if (!isNumber) {
        QString date = text;
        date.replace(QLatin1String("GMT"), QLatin1String("+0000"));
        const QDateTime until = QDateTime::fromString(date, Qt::RFC2822Date);
        seconds = until.isValid() ? m_clock().secsTo(until) : 0;
    }
    return static_cast<int>(std::clamp<qint64>(seconds, 0, MaxDelay));
}

void TilePacing::enterBackoff(const QByteArray &retryAfter)
{
    int seconds = secondsOf(retryAfter);
    if (seconds <= 0) {
        seconds = std::min(1 << std::min(m_backoffs, 5), LongestCounted);
        ++m_backoffs;
    }
    m_backoffUntil = m_clock().addSecs(seconds);
}

void TilePacing::resetBackoff()
{
    m_backoffUntil = {};
    m_backoffs = 0;
}

void TilePacing::blockAuthentication()
{
    m_authBlockUntil = m_clock().addSecs(AuthenticationBlock);
}

void TilePacing::resetAuthBlock()
{
    m_authBlockUntil = {};
}

int TilePacing::delay()
{
    const int blocked = delayUntil(m_authBlockUntil, AuthenticationBlock);
    return blocked > 0 ? blocked : delayUntil(m_backoffUntil, MaxDelay);
}

// A deadline farther away than any can be comes of a clock that was set back.
int TilePacing::delayUntil(QDateTime &deadline, int longest)
{
    if (deadline.isNull()) {
        return 0;
    }
    const QDateTime now = m_clock();
    deadline = std::min(deadline, now.addSecs(longest));
    if (deadline <= now) {
        deadline = {};
        return 0;
    }
    return std::max(static_cast<int>(now.secsTo(deadline) + 1) * 1000, MinTimer);
}
