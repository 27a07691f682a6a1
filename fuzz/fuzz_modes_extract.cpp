// Takes its input apart as a stream of each encapsulation, at once and in pieces.

#include "modes/encoder.h"
#include "modes/mode_s_encapsulation.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

namespace {

using namespace korvane::modes;
using Format = ModeSEncapsulation::Format;

constexpr std::size_t LargestRest = 100; // octets, of the beginning of a frame

void require(bool condition, const char *what)
{
    if (condition) {
        return;
    }
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

void checkFrame(const ModeSFrame &frame)
{
    require(frame.length == 2 || frame.length == 7 || frame.length == 14, "frame of no length that there is");
    require(frame.ticks == ModeSFrame::NoTicks || frame.ticks >> 48 == 0, "time stamp of more than 48 bits");
}

bool isEqual(const ModeSFrame &a, const ModeSFrame &b)
{
    return a.length == b.length && std::equal(a.octets, a.octets + a.length, b.octets) && a.ticks == b.ticks
        && a.signalLevel == b.signalLevel;
}

// Exactly what was left, so that a sanitizer sees a read beyond it.
std::size_t extractExactly(const std::string &buffer, Format format, std::vector<ModeSFrame> &frames)
{
    const std::unique_ptr<char[]> exact(new char[buffer.size()]);
    std::copy(buffer.begin(), buffer.end(), exact.get());
    return ModeSEncapsulation::extractAll({exact.get(), buffer.size()}, format, frames);
}

std::vector<ModeSFrame> extractInPieces(const std::string &stream, Format format, std::size_t step)
{
    std::vector<ModeSFrame> all;
    std::vector<ModeSFrame> frames;
    std::string buffer;
    for (std::size_t offset = 0; offset < stream.size(); offset += step) {
        buffer.append(stream, offset, step);
        const std::size_t done = extractExactly(buffer, format, frames);
        require(done <= buffer.size() && buffer.size() - done <= LargestRest, "rest is no beginning of a frame");
        buffer.erase(0, done);
        all.insert(all.end(), frames.begin(), frames.end());
    }
    std::for_each(all.begin(), all.end(), checkFrame);
    return all;
}

// Marked formats do not depend on the pieces.
void compare(const std::string &stream, Format format)
{
    const std::vector<ModeSFrame> whole = extractInPieces(stream, format, stream.size());
    const std::vector<ModeSFrame> pieces = extractInPieces(stream, format, 1 + stream.size() % 23);
    require(std::equal(whole.begin(), whole.end(), pieces.begin(), pieces.end(), isEqual), "pieces make a difference");
    std::string again;
    for (const ModeSFrame &frame : whole) {
        appendEncapsulated(again, frame, format);
    }
    const std::vector<ModeSFrame> repeated = extractInPieces(again, format, again.size());
    require(std::equal(whole.begin(), whole.end(), repeated.begin(), repeated.end(), isEqual), "encoded frames differ");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    if (size == 0) {
        return 0;
    }
    const std::string stream(data, data + size);
    compare(stream, ModeSEncapsulation::Beast);
    compare(stream, ModeSEncapsulation::Avr);
    for (const Format format : {ModeSEncapsulation::Raw, ModeSEncapsulation::RawRssi}) {
        extractInPieces(stream, format, stream.size());
        extractInPieces(stream, format, 1 + stream.size() % 23);
    }
    return 0;
}
