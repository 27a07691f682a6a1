#include "asterix/asterix.h"
#include "example/nearest_plot.h"
#include "octets.h"
#include "test_files.h"
#include "test_program.h"
#include "typed_twins.h"

#include <QTest>

#include <utility>

namespace {

const Twin<_ast_datarecord_001_t> twins001[] = {
    {"010/SIC", [](const auto &r) { return r.i010.present ? r.i010.sic : absent; }},
    {"020/TYP", [](const auto &r) { return r.i020.present ? r.i020.typ : absent; }},
    {"020/SSRPSR", [](const auto &r) { return r.i020.present ? r.i020.ssrpsr : absent; }},
    {"020/RAB", [](const auto &r) { return r.i020.present ? r.i020.rab : absent; }},
    {"161", [](const auto &r) { return r.i161.present ? r.i161.trackNumber : absent; }},
    {"040/RHO", [](const auto &r) { return r.i040.present ? r.i040.rho : absent; }},
    {"040/THETA", [](const auto &r) { return r.i040.present ? r.i040.theta : absent; }},
    {"042/X", [](const auto &r) { return r.i042.present ? r.i042.x : absent; }},
    {"200/GSP", [](const auto &r) { return r.i200.present ? r.i200.groundSpeed : absent; },
        KnotsPerNauticalMileASecond},
    {"090/HGT", [](const auto &r) { return r.i090.present ? r.i090.level : absent; }, 4},
    {"141", [](const auto &r) { return r.i141.present ? r.i141.seconds : absent; }},
    {"170/CON", [](const auto &r) { return r.i170.present ? r.i170.con : absent; }},
};

template <typename Typed>
const Twin<Typed> serviceTwins[] = {
    {"000", [](const auto &r) { return r.i000.present ? r.i000.type : absent; }},
    {"020", [](const auto &r) { return r.i020.present ? r.i020.azimuth : absent; }},
    {"030", [](const auto &r) { return r.i030.present ? r.i030.seconds : absent; }},
    {"041", [](const auto &r) { return r.i041.present ? r.i041.period : absent; }},
};

const Twin<_ast_datarecord_034_t> twins034[] = {
    {"120/HGT", [](const auto &r) { return r.i120.present ? r.i120.height : absent; }},
    {"120/LAT", [](const auto &r) { return r.i120.present ? r.i120.latitude : absent; }},
    {"120/LON", [](const auto &r) { return r.i120.present ? r.i120.longitude : absent; }},
};

const Twin<_ast_datarecord_048_t> twins048[] = {
    {"010/SAC", [](const auto &r) { return r.i010.present ? r.i010.sac : absent; }},
    {"140", [](const auto &r) { return r.i140.present ? r.i140.seconds : absent; }},
    {"020/TYP", [](const auto &r) { return r.i020.present ? r.i020.typ : absent; }},
    {"020/RAB", [](const auto &r) { return r.i020.present ? r.i020.rab : absent; }},
    {"040/RHO", [](const auto &r) { return r.i040.present ? r.i040.rho : absent; }},
    {"042/Y", [](const auto &r) { return r.i042.present ? r.i042.y * 128 * r.i042.resolution : absent; }, 128},
    {"070/V", [](const auto &r) { return r.i070.present ? r.i070.v : absent; }},
    {"090/FL", [](const auto &r) { return r.i090.present ? r.i090.level : absent; }, 4},
    {"161/TRN", [](const auto &r) { return r.i161.present ? r.i161.trackNumber : absent; }},
    {"200/GSP", [](const auto &r) { return r.i200.present ? r.i200.groundSpeed : absent; },
        KnotsPerNauticalMileASecond},
    {"170/CDM", [](const auto &r) { return r.i170.present ? r.i170.cdm : absent; }},
    {"220", [](const auto &r) { return r.i220.present ? r.i220.address : absent; }},
    {"230/STAT", [](const auto &r) { return r.i230.present ? r.i230.stat : absent; }},
};

double age(const _ast_update_age_t &age)
{
    return age.present ? age.seconds : absent;
}

const Twin<_ast_datarecord_062_t> twins062[] = {
    {"070", [](const auto &r) { return r.i070.present ? r.i070.seconds : absent; }},
    {"105/LAT", [](const auto &r) { return r.i105.present ? r.i105.latitude : absent; }},
    {"100/Y", [](const auto &r) { return r.i100.present ? r.i100.y : absent; }},
    {"185/VY", [](const auto &r) { return r.i185.present ? r.i185.vy : absent; }},
    {"380/ADR", [](const auto &r) { return r.i380.addressPresent ? r.i380.address : absent; }},
    {"380/FSS/ALT",
        [](const auto &r) { return r.i380.finalSelectedAltitudePresent ? r.i380.finalSelectedAltitude : absent; }},
    {"380/BVR", [](const auto &r) { return r.i380.verticalRatePresent ? r.i380.verticalRate : absent; }},
    {"380/GS", [](const auto &r) { return r.i380.groundSpeedPresent ? r.i380.groundSpeed : absent; },
        KnotsPerNauticalMileASecond},
    {"380/COM/STAT", [](const auto &r) { return r.i380.flightStatusPresent ? r.i380.flightStatus : absent; }},
    {"380/SAB/STAT", [](const auto &r) { return r.i380.priorityStatusPresent ? r.i380.priorityStatus : absent; }},
    {"290/PSR", [](const auto &r) { return age(r.i290.psr); }},
    {"290/MDS", [](const auto &r) { return age(r.i290.modeS); }},
    {"290/ES", [](const auto &r) { return age(r.i290.es); }},
    {"290/MLT", [](const auto &r) { return age(r.i290.mlat); }},
    {"340/TYP/TYP", [](const auto &r) { return r.i340.typePresent ? r.i340.type : absent; }},
    {"040", [](const auto &r) { return r.i040.present ? r.i040.trackNumber : absent; }},
    {"136", [](const auto &r) { return r.i136.present ? r.i136.level : absent; }, 4},
    {"130", [](const auto &r) { return r.i130.present ? r.i130.altitude : absent; }},
    {"135/CTB", [](const auto &r) { return r.i135.present ? r.i135.level : absent; }, 4},
    {"220", [](const auto &r) { return r.i220.present ? r.i220.rate : absent; }},
};

const Twin<_ast_datarecord_010_t> twins010[] = {
    {"000", [](const auto &r) { return r.i000.present ? r.i000.type : absent; }},
    {"020/TYP", [](const auto &r) { return r.i020.present ? r.i020.typ : absent; }},
    {"020/CRT", [](const auto &r) { return r.i020.present ? r.i020.crt : absent; }},
    {"140", [](const auto &r) { return r.i140.present ? r.i140.seconds : absent; }},
    {"041/LAT", [](const auto &r) { return r.i041.present ? r.i041.latitude : absent; }},
    {"041/LON", [](const auto &r) { return r.i041.present ? r.i041.longitude : absent; }},
    {"040/RHO", [](const auto &r) { return r.i040.present ? r.i040.rho : absent; }},
    {"040/TH", [](const auto &r) { return r.i040.present ? r.i040.theta : absent; }},
    {"042/Y", [](const auto &r) { return r.i042.present ? r.i042.y : absent; }},
    {"200/GSP", [](const auto &r) { return r.i200.present ? r.i200.groundSpeed : absent; },
        KnotsPerNauticalMileASecond},
    {"202/VY", [](const auto &r) { return r.i202.present ? r.i202.vy : absent; }},
    {"161/TRK", [](const auto &r) { return r.i161.present ? r.i161.trackNumber : absent; }},
    {"170/CST", [](const auto &r) { return r.i170.present ? r.i170.cst : absent; }},
    {"060/L", [](const auto &r) { return r.i060.present ? r.i060.l : absent; }},
    {"245/STI", [](const auto &r) { return r.i245.present ? r.i245.sti : absent; }},
    {"300", [](const auto &r) { return r.i300.present ? r.i300.fleet : absent; }},
    {"090/FL", [](const auto &r) { return r.i090.present ? r.i090.level : absent; }, 4},
    {"091", [](const auto &r) { return r.i091.present ? r.i091.height : absent; }},
    {"270/LENGTH", [](const auto &r) { return r.i270.present ? r.i270.length : absent; }},
    {"550/TTF", [](const auto &r) { return r.i550.present ? r.i550.ttf : absent; }},
    {"310/MSG", [](const auto &r) { return r.i310.present ? r.i310.message : absent; }},
    {"500/COVXY", [](const auto &r) { return r.i500.present ? r.i500.xy : absent; }},
    {"131", [](const auto &r) { return r.i131.present ? r.i131.amplitude : absent; }},
    {"210/AX", [](const auto &r) { return r.i210.present ? r.i210.ax : absent; }},
};

const Twin<_ast_datarecord_020_t> twins020[] = {
    {"020/SSR", [](const auto &r) { return r.i020.present ? r.i020.technology >> 6 : absent; }},
    {"140", [](const auto &r) { return r.i140.present ? r.i140.seconds : absent; }},
    {"041/LON", [](const auto &r) { return r.i041.present ? r.i041.longitude : absent; }},
    {"042/X", [](const auto &r) { return r.i042.present ? r.i042.x : absent; }},
    {"161/TRN", [](const auto &r) { return r.i161.present ? r.i161.trackNumber : absent; }},
    {"170/CDM", [](const auto &r) { return r.i170.present ? r.i170.cdm : absent; }},
    {"170/STH", [](const auto &r) { return r.i170.present ? r.i170.sth : absent; }},
    {"202/VX", [](const auto &r) { return r.i202.present ? r.i202.vx : absent; }},
    {"090/FL", [](const auto &r) { return r.i090.present ? r.i090.flightLevel : absent; }},
    {"220", [](const auto &r) { return r.i220.present ? r.i220.address : absent; }},
    {"110", [](const auto &r) { return r.i110.present ? r.i110.height : absent; }},
    {"105", [](const auto &r) { return r.i105.present ? r.i105.height : absent; }},
    {"210/AY", [](const auto &r) { return r.i210.present ? r.i210.ay : absent; }},
    {"310/TRB", [](const auto &r) { return r.i310.present ? r.i310.trouble : absent; }},
    {"230/STAT", [](const auto &r) { return r.i230.present ? r.i230.stat : absent; }},
};

template <typename Typed>
bool isValidAs(Disassemble<Typed> disassemble, const _ast_datarecord_t &record)
{
    Typed typed;
    disassemble(&typed, record);
    return typed.valid;
}

// The categories whose typed record a record gives.
QList<int> categoriesOf(const _ast_datarecord_t &record)
{
    const std::pair<int, bool> all[] = {{1, isValidAs(ast_datarecord_001_disassemble, record)},
        {2, isValidAs(ast_datarecord_002_disassemble, record)}, {4, isValidAs(ast_datarecord_004_disassemble, record)},
        {8, isValidAs(ast_datarecord_008_disassemble, record)}, {10, isValidAs(ast_datarecord_010_disassemble, record)},
        {20, isValidAs(ast_datarecord_020_disassemble, record)},
        {34, isValidAs(ast_datarecord_034_disassemble, record)},
        {48, isValidAs(ast_datarecord_048_disassemble, record)},
        {62, isValidAs(ast_datarecord_062_disassemble, record)},
        {240, isValidAs(ast_datarecord_240_disassemble, record)}};
    QList<int> categories;
    for (const auto &[category, isValid] : all) {
        if (isValid) {
            categories.append(category);
        }
    }
    return categories;
}

} // namespace

