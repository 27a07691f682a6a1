#include "engine_rig.h"

#include "engine/track_life_span.h"

#include <QTest>
#include <QThread>

// Opening and closing: who is answered, what is refused, what is cleared.
class TestDataEngine final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void answersCarryTheRequestThatTheyAnswer()
    {
        EngineRig rig;
        rig.config.inputUdpPort1 = EngineRig::freePort();
        rig.engine.closeInput();
        QCOMPARE(rig.closed.size(), 0);
        rig.open(7);
        QCOMPARE(rig.opened, QList<QVariantList>({{7ULL}}));

        rig.log.clear();
        rig.open(8);
        QCOMPARE(rig.log, QStringList("W Input is working now, stop first!"));
        QCOMPARE(rig.opened.size() + rig.failed.size() + rig.closed.size(), 1);

        rig.engine.closeInput();
        rig.engine.closeInput();
        QCOMPARE(rig.closed, QList<QVariantList>({{7ULL}}));
        rig.open(9);
        QCOMPARE(rig.opened.size(), 2);
        QCOMPARE(rig.failed.size(), 0);
    }

    void inputsThatCannotWorkFailWithAReason_data()
    {
        QTest::addColumn<int>("comm");
        QTest::addColumn<int>("processor");
        QTest::addColumn<QString>("lastLine");
        const auto row = [](const char *tag, int comm, int processor, const char *line) {
            QTest::newRow(tag) << comm << processor << line;
        };
        row("Mode S", 0, 1, "W The input is not opened: this version has no decoder for \"1090ES ADS-B Processor\".");
        row("Alenia SIR-M", 0, 2,
            "W The input is not opened: this version has no decoder for \"Alenia SIR-M Radar Processor\".");
        row("unknown processor", 0, 3,
            "W The input is not opened: this version has no decoder for \"Unknown Processor\".");
        row("unknown input", 3, 0, "W Unknown Input Method");
    }

    void inputsThatCannotWorkFailWithAReason()
    {
        QFETCH(int, comm);
        QFETCH(int, processor);
        EngineRig rig;
        rig.config.inputUdpPort1 = EngineRig::freePort();
        rig.config.inputComm = static_cast<Config::InputComm>(comm);
        rig.config.processorType = static_cast<Config::ProcessorType>(processor);
        rig.open(3);
        QCOMPARE(rig.failed, QList<QVariantList>({{3ULL}}));
        QCOMPARE(rig.opened.size(), 0);
        QTEST(rig.log.last(), "lastLine");
        // Nothing is left behind: no answer to a close, and the next request is served.
        rig.engine.closeInput();
        QCOMPARE(rig.closed.size(), 0);
        rig.config.inputComm = Config::InputComm::Udp;
        rig.config.processorType = Config::ProcessorType::Asterix;
        rig.open(4);
        QCOMPARE(rig.opened, QList<QVariantList>({{4ULL}}));
    }

    void trackLifeSpanFollowsTheSensor_data()
    {
        QTest::addColumn<unsigned int>("type");
        QTest::addColumn<double>("period");
        QTest::addColumn<unsigned int>("coasting");
        QTest::addColumn<unsigned int>("termination");
        const auto row = [](const char *tag, unsigned int type, double period, unsigned int coasting,
                             unsigned int termination) {
            QTest::newRow(tag) << type << period << coasting << termination;
        };
        row("radar, 6 s", 1, 6.0, 7500, 18000);
        row("radar, shortest period", 1, 1.0, 1250, 3000);
        row("radar, too short", 1, 0.8, 5000, 12000);
        row("radar, truncated to whole milliseconds", 1, 4.0013, 5001, 12003);
        row("ADS-B, shortest interval", 2, 0.5, 750, 1500);
        row("ADS-B, not given", 2, 0.0, 3000, 15000);
        row("multilateration", 3, 4.0, 3000, 15000);
        row("system, shortest interval", 4, 4.0, 6000, 12000);
        row("system, too short", 4, 3.9, 10000, 20000);
        row("surface radar", 5, 1.0, 1250, 3000);
        row("surface radar, too fast", 5, 0.5, 1500, 3000);
    }

    void trackLifeSpanFollowsTheSensor()
    {
        QFETCH(unsigned int, type);
        QFETCH(double, period);
        const auto sensor = SensorInfo::create(QJsonObject{{"type", SensorInfo::typeToString(SensorInfo::type(type))},
            {"location", "500000.00N0140000.00E"}, {"rotation_period", period}, {"update_interval", period}});
        const auto span = TrackLifeSpan::forSensor(sensor.data());
        QVERIFY(span);
        QTEST(span->coastingMs, "coasting");
        QTEST(span->terminationMs, "termination");
    }

    void openingClearsThePictureAndClosingKeepsIt()
    {
        EngineRig rig;
        rig.config.inputUdpPort1 = EngineRig::freePort();
        rig.open();
        rig.engine.procMessage(plotBlock(1) + plotBlock(2));
        rig.engine.closeInput();
        QCOMPARE(rig.tracks().size(), 2);
        const quint64 published = rig.displaySlot.read().counter;
        rig.open();
        const auto reading = rig.displaySlot.read();
        QCOMPARE(reading.counter, published + 1);
        QCOMPARE(reading.value->tracks.size(), 0);
    }

    // As the main window runs it: a thread of its own, driven by queued calls, deleted when the thread ends.
    void worksOnAThreadOfItsOwn()
    {
        MercatorProjector projector;
        SnapshotSlot<DisplaySnapshot> displaySlot;
        SnapshotSlot<VideoBatch> videoSlot;
        SnapshotSlot<WeatherProcessor::Picture> weatherSlot;
        QThread thread;
        const QPointer<DataEngine> engine = new DataEngine(&projector, &displaySlot, &videoSlot, &weatherSlot);
        engine->moveToThread(&thread);
        connect(&thread, &QThread::started, engine, &DataEngine::init);
        connect(&thread, &QThread::finished, engine, &QObject::deleteLater);
        QSignalSpy opened(engine, &DataEngine::inputOpened);
        QSignalSpy closed(engine, &DataEngine::inputClosed);
        thread.start();

        Config config;
        config.inputUdpMulticast1 = false;
        config.inputUdpPort1 = EngineRig::freePort();
        const auto invoke = [&engine](auto call) { QMetaObject::invokeMethod(engine, call); };
        invoke([&] { engine->openInput(config, EngineRig::radar(), {}, 5); });
        QTRY_COMPARE(opened, QList<QVariantList>({{5ULL}}));
        QUdpSocket sender;
        sender.writeDatagram(plotBlock(1), QHostAddress::LocalHost, config.inputUdpPort1);
        QTRY_COMPARE(displaySlot.read().value->tracks.size(), 1); // published by the engine's own timer
        invoke([&] { engine->closeInput(); });
        QTRY_COMPARE(closed, QList<QVariantList>({{5ULL}}));
        thread.quit();
        QVERIFY(thread.wait());
        QVERIFY(!engine);
    }
};

QTEST_GUILESS_MAIN(TestDataEngine)
#include "tst_data_engine.moc"
