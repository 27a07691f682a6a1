#include "asterix/asterix.h"
#include "asterix/encoder.h"
#include "processors/video_processor.h"

#include <QByteArray>

#include <benchmark/benchmark.h>

// What radar video costs from the datagram to the radials, before anything is drawn.

namespace {

constexpr int RadialsPerTurn = 4096;
constexpr int OctetsPerRepetition = 256;

// One turn of the antenna in datagrams of one record each.
QList<QByteArray> turn(int cells)
{
    korvane::asterix::BlockEncoder encoder(240);
    QList<QByteArray> datagrams;
    for (int number = 0; number < RadialsPerTurn; ++number) {
        encoder.beginBlock();
        encoder.beginRecord();
        encoder.set("010/SAC", 25);
        encoder.set("010/SIC", 10);
        encoder.set("000", 2);
        encoder.set("020", number);
        encoder.set("040/STARTAZ", number * 360.0 / RadialsPerTurn);
        encoder.set("040/ENDAZ", (number + 1) % RadialsPerTurn * 360.0 / RadialsPerTurn);
        encoder.set("040/STARTRG", 0);
        encoder.set("040/CELLDUR", 400);
        encoder.set("048/RES", 4);
        encoder.set("049/NBVB", cells);
        encoder.set("049/NBCELLS", cells);
        encoder.set("140", 43200.0);
        for (int first = 0; first < cells; first += OctetsPerRepetition) {
            std::array<unsigned char, OctetsPerRepetition> octets;
            for (int i = 0; i < OctetsPerRepetition; ++i) {
                octets[static_cast<std::size_t>(i)] = static_cast<unsigned char>((first + i) * number);
            }
            encoder.setExplicit("052", octets);
        }
        encoder.endRecord();
        const auto block = encoder.block();
        datagrams += QByteArray(reinterpret_cast<const char *>(block.data()), static_cast<qsizetype>(block.size()));
    }
    return datagrams;
}

// Argument: cells a radial. The counter is the share of one core that a turn a second takes.
void decodeAndConvert(benchmark::State &state)
{
    const QList<QByteArray> datagrams = turn(static_cast<int>(state.range(0)));
    VideoProcessor processor;
    qint64 cells = 0;
    QObject::connect(&processor, &VideoProcessor::radialReady, &processor,
        [&cells](const VideoProcessor::Radial &radial) { cells += radial.amplitudes.size(); });
    _ast_datablock_t block;
    for (auto _ : state) {
        for (const QByteArray &datagram : datagrams) {
            ast_datablock_smart_decode(&block, reinterpret_cast<const unsigned char *>(datagram.constData()),
                static_cast<std::size_t>(datagram.size()));
            processor.procAsterixMessage(block);
        }
    }
    if (cells != state.iterations() * RadialsPerTurn * state.range(0)) {
        state.SkipWithError("cells were lost");
    }
    state.SetItemsProcessed(state.iterations() * RadialsPerTurn);
    state.counters["percentOfCore"] = benchmark::Counter(
        0.01 * static_cast<double>(state.iterations()), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

BENCHMARK(decodeAndConvert)->ArgName("cells")->Arg(512)->Arg(2048)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
