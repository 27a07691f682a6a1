#include "window_fixture.h"

#include "app/ui_state.h"
#include "engine/data_engine.h"
#include "ui/log_pane.h"

#include <QSignalSpy>
#include <QThread>

class TestMainWindowShutdown : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void closesInOrder_data();
    void closesInOrder();
    void answeringNoLeavesEverythingRunning();
    void anEngineThatHangsDoesNotHoldTheProgram();
    void aFailedOpeningEndsTheWait();
};

void TestMainWindowShutdown::closesInOrder_data()
{
    QTest::addColumn<bool>("thread");
    QTest::addColumn<bool>("input");
    QTest::addColumn<int>("questions");
    QTest::newRow("no input") << true << false << 0;
    QTest::newRow("input open") << true << true << 1;
    QTest::newRow("input open, one thread") << false << true << 1;
    QTest::newRow("no input, one thread") << false << false << 0;
}

void TestMainWindowShutdown::closesInOrder()
{
    QFETCH(bool, thread);
    QFETCH(bool, input);
    QFETCH(int, questions);

    thread ? qunsetenv("VYXDISPLAY_NO_DATA_THREAD") : qputenv("VYXDISPLAY_NO_DATA_THREAD", "1");
    WindowFixture fixture;
    const auto window = fixture.makeWindow();
    qunsetenv("VYXDISPLAY_NO_DATA_THREAD");
    QCOMPARE(window->engineHost().engine()->thread() != QThread::currentThread(), thread);
    if (input) {
        QVERIFY(fixture.openInput(*window));
    }
    int asked = 0;
    window->setExitQuestion([&asked] { return ++asked > 0; });
    QSignalSpy begun(window.get(), &MainWindow::shutdownBegun);
    QSignalSpy engineGone(window->engineHost().engine(), &QObject::destroyed);

    window->close();
    QVERIFY(window->isVisible()); // it closes by itself when the engine has gone
    window->close();
    QTRY_VERIFY(!window->isVisible());
    QCOMPARE(asked, questions);
    QCOMPARE(begun.size(), 1);
    QTRY_COMPARE(engineGone.size(), 1);
    QVERIFY(!window->engineHost().engine());
    QVERIFY(!UiState::geometry("mainWindow").isEmpty());
    if (input) {
        QVERIFY(window->findChild<LogPane *>()->toPlainText().endsWith("Stop UDP input"));
    }
}

void TestMainWindowShutdown::answeringNoLeavesEverythingRunning()
{
    WindowFixture fixture;
    const auto window = fixture.makeWindow();
    QVERIFY(fixture.openInput(*window));
    window->setExitQuestion([] { return false; });
    QSignalSpy begun(window.get(), &MainWindow::shutdownBegun);
    window->close();
    QCoreApplication::processEvents();
    QVERIFY(window->isVisible() && window->inputOpen());
    QCOMPARE(begun.size(), 0);
    QVERIFY(UiState::geometry("mainWindow").isEmpty());
    QVERIFY(fixture.close(*window)); // and one that may not be refused
}

void TestMainWindowShutdown::anEngineThatHangsDoesNotHoldTheProgram()
{
    WindowFixture fixture;
    const auto window = fixture.makeWindow();
    QVERIFY(fixture.openInput(*window));
    window->setShutdownWaits(30, 30);
    DataEngine *engine = window->engineHost().engine();
    QSignalSpy engineGone(engine, &QObject::destroyed);
    QMetaObject::invokeMethod(
        engine, [] { QThread::msleep(300); }, Qt::QueuedConnection);
    window->requestExit();
    QTRY_VERIFY_WITH_TIMEOUT(!window->isVisible(), 250);
    const QString log = window->findChild<LogPane *>()->toPlainText();
    QVERIFY(log.contains("Data engine did not confirm the input close within 10 s, forcing shutdown."));
    QVERIFY(log.contains("Data processing thread did not stop within 5 s, abandoning it."));
    QTRY_COMPARE(engineGone.size(), 1); // it ends once it comes back
}

void TestMainWindowShutdown::aFailedOpeningEndsTheWait()
{
    const WindowFixture fixture;
    const auto window = fixture.makeWindow([](Config &config) {
        config.inputComm = Config::InputComm::Serial;
        config.inputSerialDevice = "no-such-line";
    });
    window->setExitQuestion([] { return true; });
    window->openInput();
    window->close();
    QTRY_VERIFY(!window->isVisible());
    QVERIFY(!window->findChild<LogPane *>()->toPlainText().contains("did not confirm"));
}

QTEST_MAIN(TestMainWindowShutdown)
#include "tst_main_window_shutdown.moc"
