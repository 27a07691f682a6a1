#include "plausibility.h"

#include "bits.h"
#include "icao_text.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace korvane::asterix {
namespace {

// In points.
constexpr unsigned OddFspec = 2;
constexpr unsigned OddValue = 2;
constexpr unsigned MissingItem = 1;
constexpr unsigned MostOddValues = 4; // of one record: values all go wrong together

constexpr std::uint32_t DayUnits = 86400 * 128; // 1/128 s
constexpr std::uint32_t NoAddress = 0xFFFFFF;

constexpr int AdsbCategory = 21;

bool isTimeOfDay(const Node &item)
{
    return item.kind == Kind::Quantity && item.bits == 24 && item.numerator == 1 && item.denominator == 128;
}

bool isPosition(const Node &item)
{
    return item.kind == Kind::Group && item.children.size() == 2 && item.children[0].name == "LAT"
        && item.children[1].name == "LON";
}

// An octet of zero at its end makes the FSPEC longer than it needs to be, which few senders do; a record of nothing is
// odd, too.
bool hasOddFspec(const unsigned char *at)
{
    while (*at & 1) {
        ++at;
    }
    return *at == 0;
}

bool hasUnassignedCharacter(const unsigned char *at)
{
    const std::uint64_t characters = beOctets(at, 6);
    for (unsigned shift = 0; shift < 48; shift += 6) {
        const unsigned code = characters >> shift & 63;
        // The alphabet has a blank in the place of each unassigned code; senders fill with zero, too.
        if (IcaoAlphabet[code] == ' ' && code != 32 && code != 0) {
            return true;
        }
    }
    return false;
}

} // namespace

Plausibility::Plausibility(const Uap &uap) : m_isAdsb(uap.layout->edition().category == AdsbCategory)
{
    for (int slot = 0; slot < uap.count; ++slot) {
        if (const Node *item = uap.steps[static_cast<std::size_t>(slot)].node) {
            addItem(*item, static_cast<std::uint8_t>(slot));
        }
    }
}

void Plausibility::addItem(const Node &item, std::uint8_t slot)
{
    addSpareBits(item, slot);
    if (isTimeOfDay(item)) {
        m_times.push_back(slot);
    }
    if (isPosition(item)) {
        const std::int64_t rightAngle = std::int64_t{90} * item.children[0].denominator / item.children[0].numerator;
        m_positions.push_back({slot, static_cast<std::uint8_t>(item.children[0].bits), rightAngle});
    }
    if (item.kind == Kind::Icao && item.bits == 48) {
        m_identities.push_back(slot);
    }
    if (!m_isAdsb) {
        return; // the numbers mean something else, and what must be sent depends on the report
    }
    if (item.name == "080") {
        m_address = slot;
    }
    for (const std::string_view mandatory : {"010", "040", "080"}) {
        if (item.name == mandatory) {
            m_mandatory.push_back(slot);
        }
    }
}

void Plausibility::addSpareBits(const Node &item, std::uint8_t slot)
{
    const bool isExtended = item.kind == Kind::Extended;
    if (!isExtended && item.kind != Kind::Group) {
        return;
    }
    SpareCheck check{slot, isExtended, std::vector<OctetCheck>(item.bits / 8U)};
    bool isUseful = isExtended;
    for (const Node &child : item.children) {
        if (child.kind == Kind::ExtentEnd) {
            check.octets[child.bitOffset / 8U].endsExtent = true;
        }
        for (unsigned bit = child.bitOffset; child.kind == Kind::Spare && bit < child.bitOffset + child.bits; ++bit) {
            check.octets[bit / 8].spareBits |= static_cast<unsigned char>(0x80U >> bit % 8);
            isUseful = true;
        }
    }
    if (isUseful) {
        m_spares.push_back(std::move(check));
    }
}

bool Plausibility::hasOddSpareBits(const SpareCheck &check, const unsigned char *at) const
{
    for (const OctetCheck &octet : check.octets) {
        if (*at & octet.spareBits) {
            return true;
        }
        if (octet.endsExtent && !(*at & 1)) {
            return false;
        }
        ++at;
    }
    // Past all extents of the table: there are more of them if the last one says so.
    return check.isExtended && check.octets.back().endsExtent;
}

unsigned Plausibility::oddValues(const _ast_datarecord_t &record) const
{
    unsigned odd = 0;
    for (const std::uint8_t slot : m_times) {
        const unsigned offset = record.itemOffsets[slot];
        odd += offset != 0 && be24(record.data + offset) >= DayUnits ? OddValue : 0;
    }
    for (const PositionCheck &check : m_positions) {
        if (record.itemOffsets[check.slot] == 0) {
            continue;
        }
        const unsigned char *at = record.data + record.itemOffsets[check.slot];
        const std::int64_t latitude = signExtended(bitsAt(at, 0, check.bits), check.bits);
        const std::int64_t longitude = signExtended(bitsAt(at, check.bits, check.bits), check.bits);
        odd += std::abs(latitude) > check.rightAngle || std::abs(longitude) > 2 * check.rightAngle ? OddValue : 0;
    }
    for (const std::uint8_t slot : m_identities) {
        const unsigned offset = record.itemOffsets[slot];
        odd += offset != 0 && hasUnassignedCharacter(record.data + offset) ? OddValue : 0;
    }
    if (const unsigned offset = record.itemOffsets[m_address]; offset != 0) {
        const std::uint32_t address = be24(record.data + offset);
        odd += address == 0 || address == NoAddress ? OddValue : 0;
    }
    return std::min(odd, MostOddValues);
}

Oddness Plausibility::oddness(const _ast_datarecord_t &record) const
{
    Oddness odd;
    const auto isSent = [&](std::uint8_t slot) { return record.itemOffsets[slot] != 0; };
    for (const SpareCheck &check : m_spares) {
        odd.form += isSent(check.slot) && hasOddSpareBits(check, record.data + record.itemOffsets[check.slot]) ? 1 : 0;
    }
    for (const std::uint8_t slot : m_mandatory) {
        odd.values += isSent(slot) ? 0 : MissingItem;
    }
    odd.values += !m_isAdsb || std::any_of(m_times.begin(), m_times.end(), isSent) ? 0 : MissingItem;
    odd.values += hasOddFspec(record.data) ? OddFspec : 0;
    odd.outOfRange = oddValues(record);
    odd.values += odd.outOfRange;
    return odd;
}

} // namespace korvane::asterix
