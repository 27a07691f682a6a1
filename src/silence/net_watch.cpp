#include "silence/net_watch.h"

#include "engine/display_snapshot.h"

#include <algorithm>
#include <utility>

bool NetWatch::look(const DisplaySnapshot &snapshot)
{
    if (snapshot.netsHeard != m_lastHeard) {
        if (m_lastHeard.isValid() && snapshot.netsHeard.isValid() && !m_unheard) {
            takeInterval(m_lastHeard.msecsTo(snapshot.netsHeard));
        }
        m_lastHeard = snapshot.netsHeard;
    }
    const auto &status = snapshot.alertStatus;
    const bool shown = std::find(status.begin(), status.end(), true) != status.end();
    const bool silent = m_lastHeard.isValid() && m_lastHeard.msecsTo(snapshot.time) >= patienceMs();
    const bool unheard = shown && silent;
    return unheard != std::exchange(m_unheard, unheard);
}

void NetWatch::takeInterval(qint64 ms)
{
    ++m_intervals;
    m_longestMs = std::max(m_longestMs, ms);
}

qint64 NetWatch::patienceMs() const
{
    return m_intervals < 2 ? UnknownMs : std::max(ShortestMs, 3 * m_longestMs);
}
