#pragma once

#include <cstddef>

// Octets before the data of each message in a transport envelope, of ASTERIX or SIR-M; what they say is not needed.
template <typename Format>
constexpr std::size_t envelopeSize(Format format)
{
    switch (format) {
    case Format::Hdlc:
        return 2;
    case Format::ManagAir:
        return 16;
    case Format::Raw:
        break;
    }
    return 0;
}
