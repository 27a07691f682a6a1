#include "window_fixture.h"

#include "app/ui_state.h"
#include "display/geo_track_display.h"
#include "display/geo_widget.h"
#include "ui/actions.h"
#include "ui/asterix_log_handler.h"
#include "ui/list_view.h"
#include "ui/log_pane.h"
#include "ui/scope_notice.h"
#include "ui/slot_reader.h"
#include "ui/status_read_outs.h"
#include "ui/track_list_model.h"

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
        static_cast<quint32>(QTime(0, 0).msecsTo(QDateTime::currentDateTimeUtc().time()) * 128 / 1000);
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

QAction *action(const MainWindow &window, ActionId id)
{
    return (*window.findChild<Actions *>())[id];
}

QString logText(const MainWindow &window)
{
    return window.findChild<LogPane *>()->toPlainText();
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
    void actionTexts_data();
    void actionTexts();
    void readOuts_data();
    void readOuts();
    void alertIndicators_data();
    void alertIndicators();
    void clockShowsLocalAndUniversalTime();
    void dropsAreCounted_data();
    void dropsAreCounted();
    void staleAnswersAreIgnored();
    void failedOpeningIsReported();
    void refusesWhatMakesNoSense();
    void selectionGoesBothWays();
    void keysReachTheMap();
    void stateSurvivesARun();
    void firstViewShowsTheCoverage();
    void logKeepsItsLevel();
    void libraryLinesReachTheLog_data();
    void libraryLinesReachTheLog();
};

void TestMainWindow::actionsAreReachable()
{
    const WindowFixture fixture;
    const auto window = fixture.makeWindow();
    const auto *actions = window->findChild<Actions *>();
    QSet<QString> shortcuts;
    for (const ActionSpec &spec : actionTable()) {
        const QAction *made = (*actions)[spec.id];
        QCOMPARE(made->text(), QString(spec.text));
        QVERIFY2(actions->menu(spec.menu)->actions().contains(made), spec.text);
        const QString shortcut = made->shortcut().toString(QKeySequence::PortableText);
        QCOMPARE(shortcut, QString(spec.shortcut));
        QVERIFY2(shortcut.isEmpty() || !shortcuts.contains(shortcut), spec.text); // two would block each other
        shortcuts.insert(shortcut);
    }
}

void TestMainWindow::actionTexts_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QStringList>("texts");
    const auto row = [](ActionId id, const QStringList &texts) {
        QTest::addRow("%s", qPrintable(texts[0])) << int(id) << texts;
    };
    row(ActionId::ZoomOut, {"ZoomOut", "Out", "-"});
    row(ActionId::RotateLeft, {"Rotate Left", "CCW", "["});
    row(ActionId::RangeRings, {"Rang Rings ...", "Rang Rings", ""});
    row(ActionId::FullScreen, {"Full Screen", "Full Screen", "Alt+F11"});
    row(ActionId::WhatsNew, {"What's New?...", "What's New?", ""});
    row(ActionId::Settings, {"Settings...", "Settings", "F10"});
}

void TestMainWindow::actionTexts()
{
    QFETCH(int, id);
    QFETCH(QStringList, texts);
    const WindowFixture fixture;
    const MainWindow window;
    const QAction *made = action(window, static_cast<ActionId>(id));
    QCOMPARE(QStringList({made->text(), made->iconText(), made->shortcut().toString()}), texts);
}

void TestMainWindow::readOuts_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("scale") << "scale" << 243.6 << "SCL   244";
    QTest::newRow("widest scale") << "scale" << 17500.0 << "SCL 17500";
    QTest::newRow("no rotation") << "rotation" << 0.0 << "ROT +000000";
    QTest::newRow("turned left") << "rotation" << -10.0 << "ROT -000010";
    QTest::newRow("a tenth of a degree") << "rotation" << 0.1 << "ROT +0000.1";
    QTest::newRow("rounding noise shows no figures") << "rotation" << -1.2e-14 << "ROT +000000";
}

