// How many frames a second are taken out of each encapsulation, decoded and tracked.

#include "modes/adsb_tracker.h"
#include "modes/encoder.h"
#include "modes/mode_s_decoder.h"

#include <array>
#include <benchmark/benchmark.h>

namespace {

using namespace korvane::modes;

constexpr int Aircraft = 200;
constexpr std::size_t Frames = 40000;
constexpr std::uint64_t SelectedAltitudeRegister = 0x99680030A80000; // 4,0
constexpr std::uint64_t TrackRegister = 0x835B1F1F206485; // 5,0
constexpr std::uint64_t HeadingRegister = 0xD919F719E3BC75; // 6,0

// What an aircraft sends in a second or so: squitters in the proportions of their rates, and replies to interrogations.
ModeSFrame makeFrame(std::size_t number)
{
    const std::size_t aircraft = number % Aircraft;
    const std::size_t turn = number / Aircraft;
    const auto address = static_cast<std::uint32_t>(0x4B1800 + 37 * aircraft);
    const LatLon position{46.0 + 0.01 * static_cast<double>(aircraft) + 0.0002 * static_cast<double>(turn), 8.5};
    const int altitude = 10000 + 100 * static_cast<int>(aircraft);
    const bool isOdd = turn / 10 % 2 == 1;
    switch (turn % 10) {
    case 0:
    case 5:
        return encodeAirbornePosition(address, position, altitude, isOdd);
    case 1:
    case 6:
        return encodeVelocity(address, 440, 360.0 * static_cast<double>(aircraft) / Aircraft, -640);
    case 2:
        return turn % 50 == 2 ? encodeIdentification(address, 'A', 3, "VYX" + std::to_string(aircraft))
                              : encodeAirbornePosition(address, position, altitude, !isOdd);
    case 3:
        return encodeAllCall(address);
    case 4:
        return encodeAltitudeReply(address, altitude);
    case 7:
        return encodeIdentityReply(address, 01000);
    case 8:
        return encodeCommBAltitude(address, altitude, turn % 20 == 8 ? TrackRegister : HeadingRegister);
    default:
        return encodeCommBIdentity(address, 01000, SelectedAltitudeRegister);
    }
}

std::string makeStream(ModeSEncapsulation::Format format)
{
    std::string stream;
    for (std::size_t i = 0; i < Frames; ++i) {
        ModeSFrame frame = makeFrame(i);
        frame.ticks = i * 4800; // 2,500 frames a second
        frame.signalLevel = format == ModeSEncapsulation::Avr ? 0 : static_cast<std::uint8_t>(100 + i % 100);
        appendEncapsulated(stream, frame, format);
    }
    return stream;
}

const std::string &streamOf(ModeSEncapsulation::Format format)
{
    static const std::array streams{makeStream(ModeSEncapsulation::Raw), makeStream(ModeSEncapsulation::Avr),
        makeStream(ModeSEncapsulation::Beast), makeStream(ModeSEncapsulation::RawRssi)};
    return streams[format];
}

constexpr std::size_t ChunkSize = 64 * 1024;

// Hands the stream over in pieces, as a socket would; each() sees every frame.
template <typename Each>
void extractStream(benchmark::State &state, ModeSEncapsulation::Format format, Each each)
{
    const std::string_view stream = streamOf(format);
    std::vector<ModeSFrame> frames;
    std::size_t count = 0;
    for (auto _ : state) {
        for (std::size_t offset = 0; offset < stream.size();) {
            offset += ModeSEncapsulation::extractAll(stream.substr(offset, ChunkSize), format, frames);
            for (const ModeSFrame &frame : frames) {
                each(frame);
            }
            count += frames.size();
        }
    }
    if (count != Frames * static_cast<std::size_t>(state.iterations())) {
        state.SkipWithError("frames lost");
    }
    state.counters["frames/s"] = benchmark::Counter(static_cast<double>(count), benchmark::Counter::kIsRate);
}

// Decoding counts what is valid, so that nothing is timed that fails.
struct CheckedDecoder {
    ModeSDecoder decoder;
    ModeSMessage message;
    std::size_t faults = 0;

    CheckedDecoder()
    {
        decoder.setAddressCheck(false); // replies come before the first squitter in the first round
    }

    void decode(const ModeSFrame &frame)
    {
        decoder.decode(ModeSMessage::AnyDownlink, frame, message);
        faults += message.valid() ? 0 : 1;
        benchmark::DoNotOptimize(message);
    }

    void finish(benchmark::State &state) const
    {
        if (faults) {
            state.SkipWithError("frames not decoded");
        }
    }
};

void extractOnly(benchmark::State &state, ModeSEncapsulation::Format format)
{
    extractStream(state, format, [](const ModeSFrame &frame) { benchmark::DoNotOptimize(frame.octets); });
}

void extractAndDecode(benchmark::State &state, ModeSEncapsulation::Format format)
{
    CheckedDecoder decoder;
    extractStream(state, format, [&](const ModeSFrame &frame) { decoder.decode(frame); });
    decoder.finish(state);
}

void extractDecodeAndInfer(benchmark::State &state)
{
    CheckedDecoder decoder;
    extractStream(state, ModeSEncapsulation::Beast, [&](const ModeSFrame &frame) {
        decoder.decode(frame);
        benchmark::DoNotOptimize(decoder.message.registers());
    });
    decoder.finish(state);
}

void extractDecodeAndTrack(benchmark::State &state)
{
    CheckedDecoder decoder;
    ADSBTracker tracker;
    extractStream(state, ModeSEncapsulation::Beast, [&](const ModeSFrame &frame) {
        decoder.decode(frame);
        benchmark::DoNotOptimize(tracker.procModeSMsg(decoder.message));
    });
    decoder.finish(state);
    if (tracker.targets().size() != Aircraft) {
        state.SkipWithError("targets lost");
    }
}

// As the terminal does it: an object a frame and one a message.
void sharedObjects(benchmark::State &state)
{
    const std::string &stream = streamOf(ModeSEncapsulation::Beast);
    ModeSDecoder decoder;
    decoder.setAddressCheck(false);
    std::size_t valid = 0;
    std::string buffer;
    for (auto _ : state) {
        for (std::size_t offset = 0; offset < stream.size(); offset += 1500) {
            buffer.append(stream, offset, 1500);
            for (const auto &frame : ModeSEncapsulation::extract(buffer)) {
                valid += decoder.decode(ModeSMessage::AnyDownlink, frame)->valid() ? 1 : 0;
            }
        }
    }
    if (valid != Frames * static_cast<std::size_t>(state.iterations())) {
        state.SkipWithError("frames lost");
    }
    state.counters["frames/s"] = benchmark::Counter(static_cast<double>(valid), benchmark::Counter::kIsRate);
}

BENCHMARK_CAPTURE(extractOnly, beast, ModeSEncapsulation::Beast);
BENCHMARK_CAPTURE(extractAndDecode, beast, ModeSEncapsulation::Beast);
BENCHMARK_CAPTURE(extractAndDecode, avr, ModeSEncapsulation::Avr);
BENCHMARK_CAPTURE(extractAndDecode, raw, ModeSEncapsulation::Raw);
BENCHMARK_CAPTURE(extractAndDecode, raw_rssi, ModeSEncapsulation::RawRssi);
BENCHMARK(extractDecodeAndInfer);
BENCHMARK(extractDecodeAndTrack);
BENCHMARK(sharedObjects);

} // namespace

BENCHMARK_MAIN();
