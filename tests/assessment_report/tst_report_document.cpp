#include "assessment_report/assessment_charts.h"
#include "assessment_report/report_document.h"
#include "test_program.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

namespace {

// A radar that sees well, but for one cell in the east.
SensorReport sensor()
{
    SensorReport sensor;
    sensor.sac = 25;
    sensor.sic = 11;
    sensor.name = QStringLiteral("North <1>");
    for (int azimuth = 5; azimuth < 360; azimuth += 10) {
        for (double range = 5e3; range < 90e3; range += DetectionGrid::RingWidth) {
            DetectionGrid::Cell &cell = sensor.detection.grid.at(range, azimuth);
            const bool isBad = azimuth == 95 && range > 50e3 && range < 70e3;
            cell.looks = 100;
            cell.hits = isBad ? 40 : 99;
        }
    }
    BiasReport bias;
    bias.solved = true;
    bias.rangeBias = {100.0, 1.0};
    for (int i = 0; i < 360; ++i) {
        bias.residuals.push_back({static_cast<float>(i * 250), static_cast<float>(i), 100.0F, 0.1F});
    }
    sensor.biases = {bias};
    sensor.rotation = {RotationReport::Basis::NorthMarkers, 2, 4.0, 0.01, 3.99, 4.01, {{0.0F, 3.99F}, {4.0F, 4.01F}}};
    return sensor;
}

AssessmentReport report()
{
    AssessmentReport report;
    report.source = QStringLiteral("a&b.pcap");
    report.sensors = {sensor()};
    return report;
}

} // namespace

class TestReportDocument : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void writesHtmlThatStandsAlone()
    {
        const QByteArray html = assessment::toHtml(report());
        QXmlStreamReader reader(QString::fromUtf8(html)
                                    .remove(QStringLiteral("<!DOCTYPE html>"))
                                    .remove(QStringLiteral("<meta charset=\"utf-8\">")));
        int charts = 0;
        QString text;
        while (!reader.atEnd()) {
            reader.readNext();
            charts += reader.isStartElement() && reader.name() == QLatin1String("svg");
            text += reader.isCharacters() ? reader.text().toString() : QString();
        }
        QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
        QCOMPARE(charts, 5);
        QVERIFY(
            text.contains(QLatin1String("North <1> (25/11)")) && text.contains(QStringLiteral("+100.0 \u00b1 1.0 m")));
        QVERIFY(!html.contains("href=") && !html.contains("src="));
    }

    void writesTheKindThatTheNameSays()
    {
        const QTemporaryDir folder;
        const auto written = [&folder](const char *name) {
            const QString fault = assessment::writeReport(report(), folder.filePath(QLatin1String(name)));
            QFile file(folder.filePath(QLatin1String(name)));
            return file.open(QIODevice::ReadOnly) ? file.readAll() : fault.toUtf8();
        };
        QVERIFY(written("a.PDF").startsWith("%PDF"));
        QVERIFY(written("a.html").startsWith("<!DOCTYPE"));
        QVERIFY(written("a.txt").endsWith("a report is written as .html or .pdf."));
        QVERIFY(!assessment::writeReport(report(), folder.filePath(QStringLiteral("none/a.html"))).isEmpty());
    }

    // North up, azimuths clockwise.
    void showsWhereDetectionIsBad()
    {
        QImage image(420, 300, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        assessment::paintChart(painter, image.rect(), assessment::Chart::DetectionMap, sensor(), ChartLook());
        painter.end();
        const double radius = (300 - 26.0) / 2;
        const QPointF center(radius + 4, 18 + radius);
        const auto at = [&](double ring, double azimuth) {
            const double angle = azimuth * 3.14159265 / 180;
            const double r = radius * ring / 5;
            return image.pixelColor((center + QPointF(r * std::sin(angle), -r * std::cos(angle))).toPoint());
        };
        QCOMPARE(at(3.5, 95), detectionscale::color(0.4));
        QCOMPARE(at(3.5, 85), detectionscale::color(0.99));
        QCOMPARE(at(3.5, 275), detectionscale::color(0.99));
        QCOMPARE(at(2.5, 95), detectionscale::color(0.99));
    }

    // What there are no data for is left out rather than drawn empty.
    void leavesOutWhatIsNotKnown()
    {
        QVERIFY(assessment::chartsOf(SensorReport()).isEmpty());
        AssessmentReport empty;
        empty.sensors = {SensorReport()};
        QVERIFY(!assessment::toHtml(empty).contains("<svg"));
        QVERIFY(assessment::toPdf(empty).startsWith("%PDF"));
    }
};

VYX_TEST(TestReportDocument)
#include "tst_report_document.moc"
