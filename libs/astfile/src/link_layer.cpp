#include "link_layer.h"

#include "octets.h"

#include <pcap/pcap.h>

#include <algorithm>
#include <array>

namespace korvane::astfile {

namespace {

constexpr unsigned EtherTypeIpv4 = 0x0800;
constexpr unsigned EtherTypeIpv6 = 0x86dd;
constexpr std::array VlanTags = {0x8100U, 0x88a8U, 0x9100U};
constexpr std::size_t VlanTagSize = 4;

// How a link type frames its packets: where the protocol stands and how long the header is.
struct LinkRow {
    int linkType;
    std::size_t headerSize;
    int etherTypeOffset; // -1: none, the packet's own version field tells
};

constexpr std::array Links = {
    LinkRow{DLT_EN10MB, 14, 12},
    LinkRow{DLT_LINUX_SLL, 16, 14},
    LinkRow{DLT_LINUX_SLL2, 20, 0},
    LinkRow{DLT_NULL, 4, -1}, // the address family there depends on the machine that captured
    LinkRow{DLT_LOOP, 4, -1},
    LinkRow{DLT_RAW, 0, -1},
    LinkRow{DLT_IPV4, 0, -1},
    LinkRow{DLT_IPV6, 0, -1},
};

const LinkRow *rowOf(int linkType)
{
    const auto row =
        std::find_if(Links.begin(), Links.end(), [linkType](const LinkRow &l) { return l.linkType == linkType; });
    return row == Links.end() ? nullptr : &*row;
}

} // namespace

bool linkTypeKnown(int linkType)
{
    return rowOf(linkType) != nullptr;
}

std::optional<std::span<const unsigned char>> networkPacket(int linkType, std::span<const unsigned char> frame)
{
    const LinkRow *row = rowOf(linkType);
    if (!row || frame.size() < row->headerSize) {
        return std::nullopt;
    }
    auto rest = frame.subspan(row->headerSize);
    if (row->etherTypeOffset < 0) {
        return rest;
    }
    unsigned etherType = read16(frame, static_cast<std::size_t>(row->etherTypeOffset));
    while (std::find(VlanTags.begin(), VlanTags.end(), etherType) != VlanTags.end() && rest.size() >= VlanTagSize) {
        etherType = read16(rest, 2);
        rest = rest.subspan(VlanTagSize);
    }
    return etherType == EtherTypeIpv4 || etherType == EtherTypeIpv6 ? std::optional(rest) : std::nullopt;
}

} // namespace korvane::astfile
