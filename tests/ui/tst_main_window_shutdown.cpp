#include "window_fixture.h"

#include "app/ui_state.h"
#include "engine/data_engine.h"
#include "test_program.h"

#include <QSemaphore>
#include <QSignalSpy>
#include <QThread>

class TestMainWindowShutdown : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void closesInOrder();
    void answeringNoLeavesEverythingRunning();
    void anEngineThatHangsDoesNotHoldTheProgram();
    void aFailedOpeningEndsTheWait();
    void nothingIsOpenedAnyMore();
};

void TestMainWindowShutdown::closesInOrder()
{
    for (int mask = 0; mask < 4; ++mask) {
        const bool thread = mask & 1;
        const bool input = mask & 2;
        thread ? qunsetenv("VYXDISPLAY_NO_DATA_THREAD") : qputenv("VYXDISPLAY_NO_DATA_THREAD", "1");
        WindowFixture fixture;
        const auto window = fixture.makeWindow();
        qunsetenv("VYXDISPLAY_NO_DATA_THREAD");
        QCOMPARE(window->engineHost().engine()->thread() != QThread::currentThread(), thread);
        QVERIFY(!input || fixture.openInput(*window));
        int asked = 0;
        window->setExitQuestion([&asked] { return ++asked > 0; });
        QSignalSpy begun(window.get(), &MainWindow::shutdownBegun);
        QSignalSpy engineGone(window->engineHost().engine(), &QObject::destroyed);

        window->close();
        QVERIFY(window->isVisible()); // it closes by itself when the engine has gone
        window->close();
        QTRY_VERIFY(!window->isVisible());
        QCOMPARE(asked, input ? 1 : 0);
        QCOMPARE(begun.size(), 1);
        QTRY_COMPARE(engineGone.size(), 1);
        QVERIFY(!window->engineHost().engine());
        QVERIFY(!UiState::geometry("mainWindow").isEmpty());
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
    QSemaphore release;
    QMetaObject::invokeMethod(
        engine, [&release] { release.acquire(); }, Qt::QueuedConnection);
    window->requestExit();
    QTRY_VERIFY(!window->isVisible());
    const QString log = logText(*window);
    QVERIFY(log.contains("Data engine did not confirm the input close within 10 s, forcing shutdown."));
    QVERIFY(log.contains("Data processing thread did not stop within 5 s, abandoning it."));
    release.release();
    QTRY_COMPARE(engineGone.size(), 1); // it ends once it comes back
}

void TestMainWindowShutdown::aFailedOpeningEndsTheWait()
{
    const WindowFixture fixture;
    const auto window = fixture.makeWindow(WindowFixture::missingSerialLine);
    window->setExitQuestion([] { return true; });
    window->openInput();
    window->close();
    QTRY_VERIFY(!window->isVisible());
    QVERIFY(!logText(*window).contains("did not confirm"));
}

// As a script may ask for it in that moment.
void TestMainWindowShutdown::nothingIsOpenedAnyMore()
{
    WindowFixture fixture;
    const auto window = fixture.makeWindow();
    QVERIFY(fixture.openInput(*window));
    window->requestExit();
    window->openInput();
    QTRY_VERIFY(!window->isVisible());
    QVERIFY(!window->findChild<LogPane *>()->toPlainText().contains("did not confirm"));
}

VYX_TEST(TestMainWindowShutdown)
#include "tst_main_window_shutdown.moc"
