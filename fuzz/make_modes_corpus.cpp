// Writes the corpora of the Mode S fuzzers: make_modes_corpus FOLDER

#include "modes/encoder.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <vector>

namespace {

using namespace korvane::modes;
using Frames = std::vector<ModeSFrame>;

constexpr std::uint32_t Address = 0x1A4B1A; // with octets to escape

Frames flight(bool isSurface)
{
    Frames frames;
    for (int i = 0; i < 6; ++i) {
        const LatLon place{52.3, 4.7 + 0.001 * i};
        frames.push_back(isSurface ? encodeSurfacePosition(Address, place, 12, 90, i % 2)
                                   : encodeAirbornePosition(Address, place, 9000 + 25 * i, i % 2));
        frames.push_back(encodeVelocity(Address, 420, 95, -640));
    }
    return frames;
}

Frames squitters()
{
    Frames frames{encodeIdentification(Address, 'A', 3, "VYX12"), encodeEmergency(Address, 07700, 1)};
    for (const std::uint64_t me : {0x9B06B6AF189400, 0xEA21485CBF3F8C, 0xE8803730E10800, 0xE28006652C6000,
             0xF8002006004AB8, 0xF9000000002900, 0xA0C38000000000, 0x00C38000000000}) {
        frames.push_back(encodeSquitter(Address, me));
    }
    for (unsigned char control = 0; control < 8; ++control) {
        ModeSFrame frame = encodeAirbornePosition(Address, {52.3, 4.7}, 9000, control % 2);
        frame.octets[0] = static_cast<unsigned char>(18 << 3 | control);
        setParity(frame, 0);
        frames.push_back(frame);
    }
    return frames;
}

Frames replies()
{
    Frames frames{encodeAllCall(Address), encodeAltitudeReply(Address, 9000), encodeIdentityReply(Address, 01234)};
    for (const std::uint64_t mb : {0x10030A80E50000, 0xFA810100000000, 0x202CC371C32CE0, 0x308006652C6000,
             0x9B5C0170A80000, 0xC071F62D4A0C80, 0x835B1F1F206485, 0xD919F719E3BC75}) {
        frames.push_back(frames.size() % 2 ? encodeCommBAltitude(Address, 9000, static_cast<std::uint64_t>(mb))
                                           : encodeCommBIdentity(Address, 01234, static_cast<std::uint64_t>(mb)));
    }
    for (const unsigned char format : {0, 16, 24}) {
        ModeSFrame frame =
            format ? encodeCommBAltitude(Address, 9000, 0x30800665000000) : encodeAltitudeReply(Address, 9000);
        frame.octets[0] = static_cast<unsigned char>(format << 3);
        setParity(frame, Address);
        frames.push_back(frame);
    }
    return frames;
}

void write(const std::filesystem::path &path, Frames frames, ModeSEncapsulation::Format format)
{
    std::string stream;
    for (std::size_t i = 0; i < frames.size(); ++i) {
        frames[i].ticks = 6000000 * i;
        frames[i].signalLevel = static_cast<std::uint8_t>(24 + i);
        appendEncapsulated(stream, frames[i], format);
    }
    std::ofstream(path, std::ios::binary) << stream;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 2) {
        std::fprintf(stderr, "make_modes_corpus FOLDER\n");
        return 2;
    }
    const std::filesystem::path folder = argv[1];
    const std::pair<const char *, Frames> kinds[] = {
        {"airborne", flight(false)}, {"surface", flight(true)}, {"squitters", squitters()}, {"replies", replies()}};
    for (const char *name : {"fuzz_modes_decode", "fuzz_modes_extract"}) {
        std::filesystem::create_directories(folder / name);
    }
    for (const auto &[name, frames] : kinds) {
        write(folder / "fuzz_modes_decode" / (std::string(name) + ".beast"), frames, ModeSEncapsulation::Beast);
    }
    for (int format = 0; format < 4; ++format) {
        const auto encapsulation = ModeSEncapsulation::Format(format);
        const std::string name = "squitters." + ModeSEncapsulation::identifier(encapsulation);
        write(folder / "fuzz_modes_extract" / name, squitters(), encapsulation);
    }
    return 0;
}
