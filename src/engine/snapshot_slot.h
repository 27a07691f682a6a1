#pragma once

#include <QMutex>
#include <QMutexLocker>
#include <QSharedPointer>

// Hands immutable pictures from one writer thread to one reader thread. The newest replaces the one before it, read or
// not; the counter tells the reader how many it never saw. The lock covers one pointer and one counter.
template <typename T>
class SnapshotSlot {
public:
    struct Reading {
        QSharedPointer<const T> value; // null until the first publication
        quint64 counter = 0;
    };

    void publish(const QSharedPointer<const T> &value)
    {
        QSharedPointer<const T> previous = value;
        {
            const QMutexLocker lock(&m_mutex);
            m_value.swap(previous);
            ++m_counter;
        }
        // The previous picture, if this was its last holder, is freed here and not under the lock.
    }

    Reading read() const
    {
        const QMutexLocker lock(&m_mutex);
        return {m_value, m_counter};
    }

private:
    mutable QMutex m_mutex;
    QSharedPointer<const T> m_value;
    quint64 m_counter = 0;
};
