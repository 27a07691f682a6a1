#include "asterix/asterix.h"
#include "example/nearest_plot.h"
#include "octets.h"
#include "random_records.h"

#include <QFile>
#include <QTest>

namespace {

template <typename Typed>
using Disassemble = void (*)(Typed *, const _ast_datarecord_t &);

// The only record of a block.
template <typename Typed>
Typed typedRecord(const Octets &octets, Disassemble<Typed> disassemble)
{
    _ast_datablock_t block;
    ast_datablock_smart_decode(&block, octets.data(), octets.size());
    Typed typed{};
    if (block.valid && block.records.size() == 1)
        disassemble(&typed, block.records[0]);
    return typed;
}

// Values that typed records and the JSON text both have: two ways through the same octets.
template <typename Typed>
struct Twin {
    const char *path;
    double (*value)(const Typed &); // NaN where absent
    double perUnit = 1; // of the typed value in one of the document's
};

constexpr double KnotsPerNauticalMileASecond = 3600;
const double absent = qQNaN();

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
    {"040", [](const auto &r) { return r.i040.present ? r.i040.trackNumber : absent; }},
    {"136", [](const auto &r) { return r.i136.present ? r.i136.level : absent; }, 4},
    {"130", [](const auto &r) { return r.i130.present ? r.i130.altitude : absent; }},
    {"135/CTB", [](const auto &r) { return r.i135.present ? r.i135.level : absent; }, 4},
    {"220", [](const auto &r) { return r.i220.present ? r.i220.rate : absent; }},
};

