#include "app/app_identity.h"
#include "app/app_paths.h"
#include "app/config.h"
#include "app/run_config.h"
#include "control/control_client.h"
#include "engine/engine_host.h"
#include "test_files.h"
#include "test_program.h"
#include "ui/input_session.h"
#include "ui/reopening.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUdpSocket>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <csignal>
#include <cstring>

namespace {

// What a service manager hears.
class NotifySocket final {
public:
    explicit NotifySocket(const QString &path) : m_socket(socket(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK, 0))
    {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        std::strcpy(address.sun_path, qPrintable(path));
        bind(m_socket, reinterpret_cast<const sockaddr *>(&address), sizeof address);
    }
    ~NotifySocket() { ::close(m_socket); }

    bool hears(const QByteArray &state)
    {
        char octets[1000];
        for (ssize_t size = 0; size >= 0; size = recv(m_socket, octets, sizeof octets, 0)) {
            m_heard += QByteArray(octets, size) + '\n';
        }
        return m_heard.contains(state);
    }

private:
    int m_socket;
    QByteArray m_heard = "\n";
};

} // namespace

// The program itself, as services and scripts use it.
class TestUnattended final : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_directory;
    QString m_control;
    quint16 m_port = 0;
    QUdpSocket m_sender;

    std::unique_ptr<QProcess> started(const QStringList &arguments, const QMap<QString, QString> &variables = {}) const
    {
        auto program = std::make_unique<QProcess>();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        environment.remove("JOURNAL_STREAM");
        for (auto variable = variables.begin(); variable != variables.end(); ++variable) {
            environment.insert(variable.key(), variable.value());
        }
        program->setProcessEnvironment(environment);
        program->start(QCoreApplication::applicationDirPath() + "/vyxdisplay", arguments);
        return program;
    }

    QJsonObject asked(const QJsonObject &request) const
    {
        QString error;
        return QJsonDocument::fromJson(ControlClient::ask(m_control, request, &error)).object();
    }
    QJsonObject status() const { return asked({{"command", "status"}})["result"].toObject(); }
    QString input(const QString &key) const
    {
        const QJsonObject told = status()["input"].toObject();
        return told[key].toString();
    }
    QString state() const { return input("state"); }

    static bool ended(QProcess &program)
    {
        ::kill(static_cast<pid_t>(program.processId()), SIGTERM);
        return program.waitForFinished(20000) && program.exitStatus() == QProcess::NormalExit
            && program.exitCode() == 0;
    }

    static void configure(const std::function<void(Config &)> &change)
    {
        Config config;
        config.inputUdpMulticast1 = false;
        config.sensorType = RadarSensor;
        config.sensorLocation = GeoCoordinate(50.0, 14.0);
        config.sensorSac = 25;
        config.sensorSic = 10;
        change(config);
        config.save(AppPaths::configFile());
    }

