#pragma once

// How well octets agree with an edition's table beyond being decodable with it: what tells editions of one category
// apart.

#include "asterix/asterix.h"
#include "layout.h"

#include <cstdint>
#include <vector>

namespace korvane::asterix {

struct Oddness {
    unsigned form = 0; // items that have bits or extents which the table does not have
    unsigned values = 0; // points for values out of range and for what is missing or superfluous
    unsigned outOfRange = 0; // of these points, those for values out of range

    void add(const Oddness &other)
    {
        form += other.form;
        values += other.values;
        outOfRange += other.outOfRange;
    }
    // What is wrong with the form counts more than any value: senders make mistakes in values.
    unsigned weight() const { return 8 * form + values; }
};

// The checks that one UAP's records can be put to, worked out from its table.
class Plausibility {
public:
    explicit Plausibility(const Uap &uap);

    // Of a record that was walked with this UAP.
    Oddness oddness(const _ast_datarecord_t &record) const;

private:
    // An octet of an item: its spare bits, and whether its lowest bit says that there is another extent.
    struct OctetCheck {
        unsigned char spareBits = 0;
        bool endsExtent = false;
    };
    struct SpareCheck {
        std::uint8_t slot;
        bool isExtended;
        std::vector<OctetCheck> octets; // up to the last one that the table has
    };
    struct PositionCheck {
        std::uint8_t slot;
        std::uint8_t bits; // of the latitude, then as many of the longitude
        std::int64_t rightAngle; // 90 degrees in LSBs
    };

    void addItem(const Node &item, std::uint8_t slot);
    void addSpareBits(const Node &item, std::uint8_t slot);
    bool hasOddSpareBits(const SpareCheck &check, const unsigned char *at) const;
    unsigned oddValues(const _ast_datarecord_t &record) const;

    bool m_isAdsb;
    std::vector<SpareCheck> m_spares;
    std::vector<PositionCheck> m_positions;
    std::vector<std::uint8_t> m_times; // slots of times of day
    std::vector<std::uint8_t> m_identities; // slots of eight six-bit characters
    std::vector<std::uint8_t> m_mandatory;
    std::uint8_t m_address = NoSlot;
};

} // namespace korvane::asterix
