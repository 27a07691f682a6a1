#include "sirm/alenia_sir_m_radar_message.h"
#include "test_program.h"
#include "tracker_rig.h"

#include <QTest>

namespace {

struct Row {
    const char *name;
    int category;
    const char *report;
    const char *expected; // type and plane place of each plot
    int tracks = 0;
};

// On the plane the sensor stands at (890556, 6413525).
const Row rows[]{
    {"track, combined", 48, "161/TRN=7 020/TYP=3 040/RHO=10 040/THETA=90", "3 919400 6413475", 1},
    {"primary", 48, "020/TYP=1 040/RHO=10 040/THETA=90", "1 919400 6413475"},
    {"secondary", 48, "161/TRN=0 070/MODE3A=07421 020/TYP=2 040/RHO=10 040/THETA=90", "2 919400 6413475"},
    {"Mode S without address", 48, "220=0 020/TYP=5 040/RHO=10 040/THETA=90", "4 919400 6413475"},
    {"Mode S combined", 48, "020/TYP=7 042/X=-10 042/Y=0", "5 861712 6413475"},
    {"nothing said of the kind", 48, "040/RHO=10 040/THETA=90", "0 919400 6413475"},
    {"no place", 48, "161/TRN=7 020/TYP=3", "", 1},
    {"test target", 48, "020/TYP=2 020/TST=1 040/RHO=10 040/THETA=90", ""},
    {"CAT001, track", 1, "161=7 020/SSRPSR=2 040/RHO=10 040/THETA=90", "2 919400 6413475", 1},
    {"CAT001, secondary", 1, "020/SSRPSR=2 042/X=3 042/Y=4", "2 899221 6425034"},
    {"CAT001, test target", 1, "020/TST=1 040/RHO=10", ""},
    {"CAT020 on the globe", 20, "041/LAT=50.625 041/LON=8.4375", "7 939258 6522177"},
    {"CAT020 on the plane", 20, "161/TRN=7 041/LAT=50.625 042/X=1000 042/Y=-2000", "7 891556 6411525", 1},
    {"CAT020, test target", 20, "161/TRN=7 020/TST=1 042/X=1000", "", 1},
    {"CAT021 without address", 21, "080=0 130/LAT=50.625 130/LON=8.4375", "6 939258 6522177"},
    {"CAT021", 21, "080=99 130/LAT=50.625 130/LON=8.4375", "6 939258 6522177", 1},
    {"CAT021 off the globe", 21, "080=99 130/LAT=95 130/LON=8.4375", "", 1},
    {"CAT021, test target", 21, "080=99 040/TST=1 130/LAT=50.625 130/LON=8.4375", "", 1},
    {"CAT010", 10, "020/TYP=3 040/RHO=3000 040/TH=90 042/X=10", "8 895228 6413523"},
    {"CAT010, track", 10, "161/TRK=7 040/RHO=3000 040/TH=90", "8 895228 6413523", 1},
    {"CAT010 on the plane, multilateration", 10, "020/TYP=1 042/X=3000", "7 895228 6413523"},
    {"CAT010 on the globe, ADS-B", 10, "020/TYP=2 041/LAT=50.625 041/LON=8.4375", "6 939258 6522177"},
    {"CAT010 without place", 10, "020/TYP=3", ""},
    {"system track", 62, "040=7 105/LAT=50.625 105/LON=8.4375", "", 1},
};

const QHash<int, SensorType> sensors{
    {1, RadarSensor}, {10, SmrSensor}, {20, MlatSensor}, {21, AdsbSensor}, {48, RadarSensor}, {62, SdpsSensor}};

QString text(const PlotHistory &history)
{
    QStringList plots;
    for (const auto &batch : history.batches) {
        for (const Plot &plot : batch->plots) {
            plots += QStringLiteral("%1 %2 %3").arg(plot.type).arg(qRound(plot.place.x())).arg(qRound(plot.place.y()));
        }
    }
    return plots.join(", ");
}

} // namespace

class TestPlots : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void reportsBecomePlots_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < int(std::size(rows)); ++i) {
            QTest::addRow("CAT%03d, %s", rows[i].category, rows[i].name) << i;
        }
    }

    void reportsBecomePlots()
    {
        QFETCH(int, index);
        const auto &[name, category, report, expected, tracks] = rows[index];
        TrackerRig rig(sensors[category]);
        PlotStore plots;
        rig.tracker->setPlotStore(&plots);
        rig.setTime(2.5);
        rig.send(category, report);
        const PlotHistory history = plots.publish();
        QCOMPARE(text(history), QString(expected));
        QCOMPARE(rig.manager->trackCount(), tracks);
        for (const auto &batch : history.batches) {
            QCOMPARE(batch->plots.front().timeMs, rig.now.toMSecsSinceEpoch());
        }
    }

    void sirMPlotsAreShownBesideTracks()
    {
        TrackerRig rig(RadarSensor);
        PlotStore plots;
        rig.tracker->setPlotStore(&plots);
        const auto message = QSharedPointer<AleniaSirMRadarDataMessage>::create();
        AleniaSirMRadarPlotRecord plot;
        plot.setPlotType(1);
        plot.setPolar(18.5, 90.0);
        message->addPlotRecord(plot);
        AleniaSirMRadarTrackRecord track;
        track.setTrackNumber(7);
        track.setTrackType(3);
        message->addTrackRecord(track);
        rig.tracker->procAleniaSirMMessage(message);
        QCOMPARE(text(plots.publish()), QStringLiteral("1 919369 6413475"));
        QCOMPARE(rig.manager->trackCount(), 1);
    }

    // Whoever looks now and then sees every plot once, until there are too many; then the newest are there.
    void storeKeepsTheNewest()
    {
        PlotStore store;
        store.restart();
        QVERIFY(store.publish().batches.isEmpty());
        const quint64 run = store.publish().run;
        const auto add = [&store](std::size_t count) {
            for (std::size_t i = 0; i < count; ++i) {
                store.add({}, Track::Psr, qint64(i));
            }
        };
        add(3);
        store.publish();
        add(2);
        const PlotHistory early = store.publish();
        QCOMPARE(early.count, 5ULL);
        QCOMPARE(early.batches.size(), 2);
        QVERIFY(early.batches[1]->first == 3 && early.batches[1]->plots.size() == 2);
        add(PlotStore::MaximumPlots + 10);
        const PlotHistory full = store.publish();
        QCOMPARE(full.count, quint64(PlotStore::MaximumPlots + 15));
        quint64 next = full.batches.first()->first;
        QVERIFY(next > 0 && full.count - next <= PlotStore::MaximumPlots);
        QVERIFY(full.count - next > PlotStore::MaximumPlots - PlotStore::MaximumBatchPlots);
        for (const auto &batch : full.batches) {
            QCOMPARE(batch->first, next);
            next += batch->plots.size();
        }
        QCOMPARE(next, full.count);
        QCOMPARE(early.batches.size(), 2); // what was handed out stays as it was
        for (int i = 0; i < 2000; ++i) {
            add(1);
            store.publish();
        }
        QCOMPARE(store.publish().batches.size(), PlotStore::MaximumBatches);
        store.restart();
        QVERIFY(store.publish().run != run && store.publish().batches.isEmpty());
        QCOMPARE(store.publish().count, 0ULL);
    }
};

VYX_TEST(TestPlots)
#include "tst_plots.moc"
