#include "test_program.h"
#include "typed_twins.h"

#include <QTest>

namespace {

const Twin<_ast_datarecord_004_t> twins[] = {
    {"000", [](const auto &r) { return r.i000.present ? r.i000.type : absent; }},
    {"020", [](const auto &r) { return r.i020.present ? r.i020.seconds : absent; }},
    {"040", [](const auto &r) { return r.i040.present ? r.i040.id : absent; }},
    {"045/STAT", [](const auto &r) { return r.i045.present ? r.i045.status : absent; }},
    {"030", [](const auto &r) { return r.i030.present ? r.i030.trackNumber : absent; }},
    {"035", [](const auto &r) { return r.i035.present ? r.i035.trackNumber : absent; }},
    {"060/MRVA", [](const auto &r) { return r.i060.present ? r.i060.vectoringAltitudes : absent; }},
    {"070/TC", [](const auto &r) { return r.i070.timeToConflictPresent ? r.i070.timeToConflict : absent; }},
    {"070/CHS",
        [](const auto &r) { return r.i070.horizontalSeparationPresent ? r.i070.horizontalSeparation : absent; }},
    {"070/MVS",
        [](const auto &r) {
            return r.i070.minimumVerticalSeparationPresent ? r.i070.minimumVerticalSeparation : absent;
        }},
    {"074", [](const auto &r) { return r.i074.present ? r.i074.deviation : absent; }},
    {"075", [](const auto &r) { return r.i075.present ? r.i075.deviation : absent; }},
    {"076", [](const auto &r) { return r.i076.present ? r.i076.deviation : absent; }},
    {"120/CN/MAS", [](const auto &r) { return r.i120.naturePresent ? r.i120.nature >> 6 : absent; }},
    {"120/CC/CS", [](const auto &r) { return r.i120.classificationPresent ? r.i120.high : absent; }},
    {"120/CP", [](const auto &r) { return r.i120.probabilityPresent ? r.i120.probability : absent; }},
    {"120/CD", [](const auto &r) { return r.i120.durationPresent ? r.i120.duration : absent; }},
    {"170/CPW/LON", [](const auto &r) { return r.i170.positionPresent ? r.i170.longitude : absent; }},
    {"170/CPW/ALT", [](const auto &r) { return r.i170.positionPresent ? r.i170.altitude : absent; }},
    {"171/CPL/Y", [](const auto &r) { return r.i171.cartesianPresent ? r.i171.y : absent; }},
    {"170/TT1", [](const auto &r) { return r.i170.timeToThresholdPresent ? r.i170.timeToThreshold : absent; }},
    {"171/DT2", [](const auto &r) { return r.i171.distanceToThresholdPresent ? r.i171.distanceToThreshold : absent; }},
    {"170/AC1/RVSM", [](const auto &r) { return r.i170.characteristicsPresent ? r.i170.rvsm : absent; }},
    {"171/FP2/NBR", [](const auto &r) { return r.i171.flightPlanPresent ? r.i171.flightPlan : absent; }},
    {"171/CF2", [](const auto &r) { return r.i171.clearedLevelPresent ? r.i171.clearedLevel : absent; }},
};

_ast_datarecord_004_t alert(const char *recordHex)
{
    return typedRecord<_ast_datarecord_004_t>(Octets::block(4, recordHex), ast_datarecord_004_disassemble);
}

// "7+ 5-": types of functions that run, and that do not.
QByteArray functions(const _ast_datarecord_004_t &record)
{
    QByteArray text;
    for (int i = 0; i < record.i060.count; ++i) {
        const _ast_snet_status_t &status = record.i060.entries[i];
        text += QByteArray::number(status.type) + (status.on ? "+ " : "- ");
    }
    return text.trimmed();
}

} // namespace

