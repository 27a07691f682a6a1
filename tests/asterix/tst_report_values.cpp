#include "asterix/asterix.h"
#include "asterix/encoder.h"
#include "asterix/profile.h"
#include "asterix/report_time.h"
#include "octets.h"
#include "test_program.h"

#include <QTest>

#include <tuple>
#include <utility>

namespace {

using korvane::asterix::BlockEncoder;
using Settings = QList<std::pair<const char *, double>>;
using Values = QList<double>;

const double absent = qQNaN();

// Address, latitude, longitude, Mode 3/A, speed, heading, level, selected altitude, vertical rate.
Values valuesOf(const _ast_datarecord_t &record)
{
    const auto present = [](const auto &result, double value) { return result.present ? value : absent; };
    const auto address = ast_datarecord_get_icaoaddr(record);
    const auto position = ast_datarecord_get_wgs84coord(record);
    const auto squawk = ast_datarecord_021_get_squawk(record);
    const auto speed = ast_datarecord_get_speed(record);
    const auto heading = ast_datarecord_get_heading(record);
    const auto level = ast_datarecord_get_flightlevel(record);
    const auto selected = ast_datarecord_021_get_selaltitude(record);
    const auto rate = ast_datarecord_get_vrate(record);
    return {present(address, address.address), present(position, position.latitude),
        present(position, position.longitude), present(squawk, squawk.code), present(speed, speed.speed),
        present(heading, heading.heading), present(level, level.altitude), present(selected, selected.altitude),
        present(rate, rate.rate)};
}

QByteArray encode(int category, const char *edition, const Settings &settings)
{
    BlockEncoder encoder(category, edition);
    encoder.beginRecord();
    for (const auto &[path, value] : settings) {
        if (!encoder.set(path, value)) {
            return path;
        }
    }
    return encoder.endRecord() ? bytesOf(encoder.block()) : QByteArray("record does not end");
}

// Decodes a block of one record with an edition of CAT021, or the standard one.
class Decoded {
public:
    Decoded(const Octets &octets, int category, const char *edition)
    {
        korvane::asterix::Profile profile;
        if (edition) {
            profile.select(category, edition);
        }
        ast_datablock_decode(&m_block, octets.data(), octets.size(), profile.uap());
    }

    bool isGood() const { return m_block.valid && m_block.records.size() == 1; }
    const _ast_datarecord_t &record() const { return m_block.records.front(); }

private:
    _ast_datablock_t m_block;
};

} // namespace

