#include "window_fixture.h"

#include "ui/demo_traffic.h"
#include "ui/exit_report.h"
#include "ui/termination_signals.h"

#include <QFile>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>

#include <csignal>

namespace {

constexpr auto sensorAnswer = R"(if [ "$2" = --sensor-json ]; then
  echo '{"type":"radar","name":"SHOW","sac":1,"sic":2,"location":"480000.00N0160000.00E"}'
  exit 0
fi
)";

} // namespace

class TestRunEnds : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void demoNeedsAnAnswer_data();
    void demoNeedsAnAnswer();
    void demoEndIsReported_data();
    void demoEndIsReported();
    void demoTrafficEndsWithTheTerminal();
    void reportIsWrittenAtTheEnd();
    void unwritableReportIsAFailure();
    void signalsAskForTheEnd();

private:
    QString script(const QString &text);

    QTemporaryDir m_directory;
};

QString TestRunEnds::script(const QString &text)
{
    QFile file(m_directory.filePath("generator"));
    if (!file.open(QFile::WriteOnly | QFile::Truncate)) {
        return {};
    }
    file.write("#!/bin/sh\n" + text.toUtf8());
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return file.fileName();
}

void TestRunEnds::demoNeedsAnAnswer_data()
{
    QTest::addColumn<QString>("text"); // of the generator; empty: there is none
    QTest::addColumn<QString>("error");
    QTest::newRow("no generator") << ""
                                  << "was found neither";
    QTest::newRow("says why it cannot") << "echo no such scenario >&2; exit 2"
                                        << "no such scenario";
    QTest::newRow("fails silently") << "exit 1"
                                    << "does not answer";
    QTest::newRow("answers no sensor") << "echo '{\"type\":\"kettle\"}'"
                                       << "names no sensor";
    QTest::newRow("answers rubbish") << "echo hello"
                                     << "names no sensor";
}

void TestRunEnds::demoNeedsAnAnswer()
{
    QFETCH(QString, text);
    QFETCH(QString, error);
    DemoTraffic demo({}, text.isEmpty() ? QString() : script(text));
    QString reason;
    QVERIFY(!demo.prepare(&reason));
    QVERIFY2(reason.contains(error), qPrintable(reason));
    QVERIFY(!reason.contains('\n'));
}

void TestRunEnds::demoEndIsReported_data()
{
    QTest::addColumn<QString>("ending");
    QTest::addColumn<LogLevel>("level");
    QTest::newRow("scenario over") << "exit 0" << LogLevel::Info;
    QTest::newRow("failure") << "exit 3" << LogLevel::Warning;
    QTest::newRow("killed") << "kill -9 $$" << LogLevel::Warning;
}

void TestRunEnds::demoEndIsReported()
{
    QFETCH(QString, ending);
    DemoTraffic demo("a scenario.json",
        script(QString(sensorAnswer) + "echo \"$@\" > '" + m_directory.filePath("arguments") + "'\n" + ending));
    QString reason;
    QVERIFY2(demo.prepare(&reason), qPrintable(reason));
    Config config;
    demo.applyTo(config);
    QCOMPARE(config.sensorName, "SHOW");
    QVERIFY(!config.inputUdpMulticast1);

    QSignalSpy messages(&demo, &DemoTraffic::message);
    demo.start();
    QTRY_COMPARE(messages.size(), 1);
    QTEST(messages[0][0].value<LogLevel>(), "level");
    QFile arguments(m_directory.filePath("arguments"));
    QVERIFY(arguments.open(QFile::ReadOnly));
    QCOMPARE(QString::fromUtf8(arguments.readAll()).trimmed(),
        QString("a scenario.json --with-parent --to udp:127.0.0.1:%1").arg(config.inputUdpPort1));
}

void TestRunEnds::demoTrafficEndsWithTheTerminal()
{
    const QString pidFile = m_directory.filePath("pid");
    auto demo = std::make_unique<DemoTraffic>(
        QString(), script(QString(sensorAnswer) + "echo $$ > '" + pidFile + "'\nexec sleep 60"));
    QString reason;
    QVERIFY2(demo->prepare(&reason), qPrintable(reason));
    demo->start();
    QFile file(pidFile);
    QTRY_VERIFY(QFileInfo(pidFile).size() > 0);
    QVERIFY(file.open(QFile::ReadOnly));
    const pid_t child = file.readAll().trimmed().toInt();
    QCOMPARE(kill(child, 0), 0);
    demo.reset();
    QCOMPARE(kill(child, 0), -1);
}

void TestRunEnds::reportIsWrittenAtTheEnd()
{
    WindowFixture fixture;
    const auto window = fixture.makeWindow();
    QVERIFY(fixture.openInput(*window));
    QTRY_VERIFY((window->pullSlots(), window->newestSnapshot()));
    const QString screenshot = m_directory.filePath("window.png");
    const QString snapshot = m_directory.filePath("snapshot.json");
    const ExitReport report(window.get(), screenshot, snapshot);
    QVERIFY(fixture.close(*window));
    QVERIFY(report.succeeded());
    QCOMPARE(QImage(screenshot).size(), window->size());
    QFile file(snapshot);
    QVERIFY(file.open(QFile::ReadOnly));
    QVERIFY(QJsonDocument::fromJson(file.readAll()).object()["tracks"].isArray());
}

void TestRunEnds::unwritableReportIsAFailure()
{
    WindowFixture fixture;
    const auto window = fixture.makeWindow();
    const ExitReport report(window.get(), {}, m_directory.filePath("missing/snapshot.json"));
    QVERIFY(fixture.close(*window));
    QVERIFY(!report.succeeded());
}

void TestRunEnds::signalsAskForTheEnd()
{
    for (const int number : {SIGINT, SIGTERM}) {
        const TerminationSignals termination;
        QSignalSpy requested(&termination, &TerminationSignals::requested);
        raise(number);
        QTRY_COMPARE(requested.size(), 1);
    }
}

QTEST_MAIN(TestRunEnds)
#include "tst_run_ends.moc"
