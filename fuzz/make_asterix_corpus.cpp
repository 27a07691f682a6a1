// Writes the corpus of fuzz_asterix: small blocks that reach every kind of item.

#include "asterix/encoder.h"
#include "asterix/json_encoder.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
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
    constexpr unsigned char Octets[] = {
        0x01, 0x00, 0x12, 0xC1, 0x01, 0x02, 0x19, 0xC9, 0x10, 0x02, 0x03, 0x1E, 0xC0, 0xC0, 0xE3, 0x04, 0x0E, 0x00};
    std::ofstream file(folder / "cat001_random_fields.ast", std::ios::binary);
    file.write(reinterpret_cast<const char *>(Octets), sizeof Octets);
    return file.good();
}

bool write(const std::filesystem::path &folder, const std::string &name, int category, int records,
    const std::function<void(BlockEncoder &)> &addRecord)
{
    BlockEncoder encoder(category);
    for (int i = 0; i < records; ++i) {
        addRecord(encoder);
    }
    std::ofstream file(folder / name, std::ios::binary);
    const auto block = encoder.block();
    file.write(reinterpret_cast<const char *>(block.data()), static_cast<std::streamsize>(block.size()));
    return file.good() && encoder.recordCount() == static_cast<std::size_t>(records);
}

// One record, as the JSON writer would print it.
struct Line {
    const char *file;
    const char *edition; // of its category; null for the standard one
    int category;
    const char *items;
};

