#include "category_blocks.h"

#include "asterix/encoder.h"
#include "random.h"

#include <string>

namespace {

using korvane::asterix::BlockEncoder;

constexpr unsigned Seed = 20240602;
constexpr std::size_t RecordsPerBlock = 10;
constexpr int WeatherVectors = 60;
constexpr std::size_t VideoCells = 1000;

void addMode3A(BlockEncoder &encoder, const char *path, Random &random)
{
    encoder.setRaw(path, random.whole(4096));
}

void addCallsign(BlockEncoder &encoder, const char *path, Random &random)
{
    encoder.setText(path, "VYX" + std::to_string(random.whole(9000) + 1000));
}

void addTrack001(BlockEncoder &encoder, Random &random)
{
    encoder.set("020/TYP", 1);
    encoder.set("020/SSRPSR", 2);
    encoder.set("161", random.whole(4096));
    encoder.set("040/RHO", random.real(1, 250));
    encoder.set("040/THETA", random.real(0, 359));
    encoder.set("200/GSP", random.real(0.05, 0.14));
    encoder.set("200/HDG", random.real(0, 359));
    addMode3A(encoder, "070/MODE3A", random);
    encoder.set("090/HGT", random.real(10, 410));
    encoder.set("170/CON", 0);
}

void addConflict004(BlockEncoder &encoder, Random &random)
{
    encoder.set("000", 7);
    encoder.set("020", 36000);
    encoder.set("040", random.whole(65536));
    encoder.set("030", random.whole(65536));
    encoder.set("035", random.whole(65536));
    encoder.setText("170/AI1", "VYX123");
    addMode3A(encoder, "170/M31/MODE3A", random);
    addMode3A(encoder, "171/M32/MODE3A", random);
    encoder.set("070/TC", random.real(0, 120));
    encoder.set("070/CHS", random.real(0, 9000));
    encoder.set("120/CC/CS", 1);
}

void addVectors008(BlockEncoder &encoder, Random &random)
{
    encoder.set("000", 1);
    encoder.set("020/I", random.whole(7) + 1);
    for (int i = 0; i < WeatherVectors; ++i) {
        const unsigned start = random.whole(200);
        encoder.addRepetition("034");
        encoder.set("034/STR", start);
        encoder.set("034/ENDR", start + random.whole(50));
        encoder.set("034/AZ", random.real(0, 359));
    }
}

void addTarget010(BlockEncoder &encoder, Random &random)
{
    encoder.set("000", 1);
    encoder.set("020/TYP", 3);
    encoder.set("140", 36000);
    encoder.set("040/RHO", random.real(0, 5000));
    encoder.set("040/TH", random.real(0, 359));
    encoder.set("200/GSP", random.real(0, 0.01));
    encoder.set("200/TRA", random.real(0, 359));
    encoder.set("161/TRK", random.whole(4096));
    encoder.set("170/CNF", 0);
    encoder.set("270/LENGTH", random.whole(70));
}

void addTarget020(BlockEncoder &encoder, Random &random)
{
    encoder.set("020/MS", 0);
    encoder.set("140", 36000);
    encoder.set("041/LAT", random.real(47, 49));
    encoder.set("041/LON", random.real(15, 17));
    encoder.set("042/X", random.real(-40000, 40000));
    encoder.set("042/Y", random.real(-40000, 40000));
    encoder.set("161/TRN", random.whole(4096));
    encoder.set("170/CDM", random.whole(3));
    addMode3A(encoder, "070/MODE3A", random);
    encoder.set("202/VX", random.real(-200, 200));
    encoder.set("202/VY", random.real(-200, 200));
    encoder.set("090/FL", random.real(10, 200));
    encoder.setRaw("220", random.whole(1U << 24));
    addCallsign(encoder, "245/CHR", random);
}

void addTarget021(BlockEncoder &encoder, Random &random)
{
    encoder.set("040/ATP", 0);
    encoder.set("130/LAT", random.real(47, 49));
    encoder.set("130/LON", random.real(15, 17));
    encoder.set("131/LAT", random.real(47, 49)); // a position from edition 2.1 on
    encoder.set("131/LON", random.real(15, 17));
    encoder.setRaw("080", random.whole(1U << 24));
    addMode3A(encoder, "070/MODE3A", random);
    encoder.set("145", random.real(10, 410));
    encoder.set("155", random.real(-2000, 2000)); // one of the two exists
    encoder.set("155/BVR", random.real(-2000, 2000));
    encoder.set("160/GS", random.real(0.05, 0.14));
    encoder.set("160/TA", random.real(0, 359));
    encoder.set("146/ALT", 33000);
    addCallsign(encoder, "170", random);
}

void addRow240(BlockEncoder &encoder, Random &random)
{
    encoder.set("000", 2);
    encoder.set("020", random.whole(1000000));
    encoder.set("040/STARTAZ", random.real(0, 359));
    encoder.set("040/CELLDUR", 100);
    encoder.set("048/RES", 4);
    encoder.set("049/NBVB", VideoCells);
    encoder.set("049/NBCELLS", VideoCells);
    for (std::size_t i = 0; i < VideoCells; i += 4) {
        encoder.setRaw("050", random.whole(0xFFFFFFFF));
    }
    encoder.set("140", 36000);
}

struct Sample {
    int category;
    void (*add)(BlockEncoder &, Random &);
    std::size_t recordsPerBlock = RecordsPerBlock;
};

constexpr Sample Samples[] = {
    {1, addTrack001},
    {4, addConflict004},
    {8, addVectors008},
    {10, addTarget010},
    {20, addTarget020},
    {21, addTarget021},
    {240, addRow240, 1},
};

} // namespace

SampleBlocks makeCategoryBlocks(int category, const char *edition, std::size_t records)
{
    SampleBlocks out;
    Random random(Seed);
    BlockEncoder encoder(category, edition);
    for (const Sample &sample : Samples) {
        while (sample.category == category && out.records < records) {
            encoder.beginBlock();
            for (std::size_t i = 0; i < sample.recordsPerBlock; ++i) {
                encoder.beginRecord();
                encoder.set("010/SAC", 25);
                encoder.set("010/SIC", 201);
                sample.add(encoder, random);
                encoder.endRecord();
            }
            const auto block = encoder.block();
            out.octets.insert(out.octets.end(), block.begin(), block.end());
            out.records += encoder.recordCount();
        }
    }
    return out;
}