template <typename Typed, std::size_t N>
void compareTwins(int category, const char *variation, Disassemble<Typed> disassemble, const Twin<Typed> (&twins)[N])
{
    RandomRecords random(category, variation, 7);
    QByteArray octets = bytesOf(random.makeBlock(300).block());
    _ast_datablock_t block;
    ast_datablock_smart_decode(
        &block, reinterpret_cast<const unsigned char *>(octets.constData()), static_cast<std::size_t>(octets.size()));
    QVERIFY(block.valid);
    for (const _ast_datarecord_t &record : block.records) {
        Typed typed;
        disassemble(&typed, record);
        QVERIFY(typed.valid);
        const QJsonObject items = itemsOf(record);
        for (const Twin<Typed> &twin : twins) {
            const QJsonValue value = valueAt(items, twin.path);
            const double expected = value.isUndefined() ? absent : value.toDouble() * twin.perUnit;
            const double actual = twin.value(typed);
            QVERIFY2(qIsNaN(expected) ? qIsNaN(actual) : qAbs(actual - expected) < 1e-6, twin.path);
        }
    }
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

    void readsSystemTrack()
    {
        const Octets octets = Octets::block(62,
            "9F7DBC 1964 546000 00800000FFC00000 0007D0FFFC17 0190FFFF 2FC0 40599631CB3820"
            "F74530 4CA123 599631CB3820 4000 8320 C528 1FFF 01000102030405060708090A0B0C0D0E FF9C C000 0800"
            "04D2 D3C10180 66 FFFB 03E8 FFFB FF38");
        const auto track = typedRecord<_ast_datarecord_062_t>(octets, ast_datarecord_062_disassemble);
        QVERIFY(track.valid && track.i070.seconds == 43200);
        QVERIFY(track.i105.latitude == 45 && track.i105.longitude == -22.5);
        QVERIFY(track.i100.x == 1000 && track.i100.y == -500.5 && track.i185.vx == 100 && track.i185.vy == -0.25);
        QVERIFY(track.i060.code == 07700 && !track.i060.v && !track.i060.g && track.i060.l);
        QCOMPARE(QByteArray(track.i245.text), QByteArray("VYX123"));
        QCOMPARE(QByteArray(track.i380.callsign), QByteArray("VYX123"));
        QVERIFY(track.i380.address == 0x4CA123 && track.i380.magneticHeading == 90);
        QVERIFY(track.i380.selectedAltitude == 33000 && track.i380.finalSelectedAltitude == -25);
        // What comes after a repeated sub-item is found beyond all of its repetitions.
        QVERIFY(track.i380.verticalRate == -625 && track.i380.trackAngle == 270 && track.i380.groundSpeed == 450);
        QVERIFY(track.i080.mon && track.i080.spi && !track.i080.mrh && track.i080.src == 4 && track.i080.cnf);
        QVERIFY(track.i080.sim && track.i080.tse && !track.i080.tsb && track.i080.cst);
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

    void decodesRegister_data()
    {
        QTest::addColumn<int>("bds");
        QTest::addColumn<QByteArray>("mb");
        QTest::addColumn<bool>("success");
        QTest::addColumn<QList<double>>("values"); // absent: no status
        const auto row = [](const char *name, int bds, const char *mb, bool success, const QList<double> &values) {
            QTest::newRow(name) << bds << QByteArray(mb) << success << values;
        };
        // Altitudes of the panel and of the flight management, pressure.
        row("panel alone", 40, "80080000000000", true, {16, absent, absent});
        row("flight management alone", 40, "0007FFC0000000", true, {absent, 65520, absent});
        row("pressure alone, lowest", 40, "00000020000000", true, {absent, absent, 800});
        row("source status alone", 40, "00000000000004", true, {absent, absent, absent});
        row("no status", 40, "00000000000000", false, {absent, absent, absent});
        row("second reserved field", 40, "AEE57730A80010", false, {24000, 24000, 1013.2});
        // Heading, airspeed, Mach, rates.
        row("all five", 60, "EE0A8B30BE37C8", true, {309.375, 325, 0.776, -1856, -1792});
        row("fastest climb", 60, "000000002FF800", true, {absent, absent, absent, 16352, absent});
        row("fastest descent", 60, "00000000000600", true, {absent, absent, absent, absent, -16384});
        row("values without status", 60, "100000000003FF", false, QList<double>(5, absent));
    }

    void decodesRegister()
    {
        QFETCH(int, bds);
        QFETCH(QByteArray, mb);
        QFETCH(QList<double>, values);
        const Octets octets = Octets::fromHex(mb.constData());
        const auto present = [](bool status, double value) { return status ? value : absent; };
        if (bds == 40) {
            const _ast_bds_40_t decoded = ast_bds_40_decode(octets.data());
            QTEST(decoded.success, "success");
            QCOMPARE(present(decoded.mcpAltitudeStatus, decoded.mcpAltitude), values[0]);
            QCOMPARE(present(decoded.fmsAltitudeStatus, decoded.fmsAltitude), values[1]);
            QCOMPARE(present(decoded.baroPressureStatus, decoded.baroPressure), values[2]);
            return;
        }
        const _ast_bds_60_t decoded = ast_bds_60_decode(octets.data());
        QTEST(decoded.success, "success");
        QCOMPARE(present(decoded.magneticHeadingStatus, decoded.magneticHeading), values[0]);
        QCOMPARE(present(decoded.indicatedAirspeedStatus, decoded.indicatedAirspeed), values[1]);
        QCOMPARE(present(decoded.machStatus, decoded.mach), values[2]);
        QCOMPARE(present(decoded.baroRateStatus, decoded.baroRate), values[3]);
        QCOMPARE(present(decoded.inertialRateStatus, decoded.inertialRate), values[4]);
    }

    void runsTheExample()
    {
        const Octets octets = Octets::block(48, "10 1E004000  11 40 00804000 599631CB3820");
        QCOMPARE(nearestPlot(octets.data(), octets.size()), std::string("VYX123"));
        QCOMPARE(nearestPlot(octets.data(), 4), std::string("block runs past the end of the data"));
        // What the README shows is what was compiled here.
        QFile readme(ASTERIX_FOLDER "/README.md");
        QFile example(ASTERIX_FOLDER "/example/nearest_plot.cpp");
        QVERIFY(readme.open(QIODevice::ReadOnly) && example.open(QIODevice::ReadOnly));
        const QByteArray code = example.readAll();
        QVERIFY(readme.readAll().contains(code.mid(code.indexOf("std::string nearestPlot"))));
    }
};

QTEST_GUILESS_MAIN(TestTypedRecords)
#include "tst_typed_records.moc"
