#include "test_program.h"
#include "ui/stats_window.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>

class TestStatsWindow final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsWhatWasReportedAndCopiesIt()
    {
        StatsWindow window;
        const auto shown = [&window](const char *name) { return window.findChild<QLabel *>(QString(name))->text(); };
        QCOMPARE(shown("tracks"), QString("-"));
        QCOMPARE(window.clipboardText(), QString());

        PipelineStats pipeline;
        pipeline.snapshotTracks = 211;
        pipeline.inputPacketsPerSecond = 4166.04;
        pipeline.weatherSecondsPerPicture = 3.0;
        window.setPipelineStats(pipeline);
        QCOMPARE(shown("tracks"), QString("211"));
        QCOMPARE(shown("weatherInterval"), QString("-")); // not valid after less than two pictures
        pipeline.weatherIntervalValid = true;
        window.setPipelineStats(pipeline);
        QCOMPARE(shown("weatherInterval"), QString("3.0 s"));

        window.setDropStats({1, 2, 3, 4, 500, 600, 7, 8});
        const QList<std::pair<const char *, QString>> drops{{"droppedSnapshots", "1"}, {"droppedVideo", "2"},
            {"droppedWeather", "3"}, {"emptyWeather", "4"}, {"weatherDelay", "500 ms"}, {"videoDelay", "600 ms"},
            {"placelessWeather", "7"}, {"droppedPlots", "8"}};
        for (const auto &[name, text] : drops) {
            QCOMPARE(shown(name), text);
        }
        QCOMPARE(shown("frames"), QString("-"));

        for (const double milliseconds : {9.0, 1.25}) {
            window.setLayerTimes({{"Static maps", milliseconds}, {"Video", 0.5}});
        }
        QCOMPARE(shown("layer Static maps"), QString("1.3 ms"));

        window.findChild<QPushButton *>("copy")->click();
        const QStringList lines = QGuiApplication::clipboard()->text().split('\n');
        QCOMPARE(lines.first(), QString("PipelineSnapshotTracks:211"));
        QVERIFY(lines.contains("PipelineInputPacketsPerSec:4166.04"));
        QVERIFY(lines.contains("DropVideoMaxDelayMs:600"));
        QCOMPARE(lines.filter("Layer"), QStringList({"LayerStaticmapsMs:1.25", "LayerVideoMs:0.5"}));
        QVERIFY(lines.filter("Paint").isEmpty()); // not reported yet

        QList<GeoMapDisplay::LayerTime> layers;
        for (int i = 0; i < 20; ++i) {
            layers.append({QString("Layer %1").arg(i), 1.0});
        }
        window.setLayerTimes(layers);
        QVERIFY2(window.minimumSizeHint().height() <= 720, "fits onto a small screen");
    }
};

VYX_TEST(TestStatsWindow)
#include "tst_stats_window.moc"