class TestTypedRecords : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void agreeWithTheTables()
    {
        compareTwins<_ast_datarecord_001_t>(1, "plot", ast_datarecord_001_disassemble, twins001);
        compareTwins<_ast_datarecord_001_t>(1, "track", ast_datarecord_001_disassemble, twins001);
        compareTwins(2, nullptr, ast_datarecord_002_disassemble, serviceTwins<_ast_datarecord_002_t>);
        compareTwins<_ast_datarecord_010_t>(10, nullptr, ast_datarecord_010_disassemble, twins010);
        compareTwins<_ast_datarecord_020_t>(20, nullptr, ast_datarecord_020_disassemble, twins020);
        compareTwins(34, nullptr, ast_datarecord_034_disassemble, serviceTwins<_ast_datarecord_034_t>);
        compareTwins<_ast_datarecord_034_t>(34, nullptr, ast_datarecord_034_disassemble, twins034);
        compareTwins<_ast_datarecord_048_t>(48, nullptr, ast_datarecord_048_disassemble, twins048);
        compareTwins<_ast_datarecord_062_t>(62, nullptr, ast_datarecord_062_disassemble, twins062);
    }

    void readsModeSPlot()
    {
        const Octets octets = Octets::block(48,
            "FDFF02 19C9 546000 AC 3D804000 A4E5 4578 4CA123 599631CB3820"
            "02 AEE57730A80000 40 EE0A8B30BE37C8 60 04D2 0540FF00 0800A000 CB80 28A5");
        const auto plot = typedRecord<_ast_datarecord_048_t>(octets, ast_datarecord_048_disassemble);
        QVERIFY(plot.valid && plot.i010.sac == 25 && plot.i010.sic == 201 && plot.i140.seconds == 43200);
        QVERIFY(plot.i020.typ == 5 && !plot.i020.sim && plot.i020.rdp && plot.i020.spi && !plot.i020.rab);
        QVERIFY(plot.i040.rho == 61.5 && plot.i040.theta == 90);
        QVERIFY(plot.i070.v && !plot.i070.g && plot.i070.l && plot.i070.code == 02345);
        QVERIFY(!plot.i090.v && plot.i090.g && plot.i090.level == 1400);
        QCOMPARE(plot.i220.address, 0x4CA123U);
        QVERIFY(plot.i250.count == 2 && plot.i250.octets[7] == 0x40 && plot.i250.octets[15] == 0x60);
        QCOMPARE(plot.i161.trackNumber, std::uint16_t{1234});
        // Cartesian positions are counts of 1/128 NM.
        QVERIFY(plot.i042.x == 1344 && plot.i042.y == -256 && plot.i042.x * plot.i042.resolution == 10.5);
        QVERIFY(plot.i200.groundSpeed == 450 && plot.i200.heading == 225);
        QVERIFY(plot.i170.cnf && plot.i170.rad == 2 && !plot.i170.dou && plot.i170.mah && plot.i170.cdm == 1);
        QVERIFY(plot.i170.tre && plot.i230.com == 1 && plot.i230.stat == 2);
        QCOMPARE(ast_bds_40_decode(plot.i250.octets).mcpAltitude, 24000);
    }

    // The octet with the bit may not be sent.
    void tellsTestTargets()
    {
        const auto isTest = [](auto disassemble, int category, const char *record) {
            return typedRecord(Octets::block(category, record), disassemble).i020.tst;
        };
        QVERIFY(isTest(ast_datarecord_048_disassemble, 48, "20 A180"));
        QVERIFY(!isTest(ast_datarecord_048_disassemble, 48, "30 A0 8000 0000"));
        QVERIFY(isTest(ast_datarecord_001_disassemble, 1, "40 1180"));
        QVERIFY(!isTest(ast_datarecord_001_disassemble, 1, "40 117E"));
    }

    void readsSystemTrack()
    {
        const Octets octets = Octets::block(62,
            "9F7DBC 1964 546000 00800000FFC00000 0007D0FFFC17 0190FFFF 2FC0 40599631CB3820"
            "F74530 4CA123 599631CB3820 4000 8320 C528 1FFF 01000102030405060708090A0B0C0D0E FF9C C000 0800"
            "04D2 D3C10180 66 FFFB 03E8 FFFB FF38");
        const auto track = typedRecord<_ast_datarecord_062_t>(octets, ast_datarecord_062_disassemble);
        QVERIFY(track.valid && track.i070.seconds == 43200);
        QVERIFY(track.i105.latitude == 45 && track.i105.longitude == -22.5);
        QVERIFY(track.i105.latitudeCount == 0x800000 && track.i105.longitudeCount == -0x400000);
        QCOMPARE(track.i105.longitudeCount * track.i105.resolution, -22.5);
        QVERIFY(track.i100.x == 1000 && track.i100.y == -500.5 && track.i185.vx == 100 && track.i185.vy == -0.25);
        QVERIFY(track.i060.code == 07700 && !track.i060.v && !track.i060.g && track.i060.l);
        QCOMPARE(QByteArray(track.i245.text), QByteArray("VYX123"));
        QCOMPARE(QByteArray(track.i380.callsign), QByteArray("VYX123"));
        QVERIFY(track.i380.address == 0x4CA123 && track.i380.magneticHeading == 90);
        QVERIFY(track.i380.selectedAltitude == 33000 && track.i380.finalSelectedAltitude == -25);
        // What comes after a repeated sub-item is found beyond all of its repetitions.
        QVERIFY(track.i380.verticalRate == -625 && track.i380.trackAngle == 270 && track.i380.groundSpeed == 450);
        QVERIFY(track.i080.mon && track.i080.spi && !track.i080.mrh && track.i080.src == 4 && track.i080.cnf);
        QVERIFY(track.i080.sim && track.i080.tse && !track.i080.tsb && track.i080.cst && !track.i080.psrOld);
        QVERIFY(track.i200.trans == 1 && track.i200.longitudinal == 2 && track.i200.vertical == 1 && track.i200.adf);
        QVERIFY(track.i040.trackNumber == 1234 && track.i136.level == -5 && track.i130.altitude == 6250);
        QVERIFY(track.i135.qnhApplied && track.i135.level == -5 && track.i220.rate == -1250);
    }

    void readsTrackEnds()
    {
        struct Row {
            const char *status;
            bool isEnd;
        };
        for (const Row &row : {Row{"01 80", true}, Row{"01 00", false}, Row{"00", false}}) {
            // Item 001/170 is followed by 001/210, whose first octet has its highest bit set.
            const Octets octets = Octets::block(1, QByteArray("41 06 80 ") + row.status + " 80");
            const auto record = typedRecord<_ast_datarecord_001_t>(octets, ast_datarecord_001_disassemble);
            QVERIFY2(record.i170.present, row.status);
            QCOMPARE(record.i170.tre, row.isEnd);
        }
        // Coasting stands in the fourth extent: without it the next item's octet is not taken for it.
        const auto short062 = typedRecord<_ast_datarecord_062_t>(
            Octets::block(62, "0105 80 01 01 00 FF"), ast_datarecord_062_disassemble);
        QVERIFY(short062.i080.present && !short062.i080.cst);
    }

    void readsSurfaceTrack()
    {
        // Extents of descriptor, status and size; the position in metres.
        const Octets octets = Octets::block(10,
            "FDBFAC 19C9 01 77 AB 80 546000 40000000E0000000 04D2 4000 04000000 04D2 B5 29 80 8F00 4CA123"
            "40599631CB3820 01 AEE57730A80000 40 43C8 3E 50");
        const auto track = typedRecord<_ast_datarecord_010_t>(octets, ast_datarecord_010_disassemble);
        QVERIFY(track.valid && track.i000.type == 1 && track.i140.seconds == 43200);
        QVERIFY(track.i020.typ == 3 && track.i020.dcr && track.i020.chn == 0 && track.i020.gbs && track.i020.crt);
        QVERIFY(track.i020.sim && !track.i020.tst && track.i020.rab && track.i020.lop == 1 && track.i020.tot == 1);
        QVERIFY(track.i020.spi && track.i041.latitude == 90 && track.i041.longitude == -45);
        QVERIFY(track.i040.rho == 1234 && track.i040.theta == 90);
        QVERIFY(track.i200.groundSpeed == 225 && track.i200.heading == 0 && track.i161.trackNumber == 1234);
        QVERIFY(track.i170.cnf && !track.i170.tre && track.i170.cst == 3 && !track.i170.mah && track.i170.tcc);
        QVERIFY(track.i170.tom == 0 && track.i170.dou == 5 && track.i170.mrs == 0 && track.i170.gho);
        QVERIFY(track.i060.v && track.i060.code == 07400 && track.i220.address == 0x4CA123);
        QVERIFY(track.i245.sti == 1 && QByteArray(track.i245.text) == "VYX123");
        QVERIFY(track.i250.count == 1 && track.i250.octets[7] == 0x40 && track.i090.g && track.i090.level == 968);
        QVERIFY(track.i270.length == 31 && track.i270.orientation == 0 && track.i270.width == 0);
        QVERIFY(track.i550.nogo == 1 && !track.i550.ovl && track.i550.tsv && !track.i550.div);
    }

    void readsMultilaterationTrack()
    {
        const Octets octets = Octets::block(20,
            "FFED0340 19C9 7F8A 546000 00800000FFC00000 0007D0FFFC17 04D2 7180 A4E5 FFF00010 4578 4CA123"
            "80599631CB3820 01 EE0A8B30BE37C8 60 30E00000000000");
        const auto track = typedRecord<_ast_datarecord_020_t>(octets, ast_datarecord_020_disassemble);
        QVERIFY(track.valid && track.i020.technology == 0x3F && track.i020.rab && !track.i020.spi);
        QVERIFY(track.i020.crt && !track.i020.sim && track.i020.tst);
        QVERIFY(track.i041.latitude == 45 && track.i041.longitude == -22.5);
        QVERIFY(track.i042.x == 1000 && track.i042.y == -500.5 && track.i202.vx == -4 && track.i202.vy == 4);
        QVERIFY(!track.i170.cnf && track.i170.tre && track.i170.cst && track.i170.cdm == 2 && track.i170.gho);
        // Whole flight levels, where the other categories have quarters.
        QVERIFY(!track.i090.v && track.i090.g && track.i090.flightLevel == 350);
        QVERIFY(track.i070.code == 02345 && track.i161.trackNumber == 1234 && track.i220.address == 0x4CA123);
        QVERIFY(track.i245.sti == 2 && QByteArray(track.i245.text) == "VYX123");
        QCOMPARE(ast_bds_60_decode(track.i250.octets).indicatedAirspeed, 325.0);
        QVERIFY(track.i260.present && track.i260.octets[1] == 0xE0);
    }

    void leavesOtherCategoriesAlone()
    {
        const auto plot =
            typedRecord<_ast_datarecord_048_t>(Octets::block(34, "80 19C9"), ast_datarecord_048_disassemble);
        QVERIFY(!plot.valid && !plot.i010.present);
        _ast_datarecord_034_t service;
        ast_datarecord_034_disassemble(&service, _ast_datarecord_t());
        QVERIFY(!service.valid);
        QVERIFY(!ast_datarecord_get_sacsic(_ast_datarecord_t()).present);
    }

    void belongToOneCategory()
    {
        for (const int category : {1, 2, 4, 8, 10, 19, 20, 21, 34, 48, 62, 240}) {
            RandomRecords random(category, nullptr, category == 1 ? "track" : nullptr, 7);
            const Octets octets(bytesOf(random.makeBlock(5).block()));
            _ast_datablock_t block;
            ast_datablock_smart_decode(&block, octets.data(), octets.size());
            QVERIFY2(!block.records.empty(), qPrintable(QString::number(category)));
            for (const _ast_datarecord_t &record : block.records) {
                QCOMPARE(categoriesOf(record), category == 19 || category == 21 ? QList<int>() : QList<int>{category});
            }
        }
    }

    void runsTheExample()
    {
        const Octets octets = Octets::block(48, "10 1E004000  11 40 00804000 599631CB3820");
        QCOMPARE(nearestPlot(octets.data(), octets.size()), std::string("VYX123"));
        QCOMPARE(nearestPlot(octets.data(), 4), std::string("block runs past the end of the data"));
        QVERIFY(readmeShows(ASTERIX_FOLDER, "nearest_plot.cpp", "std::string nearestPlot"));
    }
};

VYX_TEST(TestTypedRecords)
#include "tst_typed_records.moc"
