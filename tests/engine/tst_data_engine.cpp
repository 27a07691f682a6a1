#include "engine_rig.h"

#include "engine/track_life_span.h"
#include "test_program.h"

#include <QTest>

// Opening and closing: who is answered, what is refused, what is cleared.
class TestDataEngine final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void answersCarryTheRequestThatTheyAnswer()
    {
        EngineRig rig;
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

    void inputsThatCannotWorkFailWithAReason()
    {
        const std::tuple<int, int, QString> rows[]{
            {0, 3, "W The input is not opened: this version has no decoder for \"Unknown Processor\"."},
            {3, 0, "W Unknown Input Method"}};
        for (const auto &[comm, processor, line] : rows) {
            EngineRig rig;
            rig.config.inputComm = static_cast<Config::InputComm>(comm);
            rig.config.processorType = static_cast<Config::ProcessorType>(processor);
            rig.open(3);
            QCOMPARE(rig.failed, QList<QVariantList>({{3ULL}}));
            QCOMPARE(rig.log.last(), line);
            QCOMPARE("W " + rig.faults.first().at(1).toString(), line);
            // Nothing is left behind: no answer to a close, and the next request is served.
            rig.engine.closeInput();
            QCOMPARE(rig.opened.size() + rig.closed.size(), 0);
            rig.config.inputComm = Config::InputComm::Udp;
            rig.config.processorType = Config::ProcessorType::Asterix;
            rig.open(4);
            QCOMPARE(rig.opened, QList<QVariantList>({{4ULL}}));
        }
    }

    void trackLifeSpanFollowsTheSensor()
    {
        const std::tuple<SensorType, double, unsigned int, unsigned int> rows[]{
            {SensorInfo::RadarSensor, 1.0, 1250, 3000}, // the shortest period
            {SensorInfo::RadarSensor, 0.8, 5000, 12000}, // too short
            {SensorInfo::RadarSensor, 4.0013, 5001, 12003}, // truncated to whole milliseconds
            {SensorInfo::AdsbSensor, 0.5, 750, 1500}, {SensorInfo::AdsbSensor, 0.0, 3000, 15000},
            {SensorInfo::MlatSensor, 4.0, 3000, 15000}, {SensorInfo::SdpsSensor, 4.0, 6000, 12000},
            {SensorInfo::SdpsSensor, 3.9, 10000, 20000}, {SensorInfo::SmrSensor, 1.0, 1250, 3000}};
        for (const auto &[type, period, coasting, termination] : rows) {
            const auto sensor = SensorInfo::create(QJsonObject{{"type", SensorInfo::typeToString(type)},
                {"location", "500000.00N0140000.00E"}, {"rotation_period", period}, {"update_interval", period}});
            const auto span = TrackLifeSpan::forSensor(sensor.data());
            QVERIFY(span);
            QCOMPARE(span->coastingMs, coasting);
            QCOMPARE(span->terminationMs, termination);
        }
    }

    void openingClearsThePictureAndClosingKeepsIt()
    {
        EngineRig rig;
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
};

VYX_TEST(TestDataEngine)
#include "tst_data_engine.moc"
