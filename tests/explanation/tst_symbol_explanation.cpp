#include "explanation/symbol_explanation.h"
#include "kept_reports.h"
#include "test_program.h"

#include <QTest>

namespace {

const QDateTime SymbolNow = QDateTime::fromMSecsSinceEpoch(1700000010000, Qt::UTC);

ReportView viewed(int category, double secondsAgo, const std::function<void(BlockEncoder &)> &fill)
{
    return viewReport(
        keptRecord(category, SymbolNow.toMSecsSinceEpoch() - static_cast<qint64>(secondsAgo * 1000.0), fill));
}

QString summary(const QList<ExplainedValue> &values)
{
    QStringList texts;
    for (const ExplainedValue &value : values) {
        texts.append(QString("%1=%2 (%3)").arg(value.name, value.value, value.item));
    }
    return texts.join("; ");
}

} // namespace

class TestSymbolExplanation : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void explainsPlot();
    void explainsAlertByItsOwnReport();
};

void TestSymbolExplanation::explainsPlot()
{
    QVERIFY(explainPlot({}, SymbolNow).isEmpty());
    const auto view = viewed(48, 2, [](BlockEncoder &e) {
        e.set("040/RHO", 10);
        e.set("042/X", 3); // not what the plot is placed by
        e.setText("070/MODE3A", "7100");
    });
    const auto values = explainPlot({view}, SymbolNow);
    QCOMPARE(summary(values),
        QString("Squawk=7100 (I048/070/MODE3A); Position=10 NM, 0 ° (I048/040/RHO, THETA); Track=%1 ()")
            .arg(QChar(0x2014)));
    QCOMPARE(*values.first().ageMs, 2000LL);
    QCOMPARE(values[1].bits.size(), 2);
}

void TestSymbolExplanation::explainsAlertByItsOwnReport()
{
    const auto report = [](double secondsAgo, int id, int track) {
        return viewed(4, secondsAgo, [=](BlockEncoder &e) {
            e.set("000", 7);
            e.set("040", id);
            e.set("030", track);
        });
    };
    AlertSnapshot alert;
    alert.id = 77;
    alert.type = Alert::STCA;
    alert.stateString = "Active";
    const auto values = explainAlert(alert, {report(1, 78, 5), report(3, 77, 6), report(9, 77, 7)}, SymbolNow);
    QCOMPARE(
        summary(values), QString("Type=7 (I004/000); Alert identifier=77 (I004/040); First track number=6 (I004/030)"));
    QCOMPARE(values.first().report, 1);
    QCOMPARE(*values.first().ageMs, 3000LL);
    QCOMPARE(values.first().rule, QString("shown as STCA, Active"));
    alert.id = 79;
    QVERIFY(explainAlert(alert, {report(1, 78, 5)}, SymbolNow).isEmpty());
}

VYX_TEST(TestSymbolExplanation)
#include "tst_symbol_explanation.moc"
