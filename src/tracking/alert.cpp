#include "tracking/alert.h"

Alert::Alert(unsigned int id, const QDateTime &now) : m_id(id), m_lastUpdate(now), m_startTime(now) { }

QString Alert::typeString(Type type)
{
    switch (type) {
    case MSAW:
        return QStringLiteral("MSAW");
    case APW:
        return QStringLiteral("APW");
    case STCA:
        return QStringLiteral("STCA");
    default:
        return QStringLiteral("UNKNOWN");
    }
}

QString Alert::stateString(State state)
{
    switch (state) {
    case Initial:
        return QStringLiteral("Initial");
    case Active:
        return QStringLiteral("Active");
    case End:
        return QStringLiteral("End");
    case Terminated:
        return QStringLiteral("Terminated");
    default:
        return QStringLiteral("---");
    }
}

void Alert::setState(State state, const QDateTime &now)
{
    switch (state) {
    case Initial:
        m_startTime = {};
        m_lastUpdate = {};
        break;
    case Active:
        if (!active()) {
            m_startTime = now;
            m_endedUnheard = false;
        }
        m_lastUpdate = now;
        break;
    case End:
        if (end() || terminated()) {
            return;
        }
        stampEnd(now);
        break;
    case Terminated:
        if (initial() || active()) {
            stampEnd(now);
        }
        break;
    default:
        return;
    }
    m_state = state;
}

void Alert::stampEnd(const QDateTime &now)
{
    m_endTime = now;
    m_lastUpdate = now;
}

void Alert::reset()
{
    m_type = None;
    m_state = Initial;
    m_lastUpdate = {};
    m_startTime = {};
}
