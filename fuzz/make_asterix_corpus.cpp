// Writes the corpus of fuzz_asterix: small blocks that reach every kind of item.

#include "asterix/encoder.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

namespace {

using korvane::asterix::BlockEncoder;

void setSource(BlockEncoder &encoder)
{
    encoder.beginRecord();
    encoder.set("010/SAC", 25);
    encoder.set("010/SIC", 201);
}

void plot001(BlockEncoder &encoder)
{
    setSource(encoder);
    encoder.set("020/SSRPSR", 3);
    encoder.set("040/RHO", 61.5);
    encoder.set("040/THETA", 271.25);
    encoder.setText("070/MODE3A", "7000");
    encoder.set("130", 3);
    encoder.set("130", 5);
    encoder.set("141", 120.5);
    encoder.endRecord();
}

void track001(BlockEncoder &encoder)
{
    setSource(encoder);
    encoder.set("020/TYP", 1);
    encoder.set("020/TST", 1);
    encoder.set("161", 300);
    encoder.set("042/X", -20.25);
    encoder.set("042/Y", 33.5);
    encoder.set("170/TRE", 1);
    encoder.set("210", 7);
    const unsigned char contents[] = {1, 2, 3};
    encoder.setExplicit("SP", contents);
    encoder.endRecord();
}

void service002(BlockEncoder &encoder)
{
    setSource(encoder);
    encoder.set("000", 2);
    encoder.set("020", 45);
    encoder.set("030", 43200);
    encoder.set("050", 9);
    encoder.addRepetition("070");
    encoder.set("070/COUNTER", 17);
    encoder.endRecord();
}

void service034(BlockEncoder &encoder)
{
    setSource(encoder);
    encoder.set("000", 1);
    encoder.set("030", 43200);
    encoder.set("041", 4);
    encoder.set("050/COM/MSC", 1);
    encoder.set("050/MDS/SCF", 1);
    encoder.addRepetition("070");
    encoder.set("070/COUNT", 300);
    encoder.set("120/LAT", 48.2);
    encoder.endRecord();
}

void report048(BlockEncoder &encoder)
{
    setSource(encoder);
    encoder.set("140", 43200);
    encoder.set("020/TYP", 5);
    encoder.set("020/IRMACT/EP", 1);
    encoder.set("040/RHO", 120);
    encoder.set("130/PAM", -60);
    encoder.set("220", 0x4CA123);
    encoder.setText("240", "VYX123");
    encoder.addRepetition("250");
    encoder.set("250/BDS1", 6);
    encoder.set("030", 2);
    encoder.set("030", 16);
    encoder.addRepetition("120/RDS");
    encoder.set("120/RDS/FRQ", 2800);
    encoder.set("170/TRE", 1);
    const unsigned char contents[] = {0x80, 0x40};
    encoder.setExplicit("RE", contents);
    encoder.endRecord();
}

void track062(BlockEncoder &encoder)
{
    setSource(encoder);
    encoder.set("105/LAT", 48.2);
    encoder.set("245/STI", 1);
    encoder.set("380/IAS/IM", 1);
    encoder.set("380/IAS/IAS", 0.8);
    encoder.set("380/TIS/NAV", 1);
    encoder.addRepetition("380/TID");
    encoder.set("380/TID/ALT", 33000);
    encoder.setRaw("380/BDSDATA", 0x0123456789ABCDEF);
    encoder.set("080/M5I", 1);
    encoder.set("290/MLT", 2);
    encoder.set("295/BPS", 2);
    encoder.setText("390/CS", "VYX123");
    encoder.addRepetition("390/TOD");
    encoder.set("390/TOD/HOR", 12);
    encoder.set("270/WIDTH", 30);
    encoder.addRepetition("510");
    encoder.set("510/TRACK", 200);
    encoder.set("110/SUM/M5", 1);
    encoder.set("340/POS/RHO", 60);
    encoder.set("500/ARC", 25);
    encoder.endRecord();
}

// A plot with its position in random field sequencing, which the encoder does not do.
bool writeRandomFields(const std::filesystem::path &folder)
{
    constexpr unsigned char octets[] = {
        0x01, 0x00, 0x12, 0xC1, 0x01, 0x02, 0x19, 0xC9, 0x10, 0x02, 0x03, 0x1E, 0xC0, 0xC0, 0xE3, 0x04, 0x0E, 0x00};
    std::ofstream file(folder / "cat001_random_fields.ast", std::ios::binary);
    file.write(reinterpret_cast<const char *>(octets), sizeof octets);
    return file.good();
}

bool write(const std::filesystem::path &folder, const std::string &name, int category, int records,
    const std::function<void(BlockEncoder &)> &addRecord)
{
    BlockEncoder encoder(category);
    for (int i = 0; i < records; ++i)
        addRecord(encoder);
    std::ofstream file(folder / name, std::ios::binary);
    const auto block = encoder.block();
    file.write(reinterpret_cast<const char *>(block.data()), static_cast<std::streamsize>(block.size()));
    return file.good() && encoder.recordCount() == static_cast<std::size_t>(records);
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 2) {
        std::fputs("usage: make_asterix_corpus FOLDER\n", stderr);
        return 2;
    }
    const std::filesystem::path folder = argv[1];
    std::filesystem::create_directories(folder);
    const bool isWritten = write(folder, "cat001_plot.ast", 1, 2, plot001)
        && write(folder, "cat001_track.ast", 1, 2, track001) && write(folder, "cat002.ast", 2, 3, service002)
        && write(folder, "cat034.ast", 34, 2, service034) && write(folder, "cat048.ast", 48, 2, report048)
        && write(folder, "cat062.ast", 62, 2, track062) && writeRandomFields(folder);
    return isWritten ? 0 : 1;
}
