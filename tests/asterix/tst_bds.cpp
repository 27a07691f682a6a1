#include "asterix/asterix.h"
#include "octets.h"
#include "test_program.h"

#include <QHash>
#include <QTest>

#include <bit>

namespace {

const double absent = qQNaN();

double present(bool status, double value)
{
    return status ? value : absent;
}

// Success, then the values that have a status.
using Values = QList<double>;

Values decode(int bds, const unsigned char *mb)
{
    if (bds == 30) {
        const _ast_bds_30_t d = ast_bds_30_decode(mb);
        return {double(d.success), present(d.threatType == 1, d.threatAddress),
            present(d.threatAltitudeStatus, d.threatAltitude), present(d.threatRangeStatus, d.threatRange),
            present(d.threatBearingStatus, d.threatBearing)};
    }
    if (bds == 40) {
        const _ast_bds_40_t d = ast_bds_40_decode(mb);
        return {double(d.success), present(d.mcpAltitudeStatus, d.mcpAltitude),
            present(d.fmsAltitudeStatus, d.fmsAltitude), present(d.baroPressureStatus, d.baroPressure),
            present(d.modesStatus, d.vnav * 4 + d.altitudeHold * 2 + d.approach),
            present(d.targetSourceStatus, d.targetSource)};
    }
    if (bds == 50) {
        const _ast_bds_50_t d = ast_bds_50_decode(mb);
        return {double(d.success), present(d.rollStatus, d.roll), present(d.trueTrackStatus, d.trueTrack),
            present(d.groundSpeedStatus, d.groundSpeed), present(d.trackRateStatus, d.trackRate),
            present(d.trueAirspeedStatus, d.trueAirspeed)};
    }
    const _ast_bds_60_t d = ast_bds_60_decode(mb);
    return {double(d.success), present(d.magneticHeadingStatus, d.magneticHeading),
        present(d.indicatedAirspeedStatus, d.indicatedAirspeed), present(d.machStatus, d.mach),
        present(d.baroRateStatus, d.baroRate), present(d.inertialRateStatus, d.inertialRate)};
}

} // namespace

