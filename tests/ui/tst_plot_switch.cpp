#include "display/geo_map_display.h"
#include "display/geo_plot_map.h"
#include "engine/display_snapshot.h"
#include "plan_view/geo_widget.h"
#include "test_program.h"
#include "tracking/plot_store.h"
#include "ui/actions.h"
#include "ui/plot_switch.h"
#include "widgets/scope_notice.h"
#include "window_fixture.h"
#include "written_capture.h"

#include <QAction>
#include <QTest>

class TestPlotSwitch : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void standsInForTracks_data();
    void standsInForTracks();
    void operatorDecides();
    void recordingOfPlotsIsSeen();
};

namespace {

// A switch, and what the engine sends.
class Scene {
public:
    Scene() { action.setCheckable(true); }

    void look(double second, bool withTrack = false)
    {
        DisplaySnapshot snapshot;
        snapshot.plots = store.publish();
        snapshot.time = QDateTime::fromMSecsSinceEpoch(qRound64(second * 1000.0), Qt::UTC);
        if (withTrack) {
            snapshot.tracks.append(TrackSnapshot());
        }
        plots.look(snapshot);
    }

    void send(double second, bool withTrack = false)
    {
        store.add({}, Track::Ssr, qRound64(second * 1000.0));
        look(second, withTrack);
    }

    // Another input, that brings plots for so long.
    void receive(double seconds)
    {
        plots.beginInput({});
        look(1e6); // a snapshot of the input before
        store.restart();
        for (double second = 0.0; second <= seconds; second += 1.0) {
            send(100.0 + second);
        }
    }

    bool shown() const { return action.isChecked() && layer.visible(); }
    bool hidden() const { return !action.isChecked() && !layer.visible(); }

    PlotStore store;
    GeoPlotMap layer;
    QAction action;
    PlotSwitch plots{&layer, &action};
};

// One CAT048 report of SAC 1, SIC 2 from a secondary radar: a place, and nothing that says who it is.
QByteArray secondaryPlot(int number)
{
    QByteArray block = QByteArray::fromHex("30000e f0 0102 000000 40 1e00 0000");
    block[12] = static_cast<char>(number * 7);
    return block;
}

} // namespace

void TestPlotSwitch::standsInForTracks_data()
{
    QTest::addColumn<QList<double>>("plots");
    QTest::addColumn<QList<double>>("tracks"); // seconds with a track
    QTest::addColumn<bool>("expected");
    QTest::newRow("nothing") << QList<double>{} << QList<double>{} << false;
    QTest::newRow("plots") << QList<double>{0, 2, 5} << QList<double>{} << true;
    QTest::newRow("plots of a moment") << QList<double>{0, 2, 4.9} << QList<double>{} << false;
    QTest::newRow("tracks with them") << QList<double>{0, 2, 5} << QList<double>{0} << false;
    QTest::newRow("tracks a little later") << QList<double>{0, 2, 4.5, 6} << QList<double>{4.5} << false;
    QTest::newRow("tracks much later") << QList<double>{0, 3, 6, 9} << QList<double>{9} << true;
}

void TestPlotSwitch::standsInForTracks()
{
    QFETCH(QList<double>, plots);
    QFETCH(QList<double>, tracks);
    QFETCH(bool, expected);
    Scene scene;
    scene.store.restart();
    for (const double second : plots) {
        scene.send(100.0 + second, tracks.contains(second));
    }
    scene.look(1000.0, !tracks.isEmpty());
    QVERIFY(expected ? scene.shown() : scene.hidden());
    QCOMPARE(scene.plots.standsIn(), expected && tracks.isEmpty());
    const QString notice = scene.plots.notice("UDP port 1");
    QCOMPARE(notice.contains("UDP port 1 brings target reports but no tracks"), expected && tracks.isEmpty());
}

void TestPlotSwitch::operatorDecides()
{
    Scene scene;
    scene.receive(6.0);
    QVERIFY(scene.shown());
    for (const auto &[recording, stays] : {std::pair("a.pcap", false), {"a.pcap", true}, {"b.pcap", false}}) {
        scene.plots.beginInput(recording);
        QVERIFY(stays ? scene.shown() : scene.hidden());
        scene.store.restart();
        scene.send(100.0);
        scene.send(106.0);
        QVERIFY(scene.shown());
    }
    scene.receive(6.0);
    QVERIFY(scene.shown());
    scene.action.setChecked(false);
    scene.plots.switchTo(false);
    QVERIFY(scene.hidden());
    scene.receive(6.0); // he does not want them
    QVERIFY(scene.hidden());
    scene.plots.setWanted(true);
    QVERIFY(scene.shown() && !scene.plots.standsIn());
    scene.receive(6.0);
    QVERIFY(scene.shown() && scene.plots.notice("x").isEmpty()); // it is he who shows them
    scene.plots.setWanted(false);
    QVERIFY(scene.hidden());
    scene.receive(6.0);
    QVERIFY(scene.hidden());
}

// The whole road, with nothing set but the recording.
void TestPlotSwitch::recordingOfPlotsIsSeen()
{
    const QTemporaryDir dir;
    QList<std::pair<qint64, QByteArray>> plots;
    for (int i = 0; i < 60; ++i) {
        plots.append({i * 100, secondaryPlot(i)});
    }
    const QString path = writtenCapture(dir.filePath("plots.pcap"), plots);
    const WindowFixture fixture;
    const auto window = WindowFixture::makeWindow([&path](Config &config) {
        config.inputComm = Config::InputComm::File;
        config.inputFileName = QFileInfo(path);
    });
    const GeoPlotMap *layer = window->geoWidget()->mapDisplay()->plotMap();
    QAction *action = ::action(*window, ActionId::TogglePlots);
    QVERIFY(!layer->visible() && !action->isChecked());
    window->setReplaySpeed(ReplaySpeed::Max);
    window->openInput();
    QTRY_COMPARE(layer->shownPlots(), std::size_t(60));
    QVERIFY(action->isChecked() && !window->config().mapPlotVisible);
    action->trigger();
    QVERIFY(!layer->visible() && !action->isChecked());
    action->trigger();
    QVERIFY(layer->visible() && action->isChecked() && window->config().mapPlotVisible);
    action->trigger();
    QVERIFY(!layer->visible() && !window->config().mapPlotVisible);
    QVERIFY(WindowFixture::close(*window));
}

VYX_TEST(TestPlotSwitch)
#include "tst_plot_switch.moc"
