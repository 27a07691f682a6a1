// How many track records a second the radar decoder reads.

#include "sirm/alenia_sir_m_radar_decoder.h"
#include "sirm/alenia_sir_m_radar_encoder.h"

#include <benchmark/benchmark.h>

namespace {

AleniaSirMRadarDataMessage makeMessage(int tracks)
{
    AleniaSirMRadarDataMessage message;
    message.setSector(3);
    for (int i = 0; i < tracks; ++i) {
        AleniaSirMRadarTrackRecord track;
        track.setTrackNumber(static_cast<unsigned>(i + 1));
        track.setTrackType(3);
        track.setPosition(1.25 * i, -0.75 * i);
        track.setVelocity(200, -50);
        track.setModeACode(01234);
        track.setModeCHeight(100.0 * i);
        message.addTrackRecord(track);
    }
    return message;
}

// Decodes and reads what a tracker reads.
void decode(benchmark::State &state)
{
    const int tracks = static_cast<int>(state.range(0));
    const std::vector<unsigned char> octets = AleniaSirMRadarEncoder::encode(makeMessage(tracks));
    for (auto _ : state) {
        const auto result = AleniaSirMRadarDecoder::decode(octets.data(), octets.size());
        double sum = 0;
        for (const auto &track : static_cast<const AleniaSirMRadarDataMessage &>(*result.message).trackRecords()) {
            sum += track.x() + track.y() + track.vx() + track.vy() + track.modeCHeightImperial() + track.modeACode();
        }
        benchmark::DoNotOptimize(sum);
    }
    state.counters["records/s"] =
        benchmark::Counter(static_cast<double>(state.iterations()) * tracks, benchmark::Counter::kIsRate);
}

BENCHMARK(decode)->Arg(1)->Arg(20)->Arg(255);

} // namespace

BENCHMARK_MAIN();