constexpr Line Lines[] = {
    {"cat004_alive.ast", nullptr, 4,
        R"("010":{"SAC":25,"SIC":1},"000":1,"020":43200,"060":{"MSAW":1,"STCA":1,"RIMCA":1,"DG":1,"PAIW":1,"NTZ":1})"},
    {"cat004_conflict.ast", nullptr, 4,
        R"("010":{"SAC":25,"SIC":1},"000":7,"015":[{"SAC":1,"SIC":2}],"040":42,"045":{"STAT":1},"030":1234,"035":1235,)"
        R"("170":{"AI1":"VYX123","M31":{"MODE3A":"7700"},"CPW":{"LAT":48.2,"LON":16.4,"ALT":31000},"TT1":60,"DT1":900,)"
        R"("AC1":{"RVSM":1,"CDM":2},"MS1":"VYX123","FP1":{"NBR":77},"CF1":310},"171":{"CPL":{"X":-5,"Y":5,"Z":100}},)"
        R"("120":{"CN":{"MAS":1,"RTC":1},"CC":{"TID":1,"CS":1},"CP":50,"CD":12.5},"070":{"TC":30,"CHS":9260,)"
        R"("MVS":500},)"
        R"("074":-64,"075":12.5,"076":-100,"110":[{"CEN":1,"POS":2}])"},
    {"cat004_area.ast", nullptr, 4,
        R"("000":5,"040":1,"030":2,"100":{"AN":"AREA51","CAN":"XING","SB":"STOP1","G":"G12"})"},
    {"cat008_polar.ast", nullptr, 8,
        R"("000":1,"020":{"I":5,"TST":0,"ER":1},"034":[{"STR":1,"ENDR":200,"AZ":90},{"STR":3,"ENDR":4,"AZ":359}])"},
    {"cat008_cartesian.ast", nullptr, 8,
        R"("000":2,"020":{"I":3,"S":2},"036":[{"X":-5,"Y":7,"LENGTH":30}],"038":[{"X1":1,"Y1":-2,"X2":3,"Y2":-4}])"},
    {"cat008_contour.ast", nullptr, 8,
        R"("000":3,"040":{"I":2,"FSTLST":3,"CSN":9},"050":[{"X1":1,"Y1":1},{"X1":9,"Y1":1},{"X1":5,"Y1":-8}])"},
    {"cat008_frame.ast", nullptr, 8, R"("000":254,"090":43200,"100":{"F":-3,"R":1,"Q":99},"110":[1,2],"120":300)"},
    {"cat010.ast", nullptr, 10,
        R"("000":1,"020":{"TYP":3,"TOT":2,"SPI":1},"140":43200,"041":{"LAT":48.1,"LON":16.5},"040":{"RHO":900,)"
        R"("TH":90},)"
        R"("200":{"GSP":0.01,"TRA":45},"202":{"VX":-5,"VY":5},"161":{"TRK":300},"170":{"CST":1,"DOU":2,"GHO":1},)"
        R"("245":{"STI":1,"CHR":"FOLLOW1"},"250":[{"MBDATA":"AEE57730A80000","BDS1":4,"BDS2":0}],"300":16,)"
        R"("270":{"LENGTH":12,"ORIENTATION":90,"WIDTH":5},"310":{"MSG":2},"500":{"COVXY":-1},)"
        R"("280":[{"DRHO":-3,"DTHETA":3}])"},
    {"cat019.ast", nullptr, 19, R"("000":2,"140":43200,"550":{"NOGO":1},"552":[{"RSI":7,"RSO":1}],"553":{"REFTR3":1})"},
    {"cat020.ast", nullptr, 20,
        R"("020":{"SSR":1,"SPI":1,"CF":1},"140":43200,"041":{"LAT":48,"LON":-16},"042":{"X":-9,"Y":9},"161":{"TRN":9},)"
        R"("170":{"CST":1,"CDM":2,"GHO":1},"070":{"MODE3A":"2345"},"202":{"VX":-9,"VY":9},"090":{"FL":99.25},)"
        R"("030":[3,17],)"
        R"("220":4993315,"245":{"STI":2,"CHR":"VYX123"},"250":[{"BDSDATA":"EE0A8B30BE37C8","BDS1":6,"BDS2":0}],)"
        R"("500":{"DOP":{"X":2}},"230":{"COM":1},"260":"30E0000A814D0A")"},
    {"cat021_023.ast", "0.23", 21,
        R"("040":{"ATP":1},"030":43200,"130":{"LAT":48,"LON":16},"080":4993315,"145":350,"155":-1200,)"
        R"("160":{"GS":0.1,"TA":90},"170":"VYX123","146":{"SAS":1,"ALT":33000},"220":{"WS":50},)"
        R"("110":{"TIS":{"NAV":1}})"},
    {"cat021_026.ast", "0.26", 21,
        R"("040":{"ATP":1},"030":43200,"130":{"LAT":48,"LON":16},"080":4993315,"157":1200,"152":90,"148":{"ALT":3000},)"
        R"("070":{"G":1,"MODE3A":"7000"},"131":90,"150":{"IM":1,"AS":0.8},"165":{"TI":1,"ROT":-1})"},
    {"cat021_21.ast", "2.1", 21,
        R"("040":{"ATP":1,"SIM":1,"CPR":1},"161":{"TRNUM":9},"071":43200,"131":{"LAT":48,"LON":16},"080":4993315,)"
        R"("145":350,"155":{"RE":1,"BVR":-1200},"160":{"GS":0.1,"TA":90},"074":{"FSI":1,"TOMRP":0.5},"295":{"GV":1},)"
        R"("090":{"NUCPNIC":7,"PIC":9},"250":["AEE57730A8000040"],"271":{"LW":3},"RE":"8001")"},
    {"cat021_27.ast", nullptr, 21,
        R"("040":{"ATP":1,"SIM":1},"130":{"LAT":48,"LON":16},"131":{"LAT":48,"LON":16},"080":4993315,"152":90,)"
        R"("157":{"GVR":500},"148":{"ALT":4000},"070":{"MODE3A":"7700"},"170":"VYX123","200":{"PS":1},)"
        R"("295":{"SAL":2})"},
    {"cat023.ast", nullptr, 23, R"("000":2,"015":{"SID":1},"070":43200,"120":[{"TYPE":1,"CV":9}],"200":200)"},
    {"cat048_expansion.ast", nullptr, 48, R"("140":43200,"020":{"TYP":5},"RE":"80FFFF")"},
    {"cat063.ast", nullptr, 63, R"("015":1,"030":43200,"050":{"SAC":1,"SIC":2},"060":{"CON":1,"MSC":1},"081":-0.5)"},
    {"cat065.ast", nullptr, 65, R"("000":1,"015":1,"030":43200,"040":{"NOGO":1,"PSS":2})"},
    {"cat240_summary.ast", nullptr, 240, R"("000":1,"030":["V","I","D","E","O"],"140":43200)"},
    {"cat240_bits.ast", nullptr, 240,
        R"("000":2,"020":7,"040":{"STARTAZ":90,"ENDAZ":91,"STARTRG":16,"CELLDUR":100},"048":{"C":0,"RES":1},)"
        R"("049":{"NBVB":8,"NBCELLS":61},"050":[2779096485,1],"140":43200)"},
    {"cat240_octets.ast", nullptr, 240,
        R"("000":2,"020":8,"041":{"STARTAZ":359,"ENDAZ":0,"STARTRG":0,"CELLDUR":100000000},"048":{"C":0,"RES":4},)"
        R"("049":{"NBVB":3,"NBCELLS":3},"050":[305419896])"},
};

bool write(const std::filesystem::path &folder, const Line &line)
{
    std::ofstream file(folder / line.file, std::ios::binary);
    korvane::asterix::JsonEncoder encoder([&file](std::span<const unsigned char> block) {
        file.write(reinterpret_cast<const char *>(block.data()), static_cast<std::streamsize>(block.size()));
    });
    if (line.edition && !encoder.select(line.category, line.edition)) {
        return false;
    }
    const std::string text =
        R"({"cat":)" + std::to_string(line.category) + R"(,"block":1,"items":{)" + line.items + "}}";
    const bool isEncoded = encoder.addLine(text);
    if (!isEncoded) {
        std::fprintf(stderr, "%s: %s\n", line.file, encoder.lastError().c_str());
    }
    encoder.finish();
    return isEncoded && file.good();
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
        && write(folder, "cat062.ast", 62, 2, track062) && writeRandomFields(folder)
        && std::all_of(std::begin(Lines), std::end(Lines), [&](const Line &line) { return write(folder, line); });
    return isWritten ? 0 : 1;
}
