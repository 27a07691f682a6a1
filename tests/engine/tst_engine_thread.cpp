#include "engine/engine_host.h"
#include "engine/slot_reader.h"
#include "engine_rig.h"
#include "test_program.h"

#include <QTest>
#include <QThread>

// The engine on its own thread, as the window has it; what the thread sanitizer looks at.
class TestEngineThread final : public QObject {
    Q_OBJECT

private:
    static quint16 freePort()
    {
        QUdpSocket socket;
        return socket.bind(QHostAddress::LocalHost, 0) ? socket.localPort() : 0;
    }

    // What the window does between two frames: it sends nothing, asks for this and that, and reads the slots.
    struct Window {
        EngineHost host;
        SlotReader<DisplaySnapshot> reader;
        Config config;
        QSharedPointer<const DisplaySnapshot> shown;
        quint64 openedRequest = 0;
        QThread *answeredOn = nullptr;
        int logLines = 0;

        Window()
        {
            config.inputUdpMulticast1 = false;
            config.inputUdpPort1 = freePort();
            QObject::connect(host.engine(), &DataEngine::inputOpened, &host, [this](quint64 requestId) {
                openedRequest = requestId;
                answeredOn = QThread::currentThread();
            });
            QObject::connect(host.engine(), &DataEngine::logMessage, &host, [this] { ++logLines; });
            host.start();
        }

        qsizetype tracks()
        {
            if (const auto taken = reader.take(host.shared().display)) {
                shown = taken;
            }
            return shown ? shown->tracks.size() : 0;
        }
    };

private Q_SLOTS:
    void datagramsBecomeTracksOnTheOtherSide()
    {
        Window window;
        QUdpSocket sender;
        for (quint64 request = 1; request <= 3; ++request) {
            window.host.openInput(window.config, EngineRig::radar(), {}, request);
            QTRY_COMPARE(window.openedRequest, request);
            QCOMPARE(window.answeredOn, QThread::currentThread());
            for (int i = 1; i <= 20; ++i) {
                const QByteArray plot = plotBlock(static_cast<quint8>(i), static_cast<quint16>(i * 1000));
                sender.writeDatagram(plot, QHostAddress::LocalHost, window.config.inputUdpPort1);
                window.host.setSnapshotTrailDots(i);
                window.tracks();
            }
            QTRY_COMPARE(window.tracks(), 20);
            window.host.pauseInput(request % 2 == 0);
            window.host.closeInput();
        }
        QVERIFY(window.logLines > 0);
        QVERIFY(window.host.stop(5000));
        QVERIFY(!window.host.engine());
        QCOMPARE(window.tracks(), 20); // the last picture stays when the engine is gone
    }

    // Stopped at once, or with calls still queued, the engine neither hangs nor runs on.
    void endsAtAnyTime()
    {
        for (int calls = 0; calls < 3; ++calls) {
            Window window;
            for (int i = 0; i < calls; ++i) {
                window.host.openInput(window.config, EngineRig::radar(), {}, 1);
                window.host.closeInput();
            }
            QVERIFY(window.host.stop(5000));
            QVERIFY(window.host.stop(5000)); // a second time is nothing
            window.host.openInput(window.config, EngineRig::radar(), {}, 2); // nor are calls afterwards
        }
    }
};

VYX_TEST(TestEngineThread)
#include "tst_engine_thread.moc"
