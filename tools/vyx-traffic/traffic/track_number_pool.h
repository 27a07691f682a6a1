#pragma once

#include <cstdint>
#include <deque>

// Numbers from 1 on for the tracks of one source. A number is used again when all others have been.
class TrackNumberPool {
public:
    explicit TrackNumberPool(std::uint16_t last)
    {
        for (std::uint32_t number = 1; number <= last; ++number) {
            m_free.push_back(static_cast<std::uint16_t>(number));
        }
    }

    // 0 where all are in use.
    std::uint16_t take()
    {
        if (m_free.empty()) {
            return 0;
        }
        const std::uint16_t number = m_free.front();
        m_free.pop_front();
        return number;
    }

    // number: one that was taken, or 0.
    void giveBack(std::uint16_t number)
    {
        if (number != 0) {
            m_free.push_back(number);
        }
    }

private:
    std::deque<std::uint16_t> m_free; // the one unused for longest first
};