void TestMainWindow::readOuts()
{
    QFETCH(QString, kind);
    QFETCH(double, value);
    QFETCH(QString, text);
    const WindowFixture fixture;
    MainWindow window;
    const auto *readOuts = window.findChild<StatusReadOuts *>();
    QLabel *label = kind == "scale" ? readOuts->scale() : readOuts->rotation();
    kind == "scale" ? window.showCurrentZoom(value) : window.showCurrentRotation(value);
    QCOMPARE(label->text(), text);
    QVERIFY(label->fontMetrics().horizontalAdvance(text) <= label->width());
}

void TestMainWindow::alertIndicators_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QStringList>("colours"); // of MSAW, APW, STCA afterwards
    QTest::newRow("MSAW") << 1 << QStringList({"green", "gray", "gray"});
    QTest::newRow("APW") << 2 << QStringList({"gray", "green", "gray"});
    QTest::newRow("STCA") << 3 << QStringList({"gray", "gray", "green"});
    QTest::newRow("no type") << 0 << QStringList({"gray", "gray", "gray"});
    QTest::newRow("unknown type") << 4 << QStringList({"gray", "gray", "gray"});
}

void TestMainWindow::alertIndicators()
{
    QFETCH(int, type);
    QFETCH(QStringList, colours);
    const WindowFixture fixture;
    MainWindow window;
    const auto *readOuts = window.findChild<StatusReadOuts *>();
    window.updateAlertStatus(static_cast<Alert::Type>(type), true);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(readOuts->alertIndicator(i)->styleSheet(), "color: white; background-color: " + colours[i]);
    }
    window.updateAlertStatus(static_cast<Alert::Type>(type), false);
    QCOMPARE(readOuts->alertIndicator(0)->styleSheet(), "color: white; background-color: gray");
}

void TestMainWindow::clockShowsLocalAndUniversalTime()
{
    const WindowFixture fixture;
    const MainWindow window;
    auto *readOuts = window.findChild<StatusReadOuts *>();
    const QDateTime summer(QDate(2024, 7, 1), QTime(22, 5, 9), Qt::UTC);
    readOuts->setTimeZone("Europe/Vienna");
    readOuts->showTime(summer);
    QCOMPARE(readOuts->localClock()->text(), "CEST 00:05:09");
    QCOMPARE(readOuts->utcClock()->text(), "UTC 22:05:09");
    readOuts->setTimeZone("Nowhere/Atall");
    QVERIFY(readOuts->localClock()->isHidden());
    readOuts->setTimeZone("LCL");
    readOuts->showTime(summer);
    QVERIFY(readOuts->localClock()->text().startsWith("LCL "));
}

void TestMainWindow::dropsAreCounted_data()
{
    QTest::addColumn<QList<int>>("publications"); // before each look
    QTest::addColumn<int>("dropped");
    QTest::newRow("each one seen") << QList<int>{1, 1, 1} << 0;
    QTest::newRow("nothing new") << QList<int>{1, 0, 0, 1} << 0;
    QTest::newRow("the first look counts nothing") << QList<int>{7} << 0;
    QTest::newRow("a second without a look") << QList<int>{1, 5} << 4;
    QTest::newRow("adds up") << QList<int>{3, 2, 0, 4} << 4;
}

void TestMainWindow::dropsAreCounted()
{
    QFETCH(QList<int>, publications);
    SnapshotSlot<int> slot;
    SlotReader<int> reader;
    int newest = 0;
    for (const int count : publications) {
        for (int i = 0; i < count; ++i) {
            slot.publish(QSharedPointer<const int>::create(++newest));
        }
        const QSharedPointer<const int> taken = reader.take(slot);
        QCOMPARE(!taken.isNull(), count > 0);
        QCOMPARE(taken ? *taken : newest, newest);
    }
    QTEST(static_cast<int>(reader.dropped()), "dropped");
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
    QVERIFY(!action(*window, ActionId::Settings)->isEnabled());
    window->onEngineInputClosed(2);
    QVERIFY(!window->inputOpen());
    QVERIFY(!action(*window, ActionId::Pause)->isEnabled());
    QVERIFY(action(*window, ActionId::Settings)->isEnabled());
}

