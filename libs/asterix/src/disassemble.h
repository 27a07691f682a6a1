#pragma once

// What the typed disassemblers share: finding an item, and the item forms that several categories have.

#include "asterix/asterix.h"
#include "bits.h"
#include "layout.h"
#include "walker.h"

#include <array>
#include <bit>

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
    if (at) {
        out = {true, be24(at) / 128.0};
    }
}

inline void readMode3A(_ast_item_mode3a_t &out, const unsigned char *at)
{
    if (!at) {
        return;
    }
    const unsigned value = be16(at);
    out = {true, bit(value, 15), bit(value, 14), bit(value, 13), static_cast<std::uint16_t>(value & 0x0FFF)};
}

inline void readFlightLevel(_ast_item_flight_level_t &out, const unsigned char *at)
{
    if (!at) {
        return;
    }
    const unsigned value = be16(at);
    out = {true, bit(value, 15), bit(value, 14), static_cast<std::int32_t>(signExtended(value & 0x3FFF, 14))};
}

inline void readVelocity(_ast_item_velocity_t &out, const unsigned char *at)
{
    if (at) {
        out = {true, be16(at) * (3600.0 / 16384), azimuth16(at + 2)};
    }
}

inline void readTrackNumber(_ast_item_track_number_t &out, const unsigned char *at, unsigned mask)
{
    if (at) {
        out = {true, static_cast<std::uint16_t>(be16(at) & mask)};
    }
}

inline void readAddress(_ast_item_address_t &out, const unsigned char *at)
{
    if (at) {
        out = {true, be24(at)};
    }
}

inline void readRegisters(_ast_item_registers_t &out, const unsigned char *at)
{
    if (at) {
        out = {true, at[0], at + 1};
    }
}

inline void readHeight(_ast_item_height_t &out, const unsigned char *at)
{
    if (at) {
        out = {true, signed16(at) * 6.25};
    }
}

inline void readAcceleration(_ast_item_cartesian_acceleration_t &out, const unsigned char *at, double lsb)
{
    if (at) {
        out = {true, static_cast<std::int8_t>(at[0]) * lsb, static_cast<std::int8_t>(at[1]) * lsb};
    }
}

inline void readCartesianVelocity(_ast_item_cartesian_velocity_t &out, const unsigned char *at, double lsb)
{
    if (at) {
        out = {true, signed16(at) * lsb, signed16(at + 2) * lsb};
    }
}

inline void readWgs84(_ast_item_wgs84_t &out, const unsigned char *at, double lsb)
{
    if (at) {
        out = {true, static_cast<std::int32_t>(be32(at)) * lsb, static_cast<std::int32_t>(be32(at + 4)) * lsb};
    }
}

inline void readVehicleMessage(_ast_item_vehicle_message_t &out, const unsigned char *at)
{
    if (at) {
        out = {true, bit(at[0], 7), static_cast<std::uint8_t>(at[0] & 0x7F)};
    }
}

// The first octets of an extended item; those that are not sent read as zero.
template <std::size_t Count>
std::array<unsigned, Count> readExtents(const unsigned char *at)
{
    std::array<unsigned, Count> extents{at[0]};
    for (std::size_t i = 1; i < Count && bit(extents[i - 1], 0); ++i) {
        extents[i] = at[i];
    }
    return extents;
}

// Calls visit(position, octets) for each sub-item that a compound item at at has, in the order of its table.
template <typename Item, typename Visit>
void visitSubItems(const _ast_datarecord_t &record, Item compound, const unsigned char *at, Visit visit)
{
    const Node &item = *record.uap->steps[record.uap->typed[static_cast<std::size_t>(compound)]].node;
    const unsigned char *const end = record.data + record.length;
    Fault fault;
    const std::size_t presence = presenceLength(at, end, fault);
    const unsigned char *next = at + presence;
    for (std::size_t octet = 0; octet < presence; ++octet) {
        unsigned bits = at[octet] & 0xFEU;
        while (bits) {
            const auto leading = static_cast<unsigned>(std::countl_zero(static_cast<std::uint8_t>(bits)));
            bits &= ~(0x80U >> leading);
            const unsigned position = static_cast<unsigned>(octet) * 7 + leading;
            visit(position, next);
            next += itemLength(item.children[position], next, end, fault);
        }
    }
}

// Eight six-bit characters, the first one uppermost; text has room for nine.
void textOfCallsign(char *text, std::uint64_t bits);

inline void readCallsign(char *text, const unsigned char *at)
{
    textOfCallsign(text, beOctets(at, 6));
}

// Octets of ASCII; text has room for one more.
void readAscii(char *text, const unsigned char *at, int count);

} // namespace korvane::asterix
