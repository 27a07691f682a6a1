#pragma once

#include <QtGlobal>

#include <algorithm>
#include <memory>
#include <span>
#include <utility>

// A piece of the memory that octets of records are held in. What stands in it stays as it is: other threads may read
// what was added before they came to know of it, while more is added.
class RawPage {
public:
    static constexpr std::size_t UsualRoom = 1024 * 1024; // octets

    explicit RawPage(std::size_t room) : m_room(room), m_octets(new unsigned char[room]) { }

    bool hasRoomFor(std::size_t octets) const { return octets <= m_room - m_end; }
    // Where they stand, for as long as the page is not cleared. There must be room.
    quint32 add(std::span<const unsigned char> octets)
    {
        std::copy(octets.begin(), octets.end(), m_octets.get() + m_end);
        return static_cast<quint32>(std::exchange(m_end, m_end + octets.size()));
    }
    void clear() { m_end = 0; }

    std::size_t room() const { return m_room; }

    std::span<const unsigned char> octets(quint32 offset, quint32 size) const
    {
        return {m_octets.get() + offset, size};
    }

private:
    const std::size_t m_room;
    const std::unique_ptr<unsigned char[]> m_octets;
    std::size_t m_end = 0;
};
