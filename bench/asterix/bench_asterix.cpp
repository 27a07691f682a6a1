// How many records a second the decoder passes over, takes apart and prints.

#include "asterix/asterix.h"
#include "asterix/json_writer.h"
#include "sample_blocks.h"

#include <atomic>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::uint64_t> allocations{0};

using korvane::asterix::appendRecordJson;
using korvane::asterix::TextBuffer;

constexpr std::size_t Records = 20000;

const SampleBlocks &plots()
{
    static const SampleBlocks blocks = makePlotBlocks(Records);
    return blocks;
}

const SampleBlocks &tracks()
{
    static const SampleBlocks blocks = makeTrackBlocks(Records);
    return blocks;
}

// Decodes all blocks over and over; each() sees every block. Counts records, and allocations after the first round.
template <typename Each>
void decodeBlocks(benchmark::State &state, const SampleBlocks &blocks, Each each)
{
    _ast_datablock_t block;
    const auto round = [&] {
        const unsigned char *at = blocks.octets.data();
        const unsigned char *const end = at + blocks.octets.size();
        while (at < end) {
            ast_datablock_smart_decode(&block, at, static_cast<std::size_t>(end - at));
            each(block);
            at += block.size;
        }
    };
    round();
    const std::uint64_t before = allocations;
    for (auto _ : state)
        round();
    const double rounds = static_cast<double>(state.iterations());
    const double records = rounds * static_cast<double>(blocks.records);
    state.counters["records/s"] = benchmark::Counter(records, benchmark::Counter::kIsRate);
    state.counters["octets/record"] = static_cast<double>(blocks.octets.size()) / static_cast<double>(blocks.records);
    state.counters["allocations/record"] = static_cast<double>(allocations - before) / records;
}

void walk(benchmark::State &state, const SampleBlocks &blocks)
{
    decodeBlocks(state, blocks, [](_ast_datablock_t &block) { benchmark::DoNotOptimize(block.records.data()); });
}

void disassemblePlots(benchmark::State &state)
{
    decodeBlocks(state, plots(), [](_ast_datablock_t &block) {
        _ast_datarecord_034_t service;
        _ast_datarecord_048_t plot;
        for (const _ast_datarecord_t &record : block.records) {
            if (block.category == 48)
                ast_datarecord_048_disassemble(&plot, record);
            else
                ast_datarecord_034_disassemble(&service, record);
            benchmark::DoNotOptimize(plot);
            benchmark::DoNotOptimize(service);
        }
    });
}

void disassembleTracks(benchmark::State &state)
{
    decodeBlocks(state, tracks(), [](_ast_datablock_t &block) {
        _ast_datarecord_062_t track;
        for (const _ast_datarecord_t &record : block.records) {
            ast_datarecord_062_disassemble(&track, record);
            benchmark::DoNotOptimize(track);
        }
    });
}

void printJson(benchmark::State &state, const SampleBlocks &blocks)
{
    TextBuffer text;
    decodeBlocks(state, blocks, [&text](_ast_datablock_t &block) {
        text.clear();
        for (const _ast_datarecord_t &record : block.records)
            appendRecordJson(text, record, {});
        benchmark::DoNotOptimize(text.text().data());
    });
}

BENCHMARK_CAPTURE(walk, plots, plots());
BENCHMARK_CAPTURE(walk, tracks, tracks());
BENCHMARK(disassemblePlots);
BENCHMARK(disassembleTracks);
BENCHMARK_CAPTURE(printJson, plots, plots());
BENCHMARK_CAPTURE(printJson, tracks, tracks());

} // namespace

void *operator new(std::size_t size)
{
    allocations.fetch_add(1, std::memory_order_relaxed);
    if (void *memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}

BENCHMARK_MAIN();