class TestBds : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void decodesRegister_data()
    {
        QTest::addColumn<int>("bds");
        QTest::addColumn<QByteArray>("mb");
        QTest::addColumn<Values>("values"); // absent: no status
        const auto row = [](const char *name, int bds, const char *mb, const Values &values) {
            QTest::newRow(name) << bds << QByteArray(mb) << values;
        };
        // Address of the threat, or its altitude, range and bearing.
        row("no threat identity", 30, "30E00000000000", {1, absent, absent, absent, absent});
        row("threat by address", 30, "30E0000533284C", {1, 0x4CCA13, absent, absent, absent});
        row("threat by position", 30, "30E0000A814D0A", {1, absent, 100, 5.1, 57});
        row("threat type not assigned", 30, "30E0000C000000", {0, absent, absent, absent, absent});
        row("number of another register", 30, "20E00000000000", {0, absent, absent, absent, absent});
        // Altitudes of the panel and of the flight management, pressure, modes, source.
        row("panel alone", 40, "80080000000000", {1, 16, absent, absent, absent, absent});
        row("flight management alone", 40, "0007FFC0000000", {1, absent, 65520, absent, absent, absent});
        row("pressure alone, lowest", 40, "00000020000000", {1, absent, absent, 800, absent, absent});
        row("modes alone", 40, "000000000001A0", {1, absent, absent, absent, 5, absent});
        row("source alone", 40, "00000000000006", {1, absent, absent, absent, absent, 2});
        row("no status", 40, "00000000000000", {0, absent, absent, absent, absent, absent});
        row("second reserved field", 40, "AEE57730A80010", {0, 24000, 24000, 1013.2, absent, absent});
        // Roll, track, ground speed, turn, airspeed.
        row("track and turn", 50, "FF7971577FFCCC", {1, -0.87890625, 212.34375, 698, -0.03125, 408});
        row("steepest left", 50, "C0000000000000", {1, -90, absent, absent, absent, absent});
        row("last of the circle", 50, "001FFE00000000", {1, absent, 359.82421875, absent, absent, absent});
        row("values without status", 50, "7FEFFEFFDFFBFF", {0, absent, absent, absent, absent, absent});
        // Heading, airspeed, Mach, rates.
        row("all five", 60, "EE0A8B30BE37C8", {1, 309.375, 325, 0.776, -1856, -1792});
        row("fastest climb", 60, "000000002FF800", {1, absent, absent, absent, 16352, absent});
        row("fastest descent", 60, "00000000000600", {1, absent, absent, absent, absent, -16384});
        row("rates without status", 60, "100000000003FF", {0, absent, absent, absent, absent, absent});
    }

    void decodesRegister()
    {
        QFETCH(int, bds);
        QFETCH(QByteArray, mb);
        QFETCH(Values, values);
        const Octets octets = Octets::fromHex(mb.constData());
        const Values actual = decode(bds, octets.data());
        QCOMPARE(actual.size(), values.size());
        for (int i = 0; i < values.size(); ++i) {
            QCOMPARE(actual[i], values[i]);
        }
    }

    void readsCapabilities()
    {
        const Octets link = Octets::fromHex("10030A80F50001");
        const _ast_bds_10_t capability = ast_bds_10_decode(link.data());
        QVERIFY(capability.success && !capability.continuation && capability.overlayCommand);
        QVERIFY(capability.acasOperational && capability.subnetworkVersion == 5 && !capability.enhancedProtocol);
        QVERIFY(capability.specificServices && capability.identification && capability.capabilityChange);
        QVERIFY(capability.acasCapability == 5 && capability.terminals == 1);
        QVERIFY(!ast_bds_10_decode(Octets::fromHex("10400A80F50001").data()).success);

        const _ast_bds_17_t registers = ast_bds_17_decode(Octets::fromHex("FA818100000000").data());
        QVERIFY(registers.success && registers.count == 10);
        for (const int bds : {0x05, 0x20, 0x40, 0x50, 0x51, 0x60}) {
            QVERIFY2(ast_bds_17_has(registers, static_cast<std::uint8_t>(bds)), qPrintable(QString::number(bds, 16)));
        }
        QVERIFY(!ast_bds_17_has(registers, 0x0A) && !ast_bds_17_has(registers, 0x52));
        QVERIFY(!ast_bds_17_decode(Octets::fromHex("FA818180000000").data()).success);
        QVERIFY(!ast_bds_17_decode(Octets::fromHex("FA818100000001").data()).success);
        QVERIFY(ast_bds_17_has(ast_bds_17_decode(Octets::fromHex("00000008000000").data()), 0xF1));
    }

    void readsIdentification()
    {
        const _ast_bds_20_t good = ast_bds_20_decode(Octets::fromHex("20599631CB3820").data());
        QVERIFY(good.success);
        QCOMPARE(QByteArray(good.callsign), QByteArray("VYX123"));
        QVERIFY(!ast_bds_20_decode(Octets::fromHex("20000000000000").data()).success); // characters not assigned
        QVERIFY(!ast_bds_20_decode(Octets::fromHex("20820820820820").data()).success); // blanks only
        QVERIFY(!ast_bds_20_decode(Octets::fromHex("10599631CB3820").data()).success);
    }

    // Mode C is a Gray code: neighbouring altitudes differ in one pulse, and no altitude has two codes.
    void readsThreatAltitudes()
    {
        QHash<int, unsigned> codes;
        for (unsigned code = 0; code < 8192; ++code) {
            const unsigned long long mb = 0x30000008000000ULL | static_cast<unsigned long long>(code) << 13;
            const Octets octets(QByteArray::fromHex(QByteArray::number(mb, 16)));
            const _ast_bds_30_t decoded = ast_bds_30_decode(octets.data());
            if (!decoded.threatAltitudeStatus) {
                continue;
            }
            QVERIFY(!codes.contains(decoded.threatAltitude));
            codes.insert(decoded.threatAltitude, code);
        }
        QCOMPARE(codes.size(), 1280); // from -1,200 ft up to 126,700 ft
        QCOMPARE(codes.value(-1200), 0x0100U); // pulse C4 alone
        for (int feet = -1100; feet <= 126700; feet += 100) {
            QCOMPARE(std::popcount(codes.value(feet) ^ codes.value(feet - 100)), 1);
        }
    }
};

VYX_TEST(TestBds)
#include "tst_bds.moc"
