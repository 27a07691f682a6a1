#include "engine/serial_input.h"
#include "engine_rig.h"
#include "test_program.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <pty.h>
#include <unistd.h>

// The serial line, at one end of a pseudo-terminal.
class TestDataEngineSerial final : public QObject {
    Q_OBJECT

private:
    int m_far = -1;
    QString m_device;

    void closeFarEnd()
    {
        if (m_far >= 0) {
            ::close(m_far);
        }
        m_far = -1;
    }

    void send(const QByteArray &data) { QCOMPARE(::write(m_far, data.constData(), data.size()), data.size()); }

    void open(EngineRig &rig)
    {
        rig.config.inputComm = Config::InputComm::Serial;
        rig.config.inputSerialDevice = m_device;
        rig.open(2);
    }

private Q_SLOTS:
    void init()
    {
        int near = -1;
        char name[128] = {};
        QCOMPARE(openpty(&m_far, &near, name, nullptr, nullptr), 0);
        ::close(near);
        m_device = QString::fromLocal8Bit(name);
    }

    void cleanup() { closeFarEnd(); }

    void chunksAreMessages()
    {
        EngineRig rig;
        open(rig);
        QCOMPARE(rig.opened.size(), 1);
        // Octets that a terminal in its ordinary mode would swallow or change, among them 0x0a, 0x0d, 0x11 and 0x13.
        send(plotBlock(1, 0x0a0d) + plotBlock(2, 0x1113) + plotBlock(3, 0x0304));
        QTRY_COMPARE(rig.tracks().size(), 3);
        QCOMPARE(rig.engine.bytesReceived(), 39ULL);

        rig.engine.closeInput();
        QCOMPARE(rig.closed, QList<QVariantList>({{2ULL}}));
        open(rig);
        QCOMPARE(rig.opened.size(), 2);
    }

    // By way of a link, as an adapter is named by its serial number.
    void aDeviceThatIsPluggedInAgainIsOpened()
    {
        const QTemporaryDir directory;
        const QString link = directory.filePath("adapter");
        QVERIFY(QFile::link(m_device, link));
        m_device = link;
        EngineRig rig;
        open(rig);
        closeFarEnd();
        const auto lines = [&rig](const QString &text) { return rig.log.filter(text).size(); };
        QTRY_COMPARE(lines("W The serial device is gone: "), 1);
        QVERIFY(QFile::remove(link));
        auto *retry = rig.engine.findChild<SerialInput *>()->findChild<QTimer *>();
        QVERIFY(retry->isActive());
        retry->setInterval(10);
        const auto said = rig.log.size();
        for (int turn = 0; turn < 5; ++turn) { // nothing is said while it is away
            QTest::qWait(10);
        }
        QCOMPARE(rig.log.size(), said);

        init();
        QVERIFY(QFile::link(m_device, link));
        QTRY_COMPARE(lines("I The serial device " + link + " is back."), 1);
        send(plotBlock(1));
        QTRY_COMPARE(rig.tracks().size(), 1);
        QCOMPARE(rig.closed.size() + rig.faults.size(), 0);
        QVERIFY(!retry->isActive());
    }

    void whatIsNoLineFails()
    {
        const QString program = QCoreApplication::applicationFilePath();
        const std::pair<QString, QString> rows[]{{"/dev/ttyNone", "I Serial device not found: /dev/ttyNone"},
            {program, "I Serial device not found: " + program}, {"/dev/null", "I Failed to open serial device: 7"}};
        for (const auto &[device, line] : rows) {
            EngineRig rig;
            m_device = device;
            open(rig);
            QCOMPARE(rig.failed.size(), 1);
            QCOMPARE(rig.log.last(), line);
            QCOMPARE(rig.faults.size(), 1);
            QVERIFY(rig.log.contains("W " + rig.faults.first().at(1).toString()));
            rig.engine.closeInput();
            QCOMPARE(rig.closed.size(), 0);
        }
    }
};

VYX_TEST(TestDataEngineSerial)
#include "tst_data_engine_serial.moc"
