#include "kept_reports.h"
#include "sirm/alenia_sir_m_radar_message.h"
#include "test_program.h"

#include <QTest>

#include <array>

namespace {

QString fieldText(const ReportView &view, const char *key)
{
    const ReportField *field = view.find(key);
    return field ? QString("%1 @%2+%3").arg(field->text()).arg(field->bits.first).arg(field->bits.count) : QString();
}

class KeepingLedger final : public ReportLedger {
public:
    void take(const TakenReport &report) override
    {
        const auto *octets = reinterpret_cast<const char *>(report.octets);
        reports.append({report.form, 0, nullptr, QByteArray(octets, static_cast<qsizetype>(report.size))});
    }

    QList<KeptReport> reports;
};

// Contents of the register with that code.
void addRegister(BlockEncoder &e, int code, const std::array<unsigned char, 7> &contents)
{
    e.addRepetition("250");
    e.setExplicit("250/MBDATA", contents);
    e.set("250/BDS1", code >> 4);
    e.set("250/BDS2", code & 0xF);
}

} // namespace

class TestReportView : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void takesRecordApart();
    void takesRegistersApart();
    void takesAdvisoryApart();
    void takesFrameApart_data();
    void takesFrameApart();
    void takesSirMMessagesApart();
    void survivesNonsense_data();
    void survivesNonsense();
    void findsNarrowestField();
    void writesReports();
};

void TestReportView::takesRecordApart()
{
    const auto view = viewReport(keptRecord(48, 1000, [](BlockEncoder &e) {
        e.set("090/FL", 350);
        e.setText("240", "VYX123");
        e.set("220", 0x4B1A2C);
    }));
    QCOMPARE(view.category, 48);
    QCOMPARE(view.name, QString("CAT048, edition 1.32"));
    QCOMPARE(fieldText(view, "090/FL"), QString("350 FL @18+14"));
    QCOMPARE(fieldText(view, "220"), QString("4B1A2C @32+24"));
    QCOMPARE(fieldText(view, "240"), QString("VYX123 @56+48"));
    QCOMPARE(view.find("090/FL")->name, QString("I048/090/FL"));
    QCOMPARE(view.find("090/FL")->title, QString("Flight Level in Binary Representation"));
}

void TestReportView::takesRegistersApart()
{
    const auto view = viewReport(keptRecord(48, 0, [](BlockEncoder &e) {
        // Selected altitude 24,000 ft, FMS not told; then a barometric rate of -512 ft/min.
        addRegister(e, 0x40, {0xAE, 0xE0});
        addRegister(e, 0x60, {0, 0, 0, 0, 0x3F, 0x80});
    }));
    QCOMPARE(fieldText(view, "bds40/mcp"), QString("24000 ft @25+12"));
    QVERIFY(!view.find("bds40/fms"));
    QCOMPARE(fieldText(view, "bds60/baro"), QString("-512 ft/min @123+10"));
}

void TestReportView::takesAdvisoryApart()
{
    const auto view = viewReport(keptRecord(48, 0, [](BlockEncoder &e) {
        addRegister(e, 0x30, {0x30, 0xC2, 0x02, 0x05, 0x2C, 0x68, 0xB0});
        addRegister(e, 0x17, {0xFA, 0x81});
    }));
    QCOMPARE(fieldText(view, "bds30/advisory"), QString("corrective, upwards, climb or descend @32+14"));
    QCOMPARE(fieldText(view, "bds30/complement"), QString("do not pass below @46+4"));
    QCOMPARE(fieldText(view, "bds30/address"), QString("4B1A2C @54+24"));
    QVERIFY(!view.find("bds30/range"));
    QCOMPARE(fieldText(view, "bds17/registers"), QString("0,5 0,6 0,7 0,8 0,9 2,0 4,0 5,0 @88+29"));
}

void TestReportView::takesFrameApart_data()
{
    QTest::addColumn<QByteArray>("frame");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QString>("field");
    QTest::newRow("identification") << QByteArray("8D4840D6202CC371C32CE0576098") << "DF 17, type code 4"
                                    << QByteArray("callsign") << "KLM1023 @40+48";
    QTest::newRow("own address") << QByteArray("8D4840D6202CC371C32CE0576098") << "DF 17, type code 4"
                                 << QByteArray("address") << "4840D6 @8+24";
    QTest::newRow("altitude of a position") << QByteArray("8D40621D58C382D690C8AC2863A7") << "DF 17, type code 11"
                                            << QByteArray("altitude") << "38000 ft @40+12";
    QTest::newRow("selected altitude") << QByteArray("A000029C85E42F313000007047D3") << "DF 20"
                                       << QByteArray("bds40/mcp") << "3008 ft @33+12";
    QTest::newRow("track angle") << QByteArray("A000139381951536E024D4CCF6B5") << "DF 20" << QByteArray("bds50/track")
                                 << "114.258 ° @44+11";
    QTest::newRow("even position") << QByteArray("8D40621D58C382D690C8AC2863A7") << "DF 17, type code 11"
                                   << QByteArray("cprFormat") << "even @53+1";
    QTest::newRow("encoded latitude") << QByteArray("8D40621D58C382D690C8AC2863A7") << "DF 17, type code 11"
                                      << QByteArray("cprLatitude") << "93000 @54+17";
    QTest::newRow("vertical rate") << QByteArray("8D485020994409940838175B284F") << "DF 17, type code 19"
                                   << QByteArray("verticalRate") << "-832 ft/min @68+10";
    QTest::newRow("ground speed") << QByteArray("8D485020994409940838175B284F") << "DF 17, type code 19"
                                  << QByteArray("speed") << "159.2 kt @45+22";
}

