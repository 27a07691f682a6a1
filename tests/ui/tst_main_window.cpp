#include "window_fixture.h"

#include "app/ui_state.h"
#include "display/geo_track_display.h"
#include "geo/mercator_projector.h"
#include "lists/alert_list_model.h"
#include "lists/list_view.h"
#include "lists/track_list_model.h"
#include "modes/log.h"
#include "plan_view/geo_widget.h"
#include "test_program.h"
#include "ui/actions.h"
#include "ui/library_log.h"
#include "ui/status_read_outs.h"
#include "widgets/scope_notice.h"

#include <QAction>
#include <QDateTime>
#include <QDockWidget>
#include <QMenu>
#include <QSignalSpy>
#include <QStatusBar>
#include <QThread>

namespace {

// A Mode S plot of CAT048 with SAC/SIC 1/2: address, Mode A 7000, FL 350.
QByteArray plot(double rangeNm, double azimuth, quint32 address)
{
    const auto timeOfDay =
        static_cast<quint32>(QTime(0, 0).msecsTo(QDateTime::currentDateTimeUtc().time()) * 128LL / 1000);
    const auto rho = static_cast<quint16>(rangeNm * 256);
    const auto theta = static_cast<quint16>(azimuth * 65536.0 / 360.0);
    QByteArray record;
    const auto append = [&record](quint32 value, int octets) {
        for (int shift = 8 * (octets - 1); shift >= 0; shift -= 8) {
            record.append(static_cast<char>(value >> shift & 0xFF));
        }
    };
    append(0xFD80, 2); // items 010 140 020 040 070 090, extension, 220
    append(0x0102, 2);
    append(timeOfDay, 3);
    append(0xA0, 1);
    append(rho, 2);
    append(theta, 2);
    append(0x0E00, 2);
    append(350 * 4, 2);
    append(address, 3);
    const auto length = static_cast<char>(record.size() + 3);
    return QByteArray("\x30\x00", 2) + length + record;
}

QDockWidget *dock(const MainWindow &window, const char *name)
{
    return window.findChild<QDockWidget *>(name);
}

} // namespace

class TestMainWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void actionsAreReachable();
    void readOuts();
    void readOutsKeepApartInANarrowWindow();
    void staleAnswersAreIgnored();
    void failedOpeningIsReported();
    void stopAsksBeforeItEndsALiveInput();
    void refusesWhatMakesNoSense();
    void selectionGoesBothWays();
    void alertsReachIndicatorsAndList();
    void keysReachTheMap();
    void stateSurvivesARun();
    void firstViewShowsTheCoverage();
    void libraryLinesReachTheLog();
};

void TestMainWindow::actionsAreReachable()
{
    const WindowFixture fixture;
    const MainWindow window;
    QSet<QString> shortcuts;
    for (const ActionSpec &spec : actionTable()) {
        const QAction *made = action(window, spec.id);
        QVERIFY2(window.findChild<Actions *>()->menu(spec.menu)->actions().contains(made), spec.text);
        const QString shortcut = made->shortcut().toString(QKeySequence::PortableText);
        QCOMPARE(shortcut, QString(spec.shortcut));
        QVERIFY2(shortcut.isEmpty() || !shortcuts.contains(shortcut), spec.text); // two would block each other
        shortcuts.insert(shortcut);
    }
}

void TestMainWindow::readOuts()
{
    const WindowFixture fixture;
    MainWindow window;
    const auto *readOuts = window.findChild<StatusReadOuts *>();
    const auto shown = [](const QLabel *label) {
        const bool fits = label->fontMetrics().horizontalAdvance(label->text()) <= label->width();
        return fits ? label->text() : QString("too wide");
    };
    for (const auto &[zoom, text] : QList<std::pair<double, QString>>{{243.6, "SCL   244"}, {17500.0, "SCL 17500"}}) {
        window.showCurrentZoom(zoom);
        QCOMPARE(shown(readOuts->scale()), text);
    }
    for (const auto &[rotation, text] : QList<std::pair<double, QString>>{
             {-10.0, "ROT -000010"}, {0.1, "ROT +0000.1"}, {-1.2e-14, "ROT +000000"}}) { // the last is rounding noise
        window.showCurrentRotation(rotation);
        QCOMPARE(shown(readOuts->rotation()), text);
    }
    MercatorProjector projector;
    for (const auto &[latitude, longitude, text] : QList<std::tuple<double, double, QString>>{
             {49.0, 16.0, "360° 60.0 NM"}, {48.0, 17.0, "090° 40.2 NM"}, {47.9, 15.99, "184° 6.0 NM"}}) {
        window.showCursorPosition(projector.toCartesian(latitude, longitude), {});
        QCOMPARE(shown(readOuts->fromSensor()), text);
    }
    window.showCursorPosition({1e9, 0.0}, {}); // off the globe
    QCOMPARE(readOuts->fromSensor()->text(), QString());
    for (int type = 0; type <= 4; ++type) { // MSAW, APW and STCA are 1 to 3
        window.updateAlertStatus(static_cast<Alert::Type>(type), true);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(readOuts->alertIndicator(i)->styleSheet().endsWith("green"), type == i + 1);
        }
        window.updateAlertStatus(static_cast<Alert::Type>(type), false);
    }
    auto *clocks = window.findChild<StatusReadOuts *>();
    const QDateTime time({2024, 5, 1}, {12, 0, 5}, Qt::UTC);
    for (const auto &[show, utc] : {std::pair(&StatusReadOuts::showRecordedTime, QString("REC UTC 12:00:05")),
             std::pair(&StatusReadOuts::showTime, QString("UTC 12:00:05"))}) {
        (clocks->*show)(time);
        QCOMPARE(shown(clocks->utcClock()), utc);
        QCOMPARE(shown(clocks->localClock()), "CEST 14:00:05");
        QCOMPARE(clocks->localClock()->styleSheet().isEmpty(), show == &StatusReadOuts::showTime);
        QCOMPARE(clocks->utcClock()->toolTip().contains("2024-05-01"), show == &StatusReadOuts::showRecordedTime);
    }
}

