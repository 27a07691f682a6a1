#include "engine/source_monitor.h"

#include "encoded_report.h"
#include "engine_rig.h"
#include "modes/encoder.h"
#include "sirm/alenia_sir_m_radar_encoder.h"
#include "test_program.h"
#include "tracking/track_manager.h"

#include <QTest>

#include <numeric>

namespace modes = korvane::modes;

namespace {

// "48 25/10 track=2 plot=1; ..." of every source, "?" for one that is not known.
QString told(const InputStatistics &statistics)
{
    QStringList sources;
    for (const SourceStatistics &source : statistics.sources) {
        const QString code = source.identified ? QStringLiteral("%1/%2").arg(source.sac).arg(source.sic) : "?";
        QStringList words{QString::number(source.category), code};
        quint64 sum = 0;
        for (int i = 0; i < ReportOutcomeCount; ++i) {
            const quint64 count = source.outcome(static_cast<ReportOutcome>(i));
            sum += count;
            if (count > 0) {
                words += QStringLiteral("%1=%2").arg(reportOutcomeName(static_cast<ReportOutcome>(i))).arg(count);
            }
        }
        sources += sum == source.records ? words.join(' ') : QStringLiteral("sum is not the records");
    }
    return sources.join("; ");
}

QByteArray northMarker(double timeOfDay)
{
    return encodedReport(34, QStringLiteral("000=1 030=%1").arg(timeOfDay, 0, 'f', 6));
}

QByteArray sectorCrossing(double azimuth, double timeOfDay)
{
    return encodedReport(34, QStringLiteral("000=2 020=%1 030=%2").arg(azimuth, 0, 'f', 6).arg(timeOfDay, 0, 'f', 6));
}

// The records of blocks of one category.
QByteArray inOneBlock(const QByteArrayList &blocks)
{
    constexpr qsizetype Header = 3;
    QByteArray merged = blocks.first().left(Header);
    for (const QByteArray &block : blocks) {
        merged += block.mid(Header);
    }
    merged[1] = static_cast<char>(merged.size() >> 8);
    merged[2] = static_cast<char>(merged.size());
    return merged;
}

} // namespace

class TestSourceMonitor final : public QObject {
    Q_OBJECT

private:
    static constexpr qint64 Midnight = qint64{20000} * 86400 * 1000;

    static void open(EngineRig &rig, const QSharedPointer<SensorInfo> &sensor)
    {
        rig.nowMs = Midnight + 3600 * 1000;
        rig.open(1, sensor);
    }

