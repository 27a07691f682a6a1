#include "health/health_pane.h"
#include "health/input_health.h"
#include "health/record_text.h"
#include "made_source.h"
#include "silence/geo_last_place_map.h"
#include "test_program.h"

#include <QAbstractItemModelTester>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTableWidget>
#include <QTest>

class TestHealthPane : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsSourcesAndOpensThem();
    void saysWhatIsWrongWithTheStream();
    void examples_data();
    void examples();
};

namespace {

ReportExample example(const QByteArray &hex, quint32 size = 0)
{
    ReportExample example;
    example.octets = QByteArray::fromHex(hex);
    example.size = size > 0 ? size : static_cast<quint32>(example.octets.size());
    return example;
}

// SAC/SIC, time of day, descriptor and place of a plot of CAT048, behind its FSPEC.
const QByteArray PlotRecord = "f0 190b 000080 40 1e00 4000";

} // namespace

void TestHealthPane::showsSourcesAndOpensThem()
{
    GeoLastPlaceMap layer;
    InputHealth health(&layer);
    health.setInput("UDP port 1", true, {});
    HealthPane pane(&health);
    auto *model = pane.findChild<SourceTableModel *>();
    const QAbstractItemModelTester tester(model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    MadeSource other;
    other.source.sic = 11;
    other.become(ReportOutcome::OtherSource, 40).add(ReportOutcome::SourceStatus, 9);
    other.source.examples[static_cast<std::size_t>(ReportOutcome::OtherSource)] = example(PlotRecord);
    InputStatistics statistics;
    statistics.timeMs = MadeSource::NowMs;
    statistics.sources = {MadeSource().silentFor(20.0).source, other.source};
    health.take(statistics);
    pane.refresh();
    const auto row = [model](int number) {
        QStringList texts;
        for (int column = 0; column < SourceTableModel::ColumnCount; ++column) {
            texts += model->index(number, column).data().toString();
        }
        return texts.join('|');
    };
    QCOMPARE(row(0), QString("25/11 CAT048|10.0/s||0.3 s|18 %|arrives as usual|another SAC/SIC than the sensor's"));
    QCOMPARE(row(1), QString("25/12 CAT048|10.0/s||0.3 s|100 %|silent since 07:59:40|"));

    auto *table = pane.findChild<QTableView *>();
    table->selectRow(0);
    Q_EMIT table->clicked(model->index(0, 0));
    auto *window = pane.findChild<SourceWindow *>();
    QVERIFY(window && window->isVisible());
    const QString decoded = window->findChild<QPlainTextEdit *>("decoded")->toPlainText();
    QVERIFY2(decoded.contains("\"SIC\": 11"), qPrintable(decoded));
    const QString octets = window->findChild<QPlainTextEdit *>("octets")->toPlainText();
    QVERIFY2(octets.startsWith("0000  f0 19 0b"), qPrintable(octets));
    QCOMPARE(window->findChild<QTableWidget *>()->item(1, 1)->text(), QString("40"));

    QSignalSpy cure(&pane, &HealthPane::cureRequested);
    window->findChild<QPushButton *>()->click();
    QCOMPARE(cure.size(), 1);
    QCOMPARE(cure[0][0].value<SourceHealth>().judgement.cure, SourceJudgement::Cure::UseSacSic);

    // A source before it appears: the window and the chosen row stay with theirs.
    MadeSource first;
    first.source.sac = 1;
    other.add(ReportOutcome::OtherSource, 50);
    statistics.sources = {first.source, other.source};
    health.take(statistics);
    pane.refresh();
    QCOMPARE(table->currentIndex().row(), 1);
    QCOMPARE(window->findChild<QTableWidget *>()->item(1, 1)->text(), QString("50"));
}

// The worst at least; all of it in the tooltip.
void TestHealthPane::saysWhatIsWrongWithTheStream()
{
    GeoLastPlaceMap layer;
    InputHealth health(&layer);
    HealthPane pane(&health);
    pane.show();
    const auto *label = pane.findChild<QLabel *>("diagnosis");
    QVERIFY(!label->isVisible());
    pane.setDiagnosis({"One.", "Two.", "Three.", "Four."});
    QVERIFY(label->isVisible());
    QCOMPARE(label->text(), QString("One.\nTwo.\nThree."));
    QVERIFY(label->toolTip().endsWith("Four."));
    pane.setDiagnosis({});
    QVERIFY(!label->isVisible());
}

void TestHealthPane::examples_data()
{
    QTest::addColumn<TakenReport::Form>("form");
    QTest::addColumn<int>("category");
    QTest::addColumn<QByteArray>("edition");
    QTest::addColumn<ReportExample>("example");
    QTest::addColumn<QString>("text");
    using Form = TakenReport::Form;
    QTest::newRow("whole") << Form::Asterix << 48 << QByteArray("1.32") << example(PlotRecord) << "\"RHO\": 30";
    QTest::newRow("cut off") << Form::Asterix << 48 << QByteArray("1.32") << example(PlotRecord, 300)
                             << "first 11 of its 300 octets";
    QTest::newRow("no table that reads") << Form::Asterix << 99 << QByteArray() << example("80 01") << "no table";
    QTest::newRow("does not fit its edition")
        << Form::Asterix << 48 << QByteArray("1.32") << example("ff ff") << "no table that reads";
    ReportExample malformed = example("f0 19");
    malformed.fault = "item overruns the record";
    malformed.faultOffset = 1;
    QTest::newRow("squitter") << Form::ModeS << 0 << QByteArray() << example("8d4840d6202cc371c32ce0576098")
                              << "KLM1023";
    QTest::newRow("radar plot") << Form::AleniaSirM << 0 << QByteArray()
                                << example("0207 0018 05265bff 8001 01 00 0042 0500 4000 0e40 0000 0000") << "10 km";
    QTest::newRow("malformed") << Form::Asterix << 48 << QByteArray("1.32") << malformed
                               << "item overruns the record, at octet 1";
}

void TestHealthPane::examples()
{
    QFETCH(TakenReport::Form, form);
    QFETCH(int, category);
    QFETCH(QByteArray, edition);
    QFETCH(ReportExample, example);
    QFETCH(QString, text);
    SourceStatistics source;
    source.form = form;
    source.category = static_cast<quint8>(category);
    source.edition = edition;
    const QString decoded = RecordText::decoded(source, example);
    QVERIFY2(decoded.contains(text), qPrintable(decoded));
    QCOMPARE(RecordText::octets(example).contains("[19]"), !example.fault.isEmpty());
}

VYX_TEST(TestHealthPane)
#include "tst_health_pane.moc"
