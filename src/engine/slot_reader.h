#pragma once

#include "engine/snapshot_slot.h"

// The reading end of one slot: hands out each picture once and counts those that were replaced before it looked.
template <typename T>
class SlotReader {
public:
    // The newest picture; null when it was taken before or nothing was published yet.
    QSharedPointer<const T> take(const SnapshotSlot<T> &slot)
    {
        const auto reading = slot.read();
        if (reading.counter == m_lastCounter) {
            return {};
        }
        // Pictures published before the first look are not losses: nobody was looking.
        if (m_lastCounter != 0) {
            m_dropped += reading.counter - m_lastCounter - 1;
        }
        m_lastCounter = reading.counter;
        return reading.value;
    }

    quint64 dropped() const { return m_dropped; }

private:
    quint64 m_lastCounter = 0;
    quint64 m_dropped = 0;
};