private Q_SLOTS:
    void initTestCase()
    {
        for (const char *variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
            qputenv(variable, m_directory.path().toUtf8());
        }
        setApplicationIdentity();
        m_control = m_directory.filePath("control");
        QUdpSocket reservation;
        QVERIFY(reservation.bind(QHostAddress::LocalHost, 0));
        m_port = reservation.localPort();
    }

    void cleanup() { AppPaths::setProfile({}); }

    void aServiceReceivesAnswersAndEnds()
    {
        configure([this](Config &config) { config.inputUdpPort1 = m_port; });
        NotifySocket manager(m_directory.filePath("notify"));
        const QString snapshot = m_directory.filePath("picture.json");
        const auto service =
            started({"--headless", "--control", m_control, "--snapshot", snapshot, "--snapshot-every", "0.1"},
                {{"NOTIFY_SOCKET", m_directory.filePath("notify")}, {"WATCHDOG_USEC", "1000000"},
                    {"JOURNAL_STREAM", "1:2"}});
        QTRY_VERIFY_WITH_TIMEOUT(manager.hears("\nREADY=1\n") && manager.hears("\nWATCHDOG=1\n"), 20000);
        QTRY_COMPARE(state(), QString("open"));
        QVERIFY(manager.hears(("STATUS=Receiving on UDP port " + QString::number(m_port)).toUtf8()));

        const QByteArray plot = QByteArray::fromHex("30000d9110190a0a0000000001");
        m_sender.writeDatagram(plot, QHostAddress::LocalHost, m_port);
        QTRY_COMPARE(QJsonDocument::fromJson(contentsOf(snapshot))["tracks"].toArray().size(), 1);
        QTRY_COMPARE(status()["sources"].toArray().first().toObject()["sac"].toInt(), 25); // once a second
        const QJsonObject told = status();
        QCOMPARE(told["tracks"].toInt(), 1);
        QVERIFY(!told["window"].toBool(true) && told["input"]["messages"].toInt() == 1);

        const auto question = started({"--ask", m_control, "stop"});
        QVERIFY(question->waitForFinished(10000));
        QCOMPARE(question->exitCode(), 0);
        QVERIFY(QJsonDocument::fromJson(question->readAllStandardOutput())["ok"].toBool());
        QTRY_COMPARE(state(), QString("closed"));
        const auto refused = started({"--ask", m_control, "screenshot", R"({"path":"/tmp/x.png"})"});
        QVERIFY(refused->waitForFinished(10000));
        QCOMPARE(refused->exitCode(), 1);
        QVERIFY(asked({{"command", "start"}})["ok"].toBool());
        QTRY_COMPARE(state(), QString("open"));

        manager.hears({}); // the system keeps ten datagrams for it
        QVERIFY(ended(*service));
        QVERIFY(manager.hears("\nSTOPPING=1\n"));
        const QByteArray errors = service->readAllStandardError();
        QVERIFY2(errors.contains("<6>Start UDP input :"), errors.constData());
        QVERIFY(contentsOf(AppPaths::appDataDir() + "/logs/vyxdisplay.log").contains("Z [INFO    ] Start UDP input :"));
        QVERIFY(!QFile::exists(m_control));
    }

    // The service comes before its serial device, whose name the settings get only then.
    void aServiceOpensItsInputAgain()
    {
        configure([](Config &config) {
            config.inputComm = Config::InputComm::Serial;
            config.inputSerialDevice = "no-such-line";
        });
        const auto service = started({"--headless", "--control", m_control});
        QTRY_VERIFY_WITH_TIMEOUT(input("notice").startsWith("Cannot open serial line no-such-line"), 20000);
        configure([this](Config &config) { config.inputUdpPort1 = m_port; });
        QVERIFY(asked({{"command", "start"}})["ok"].toBool());
        QTRY_COMPARE(state(), QString("open"));
        QVERIFY(ended(*service));
        QVERIFY(service->readAllStandardError().contains("The input is opened again in 5 s."));
    }

    void anInputIsTriedLessAndLessOften()
    {
        RunConfig config(m_directory.filePath("none.conf"));
        EngineHost host;
        InputSession session(&config, &host);
        Reopening reopening(&session);
        QSignalSpy due(&reopening, &Reopening::due);
        auto *timer = reopening.findChild<QTimer *>();
        session.onOpenFailed(0);
        QVERIFY(!timer->isActive()); // nobody wants it
        reopening.setWanted(true);
        const auto failsAndWaits = [&](int seconds) {
            session.onOpenFailed(0);
            session.onClosed(0);
            const bool waits = timer->isActive() && timer->interval() == seconds * 1000;
            timer->start(0);
            return waits && QTest::qWaitFor([timer] { return !timer->isActive(); }, 1000);
        };
        for (const int seconds : {5, 10, 20, 40, 80, 160, 300, 300}) {
            QVERIFY2(failsAndWaits(seconds), qPrintable(QString::number(seconds)));
        }
        QCOMPARE(due.size(), 8);
        Q_EMIT session.opened();
        QVERIFY(failsAndWaits(5));
        session.onOpenFailed(0);
        QVERIFY(session.waiting() && session.notice().endsWith("Another attempt is made by itself."));
        session.close();
        QVERIFY(!session.waiting() && !timer->isActive());
        session.onOpenFailed(0);
        QVERIFY(!session.waiting());
    }

    // Its port comes free, is taken again while the input is stopped, and stopping ends the attempts.
    void aWindowKeepsItsInput()
    {
        QUdpSocket other;
        const auto take = [&other](quint16 port) {
            return other.bind(QHostAddress::AnyIPv4, port, QUdpSocket::DontShareAddress);
        };
        QVERIFY(take(0));
        const quint16 port = other.localPort();
        configure([port](Config &config) {
            config.inputUdpPort1 = port;
            config.inputAutoStart = true;
        });
        const auto window = started({"--control", m_control});
        const QString attempts = "Another attempt is made by itself.";
        QTRY_VERIFY_WITH_TIMEOUT(input("notice").endsWith(attempts), 20000);
        QCOMPARE(state(), QString("closed"));
        other.close();
        QVERIFY(asked({{"command", "start"}})["ok"].toBool());
        QTRY_COMPARE(state(), QString("open"));
        QVERIFY(asked({{"command", "stop"}})["ok"].toBool());
        QTRY_COMPARE(state(), QString("closed"));
        QVERIFY(!input("notice").contains(attempts));
        QVERIFY(take(port));
        QVERIFY(asked({{"command", "start"}})["ok"].toBool());
        QTRY_VERIFY(input("notice").endsWith(attempts));
        QVERIFY(asked({{"command", "stop"}})["ok"].toBool());
        QVERIFY(!input("notice").contains(attempts));
        QVERIFY(ended(*window));
    }

    void aWindowStartsItsInputAndCanBeDriven()
    {
        AppPaths::setProfile("tower");
        configure([this](Config &config) {
            config.inputUdpPort1 = m_port;
            config.inputAutoStart = true;
        });
        const auto window = started({"--profile", "tower", "--control", m_control, "--size", "800x600"});
        QTRY_COMPARE_WITH_TIMEOUT(state(), QString("open"), 20000);
        QCOMPARE(status()["profile"].toString(), QString("tower"));

        const QJsonObject view{{"latitude", 51.5}, {"longitude", -0.5}, {"metresPerPixel", 80.0}, {"rotation", -30.0}};
        QJsonObject request = view;
        request.insert("command", "view");
        QVERIFY(asked(request)["ok"].toBool());
        const QJsonObject shown = asked({{"command", "view"}})["result"].toObject();
        for (const QString &key : view.keys()) {
            QVERIFY2(std::abs(shown[key].toDouble() - view[key].toDouble()) < 1e-6, qPrintable(key));
        }
        QCOMPARE(asked({{"command", "view"}, {"latitude", 51.5}})["ok"].toBool(true), false);
        QCOMPARE(asked({{"command", "view"}, {"metresPerPixel", 0.0}})["ok"].toBool(true), false);

        const QString picture = m_directory.filePath("window.png");
        QVERIFY(asked({{"command", "screenshot"}, {"path", picture}})["ok"].toBool());
        QCOMPARE(QImage(picture).size(), QSize(800, 600));
        QVERIFY(asked({{"command", "stop"}})["ok"].toBool());
        QTRY_COMPARE(state(), QString("closed"));
        QCOMPARE(asked({{"command", "stop"}})["ok"].toBool(true), false);

        QVERIFY(ended(*window));
        const QDir settings(AppPaths::configDir());
        QVERIFY(settings.path().endsWith("vyxdisplay-tower"));
        QVERIFY(settings.exists("vyxdisplay_uistate.conf"));
        QVERIFY(contentsOf(AppPaths::appDataDir() + "/logs/vyxdisplay.log").contains("Start UDP input"));
    }
};

VYX_TEST(TestUnattended)
#include "tst_unattended.moc"
