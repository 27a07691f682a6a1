#include "sample_blocks.h"

#include "asterix/encoder.h"
#include "random.h"

#include <string>

namespace {

using korvane::asterix::BlockEncoder;

constexpr unsigned Seed = 20240601;
constexpr std::size_t PlotsPerBlock = 10;
constexpr std::size_t TracksPerBlock = 12;

void append(SampleBlocks &out, const BlockEncoder &encoder)
{
    const auto block = encoder.block();
    out.octets.insert(out.octets.end(), block.begin(), block.end());
    out.records += encoder.recordCount();
}

void addSector(SampleBlocks &out, BlockEncoder &encoder, double time, unsigned sector)
{
    encoder.beginBlock();
    encoder.beginRecord();
    encoder.set("010/SAC", 25);
    encoder.set("010/SIC", 201);
    encoder.set("000", sector == 0 ? 1 : 2);
    encoder.set("030", time);
    encoder.set("020", sector * 11.25);
    encoder.endRecord();
    append(out, encoder);
}

void addPlot(BlockEncoder &encoder, Random &random, double time)
{
    encoder.beginRecord();
    encoder.set("010/SAC", 25);
    encoder.set("010/SIC", 201);
    encoder.set("140", time);
    const unsigned kind = random.whole(10);
    encoder.set("020/TYP", kind < 6 ? 5 : 2);
    encoder.set("040/RHO", random.real(1, 250));
    encoder.set("040/THETA", random.real(0, 359.9));
    encoder.setRaw("070/MODE3A", random.whole(4096));
    encoder.set("090/FL", random.real(10, 410));
    if (kind < 6) {
        encoder.setRaw("220", random.whole(1U << 24));
    }
    if (kind < 3) {
        encoder.set("161/TRN", random.whole(4096));
    }
    encoder.endRecord();
}

void addTrack(BlockEncoder &encoder, Random &random, double time)
{
    encoder.beginRecord();
    encoder.set("010/SAC", 25);
    encoder.set("010/SIC", 100);
    encoder.set("015", 1);
    encoder.set("070", time);
    encoder.set("105/LAT", random.real(35, 60));
    encoder.set("105/LON", random.real(-10, 25));
    encoder.set("100/X", random.real(-400000, 400000));
    encoder.set("100/Y", random.real(-400000, 400000));
    encoder.set("185/VX", random.real(-250, 250));
    encoder.set("185/VY", random.real(-250, 250));
    encoder.set("210/AX", 0.25);
    encoder.set("290/TRK", random.whole(40) * 0.25);
    encoder.set("290/SSR", random.whole(40) * 0.25);
    encoder.set("290/MDS", random.whole(40) * 0.25);
    encoder.setRaw("060/MODE3A", random.whole(4096));
    encoder.set("380/ADR", random.whole(1U << 24));
    encoder.setText("380/ID", "VYX" + std::to_string(random.whole(9000) + 1000));
    encoder.set("380/SAL/ALT", random.whole(16) * 1000.0);
    encoder.set("040", random.whole(65536));
    encoder.set("080/SRC", 2);
    encoder.set("080/CST", random.whole(20) == 0);
    encoder.set("200/VERT", random.whole(3));
    encoder.set("136", random.real(10, 410));
    encoder.set("220", random.real(-2000, 2000));
    encoder.endRecord();
}

} // namespace

SampleBlocks makePlotBlocks(std::size_t records)
{
    SampleBlocks out;
    Random random(Seed);
    BlockEncoder sectors(34);
    BlockEncoder plots(48);
    double time = 36000;
    for (unsigned sector = 0; out.records < records; ++sector) {
        time = time >= 86000 ? 0 : time + 0.125;
        addSector(out, sectors, time, sector % 32);
        plots.beginBlock();
        for (std::size_t i = 0; i < PlotsPerBlock; ++i) {
            addPlot(plots, random, time);
        }
        append(out, plots);
    }
    return out;
}

SampleBlocks makeTrackBlocks(std::size_t records)
{
    SampleBlocks out;
    Random random(Seed);
    BlockEncoder tracks(62);
    double time = 36000;
    while (out.records < records) {
        time = time >= 86000 ? 0 : time + 0.125;
        tracks.beginBlock();
        for (std::size_t i = 0; i < TracksPerBlock; ++i) {
            addTrack(tracks, random, time);
        }
        append(out, tracks);
    }
    return out;
}
