#include "window_fixture.h"

#include "app/map_places.h"
#include "demonstration/demo_traffic.h"
#include "display/geo_map_display.h"
#include "display/geo_plot_map.h"
#include "display/geo_track_display.h"
#include "plan_view/geo_widget.h"
#include "test_files.h"
#include "test_program.h"
#include "tracking/plot_store.h"
#include "vyxdisplay/exit_report.h"
#include "vyxdisplay/termination_signals.h"

#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>

#include <fcntl.h>
#include <unistd.h>

#include <csignal>

namespace {

constexpr auto SensorAnswer = R"(if [ "$2" = --sensor-json ]; then
  echo '{"type":"radar","name":"SHOW","sac":1,"sic":2,"location":"480000.00N0160000.00E",'
  echo '"ssr":true,"ssr_coverage":35}'
  exit 0
fi
)";

// Standard error goes to a file in its lifetime.
class StandardErrorFile final {
public:
    explicit StandardErrorFile(const QString &fileName) : m_fileName(fileName), m_before(dup(STDERR_FILENO))
    {
        const int file = open(qPrintable(fileName), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        dup2(file, STDERR_FILENO);
        ::close(file);
    }
    ~StandardErrorFile()
    {
        dup2(m_before, STDERR_FILENO);
        ::close(m_before);
    }

    QString text() const { return QString::fromUtf8(contentsOf(m_fileName)); }

private:
    QString m_fileName;
    int m_before;
};

} // namespace

class TestRunEnds : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void demoNeedsAnAnswer();
    void demoEndIsReported();
    void demoTrafficEndsWithTheTerminal();
    void reportIsWrittenAtTheEnd();
    void reportSaysWhereTracksStandInThePicture();
    void anInputThatCannotBeOpenedIsAFailure();
    void signalsAskForTheEnd();

private:
    QString script(const QString &text);

    QTemporaryDir m_directory;
};

QString TestRunEnds::script(const QString &text)
{
    QFile file(m_directory.filePath("generator"));
    if (!file.open(QFile::WriteOnly | QFile::Truncate)) {
        return {};
    }
    file.write("#!/bin/sh\n" + text.toUtf8());
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return file.fileName();
}

void TestRunEnds::demoNeedsAnAnswer()
{
    const QList<std::pair<const char *, const char *>> answers{{"", "was found neither"},
        {"echo no such scenario >&2; exit 2", "no such scenario"}, {"exit 1", "does not answer"},
        {"echo '{\"type\":\"kettle\"}'", "names no sensor"}, {"echo hello", "names no sensor"}};
    for (const auto &[text, error] : answers) {
        DemoTraffic demo({}, *text ? script(text) : QString());
        QString reason;
        QVERIFY2(!demo.prepare(&reason), text);
        QVERIFY2(reason.contains(error) && !reason.contains('\n'), qPrintable(reason));
    }
}

void TestRunEnds::demoEndIsReported()
{
    const QList<std::pair<QString, LogLevel>> endings{
        {"exit 0", LogLevel::Info}, {"exit 3", LogLevel::Warning}, {"kill -9 $$", LogLevel::Warning}};
    for (const auto &[ending, level] : endings) {
        QFile arguments(m_directory.filePath("arguments"));
        DemoTraffic demo("a scenario.json",
            script(QString(SensorAnswer) + "echo \"$@\" > '" + arguments.fileName() + "'\n" + ending));
        QString reason;
        QVERIFY2(demo.prepare(&reason), qPrintable(reason));
        Config config;
        demo.applyTo(config);
        QCOMPARE(config.sensorName, "SHOW");
        QVERIFY(!config.inputUdpMulticast1);
        QVERIFY(QFileInfo(MapPlaces::resolve(config.mapIndex)).isFile() && config.mapIndex != Config().mapIndex);
        QVERIFY(config.mapRangeRingVisible && config.mapRangeRingDistance == 10.0 && config.mapRangeRingNumber == 4);
        config.mapRangeRingVisible = false; // the rings of the last time, switched off
        config.mapIndex = "mine.idx";
        demo.applyTo(config);
        QVERIFY(!config.mapRangeRingVisible);
        QCOMPARE(config.mapIndex, "mine.idx");

        QSignalSpy messages(&demo, &DemoTraffic::message);
        demo.start();
        QTRY_COMPARE(messages.size(), 1);
        QCOMPARE(messages[0][0].value<LogLevel>(), level);
        QVERIFY(arguments.open(QFile::ReadOnly));
        QCOMPARE(QString::fromUtf8(arguments.readAll()).trimmed(),
            QString("a scenario.json --with-parent --wall-clock --to udp:127.0.0.1:%1").arg(config.inputUdpPort1));
    }
}

void TestRunEnds::demoTrafficEndsWithTheTerminal()
{
    const QString pidFile = m_directory.filePath("pid");
    auto demo = std::make_unique<DemoTraffic>(
        QString(), script(QString(SensorAnswer) + "echo $$ > '" + pidFile + "'\nexec sleep 60"));
    QString reason;
    QVERIFY2(demo->prepare(&reason), qPrintable(reason));
    demo->start();
    QFile file(pidFile);
    QTRY_VERIFY(QFileInfo(pidFile).size() > 0);
    QVERIFY(file.open(QFile::ReadOnly));
    const pid_t child = file.readAll().trimmed().toInt();
    QCOMPARE(kill(child, 0), 0);
    demo.reset();
    QCOMPARE(kill(child, 0), -1);
}