    static void pass(EngineRig &rig, qint64 ms)
    {
        rig.nowMs += ms;
        rig.engine.publishSnapshot();
    }

private Q_SLOTS:
    void everyRecordHasOneOutcome_data()
    {
        QTest::addColumn<int>("sensor");
        QTest::addColumn<QByteArrayList>("messages");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, SensorType sensor, const QByteArrayList &messages, const char *expected) {
            QTest::newRow(name) << static_cast<int>(sensor) << messages << expected;
        };
        const auto cat = [](int category, const char *report) { return encodedReport(category, report); };
        const QByteArray placed48 = cat(48, "040/RHO=10 040/THETA=20");
        row("track and plot", RadarSensor, {plotBlock(7) + plotBlock(0), placed48},
            "48 25/0 plot=1; 48 25/10 track=1 plot=1");
        row("plot of a test", RadarSensor, {cat(48, "040/RHO=10 040/THETA=20 020/TYP=2 020/TST=1")},
            "48 25/0 testTarget=1");
        row("test target with a track", RadarSensor, {cat(48, "161/TRN=7 040/RHO=10 040/THETA=20 020/TYP=2 020/TST=1")},
            "48 25/0 track=1");
        row("nothing to go by", RadarSensor, {cat(48, "070/MODE3A=07421")}, "48 25/0 noIdentity=1");
        row("a track without a place, until it has one", RadarSensor,
            {cat(48, "161/TRN=7"), cat(48, "161/TRN=7 040/RHO=10 040/THETA=20"), cat(48, "161/TRN=7")},
            "48 25/0 track=2 noPosition=1");
        row("the antenna", RadarSensor,
            {northMarkerBlock(), sectorCrossing(90, 1), cat(34, "000=2"), cat(34, "000=3"), cat(34, "030=5")},
            "34 25/0 sourceStatus=1 noReader=1 incomplete=2; 34 25/10 sourceStatus=1");
        row("another sensor's category", RadarSensor, {cat(62, "040=7")}, "62 25/0 wrongSensorKind=1");
        row("categories without reader", RadarSensor, {QByteArray::fromHex("3f0006 80190a c80005ffff")},
            "63 25/10 noReader=1; 200 ? noReader=1");
        row("broken record before a good block", RadarSensor, {QByteArray::fromHex("30000781 190aff") + plotBlock(7)},
            "48 ? malformed=1; 48 25/10 track=1");
        row("broken record of a known source", RadarSensor,
            {plotBlock(7), plotBlock(7).replace(2, 1, "\x0f") + "\xff\xff"}, "48 25/10 track=1 malformed=1");
        row("block cut short", RadarSensor, {plotBlock(7) + plotBlock(7).chopped(2)}, "48 25/10 track=1 malformed=1");
        row("a check sequence", RadarSensor, {plotBlock(7) + "\x30\x00", plotBlock(7) + "\xcd\xff\xff\xff"},
            "48 25/10 track=2");
        row("no block at all", RadarSensor, {QByteArray::fromHex("7b2274223a317d")}, "0 ? malformed=1");
        row("length of zero", RadarSensor, {QByteArray::fromHex("220000")}, "34 ? malformed=1");
        row("ADS-B", AdsbSensor,
            {cat(21, "080=0x3c0001 130/LAT=50 130/LON=8"), cat(21, "080=0x3c0001 130/LAT=95 130/LON=8"),
                cat(21, "080=0 130/LAT=50 130/LON=8"), cat(21, "080=0x3c0002"), cat(21, "080=0")},
            "21 25/0 track=1 plot=1 noIdentity=1 noPosition=1 outOfRange=1");
        row("multilateration", MlatSensor,
            {cat(20, "161/TRN=7 041/LAT=50 041/LON=8"), cat(20, "041/LAT=50 041/LON=8"), cat(20, "070/MODE3A=07421")},
            "20 25/0 track=1 plot=1 noIdentity=1");
        row("system tracks", SdpsSensor,
            {cat(62, "040=7 105/LAT=50 105/LON=8"), cat(62, "040=7 080/TSE=1"), cat(62, "105/LAT=50 105/LON=8")},
            "62 25/0 track=1 trackEnd=1 noIdentity=1");
        row("surface radar", SmrSensor,
            {cat(10, "161/TRK=7 040/RHO=1000 040/TH=20"), cat(10, "161/TRK=7"),
                cat(10, "161/TRK=7 041/LAT=50 041/LON=8")},
            "10 25/0 track=1 plot=1 noPosition=1");
        row("alerts", RadarSensor,
            {cat(4, "000=4 040=1 030=7"), cat(4, "000=4 040=1"), cat(4, "000=17 040=2"), cat(4, "000=99")},
            "4 25/0 alert=1 noReader=1 noIdentity=1 incomplete=1");
        row("weather", RadarSensor, {cat(8, "000=255"), cat(8, "000=254 100/F=1"), cat(8, "000=255"), cat(8, "000=7")},
            "8 25/0 weather=2 noReader=1 incomplete=1");
        row("no tracker", UnknownSensor, {plotBlock(7)}, "48 25/10 wrongSensorKind=1");
    }

    void everyRecordHasOneOutcome()
    {
        QFETCH(int, sensor);
        QFETCH(QByteArrayList, messages);
        EngineRig rig;
        const auto info = SensorInfo::create(static_cast<SensorType>(sensor));
        if (info) {
            info->setLocation(GeoCoordinate(50.0, 8.0));
        }
        open(rig, info);
        for (const QByteArray &message : messages) {
            rig.engine.procMessage(message);
        }
        QTEST(told(*rig.statistics()), "expected");
    }

    void theSourceCheckGoesBeforeEverythingElse()
    {
        EngineRig rig;
        rig.config.processorAsterixVerifySacSic = true;
        open(rig, EngineRig::radar());
        rig.engine.procMessage(plotBlock(1, 0, 11) + plotBlock(1) + northMarkerBlock(26, 10));
        QCOMPARE(told(*rig.statistics()), "34 26/10 otherSource=1; 48 25/10 track=1; 48 25/11 otherSource=1");
    }

    void aFullStoreIsToldOf()
    {
        EngineRig rig;
        open(rig, EngineRig::radar());
        for (unsigned number = 1; number <= TrackManager::DefaultTrackNumbers + 10; ++number) {
            rig.engine.procMessage(
                encodedReport(48, QStringLiteral("220=%1 040/RHO=10 040/THETA=20").arg(0x3c0000 + number)));
        }
        QCOMPARE(told(*rig.statistics()), QStringLiteral("48 25/0 track=4096 noTrackNumber=10"));
    }

    void modeSFramesHaveOutcomes()
    {
        EngineRig rig;
        rig.config.processorType = Config::ProcessorType::ModeS;
        open(rig, SensorInfo::create(SensorInfo::AdsbSensor));
        const auto send = [&rig](const modes::ModeSFrame &frame) {
            std::string octets;
            modes::appendEncapsulated(octets, frame, modes::ModeSEncapsulation::Beast);
            rig.engine.procMessage(QByteArray::fromStdString(octets));
        };
        send(modes::encodeIdentification(0x4b1a2c, 'A', 3, "VYX12"));
        send(modes::encodeAllCall(0x3c0001)); // of one that sends no squitters
        auto damaged = modes::encodeAllCall(0x4b1a2c);
        damaged.octets[5] ^= 0x12;
        send(damaged);
        modes::ModeSFrame reply;
        reply.length = 2;
        send(reply);
        rig.engine.procMessage(QByteArray(30, '\x55'));
        const auto statistics = rig.statistics();
        QCOMPARE(told(*statistics), "0 ? malformed=2 noPosition=2 modeAC=1");
        QCOMPARE(statistics->undecodableMessages, 1ULL);
    }

    void sirMRecordsHaveOutcomes()
    {
        EngineRig rig;
        rig.config.processorType = Config::ProcessorType::AleniaSirM;
        open(rig, EngineRig::radar());
        AleniaSirMRadarTrackRecord track, ended;
        track.setTrackNumber(7);
        track.setTrackType(2);
        ended.setTrackNumber(8);
        AleniaSirMRadarDataMessage data;
        data.setRadarId(3);
        data.addPlotRecord({});
        data.addTrackRecord(track);
        data.addTrackRecord(ended);
        for (const auto &octets : {AleniaSirMRadarEncoder::encode(data),
                 AleniaSirMRadarEncoder::encode(AleniaSirMRadarNorthMarkerMessage())}) {
            rig.engine.procMessage(
                QByteArray(reinterpret_cast<const char *>(octets.data()), static_cast<qsizetype>(octets.size())));
        }
        QCOMPARE(told(*rig.statistics()), "0 0/0 sourceStatus=1; 0 0/3 track=1 trackEnd=1 plot=1");
    }

    void countsAndExamples()
    {
        EngineRig rig;
        open(rig, EngineRig::radar());
        const QByteArray broken = QByteArray::fromHex("30000b81 190a 00 40000000");
        rig.engine.procMessage(plotBlock(7) + plotBlock(8) + northMarkerBlock());
        rig.engine.procMessage(plotBlock(7) + broken);
        pass(rig, 500);
        rig.engine.procMessage("\x01\x02");
        const auto statistics = rig.statistics();
        QCOMPARE(statistics->messages, 3ULL);
        QCOMPARE(statistics->octets, 59ULL);
        QCOMPARE(statistics->undecodableMessages, 1ULL);
        QVERIFY(statistics->open && statistics->requestId == 1);
        QCOMPARE(statistics->endpoints, QStringList(QStringLiteral(":%1").arg(rig.port())));
        const SourceStatistics *plots = nullptr;
        for (const SourceStatistics &source : statistics->sources) {
            plots = source.category == 48 && source.sic == 10 ? &source : plots;
        }
        QVERIFY(plots);
        QCOMPARE(plots->edition, "1.32");
        QCOMPARE(std::tuple(plots->datagrams, plots->blocks, plots->records, plots->octets), std::tuple(2, 3, 3, 39));
        QCOMPARE(plots->firstArrivalMs, plots->lastArrivalMs);
        QCOMPARE(plots->example(ReportOutcome::Track).octets, plotBlock(7).mid(3));
        QVERIFY(plots->example(ReportOutcome::Plot).octets.isEmpty());
        const auto malformed = std::find_if(statistics->sources.begin(), statistics->sources.end(),
            [](const auto &source) { return source.outcome(ReportOutcome::Malformed) > 0 && source.category == 48; });
        QVERIFY(malformed != statistics->sources.end());
        const ReportExample &example = malformed->example(ReportOutcome::Malformed);
        QCOMPARE(example.octets, broken);
        QVERIFY(!example.fault.isEmpty() && example.faultOffset >= 6);
    }

    // What needs counting only is not looked at: all that does must be, wherever in a block it stands.
    void recordsWithinABlockAreLookedAt()
    {
        EngineRig rig;
        open(rig, EngineRig::radar());
        rig.engine.procMessage(inOneBlock({northMarker(3600), sectorCrossing(90, 3601), sectorCrossing(180, 3602),
            sectorCrossing(270, 3603), northMarker(3604)}));
        const auto send = [&rig](int range) {
            rig.engine.procMessage(inOneBlock({encodedReport(48, "161/TRN=7"), encodedReport(48, "161/TRN=8"),
                encodedReport(48, QStringLiteral("040/RHO=%1 040/THETA=20").arg(range)),
                encodedReport(48, "161/TRN=7")}));
        };
        const auto examplePlot = [&rig] { return rig.statistics()->sources[1].example(ReportOutcome::Plot).octets; };
        send(10);
        const QByteArray first = examplePlot();
        pass(rig, 500);
        send(20);
        QCOMPARE(examplePlot(), first);
        pass(rig, 600);
        send(30);
        QCOMPARE(examplePlot(), encodedReport(48, "040/RHO=30 040/THETA=20").mid(3));
        const auto statistics = rig.statistics();
        QCOMPARE(told(*statistics), "34 25/0 sourceStatus=5; 48 25/0 plot=3 noPosition=9");
        QCOMPARE(statistics->sources[0].antenna.sectorCrossings, 3ULL);
        QCOMPARE(statistics->sources[0].antenna.northMarkers, 2ULL);
        QCOMPARE(statistics->sources[1].blocks, 3ULL);
    }

    // A source that is heard every four seconds, beside others in ever new numbers.
    void aFloodOfSourcesPushesNoneOutThatIsHeardRegularly()
    {
        EngineRig rig;
        open(rig, EngineRig::radar());
        quint64 sent = 0;
        for (int turn = 0; turn < 30; ++turn) {
            rig.engine.procMessage(plotBlock(7));
            for (int i = 0; i < 300 && turn >= 5; ++i, ++sent) {
                QByteArray block = plotBlock(0, 0, static_cast<quint8>(i));
                block[5] = static_cast<char>(100 + turn);
                rig.engine.procMessage(block);
            }
            pass(rig, 4000);
        }
        const auto statistics = rig.statistics();
        QCOMPARE(statistics->sources.size(), qsizetype(InputStatistics::MaximumSources));
        QCOMPARE(told(*statistics).section("; ", 0, 0), "48 25/10 track=30");
        const quint64 kept = std::accumulate(statistics->sources.begin(), statistics->sources.end(), quint64(0),
            [](quint64 sum, const auto &source) { return sum + source.records; });
        QCOMPARE(kept + statistics->others.records, sent + 30);
        QCOMPARE(statistics->others.outcome(ReportOutcome::Plot), statistics->others.records);
    }

    void ratesAndHistory()
    {
        EngineRig rig;
        open(rig, EngineRig::radar());
        for (int second = 0; second < 65; ++second) {
            for (int i = 0; i < (second < 40 ? 5 : 2); ++i) {
                rig.engine.procMessage(plotBlock(7));
            }
            pass(rig, 1000);
        }
        const SourceStatistics busy = rig.statistics()->sources.constFirst();
        QCOMPARE(busy.rate10, 2.0);
        QCOMPARE(busy.rate60, (35 * 5 + 25 * 2) / 60.0);
        QCOMPARE(busy.history.back(), 20U);
        QCOMPARE(busy.history[54], 50U);
        QCOMPARE(busy.history[53], 0U);
        QCOMPARE(std::accumulate(busy.history.begin(), busy.history.end(), 0U), 4 * 50U + 2 * 20U);
        QCOMPARE(busy.lastArrivalMs, Midnight + 3664 * 1000);
        QCOMPARE(busy.expectedInterval, 4.0); // as the sensor is configured
        pass(rig, 3600 * 1000);
        const SourceStatistics silent = rig.statistics()->sources.constFirst();
        QCOMPARE(silent.rate60, 0.0);
        QCOMPARE(std::accumulate(silent.history.begin(), silent.history.end(), 0U), 0U);
        QCOMPARE(silent.records, busy.records);
    }

    void delaysGoThroughMidnight()
    {
        EngineRig rig;
        rig.nowMs = Midnight - 10 * 1000;
        rig.open(1, EngineRig::radar());
        for (int i = 0; i < 100; ++i) {
            const double sent = static_cast<double>(rig.nowMs % 86400000) / 1000 - (i == 50 ? 5.0 : 0.5);
            rig.engine.procMessage(northMarker(sent < 0 ? sent + 86400 : sent));
            pass(rig, 250);
        }
        const DelayStatistics delay = rig.statistics()->sources.constFirst().delay;
        QCOMPARE(delay.samples, 100);
        QVERIFY(std::abs(delay.median - 0.5) < 0.01 && std::abs(delay.percentile95 - 0.5) < 0.01);
        QVERIFY(std::abs(delay.smallest - 0.5) < 0.01);
        QCOMPARE(delay.jumps, 2ULL);
    }

    void truncatedTimesAndClocksAheadAreUnderstood()
    {
        DelayMeter truncated, ahead;
        truncated.add(Midnight + 513 * 1000, 511.5, 512.0);
        QCOMPARE(truncated.statistics().median, 1.5);
        ahead.add(Midnight + 1000, 2.0, 86400.0);
        QCOMPARE(ahead.statistics().smallest, -1.0);
        QVERIFY(!ahead.isDue(Midnight + 1001) && ahead.isDue(Midnight + 2000));
    }

    // Sectors arrive 32 to a turn of 4.8 seconds, through midnight; in one turn three of them are lost.
    void theAntennaIsMeasured()
    {
        AntennaMeter antenna;
        const double turn = 4.8;
        for (int i = 0; i < 32 * 12; ++i) {
            const double seconds = std::fmod(86390.0 + i * turn / 32, 86400.0);
            if (i % 32 == 0) {
                antenna.crossNorth(seconds);
            }
            if (i < 200 || i > 202) {
                antenna.crossSector(i % 32 * 11.25, seconds);
            }
        }
        const AntennaStatistics measured = antenna.statistics();
        QVERIFY(std::abs(measured.period - turn) < 0.001 && measured.periodDeviation < 0.001);
        QCOMPARE(measured.sectors, 32);
        QCOMPARE(measured.missingSectors, 3ULL);
        QCOMPARE(measured.revolutions, 11ULL);
        QCOMPARE(measured.northMarkers, 12ULL);
    }

    // North markers alone, one of them lost; the targets of the same radar are expected once a turn.
    void northMarkersMeasureAswell()
    {
        EngineRig rig;
        open(rig, EngineRig::radar(10.0));
        for (int i = 0; i < 12; ++i) {
            if (i != 7) {
                rig.engine.procMessage(
                    northMarker(3600 + i * 5) + encodedReport(48, "161/TRN=7 040/RHO=10 040/THETA=20"));
            }
            pass(rig, 5000);
        }
        const auto statistics = rig.statistics();
        QCOMPARE(statistics->sources[0].category, quint8(34));
        QCOMPARE(statistics->sources[0].antenna.period, 5.0);
        QCOMPARE(statistics->sources[1].expectedInterval, 5.0);
    }

    void countsEndWithTheInputAndBeginAnew()
    {
        EngineRig rig;
        open(rig, EngineRig::radar());
        rig.engine.procMessage(plotBlock(7));
        rig.engine.closeInput();
        const auto closed = rig.statisticsSlot.read().value;
        QVERIFY(!closed->open);
        QCOMPARE(told(*closed), "48 25/10 track=1");
        rig.open(2, EngineRig::radar());
        QVERIFY(rig.statisticsSlot.read().value->open && rig.statisticsSlot.read().value->sources.isEmpty());
    }
};

VYX_TEST(TestSourceMonitor)
#include "tst_source_monitor.moc"
