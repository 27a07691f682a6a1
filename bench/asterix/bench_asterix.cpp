// How many records a second the decoder passes over, takes apart and prints.

#include "asterix/asterix.h"
#include "asterix/json_writer.h"
#include "category_blocks.h"
#include "sample_blocks.h"

#include <atomic>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <new>
#include <vector>

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
void decodeBlocks(benchmark::State &state, const SampleBlocks &blocks, Each each, const _ast_uap_t *profile = nullptr)
{
    _ast_datablock_t block;
    const auto round = [&] {
        const unsigned char *at = blocks.octets.data();
        const unsigned char *const end = at + blocks.octets.size();
        while (at < end) {
            if (profile) {
                ast_datablock_decode(&block, at, static_cast<std::size_t>(end - at), profile);
            } else {
                ast_datablock_smart_decode(&block, at, static_cast<std::size_t>(end - at));
            }
            each(block);
            at += block.size;
        }
    };
    round();
    const std::uint64_t before = allocations;
    for (auto _ : state) {
        round();
    }
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
            if (block.category == 48) {
                ast_datarecord_048_disassemble(&plot, record);
            } else {
                ast_datarecord_034_disassemble(&service, record);
            }
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
        for (const _ast_datarecord_t &record : block.records) {
            appendRecordJson(text, record, {});
        }
        benchmark::DoNotOptimize(text.text().data());
    });
}

template <typename Typed>
void disassembleCategory(benchmark::State &state, int category, void (*disassemble)(Typed *, const _ast_datarecord_t &))
{
    decodeBlocks(state, makeCategoryBlocks(category, nullptr, Records), [disassemble](_ast_datablock_t &block) {
        Typed typed;
        for (const _ast_datarecord_t &record : block.records) {
            disassemble(&typed, record);
            benchmark::DoNotOptimize(typed);
        }
    });
}

// What a tracker of ADS-B targets asks for.
void readTargets021(benchmark::State &state, const char *edition, const _ast_uap_t *profile)
{
    const auto readTarget = [](const _ast_datarecord_t &record) {
        benchmark::DoNotOptimize(ast_datarecord_get_icaoaddr(record));
        benchmark::DoNotOptimize(ast_datarecord_get_callsign(record));
        benchmark::DoNotOptimize(ast_datarecord_get_wgs84coord(record));
        benchmark::DoNotOptimize(ast_datarecord_021_get_squawk(record));
        benchmark::DoNotOptimize(ast_datarecord_get_speed(record));
        benchmark::DoNotOptimize(ast_datarecord_get_heading(record));
        benchmark::DoNotOptimize(ast_datarecord_get_flightlevel(record));
        benchmark::DoNotOptimize(ast_datarecord_021_get_selaltitude(record));
        benchmark::DoNotOptimize(ast_datarecord_get_vrate(record));
    };
    decodeBlocks(
        state, makeCategoryBlocks(21, edition, Records),
        [&readTarget](_ast_datablock_t &block) {
            for (const _ast_datarecord_t &record : block.records) {
                readTarget(record);
            }
        },
        profile);
}

void unpackVideo240(benchmark::State &state)
{
    std::vector<unsigned> cells(65536);
    decodeBlocks(state, makeCategoryBlocks(240, nullptr, 2000), [&cells](_ast_datablock_t &block) {
        _ast_video_vector_t vector;
        for (const _ast_datarecord_t &record : block.records) {
            ast_datarecord_240_get_vector(&vector, cells.data(), cells.size(), record);
        }
        benchmark::DoNotOptimize(cells.data());
    });
}

void printCategory(benchmark::State &state, int category)
{
    printJson(state, makeCategoryBlocks(category, nullptr, 2000));
}

BENCHMARK_CAPTURE(walk, plots, plots());
BENCHMARK_CAPTURE(walk, tracks, tracks());
BENCHMARK(disassemblePlots);
BENCHMARK(disassembleTracks);
BENCHMARK_CAPTURE(printJson, plots, plots());
BENCHMARK_CAPTURE(printJson, tracks, tracks());
BENCHMARK_CAPTURE(disassembleCategory, 001, 1, ast_datarecord_001_disassemble);
BENCHMARK_CAPTURE(disassembleCategory, 004, 4, ast_datarecord_004_disassemble);
BENCHMARK_CAPTURE(disassembleCategory, 008, 8, ast_datarecord_008_disassemble);
BENCHMARK_CAPTURE(disassembleCategory, 010, 10, ast_datarecord_010_disassemble);
BENCHMARK_CAPTURE(disassembleCategory, 020, 20, ast_datarecord_020_disassemble);
BENCHMARK_CAPTURE(disassembleCategory, 240, 240, ast_datarecord_240_disassemble);
BENCHMARK_CAPTURE(readTargets021, 0.23, "0.23", AST_UAP_CAT021_VER023);
BENCHMARK_CAPTURE(readTargets021, 2.7, "2.7", AST_UAP_CAT021_VER27);
BENCHMARK_CAPTURE(readTargets021, smart, nullptr, nullptr);
BENCHMARK(unpackVideo240);
BENCHMARK_CAPTURE(printCategory, 001, 1);
BENCHMARK_CAPTURE(printCategory, 004, 4);
BENCHMARK_CAPTURE(printCategory, 008, 8);
BENCHMARK_CAPTURE(printCategory, 010, 10);
BENCHMARK_CAPTURE(printCategory, 020, 20);
BENCHMARK_CAPTURE(printCategory, 021, 21);
BENCHMARK_CAPTURE(printCategory, 240, 240);

} // namespace

void *operator new(std::size_t size)
{
    allocations.fetch_add(1, std::memory_order_relaxed);
    if (void *memory = std::malloc(size)) {
        return memory;
    }
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