class TestAlertRecords : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void agreeWithTheTables() { compareTwins(4, nullptr, ast_datarecord_004_disassemble, twins); }

    void readsConflict()
    {
        // Type, alert, both tracks, both aircraft: call sign, Mode 3/A code and downlinked identification.
        const auto stca = alert("C9C160 19C9 07 002A 04D2 C180 4C483132333420 0FC0 599631CB3820 04D3 4004E5");
        QVERIFY(stca.valid && stca.i000.type == 7 && stca.i040.id == 42);
        QVERIFY(stca.i030.trackNumber == 1234 && stca.i035.trackNumber == 1235);
        QCOMPARE(QByteArray(stca.i170.callsign), QByteArray("LH1234"));
        QVERIFY(stca.i170.mode3APresent && stca.i170.mode3A == 07700);
        QCOMPARE(QByteArray(stca.i170.targetIdentification), QByteArray("VYX123"));
        QVERIFY(stca.i171.present && !stca.i171.callsignPresent && stca.i171.mode3A == 02345);
        QVERIFY(!stca.i100.present);
    }

    void readsArea()
    {
        const auto apw = alert("C10180 19C9 05 D0 599631CB3820 41524541202020 53544F50424152");
        QVERIFY(apw.i000.type == 5 && apw.i100.areaNamePresent && apw.i100.crossingAreaPresent);
        QCOMPARE(QByteArray(apw.i100.areaName), QByteArray("VYX123"));
        QCOMPARE(QByteArray(apw.i100.crossingArea), QByteArray("AREA"));
        QVERIFY(!apw.i100.runway1Present && apw.i100.runway2Present);
        QCOMPARE(QByteArray(apw.i100.runway2), QByteArray("STOPBAR"));
    }

    void listsFunctions_data()
    {
        QTest::addColumn<QByteArray>("item");
        QTest::addColumn<QByteArray>("expected");
        const auto row = [](const char *name, const char *item, const char *expected) {
            QTest::newRow(name) << QByteArray(item) << QByteArray(expected);
        };
        row("one extent", "1A", "2- 3- 4+ 5+ 6- 7+");
        row("runway functions", "0140", "2- 3- 4- 5- 6- 7- 8- 9+ 18- 19-");
        row("either half of airspace infringement", "010140",
            "2- 3- 4- 5- 6- 7- 8- 9- 18- 19- 99+ 22- 21- 23- 25- 26-");
        row("parts in two extents are one function", "0101010340",
            "2- 3- 4- 5- 6- 7- 8- 9- 18- 19- 99- 22- 21- 23- 25- 26- 20- 24- 27+ 98- 97- 28- 29- 30-");
        row("extents of a later edition", "0101010101010101FE",
            "2- 3- 4- 5- 6- 7- 8- 9- 18- 19- 99- 22- 21- 23- 25- 26- 20- 24- 27- 98- 97- 28- 29- 30- 31- 32- 33- 34- "
            "35- 36- 37- 38- 39- 40- 41- 42- 43- 44- 45-");
    }

    void listsFunctions()
    {
        QFETCH(QByteArray, item);
        QFETCH(QByteArray, expected);
        const auto alive = alert(("C2 19C9 01" + item).constData());
        QVERIFY(alive.valid && alive.i000.type == 1 && alive.i060.present);
        QCOMPARE(functions(alive), expected);
    }

    void readsSystemStatus()
    {
        const auto alive = alert("C2 19C9 01 81 0A");
        QVERIFY(alive.i060.vectoringAltitudes && alive.i060.degraded && !alive.i060.overflow && alive.i060.overload);
        QCOMPARE(QByteArray(ast_snet_message_type_get_id(7)), QByteArray("STCA"));
        QCOMPARE(QByteArray(ast_snet_message_type_get_id(46)), QByteArray("UNKNOWN"));
        QCOMPARE(QByteArray(ast_snet_message_type_get_id(99)), QByteArray("AIW"));
    }
};

VYX_TEST(TestAlertRecords)
#include "tst_alert_records.moc"