void TestMainWindow::failedOpeningIsReported()
{
    const WindowFixture fixture;
    const auto window = fixture.makeWindow([](Config &config) {
        config.inputComm = Config::InputComm::Serial;
        config.inputSerialDevice = "no-such-line";
    });
    window->openInput();
    QTRY_VERIFY(logText(*window).contains("Serial device not found: no-such-line"));
    QTRY_VERIFY(action(*window, ActionId::Start)->isEnabled());
}

void TestMainWindow::refusesWhatMakesNoSense()
{
    WindowFixture fixture;
    const auto window = fixture.makeWindow();
    window->closeInput();
    QVERIFY(logText(*window).contains("[WARNING "));
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

    window->closeInput();
    QTRY_VERIFY(notice->isVisible());
    QVERIFY(notice->text().contains("last picture"));
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
    QVERIFY(!action(*window, ActionId::ToggleTrackLabel)->isChecked());
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
    const auto window = fixture.makeWindow([](Config &config) { config.sensorRadarCoverageSecondary = 100; });
    QCoreApplication::processEvents();
    GeoWidget *map = window->geoWidget();
    double x = 0.0;
    double y = 0.0;
    window->engineHost().shared().projector.toCartesian(&x, &y, 48.0, 16.0);
    const double reach = 100.0 * 1852.0 / std::cos(qDegreesToRadians(48.0));
    const QRectF screen(map->rect());
    for (const QPointF &rim : {QPointF(reach, 0), QPointF(-reach, 0), QPointF(0, reach), QPointF(0, -reach)}) {
        QVERIFY(screen.contains(map->screenTransform().map(QPointF(x, y) + rim)));
    }
    QVERIFY(reach * 2 / map->currentZoom() > 0.8 * std::min(map->width(), map->height()));
}

void TestMainWindow::logKeepsItsLevel()
{
    const WindowFixture fixture;
    const auto window = fixture.makeWindow();
    window->showLog(LogLevel::Debug, "too fine");
    QVERIFY(!logText(*window).contains("too fine"));
    window->setLogLevel(LogLevel::Debug);
    window->showLog(LogLevel::Debug, "fine");
    QVERIFY(logText(*window).contains("fine"));
    QVERIFY(window->statusBar()->currentMessage().isEmpty());
    dock(*window, "messagesDock")->hide();
    window->showLogInfo("bare text");
    QCOMPARE(window->statusBar()->currentMessage(), "bare text");
}

void TestMainWindow::libraryLinesReachTheLog_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QString>("label");
    QTest::newRow("debug") << 0 << "[DEBUG   ]";
    QTest::newRow("information") << 1 << "[INFO    ]";
    QTest::newRow("warning") << 2 << "[WARNING ]";
    QTest::newRow("critical") << 3 << "[CRITICAL]";
    QTest::newRow("panic") << 4 << "[PANIC   ]";
    QTest::newRow("unknown level") << 5 << "[DEBUG   ]";
    QTest::newRow("negative level") << -1 << "[DEBUG   ]";
}

void TestMainWindow::libraryLinesReachTheLog()
{
    QFETCH(int, level);
    QFETCH(QString, label);
    const WindowFixture fixture;
    auto window = std::make_unique<MainWindow>();
    window->setLogLevel(LogLevel::Debug);
    const std::unique_ptr<QThread> decoder(QThread::create([level] { AsterixLogHandler::log(level, "za\xC3\xA9"); }));
    decoder->start();
    QVERIFY(decoder->wait());
    QVERIFY(logText(*window).isEmpty()); // never on the decoder's own thread
    QTRY_VERIFY(logText(*window).startsWith(label));
    QVERIFY(logText(*window).endsWith(QString::fromUtf8("za\xC3\xA9")));

    window.reset();
    AsterixLogHandler::log(level, "nobody is there");
    QCoreApplication::processEvents();
}

QTEST_MAIN(TestMainWindow)
#include "tst_main_window.moc"
