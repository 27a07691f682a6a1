#pragma once

// What the typed disassemblers share: finding an item, and the item forms that several categories have.

#include "asterix/asterix.h"
#include "bits.h"
#include "layout.h"

namespace korvane::asterix {

// Where the items of a record are. Kept apart from the record so that the pointers stay in registers: as far as the
// compiler can tell, every flag that is written to a typed record might change the generic one.
class Items {
public:
    explicit Items(const _ast_datarecord_t &record)
        : m_data(record.data), m_offsets(record.itemOffsets), m_typed(record.uap->typed.data())
    {
    }

    // The octets of an item; null where the record does not have it.
    template <typename Item>
    const unsigned char *operator[](Item item) const
    {
        const unsigned offset = m_offsets[m_typed[static_cast<std::size_t>(item)]];
        return offset > 0 ? m_data + offset : nullptr;
    }

private:
    const unsigned char *m_data;
    const std::uint16_t *m_offsets;
    const std::uint8_t *m_typed;
};

// A record of another category has other items in the typed slots: it is not read at all.
inline bool isReadable(const _ast_datarecord_t &record, int category)
{
    return record.valid && record.uap->layout->edition().category == category;
}

constexpr bool bit(unsigned value, int number)
{
    return value >> number & 1U;
}

inline double signed16(const unsigned char *at)
{
    return static_cast<std::int16_t>(be16(at));
}

inline double signed24(const unsigned char *at)
{
    return static_cast<double>(signExtended(be24(at), 24));
}

// 16 bits of a full turn.
inline double azimuth16(const unsigned char *at)
{
    return be16(at) * (360.0 / 65536);
}

inline _ast_sacsic_t readSacSic(const unsigned char *at)
{
    return at ? _ast_sacsic_t{true, at[0], at[1]} : _ast_sacsic_t{};
}

inline void readTime(_ast_item_time_t &out, const unsigned char *at)
{
    if (at)
        out = {true, be24(at) / 128.0};
}

inline void readMode3A(_ast_item_mode3a_t &out, const unsigned char *at)
{
    if (!at)
        return;
    const unsigned value = be16(at);
    out = {true, bit(value, 15), bit(value, 14), bit(value, 13), static_cast<std::uint16_t>(value & 0x0FFF)};
}

inline void readFlightLevel(_ast_item_flight_level_t &out, const unsigned char *at)
{
    if (!at)
        return;
    const unsigned value = be16(at);
    out = {true, bit(value, 15), bit(value, 14), static_cast<std::int32_t>(signExtended(value & 0x3FFF, 14))};
}

inline void readVelocity(_ast_item_velocity_t &out, const unsigned char *at)
{
    if (at)
        out = {true, be16(at) * (3600.0 / 16384), azimuth16(at + 2)};
}

// Eight six-bit characters; text has room for nine.
void readCallsign(char *text, const unsigned char *at);

} // namespace korvane::asterix
