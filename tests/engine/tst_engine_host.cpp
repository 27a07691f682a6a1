#include "engine/engine_host.h"

#include "engine/data_engine.h"
#include "sensors/radar_sensor_info.h"
#include "test_program.h"

#include <QTemporaryDir>
#include <QTest>

class TestEngineHost final : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    // A capture of so many octets in which no datagram is; it takes no room on the disk.
    QFileInfo emptyCapture(qint64 size)
    {
        QFile file(m_dir.filePath("empty.pcap"));
        const QByteArray header = QByteArray::fromHex("d4c3b2a1 02000400 00000000 00000000 ffff0000 01000000");
        const bool made = file.open(QIODevice::WriteOnly) && file.write(header) == header.size() && file.resize(size);
        return made ? QFileInfo(file.fileName()) : QFileInfo();
    }

    void open(EngineHost &host)
    {
        Config config;
        config.inputComm = Config::InputComm::File;
        config.inputFileName = emptyCapture(qint64{1} << 40);
        host.openInput(config, QSharedPointer<RadarSensorInfo>::create(), {}, 5);
    }

private Q_SLOTS:
    // Hours of reading without a packet: who closes the input, or the program, does not wait for it.
    void readingIsGivenUpForACloseAndForTheEnd()
    {
        EngineHost host;
        // A QSignalSpy would be filled on the engine's thread.
        int log = 0;
        int answered = 0;
        QList<quint64> closed;
        connect(host.engine(), &DataEngine::logMessage, &host, [&log] { ++log; });
        connect(host.engine(), &DataEngine::inputOpened, &host, [&answered] { ++answered; });
        connect(host.engine(), &DataEngine::inputClosed, &host, [&closed](quint64 request) { closed.append(request); });
        connect(host.engine(), &DataEngine::inputOpenFailed, this, [] { QFAIL("The opening was answered."); });
        host.start();
        for (int turn = 1; turn <= 2; ++turn) {
            open(host);
            QTRY_COMPARE(log, turn);
            host.closeInput();
            QTRY_COMPARE(closed.size(), turn);
            QCOMPARE(closed.last(), 5ULL);
        }
        QCOMPARE(answered, 0);
        open(host);
        QTRY_COMPARE(log, 3);
        QVERIFY(host.stop(2000));
    }

    // Read on one thread while the other writes; the newest names the input that is open.
    void statisticsChangeThreads()
    {
        EngineHost host;
        host.start();
        Config config;
        config.inputUdpMulticast1 = false;
        config.inputUdpPort1 = 0; // any
        const auto &slot = host.shared().statistics;
        for (quint64 request = 1; request <= 20; ++request) {
            host.openInput(config, QSharedPointer<RadarSensorInfo>::create(), {}, request);
            QTRY_VERIFY(slot.read().value && slot.read().value->requestId == request && slot.read().value->open);
            QCOMPARE(slot.read().value->endpoints.size(), 1);
            host.closeInput();
            QTRY_VERIFY(!slot.read().value->open);
        }
        QVERIFY(slot.read().counter > 40);
    }
};

VYX_TEST(TestEngineHost)
#include "tst_engine_host.moc"
