#include "framing.h"

#include "final_format_framing.h"
#include "gps_framing.h"
#include "mode_s_framing.h"
#include "octets.h"
#include "raw_block_framing.h"

namespace korvane::astfile {

std::unique_ptr<Framing> Framing::create(RecFile::Format format)
{
    switch (format) {
    case RecFile::RawAsterix:
        return std::make_unique<RawBlockFraming>();
    case RecFile::FinalFormat:
        return std::make_unique<FinalFormatFraming>();
    case RecFile::Gps:
        return std::make_unique<GpsFraming>();
    case RecFile::ModeS:
        return std::make_unique<ModeSFraming>();
    default:
        return nullptr;
    }
}

std::size_t Framing::blockLength(std::span<const unsigned char> octets)
{
    constexpr std::size_t HeaderSize = 3;
    const std::size_t length = octets.size() < HeaderSize ? 0 : read16(octets, 1);
    return length < HeaderSize ? 0 : length;
}

} // namespace korvane::astfile