class TestReportValues : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsValues_data()
    {
        QTest::addColumn<int>("category");
        QTest::addColumn<QByteArray>("edition");
        QTest::addColumn<Settings>("settings");
        QTest::addColumn<Values>("expected");
        const auto row = [](const char *name, int category, const char *edition, const Settings &settings,
                             const Values &expected) {
            QTest::newRow(name) << category << QByteArray(edition) << settings << expected;
        };
        const Settings common = {{"080", 0x4CA123}, {"145", 350.25}, {"160/GS", 0.125}, {"160/TA", 225}};
        const Settings old = common + Settings{{"155", -1250}, {"157", 50}, {"146/ALT", 33000}, {"148/ALT", 50}};
        const Settings late = common + Settings{{"155/BVR", -1250}, {"157/GVR", 50}, {"146/ALT", -25}, {"152", 90}};
        const Settings coarse = {{"130/LAT", 45}, {"130/LON", -22.5}};
        const Settings fine = {{"131/LAT", -45}, {"131/LON", 22.5}};
        row("0.23", 21, "0.23", old + coarse, {0x4CA123, 45, -22.5, absent, 450, 225, 35025, 33000, -1250});
        row("0.26", 21, "0.26", old + coarse + Settings{{"070/MODE3A", 02345}, {"131", 200}},
            {0x4CA123, 45, -22.5, 02345, 450, 225, 35025, 33000, -1250});
        row("2.1", 21, "2.1", late + coarse + Settings{{"070/MODE3A", 07700}},
            {0x4CA123, 45, -22.5, 07700, 450, 225, 35025, -25, -1250});
        row("2.7, both positions", 21, "2.7", late + coarse + fine,
            {0x4CA123, -45, 22.5, absent, 450, 225, 35025, -25, -1250});
        row("second choices", 21, "2.1", {{"157/GVR", -50}, {"148/ALT", 4000}, {"152", 90}},
            {absent, absent, absent, absent, absent, 90, absent, 4000, -50});
        row("second choices of old", 21, "0.26", {{"157", -50}, {"148/ALT", 4000}, {"145", -2.5}},
            {absent, absent, absent, absent, absent, absent, -250, 4000, -50});
        row("radar plot", 48, nullptr, {{"220", 0xABCDEF}, {"200/GSP", 0.125}, {"200/HDG", 90}, {"090/FL", -1.5}},
            {0xABCDEF, absent, absent, absent, 450, 90, -150, absent, absent});
        row("multilateration", 20, nullptr,
            {{"220", 1}, {"041/LAT", 45}, {"041/LON", -90}, {"202/VX", -463}, {"202/VY", 0}, {"090/FL", 10}},
            {1, 45, -90, absent, 900, 270, 1000, absent, absent});
        row("surface", 10, nullptr,
            {{"041/LAT", -45}, {"041/LON", 90}, {"200/GSP", 0.0625}, {"200/TRA", 180}, {"202/VX", 1}, {"202/VY", 1}},
            {absent, -45, 90, absent, 225, 180, absent, absent, absent});
        row("system track", 62, nullptr,
            {{"380/ADR", 0x123456}, {"105/LAT", 45}, {"105/LON", 90}, {"185/VX", 0}, {"185/VY", -463}, {"136", 20},
                {"220", 625}, {"380/SAL/ALT", 5000}},
            {0x123456, 45, 90, absent, 900, 180, 2000, absent, 625});
        row("service message", 34, nullptr, {{"000", 1}, {"020", 90}}, Values(9, absent));
        // Items of other categories with the numbers of the report's items are something else.
        row("weather", 8, nullptr, {{"090", 100}, {"100/F", 3}}, Values(9, absent));
    }

    void readsValues()
    {
        QFETCH(int, category);
        QFETCH(QByteArray, edition);
        QFETCH(Settings, settings);
        QFETCH(Values, expected);
        const char *const table = edition.isEmpty() ? nullptr : edition.constData(); // else the standard one
        const Octets octets(encode(category, table, settings));
        const Decoded decoded(octets, category, table);
        QVERIFY(decoded.isGood());
        const Values actual = valuesOf(decoded.record());
        for (int i = 0; i < expected.size(); ++i) {
            QCOMPARE(actual[i], expected[i]);
        }
    }

    // Octets as sent: editions place and pack the same values differently.
    void readsOctets()
    {
        // Position in 24 and in 32 bits, then the address.
        const Octets octets24 = Octets::block(21, "18 200000F00000 4CA123");
        const Octets octets32 = Octets::block(21, "18 00800000FFC00000 4CA123");
        const Decoded narrow(octets24, 21, "0.23");
        const Decoded wide(octets32, 21, "0.26");
        for (const Decoded *decoded : {&narrow, &wide}) {
            QVERIFY(decoded->isGood());
            const Values actual = valuesOf(decoded->record());
            QVERIFY(actual[0] == 0x4CA123 && actual[1] == 45 && actual[2] == -22.5);
        }
        const auto squawk = [](const char *record, const char *edition) {
            const Octets octets = Octets::block(21, record);
            return ast_datarecord_021_get_squawk(Decoded(octets, 21, edition).record());
        };
        const _ast_item_mode3a_t flagged = squawk("01010104 A4E5", "0.26");
        QVERIFY(flagged.v && !flagged.g && flagged.l && flagged.code == 02345);
        const _ast_item_mode3a_t plain = squawk("010108 F4E5", "2.1");
        QVERIFY(!plain.v && !plain.g && !plain.l && plain.code == 02345);
        const auto ground = [](const char *record, const char *edition) {
            const Octets octets = Octets::block(21, record);
            const _ast_ground_bit_t bit = ast_datarecord_021_get_groundbit(Decoded(octets, 21, edition).record());
            return bit.present ? int(bit.onGround) : -1;
        };
        QCOMPARE(ground("40 4000", "0.26"), 1);
        QCOMPARE(ground("40 0140", "2.1"), 1);
        QCOMPARE(ground("40 0100", "2.7"), 0);
        QCOMPARE(ground("40 FE", "2.7"), 0); // the octet with the bit is not sent
        QCOMPARE(ground("80 1903", "2.7"), -1);
        const auto status = [](const char *record, const char *edition) {
            const Octets octets = Octets::block(21, record);
            const auto found = ast_datarecord_021_get_targetstatus(Decoded(octets, 21, edition).record());
            return QList<int>{found.present, found.priority, found.militaryEmergency, found.spi};
        };
        QCOMPARE(status("410102 0200 05", "0.26"), QList<int>({1, 5, 0, 1}));
        QCOMPARE(status("01010140 37", "2.7"), QList<int>({1, 5, 1, 1}));
        QCOMPARE(status("01010140 15", "2.1"), QList<int>({1, 5, 0, 0}));
        QCOMPARE(status("40 FE", "2.7"), QList<int>({0, 0, 0, 0}));
        const auto test = [](const char *record, const char *edition) {
            const Octets octets = Octets::block(21, record);
            return ast_datarecord_021_get_testbit(Decoded(octets, 21, edition).record());
        };
        QVERIFY(test("40 1000", "0.23") && test("40 1000", "0.26") && test("40 0110", "2.1") && test("40 0110", "2.7"));
        QVERIFY(!test("40 EF00", "0.26") && !test("40 01EE", "2.7") && !test("40 10", "2.7"));
        // The bit that says "range exceeded" belongs to no value.
        const Octets exceeded = Octets::block(21, "0101012980 FFFF 84004000 599631CB3820");
        const Decoded beyond(exceeded, 21, "2.1");
        QVERIFY(beyond.isGood());
        QCOMPARE(ast_datarecord_get_vrate(beyond.record()).rate, -6.25);
        QCOMPARE(ast_datarecord_get_speed(beyond.record()).speed, 225.0);
        QCOMPARE(QByteArray(ast_datarecord_get_callsign(beyond.record()).text), QByteArray("VYX123"));
    }

    void tellsHeadingsApart_data()
    {
        QTest::addColumn<Settings>("settings");
        QTest::addColumn<bool>("track");
        QTest::addColumn<bool>("magnetic");
        QTest::addColumn<double>("heading");
        QTest::newRow("neither") << Settings{{"145", 10}} << false << false << 0.0;
        QTest::newRow("track angle") << Settings{{"160/TA", 90}} << true << false << 90.0;
        QTest::newRow("magnetic heading") << Settings{{"152", 180}} << false << true << 180.0;
        QTest::newRow("both") << Settings{{"152", 180}, {"160/TA", 90}} << true << true << 90.0;
    }

    void tellsHeadingsApart()
    {
        QFETCH(Settings, settings);
        const Octets octets(encode(21, "2.1", settings));
        const Decoded decoded(octets, 21, "2.1");
        QVERIFY(decoded.isGood());
        const _ast_heading_t heading = ast_datarecord_get_heading(decoded.record());
        QCOMPARE(heading.present, heading.trackAngleAvailable || heading.magneticHeadingAvailable);
        QTEST(heading.trackAngleAvailable, "track");
        QTEST(heading.magneticHeadingAvailable, "magnetic");
        QTEST(heading.heading, "heading");
    }

    // Wherever a category has its time of day; CAT001's begins anew every 512 seconds.
    void readsTheTimeOfDay()
    {
        const std::tuple<int, const char *, const char *> places[]{{1, nullptr, "141"}, {2, nullptr, "030"},
            {4, nullptr, "020"}, {8, nullptr, "090"}, {10, nullptr, "140"}, {19, nullptr, "140"}, {20, nullptr, "140"},
            {21, "0.23", "030"}, {21, "0.26", "030"}, {21, "2.1", "073"}, {21, "2.7", "077"}, {23, nullptr, "070"},
            {34, nullptr, "030"}, {48, nullptr, "140"}, {62, nullptr, "070"}, {63, nullptr, "030"},
            {65, nullptr, "030"}, {240, nullptr, "140"}};
        for (const auto &[category, edition, path] : places) {
            const Octets octets(encode(category, edition, {{path, 500.25}}));
            const Decoded decoded(octets, category, edition);
            QVERIFY2(decoded.isGood(), path);
            const auto time = ast_datarecord_get_timeofday(decoded.record());
            QVERIFY2(time.present && time.seconds == 500.25, qPrintable(QString::number(category)));
            QCOMPARE(time.period, category == 1 ? 512.0 : 86400.0);
        }
        const Octets without(encode(48, nullptr, {{"161/TRN", 7}}));
        QVERIFY(!ast_datarecord_get_timeofday(Decoded(without, 48, nullptr).record()).present);
    }
};

VYX_TEST(TestReportValues)
#include "tst_report_values.moc"