// Well-known frames of the literature; bits as the documents count them, but from 0.
void TestReportView::takesFrameApart()
{
    QFETCH(QByteArray, frame);
    QFETCH(QByteArray, key);
    const auto view = viewReport(keptFrame(0, frame.constData()));
    QTEST(view.name, "name");
    QTEST(fieldText(view, key.constData()), "field");
}

// What is common to the records of a message stands before each of them, as it came.
void TestReportView::takesSirMMessagesApart()
{
    AleniaSirMRadarTrackRecord track;
    track.setTrackNumber(77);
    track.setPosition(12.5, -3.0);
    track.setModeACode(01234);
    track.setTrackEnd(true);
    AleniaSirMRadarPlotRecord plot;
    plot.setPolar(64.0, 90.0);
    AleniaSirMRadarDataMessage data;
    data.setRadarId(7);
    data.setTimeOfDay(36'000'500);
    data.setSector(13);
    data.addPlotRecord(plot);
    data.addTrackRecord(track);
    AleniaSirMRadarDataMessage empty;
    empty.setSector(3);
    AleniaSirMRadarNorthMarkerMessage north;
    north.setRotationPeriod(4000);
    KeepingLedger ledger;
    ledger.takeSirM(data, ReportOutcome::Plot);
    ledger.takeSirM(empty, ReportOutcome::SourceStatus);
    ledger.takeSirM(north, ReportOutcome::SourceStatus);
    QCOMPARE(ledger.reports.size(), 4);

    const auto plotView = viewReport(ledger.reports[0]);
    QCOMPARE(plotView.name, QString("Alenia SIR-M plot record"));
    QCOMPARE(fieldText(plotView, "range"), QString("64 km @112+16"));
    const auto view = viewReport(ledger.reports[1]);
    QCOMPARE(view.category, int(ReportView::AleniaSirM));
    QCOMPARE(fieldText(view, "radar"), QString("7 @8+8"));
    QCOMPARE(fieldText(view, "length"), QString("48 @16+16"));
    QCOMPARE(fieldText(view, "timeOfDay"), QString("36000.500 s @32+32"));
    QCOMPARE(fieldText(view, "sector"), QString("13 @76+4"));
    QCOMPARE(fieldText(view, "plots"), QString("1 @80+8"));
    QCOMPARE(fieldText(view, "number"), QString("77 @96+16"));
    QCOMPARE(fieldText(view, "x"), QString("12.5 km @128+32"));
    QCOMPARE(fieldText(view, "squawk"), QString("1234 @228+12"));
    // Each flag stands where its setter put it.
    const ReportField *end = view.find("end");
    QCOMPARE(view.octets[end->bits.first / 8] >> (7 - end->bits.first % 8) & 1, 1);

    QCOMPARE(viewReport(ledger.reports[2]).name, QString("Alenia SIR-M sector without records"));
    QCOMPARE(fieldText(viewReport(ledger.reports[2]), "noTimeOfDay"), QString("not known @32+32"));
    const auto northView = viewReport(ledger.reports[3]);
    QCOMPARE(northView.name, QString("Alenia SIR-M north marker"));
    QCOMPARE(fieldText(northView, "rotationPeriod"), QString("4000 ms @80+16"));
}

void TestReportView::survivesNonsense_data()
{
    QTest::addColumn<int>("form");
    QTest::addColumn<QByteArray>("octets");
    for (const int form : {0, 1, 2}) {
        QTest::addRow("nothing as %d", form) << form << QByteArray();
        QTest::addRow("one octet as %d", form) << form << QByteArray("\xFF");
        QTest::addRow("too much as %d", form) << form << QByteArray(300, '\xFF');
    }
}

void TestReportView::survivesNonsense()
{
    QFETCH(int, form);
    QFETCH(QByteArray, octets);
    const KeptReport report{static_cast<TakenReport::Form>(form), 0, nullptr, octets};
    const auto view = viewReport(report);
    QVERIFY(!view.name.isEmpty());
    QCOMPARE(view.octets, octets);
    QVERIFY(view.fields.isEmpty());
    QVERIFY(!reportJson(report).isEmpty());
}

void TestReportView::findsNarrowestField()
{
    const auto view = viewReport(keptRecord(48, 0, [](BlockEncoder &e) {
        const unsigned char intention[] = {0xAE, 0xE0, 0, 0, 0, 0, 0};
        e.addRepetition("250");
        e.setExplicit("250/MBDATA", intention);
        e.set("250/BDS1", 4);
    }));
    QCOMPARE(view.fields[view.fieldAt(25)].key, QString("bds40/mcp"));
    QCOMPARE(view.fields[view.fieldAt(24)].key, QString("250[1]/MBDATA")); // the status bit before it
    QCOMPARE(view.fieldAt(0), -1); // the FSPEC
    QCOMPARE(view.fieldAt(100000), -1);
}

void TestReportView::writesReports()
{
    const auto record = keptRecord(48, 1700000000125, [](BlockEncoder &e) { e.set("090/FL", 350); });
    QCOMPARE(reportJson(record),
        QByteArray("{\"cat\":48,\"block\":1,\"offset\":0,\"length\":3,\"time\":1700000000.125,"
                   "\"items\":{\"090\":{\"V\":0,\"G\":0,\"FL\":350}}}\n"));
    QCOMPARE(reportHex(viewReport(record)), QString("04 05 78"));
    QVERIFY(reportText(viewReport(record)).contains("2023-11-14 22:13:20.125  CAT048, edition 1.32\n04 05 78\n"));
    QCOMPARE(reportJson(keptFrame(1500, "8D4840D6202CC371C32CE0576098")),
        QByteArray("{\"time\":1.500,\"frame\":\"8d4840d6202cc371c32ce0576098\"}\n"));
}

VYX_TEST(TestReportView)
#include "tst_report_view.moc"
