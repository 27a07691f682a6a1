#include "assessment_report/detection_layer.h"
#include "assessment_windows/sensor_check_window.h"
#include "astfile/pcap_writer.h"
#include "geo/mercator_projector.h"
#include "test_program.h"
#include "traffic/scenario_reader.h"
#include "traffic/traffic_source.h"
#include "view/geo_view.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

using korvane::astfile::PcapWriter;

namespace {

// The datagrams of two minutes of the scenario of a radar that wants adjusting.
void eachDatagram(const std::function<void(const QByteArray &, const QDateTime &)> &take)
{
    ScenarioReader reader;
    const std::optional<Scenario> scenario = reader.read(QStringLiteral("check"));
    QVERIFY2(scenario, qPrintable(reader.error()));
    TrafficSource source(*scenario, 1);
    while (source.nextTime() < 120) {
        const auto sending = source.next();
        for (const QByteArray &datagram : *sending.datagrams) {
            take(datagram, scenario->startTime.addMSecs(qRound64(sending.time * 1000)));
        }
    }
}

QString valueOf(const SensorCheckWindow &window, const QString &group, const QString &figure)
{
    const auto *tree = window.findChild<QTreeWidget *>(QStringLiteral("figures"));
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *top = tree->topLevelItem(i);
        for (int j = 0; top->text(0) == group && j < top->childCount(); ++j) {
            if (top->child(j)->text(0) == figure) {
                return top->child(j)->text(1);
            }
        }
    }
    return {};
}

QString statusOf(const SensorCheckWindow &window)
{
    return window.findChild<QLabel *>(QStringLiteral("status"))->text();
}

} // namespace

class TestSensorCheckWindow : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QString m_recording = m_folder.filePath(QStringLiteral("check.pcap"));

private Q_SLOTS:
    void initTestCase()
    {
        PcapWriter writer;
        writer.open(m_recording);
        eachDatagram([&](const QByteArray &datagram, const QDateTime &time) {
            writer.write(time, {0x7F000001, 5000}, {0x7F000001, 8600}, datagram);
        });
        writer.close();
    }

    void checksRecordingAndWritesReport()
    {
        SensorCheckWindow window({}, [] { return SensorAssessor::Options(); });
        std::optional<SensorReport> onMap;
        connect(&window, &SensorCheckWindow::detectionChosen, this, [&](const auto &sensor) { onMap = sensor; });
        auto *box = window.findChild<QCheckBox *>(QStringLiteral("onMap"));
        auto *button = window.findChild<QPushButton *>(QStringLiteral("export"));
        QVERIFY(!box->isEnabled() && !button->isEnabled());
        window.assessFile(m_recording);
        QTRY_VERIFY_WITH_TIMEOUT(button->isEnabled(), 20000);
        QCOMPARE(
            valueOf(window, QStringLiteral("Antenna"), QStringLiteral("Rotation period")), QStringLiteral("4.000 s"));
        QVERIFY(valueOf(window, QStringLiteral("Compared with ADS-B (CAT021)"), QStringLiteral("Azimuth bias"))
                    .startsWith(QLatin1String("-0.1")));
        QVERIFY(!onMap);
        box->setChecked(true);
        QVERIFY(onMap && onMap->sic == 11 && onMap->detection.grid.total().looks > 100);
        box->setChecked(false);
        QVERIFY(!onMap);

        const QString report = m_folder.filePath(QStringLiteral("report"));
        window.setNameQuestion([&] { return report; });
        button->click();
        QVERIFY(QFile(report + QStringLiteral(".html")).size() > 10000);
        window.setNameQuestion([&] { return m_folder.filePath(QStringLiteral("none/report.pdf")); });
        button->click();
        QVERIFY(statusOf(window).contains(QLatin1String("none/report.pdf")));
    }

    void saysWhatIsWrong()
    {
        SensorCheckWindow window({}, [] { return SensorAssessor::Options(); });
        window.assessFile(m_folder.filePath(QStringLiteral("absent.pcap")));
        QTRY_VERIFY(statusOf(window).startsWith(QLatin1String("absent.pcap: ")));
        window.assessFile({});
        QCOMPARE(statusOf(window), QStringLiteral("Choose a recording first."));
        window.assessInput();
        QVERIFY(statusOf(window).startsWith(QLatin1String("No input is open")));
    }

    void checksInput()
    {
        std::shared_ptr<StreamTap> open;
        SensorCheckWindow window([&](const auto &tap, bool isOpen) { open = isOpen ? tap : nullptr; },
            [] { return SensorAssessor::Options(); });
        window.setInput(true, QStringLiteral("UDP port 8600"));
        window.assessInput();
        QVERIFY(open);
        const auto clock = std::make_shared<Clock>();
        open->setClock(clock);
        eachDatagram([&](const QByteArray &datagram, const QDateTime &time) {
            clock->startRecorded(time);
            open->addMessage({reinterpret_cast<const unsigned char *>(datagram.constData()),
                static_cast<std::size_t>(datagram.size())});
        });
        open->flush();
        auto *radar = window.findChild<QComboBox *>(QStringLiteral("radar"));
        QTRY_COMPARE_WITH_TIMEOUT(radar->currentText(), QStringLiteral("Radar 25/11"), 20000);
        window.setInput(false, {});
        QVERIFY(!open && statusOf(window).startsWith(QLatin1String("The input has ended")));
        QCOMPARE(radar->currentText(), QStringLiteral("Radar 25/11"));
    }

    // North of the site good, south of it bad, nothing in the west.
    void paintsDetectionOverTheMap()
    {
        MercatorProjector projector;
        DetectionLayer layer(&projector);
        DetectionGrid grid;
        grid.at(50e3, 2.0) = {100, 100, 0, 0, 0, 0};
        grid.at(50e3, 182.0) = {100, 10, 0, 0, 0, 0};
        grid.at(50e3, 272.0) = {2, 2, 0, 0, 0, 0}; // too few looks
        const GeoCoordinate site(40.0, 116.0);
        layer.setDetection(site, grid, QStringLiteral("Radar"));
        const QPointF center = projector.toCartesian(site);
        QImage image(400, 400, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        QTransform transform;
        transform.translate(200, 200).scale(1e-3, -1e-3).translate(-center.x(), -center.y());
        painter.setTransform(transform);
        layer.paint(painter, GeoView(transform, image.size()));
        painter.end();
        const auto at = [&](double azimuth) {
            const auto place = projector.toCartesian(site.atDistanceAndAzimuth(48e3, azimuth));
            return image.pixelColor(transform.map(place).toPoint());
        };
        QVERIFY(at(5).blue() > at(5).red() + 20);
        QVERIFY(at(185).red() > at(185).blue() + 20);
        QCOMPARE(at(275), QColor(Qt::black));
        QCOMPARE(at(15), QColor(Qt::black));
    }
};

VYX_TEST(TestSensorCheckWindow)
#include "tst_sensor_check_window.moc"