void TestMainWindow::readOutsKeepApartInANarrowWindow()
{
    const WindowFixture fixture;
    MainWindow window;
    const auto *readOuts = window.findChild<StatusReadOuts *>();
    window.resize(1600, 600);
    window.show();
    QCoreApplication::processEvents();
    QVERIFY(readOuts->rotation()->isVisible() && readOuts->cursor()->isVisible());
    window.resize(400, 300); // or as small as it gets
    QCoreApplication::processEvents();
    QVERIFY(readOuts->utcClock()->isVisible() && !readOuts->rotation()->isVisible());
    const auto labels = window.statusBar()->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        for (const QLabel *other : labels) {
            const bool both = label != other && label->isVisible() && other->isVisible();
            QVERIFY2(!both || !label->geometry().intersects(other->geometry()), qPrintable(label->text()));
        }
    }
}

void TestMainWindow::staleAnswersAreIgnored()
{
    WindowFixture fixture;
    const auto window = fixture.makeWindow();
    QVERIFY(fixture.openInput(*window)); // request 1
    window->closeInput();
    QTRY_VERIFY(!window->inputOpen());
    window->openInput(); // request 2 is out
    window->onEngineInputOpened(1);
    QVERIFY(!window->inputOpen());
    QTRY_VERIFY(window->inputOpen());
    window->onEngineInputClosed(1);
    window->onEngineInputOpenFailed(1);
    QVERIFY(window->inputOpen());
    QVERIFY(action(*window, ActionId::Pause)->isEnabled());
    QVERIFY(!action(*window, ActionId::Start)->isEnabled());
    QVERIFY(action(*window, ActionId::SensorManager)->isEnabled() && action(*window, ActionId::Settings)->isEnabled());
    window->onEngineInputClosed(2);
    QVERIFY(!window->inputOpen());
    QVERIFY(!action(*window, ActionId::Pause)->isEnabled());
    QVERIFY(action(*window, ActionId::Start)->isEnabled());
}

void TestMainWindow::failedOpeningIsReported()
{
    const WindowFixture fixture;
    const auto window = fixture.makeWindow(WindowFixture::missingSerialLine);
    window->openInput();
    QTRY_VERIFY(logText(*window).contains("no-such-line"));
    QTRY_VERIFY(action(*window, ActionId::Start)->isEnabled());
    const auto *notice = window->findChild<ScopeNotice *>();
    QVERIFY2(notice->text().contains("no-such-line"), qPrintable(notice->text()));
    window->openInput(); // the reason of the last time is none for this time
    QVERIFY2(!notice->text().contains("There is no"), qPrintable(notice->text()));
}

void TestMainWindow::stopAsksBeforeItEndsALiveInput()
{
    WindowFixture fixture;
    const auto window = fixture.makeWindow();
    int asked = 0;
    bool answer = false;
    window->setStopQuestion([&] {
        ++asked;
        return answer;
    });
    QSignalSpy closed(window.get(), &MainWindow::inputClosed);
    QVERIFY(fixture.openInput(*window));
    action(*window, ActionId::Stop)->trigger();
    QCoreApplication::processEvents();
    QVERIFY(asked == 1 && window->inputOpen() && closed.isEmpty());
    answer = true;
    action(*window, ActionId::Stop)->trigger();
    QTRY_COMPARE(closed.size(), 1);
    QCOMPARE(asked, 2);
    action(*window, ActionId::Stop)->trigger(); // there is nothing to ask about
    QCOMPARE(asked, 2);
}

