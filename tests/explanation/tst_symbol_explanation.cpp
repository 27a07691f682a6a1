#include "explanation/echo_explanation.h"
#include "explanation/symbol_explanation.h"
#include "explanation/weather_explanation.h"
#include "kept_reports.h"
#include "test_program.h"

#include <QTest>

#include <algorithm>

namespace {

const QDateTime SymbolNow = QDateTime::fromMSecsSinceEpoch(1700000010000, Qt::UTC);

KeptReport kept(int category, double secondsAgo, const std::function<void(BlockEncoder &)> &fill)
{
    return keptRecord(category, SymbolNow.toMSecsSinceEpoch() - static_cast<qint64>(secondsAgo * 1000.0), fill);
}

ReportView viewed(int category, double secondsAgo, const std::function<void(BlockEncoder &)> &fill)
{
    return viewReport(kept(category, secondsAgo, fill));
}

QList<ReportView> allViewed(const QList<KeptReport> &reports)
{
    QList<ReportView> views;
    std::transform(reports.begin(), reports.end(), std::back_inserter(views), viewReport);
    return views;
}

ExplainedValue named(const QList<ExplainedValue> &values, const QString &name)
{
    const auto found =
        std::find_if(values.begin(), values.end(), [&name](const ExplainedValue &value) { return value.name == name; });
    return found == values.end() ? ExplainedValue() : *found;
}

// The messages of a weather picture, newest first: two vectors of one level.
QList<KeptReport> weatherPicture(double secondsAgo, double timeOfDay, int scale, int startRange)
{
    const KeptReport start = kept(8, secondsAgo, [=](BlockEncoder &e) {
        e.set("000", 254);
        e.set("090", timeOfDay);
        e.set("100/F", scale);
    });
    const KeptReport vectors = kept(8, secondsAgo, [=](BlockEncoder &e) {
        e.set("000", 1);
        e.set("010/SAC", 25);
        e.set("010/SIC", 12);
        e.set("020/I", 3);
        for (int i = 0; i < 2; ++i) {
            e.addRepetition("034");
            e.set("034/STR", startRange + i);
            e.set("034/ENDR", startRange + 20);
            e.set("034/AZ", 90.0);
        }
    });
    const KeptReport end = kept(8, secondsAgo, [](BlockEncoder &e) {
        e.set("000", 255);
        e.set("120", 2);
    });
    return {end, vectors, start};
}

KeptReport radial(double secondsAgo, int startCell, const QByteArray &cells)
{
    return kept(240, secondsAgo, [&](BlockEncoder &e) {
        e.set("000", 2);
        e.set("010/SAC", 25);
        e.set("010/SIC", 12);
        e.set("041/STARTAZ", 89.5);
        e.set("041/ENDAZ", 90.5);
        e.set("041/STARTRG", startCell);
        e.set("041/CELLDUR", 400000000);
        e.set("048/RES", 4);
        e.set("049/NBCELLS", static_cast<double>(cells.size()));
        e.set("140", 36000.5);
        for (qsizetype i = 0; i < cells.size(); i += 4) {
            e.setRaw("050", cells.mid(i, 4).toHex().toULongLong(nullptr, 16));
        }
    });
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
    void explainsWeatherByItsPicture();
    void explainsWeatherThatIsKeptNoMore();
    void explainsEchoByItsCell();
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

// Of the same vector in two pictures that of the picture that is shown counts, whatever came in since.
void TestSymbolExplanation::explainsWeatherByItsPicture()
{
    ShownWeather weather;
    weather.vector.intensity = 3;
    weather.timeOfDay = 36000.0;
    weather.vector.azimuth = 90.0;
    weather.vector.startRange = 5.5;
    weather.vector.endRange = 15.0;
    weather.width = 1.4;
    const auto older = weatherPicture(30, 35990.0, 6, 10);
    const auto shown = weatherPicture(20, 36000.0, 6, 10);
    const auto newer = weatherPicture(10, 36010.0, 6, 10);
    const auto begun = weatherPicture(1, 36000.0, 6, 10).mid(1); // its end has not come yet
    const WeatherOrigin origin = originOf(weather, begun + newer + shown + older);
    QCOMPARE(origin.reports.size(), 3);
    QCOMPARE(origin.reports.first().timeMs, shown.first().timeMs);
    const auto values = explainWeather(weather, origin, allViewed(origin.reports), SymbolNow);
    const auto from = named(values, "From range");
    QCOMPARE(from.value, QString("5.50 NM"));
    QCOMPARE(from.item, QString("I008/034[2]/STR"));
    QCOMPARE(from.rule, QString("11 × 2^(F − 7) NM, with the scaling factor F = 6"));
    QCOMPARE(*from.ageMs, 20000LL);
    QCOMPARE(from.bits.size(), 1);
    QCOMPARE(named(values, "Intensity").item, QString("I008/020/I"));
    QCOMPARE(named(values, "Source").value, QString("25/12"));
    QCOMPARE(named(values, "Time of picture").report, 1);
    QCOMPARE(named(values, "Vectors in picture").report, 2);

    // A radar that scales once and for all did so long ago.
    auto unscaled = shown;
    unscaled[2] = kept(8, 20, [](BlockEncoder &e) {
        e.set("000", 254);
        e.set("090", 36000.0);
    });
    QCOMPARE(originOf(weather, unscaled).element, 2);
}

void TestSymbolExplanation::explainsWeatherThatIsKeptNoMore()
{
    ShownWeather weather;
    weather.vector.intensity = 3;
    weather.timeOfDay = 36000.0;
    weather.vector.startRange = 5.0;
    const WeatherOrigin origin = originOf(weather, weatherPicture(10, 36010.0, 6, 10));
    QVERIFY(origin.reports.isEmpty());
    const auto values = explainWeather(weather, origin, {}, SymbolNow);
    QCOMPARE(named(values, "Intensity").value, QString("3"));
    QCOMPARE(named(values, "Intensity").rule, QString("its message is kept no more"));
    QVERIFY(named(values, "Source").name.isEmpty());
}

void TestSymbolExplanation::explainsEchoByItsCell()
{
    ShownEcho echo;
    echo.cell = 1005;
    echo.amplitude = 77;
    echo.threshold = 10;
    echo.directions = 360;
    const auto awaited = named(explainEcho(echo, {}, SymbolNow), "Amplitude");
    QCOMPARE(awaited.value, QString("77 of 255"));
    QVERIFY2(awaited.rule.contains("waited for"), qPrintable(awaited.rule));

    // A radial may come in pieces: the one that reaches the cell counts.
    const QList<KeptReport> reports = {radial(1, 2000, "zzzzzzzz"), radial(2, 1000, QByteArray("abcdeFgh"))};
    const auto values = explainEcho(echo, allViewed(reports), SymbolNow);
    const auto amplitude = named(values, "Amplitude");
    QCOMPARE(amplitude.value, QString("%1 of 255").arg(int('F')));
    QCOMPARE(amplitude.item, QString("I240/050, octet 6"));
    QCOMPARE(amplitude.report, 1);
    QCOMPARE(amplitude.bits.size(), 1);
    QCOMPARE(reports[1].octets[amplitude.bits.first().first / 8], 'F');
    QCOMPARE(named(values, "Azimuth").item, QString("I240/041/STARTAZ, ENDAZ"));
    QCOMPARE(named(values, "Cells in radial").value, QString("8"));
    QCOMPARE(named(values, "Time of day").value, QString("10:00:00.500"));
    echo.threshold = 'F';
    QVERIFY(named(explainEcho(echo, allViewed(reports), SymbolNow), "Amplitude").rule.contains("not drawn"));
}

VYX_TEST(TestSymbolExplanation)
#include "tst_symbol_explanation.moc"