void TestRunEnds::reportIsWrittenAtTheEnd()
{
    WindowFixture fixture;
    const auto window = fixture.makeWindow();
    QVERIFY(fixture.openInput(*window));
    QTRY_VERIFY((window->pullSlots(), window->newestSnapshot()));
    const QString screenshot = m_directory.filePath("window.png");
    const QString snapshot = m_directory.filePath("snapshot.json");
    const ExitReport report(window.get(), screenshot, snapshot);
    const ExitReport unwritable(window.get(), {}, m_directory.filePath("missing/snapshot.json"));
    QVERIFY(fixture.close(*window));
    QVERIFY(report.succeeded());
    QVERIFY(!unwritable.succeeded());
    QCOMPARE(QImage(screenshot).size(), window->size());
    QVERIFY(QJsonDocument::fromJson(contentsOf(snapshot)).object()["tracks"].isArray());
}

void TestRunEnds::reportSaysWhereTracksStandInThePicture()
{
    WindowFixture fixture;
    const auto window = fixture.makeWindow([](Config &config) {
        config.trackLabelBackgroundColor = Qt::magenta;
        config.trackLabelColor = Qt::magenta;
        config.trackLabelDetailColor = Qt::magenta;
        config.mapPlotVisible = true;
    });
    GeoWidget *scope = window->geoWidget();
    scope->setView(5000.0, 3000.0, 100.0);
    TrackSnapshot track;
    track.trackNumber = 42;
    track.incarnationId = 7;
    track.carCoordinate = QPointF(5000.0, 3000.0);
    track.carCoordinateValid = true;
    TrackSnapshot outside = track;
    outside.incarnationId = 8;
    outside.carCoordinate.rx() += 1e6;
    scope->trackDisplay()->setSnapshot(
        QSharedPointer<DisplaySnapshot>::create(DisplaySnapshot{{track, outside}, {}, {}}));
    scope->trackDisplay()->setTrackLabelOffset(7, 60, 60); // clear of the symbol
    PlotStore plots;
    plots.restart();
    plots.add({}, Track::Psr, 1);
    plots.add({}, Track::Psr, 2);
    DisplaySnapshot withPlots;
    withPlots.time = QDateTime::fromMSecsSinceEpoch(2, Qt::UTC);
    withPlots.plots = plots.publish();
    scope->mapDisplay()->plotMap()->setSnapshot(withPlots);

    const QString screenshot = m_directory.filePath("tracks.png");
    const QString snapshot = m_directory.filePath("tracks.json");
    const ExitReport report(window.get(), screenshot, snapshot);
    QVERIFY(fixture.close(*window));
    const QImage picture(screenshot);
    QRect painted;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            painted |= picture.pixelColor(x, y) == QColor(Qt::magenta) ? QRect(x, y, 1, 1) : QRect();
        }
    }
    const QJsonObject root = QJsonDocument::fromJson(contentsOf(snapshot)).object();
    QCOMPARE(root["labels"].toArray().size(), 1);
    QCOMPARE(root["symbols"].toArray().size(), 1);
    QCOMPARE(root["plots"].toInt(), 2);
    const QJsonValue label = root["labels"][0];
    const QJsonArray rect = label["rect"].toArray();
    QCOMPARE(QRect(rect[0].toInt(), rect[1].toInt(), rect[2].toInt(), rect[3].toInt()), painted);
    QVERIFY(label["pinned"].toBool() && label["trackNumber"].toInt() == 42);
    QCOMPARE(label["lines"].toInt(), 2);
    const int padding = scope->trackDisplay()->backgroundPadding();
    const QPoint symbol = painted.topLeft() + QPoint(padding - 60, padding + 60);
    QCOMPARE(root["symbols"][0]["place"].toArray(), QJsonArray({symbol.x(), symbol.y()}));
    QCOMPARE(root["view"]["metresPerPixel"].toDouble(), 100.0);
}

void TestRunEnds::anInputThatCannotBeOpenedIsAFailure()
{
    WindowFixture fixture;
    const QList<std::pair<std::function<void(Config &)>, QString>> runs{{[](Config &config) {
                                                                             config.inputComm = Config::InputComm::File;
                                                                             config.inputFileName =
                                                                                 QFileInfo("no/such/recording.pcap");
                                                                         },
                                                                            "recording.pcap"},
        {[](Config &config) { config.sensorType = UnknownSensor; }, "Unknown sensor"}};
    for (const auto &[overrides, reason] : runs) {
        const auto window = fixture.makeWindow(overrides);
        ExitReport report(window.get(), {}, {});
        report.exitWithInput();
        const StandardErrorFile errors(m_directory.filePath("errors"));
        window->openInput();
        QTRY_VERIFY(!window->isVisible());
        QVERIFY(!report.succeeded());
        QVERIFY2(errors.text().contains(reason), qPrintable(errors.text()));
    }
    const auto window = fixture.makeWindow();
    ExitReport report(window.get(), {}, {});
    report.exitWithInput();
    QVERIFY(fixture.openInput(*window));
    window->closeInput();
    QTRY_VERIFY(!window->isVisible());
    QVERIFY(report.succeeded());
}

void TestRunEnds::signalsAskForTheEnd()
{
    for (const int number : {SIGINT, SIGTERM}) {
        const TerminationSignals termination;
        QSignalSpy requested(&termination, &TerminationSignals::requested);
        raise(number);
        QTRY_COMPARE(requested.size(), 1);
    }
}

VYX_TEST(TestRunEnds)
#include "tst_run_ends.moc"