void TestMainWindow::refusesWhatMakesNoSense()
{
    WindowFixture fixture;
    const auto window = fixture.makeWindow();
    window->closeInput();
    QVERIFY(logText(*window).endsWith("Inpput is not working now."));
    QVERIFY(fixture.openInput(*window));
    window->openInput();
    QVERIFY(logText(*window).endsWith("Input is working now, stop first!"));
    window->exitApplication();
    QVERIFY(logText(*window).endsWith("UDP input is working now, stop it first!"));
    QVERIFY(window->isVisible() && window->inputOpen());

    const auto sensorless = fixture.makeWindow([](Config &config) { config.sensorType = UnknownSensor; });
    sensorless->openInput();
    QVERIFY(logText(*sensorless).endsWith("Unknown sensor"));
    QVERIFY(sensorless->findChild<ScopeNotice *>()->text().contains("No sensor"));
}

void TestMainWindow::selectionGoesBothWays()
{
    WindowFixture fixture;
    const auto window = fixture.makeWindow();
    auto *notice = window->findChild<ScopeNotice *>();
    QVERIFY(notice->isVisible());
    QVERIFY(fixture.openInput(*window));
    QVERIFY(!notice->isVisible());

    QUdpSocket radar;
    for (double range = 20.0; range < 20.3; range += 0.1) {
        radar.writeDatagram(plot(range, 45.0, 0x4B1A2C), QHostAddress::LocalHost, fixture.port);
        radar.writeDatagram(plot(range, 225.0, 0x3C0001), QHostAddress::LocalHost, fixture.port);
    }
    auto *list = window->findChild<ListView *>("trackList");
    auto *model = window->findChild<TrackListModel *>();
    QTRY_VERIFY((window->updateTrackList(), model->rowCount() == 2));
    QCOMPARE(dock(*window, "trackListDock")->windowTitle(), "Track List - 2");

    GeoTrackDisplay *tracks = window->geoWidget()->trackDisplay();
    list->selectRow(1);
    QCOMPARE(tracks->selectedTrackId(), model->trackId(1));
    Q_EMIT window->geoWidget()->trackSelected(model->trackId(0));
    QCOMPARE(list->selectedRow(), 0);
    tracks->setSelected(model->trackId(0));
    window->updateTrackList();
    QCOMPARE(list->selectedRow(), 0);
    Q_EMIT window->geoWidget()->trackSelected(0);
    QCOMPARE(list->selectedRow(), -1);

    // Lists and scope stop at the same picture.
    radar.writeDatagram(plot(20.0, 135.0, 0x3C0002), QHostAddress::LocalHost, fixture.port);
    QTRY_COMPARE(window->newestSnapshot()->tracks.size(), 3);
    window->closeInput();
    QTRY_VERIFY(notice->isVisible());
    QVERIFY(notice->text().contains("last picture"));
    QCOMPARE(model->rowCount(), 3);
}

void TestMainWindow::alertsReachIndicatorsAndList()
{
    WindowFixture fixture;
    const auto window = fixture.makeWindow();
    QVERIFY(fixture.openInput(*window));
    const auto *readOuts = window->findChild<StatusReadOuts *>();
    const auto running = [readOuts](
                             int index) { return readOuts->alertIndicator(index)->styleSheet().endsWith("green"); };
    QUdpSocket server;
    // Two tracks, the safety nets MSAW and STCA as running, and a conflict of the two.
    for (const char *datagram : {"30000d91100102 0a00 0000 0065", "30000d91100102 0a00 4000 0066", "040006 42 01 12",
             "04000d 498140 07 004d 0065 0066"}) {
        server.writeDatagram(QByteArray::fromHex(datagram), QHostAddress::LocalHost, fixture.port);
    }
    QTRY_VERIFY(running(0) && !running(1) && running(2));
    auto *model = window->findChild<AlertListModel *>();
    QTRY_VERIFY((window->updateAlertList(), model->rowCount() == 1));
    window->updateTrackList();
    window->findChild<ListView *>("alertList")->selectRow(0);
    QVERIFY(model->trackId(0) != 0);
    QCOMPARE(window->geoWidget()->trackDisplay()->selectedTrackId(), model->trackId(0));

    window->closeInput();
    QTRY_VERIFY(!running(0) && !running(2));
    QCOMPARE(model->rowCount(), 1); // the last picture
}

