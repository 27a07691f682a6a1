#pragma once

#include "fragment_assembler.h"

#include <span>

namespace korvane::astfile {

// The payload of the UDP datagrams in IPv4 and IPv6 packets. Checksums are not looked at: captures made on the sending
// machine often hold them unfinished.
class UdpExtractor {
public:
    struct Result {
        bool found = false; // a UDP datagram was completed by this packet
        std::span<const unsigned char> payload; // valid until the next call, and as long as the packet
    };

    // timeMs: capture time, which ages incomplete datagrams.
    Result extract(std::span<const unsigned char> packet, qint64 timeMs);

    void clear() { m_fragments.clear(); }

private:
    Result extractIpv4(std::span<const unsigned char> packet, qint64 timeMs);
    Result extractIpv6(std::span<const unsigned char> packet, qint64 timeMs);

    FragmentAssembler m_fragments;
};

} // namespace korvane::astfile