void TestMainWindow::keysReachTheMap()
{
    const WindowFixture fixture;
    const auto window = fixture.makeWindow();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    GeoWidget *map = window->geoWidget();
    const QTransform before = map->screenTransform();
    auto *list = window->findChild<ListView *>("trackList");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Down);
    QCOMPARE(map->screenTransform(), before);
    const double zoom = map->currentZoom();
    QTest::keyClick(list, Qt::Key_Equal);
    QVERIFY(map->currentZoom() < zoom);
    map->setFocus();
    QTest::keyClick(map, Qt::Key_Minus);
    QVERIFY(qFuzzyCompare(map->currentZoom(), zoom));
    QTest::keyClick(map, Qt::Key_Down);
    QVERIFY(map->screenTransform() != before);
}

void TestMainWindow::stateSurvivesARun()
{
    WindowFixture fixture;
    double zoom = 0.0;
    {
        const auto window = fixture.makeWindow();
        window->geoWidget()->zoomIn();
        window->geoWidget()->rotate(30.0);
        zoom = window->geoWidget()->currentZoom();
        action(*window, ActionId::ToggleTrackLabel)->trigger();
        action(*window, ActionId::ToggleRangeRings)->trigger();
        action(*window, ActionId::ToggleAlertList)->trigger();
        QVERIFY(!dock(*window, "alertListDock")->isVisible());
        QVERIFY(fixture.close(*window));
    }
    const auto window = fixture.makeWindow();
    QVERIFY(qAbs(window->geoWidget()->currentZoom() / zoom - 1.0) < 1e-6);
    QVERIFY(qAbs(window->geoWidget()->currentRotation() - 30.0) < 1e-6);
    QVERIFY(!window->geoWidget()->trackDisplay()->labelVisible());
    QVERIFY(action(*window, ActionId::ToggleRangeRings)->isChecked());
    QVERIFY(!dock(*window, "alertListDock")->isVisible());
    QVERIFY(dock(*window, "trackListDock")->isVisible());

    // Another sensor's view is of no use.
    const auto other = fixture.makeWindow([](Config &config) { config.sensorName = "OTHER"; });
    QCOMPARE(other->geoWidget()->currentRotation(), 0.0);

    // Neither is a damaged one.
    UiState::saveValue("mainWindow", "view", "{\"center\":");
    UiState::saveValue("mainWindow", "windowState", "rubbish");
    const auto damaged = fixture.makeWindow();
    QCOMPARE(damaged->geoWidget()->currentRotation(), 0.0);
    QVERIFY(dock(*damaged, "alertListDock")->isVisible());
}

void TestMainWindow::firstViewShowsTheCoverage()
{
    const WindowFixture fixture;
    const auto window = fixture.makeWindow([](Config &config) { config.sensorRadarCoverageSecondary = 80; });
    QCoreApplication::processEvents();
    GeoWidget *map = window->geoWidget();
    double x = 0.0;
    double y = 0.0;
    window->engineHost().shared().projector.toCartesian(&x, &y, 48.0, 16.0);
    const double reach = 80.0 * 1852.0 / std::cos(qDegreesToRadians(48.0));
    const QRectF screen(map->rect());
    for (const QPointF &rim : {QPointF(reach, 0), QPointF(-reach, 0), QPointF(0, reach), QPointF(0, -reach)}) {
        QVERIFY(screen.contains(map->screenTransform().map(QPointF(x, y) + rim)));
    }
    QVERIFY(reach * 2 / map->currentZoom() > 0.8 * std::min(map->width(), map->height()));
}

void TestMainWindow::libraryLinesReachTheLog()
{
    const WindowFixture fixture;
    auto window = std::make_unique<MainWindow>();
    window->setLogLevel(LogLevel::Debug);
    const std::unique_ptr<QThread> decoder(QThread::create([] {
        for (const int level : {-1, 0, 1, 2, 3, 4, 5}) {
            const QByteArray text = QByteArray("za\xC3\xA9 ") + static_cast<char>('b' + level);
            LibraryLog::logAsterix(level, text.constData());
        }
        korvane::modes::Log::write(korvane::modes::Log::Critical, "za\xC3\xA9"); // for debugging, whatever its level
    }));
    decoder->start();
    QVERIFY(decoder->wait());
    QVERIFY(logText(*window).isEmpty()); // never on the decoder's own thread
    QTRY_COMPARE(logText(*window).count(QString::fromUtf8("za\xC3\xA9")), 8);
    QStringList labels;
    for (const QString &line : logText(*window).split('\n')) {
        labels.append(line.section(']', 0, 0).mid(1).trimmed());
    }
    QCOMPARE(labels, QStringList({"DEBUG", "DEBUG", "INFO", "WARNING", "CRITICAL", "PANIC", "DEBUG", "DEBUG"}));

    window.reset();
    LibraryLog::logAsterix(3, "nobody is there");
    QCoreApplication::processEvents();
}

VYX_TEST(TestMainWindow)
#include "tst_main_window.moc"
