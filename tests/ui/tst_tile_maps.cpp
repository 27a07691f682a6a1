#include "tile_windows/tile_maps.h"

#include "plan_view/geo_widget.h"
#include "settings/config_window.h"
#include "test_program.h"
#include "tile_server.h"
#include "tile_windows/tile_download_window.h"
#include "ui/actions.h"
#include "window_fixture.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

#include <algorithm>

class TestTileMaps : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void asksNobodyBeforeTheOperatorAgrees();
    void switchesTilesOffAndOn();
    void viewsShareTheirTiles();
    void demonstrationAsksNobody();
    void saysWhatIsMissing();
    void downloadsTheAreaOfTheView();
    void downloadNeedsTheRightWhereTermsForbidIt();

private:
    std::unique_ptr<MainWindow> makeWindow(const std::function<void(Config &)> &change = {});
    static QAction *toggle(const MainWindow &window);
    static bool showsTiles(const MainWindow &window) { return showsTiles(window, window.geoWidget()); }
    static bool showsTiles(const MainWindow &window, GeoWidget *plan);

    std::unique_ptr<WindowFixture> m_fixture;
    std::unique_ptr<TileServer> m_server;
};

void TestTileMaps::init()
{
    m_fixture = std::make_unique<WindowFixture>();
    m_server = std::make_unique<TileServer>();
}

// A profile like a fresh one but for the service's address.
std::unique_ptr<MainWindow> TestTileMaps::makeWindow(const std::function<void(Config &)> &change)
{
    Config config;
    config.load(AppPaths::configFile());
    config.mapTileBottomLayerProvider = TileService::Custom;
    config.mapCustomTileUrl = m_server->tileTemplate();
    config.mapStaticVisible = false;
    if (change) {
        change(config);
    }
    config.save(AppPaths::configFile());
    auto window = WindowFixture::makeWindow();
    window->resize(800, 600);
    return window;
}

QAction *TestTileMaps::toggle(const MainWindow &window)
{
    const auto actions = window.findChildren<QAction *>();
    const auto found = std::find_if(actions.begin(), actions.end(),
        [](const QAction *action) { return action->text() == QStringLiteral("Toggle Tile Map"); });
    return found == actions.end() ? nullptr : *found;
}

// Whether the ground under the pointer is another colour than that of an empty map.
bool TestTileMaps::showsTiles(const MainWindow &window, GeoWidget *plan)
{
    const QImage picture = plan->grab().toImage();
    return picture.pixelColor(picture.width() / 3, picture.height() / 3) != window.config().mapBackgroundColor;
}

void TestTileMaps::asksNobodyBeforeTheOperatorAgrees()
{
    const auto window = makeWindow();
    int questions = 0;
    bool agrees = false;
    window->tileMaps()->setQuestion([&](const QString &) {
        ++questions;
        return agrees;
    });
    QTest::qWait(100);
    QVERIFY(!toggle(*window)->isChecked());
    toggle(*window)->trigger();
    QCOMPARE(questions, 1);
    QVERIFY(!toggle(*window)->isChecked());
    QTest::qWait(100);
    QCOMPARE(m_server->count(), 0);
    QVERIFY(logText(*window).contains(QStringLiteral("No tiles are shown")));

    agrees = true;
    toggle(*window)->trigger();
    QCOMPARE(questions, 2);
    QVERIFY(toggle(*window)->isChecked());
    QVERIFY(window->config().mapTileConsent);
    QTRY_VERIFY(showsTiles(*window));
    QVERIFY(m_server->count() > 0);
}

void TestTileMaps::switchesTilesOffAndOn()
{
    const auto window = makeWindow([](Config &config) { config.mapTileConsent = true; });
    QVERIFY(toggle(*window)->isChecked());
    QTRY_VERIFY(showsTiles(*window));
    toggle(*window)->trigger();
    QTRY_VERIFY(!showsTiles(*window));
    const auto nothingComes = [this] {
        const auto before = m_server->count();
        QTest::qWait(100);
        return m_server->count() == before;
    };
    QTRY_VERIFY(nothingComes()); // what was on its way has come
    m_server->forgetRequests();
    window->geoWidget()->zoomIn();
    window->geoWidget()->zoomIn();
    window->geoWidget()->zoomIn();
    QVERIFY(nothingComes());
    QCOMPARE(m_server->count(), 0);
    toggle(*window)->trigger();
    QTRY_VERIFY(showsTiles(*window));
    QTRY_VERIFY(m_server->count() > 0);
}

void TestTileMaps::viewsShareTheirTiles()
{
    m_server->setLatency(20);
    const auto window = makeWindow([](Config &config) { config.mapTileConsent = true; });
    action(*window, ActionId::NewPlanView)->trigger();
    const auto windows = QApplication::topLevelWidgets();
    const auto found =
        std::ranges::find_if(windows, [](const QWidget *one) { return one->inherits("PlanViewWindow"); });
    QVERIFY(found != windows.end());
    QTRY_VERIFY(showsTiles(*window) && showsTiles(*window, (*found)->findChild<GeoWidget *>()));
    QTest::qWait(200);
    QVERIFY(m_server->mostConcurrent() <= 6);
    for (const TileServer::Request &request : m_server->requests()) {
        QCOMPARE(m_server->count(request.target), 1);
    }
}

void TestTileMaps::demonstrationAsksNobody()
{
    const auto window = makeWindow();
    window->tileMaps()->barServices();
    window->tileMaps()->setQuestion([](const QString &) { return true; });
    toggle(*window)->trigger();
    toggle(*window)->trigger();
    window->geoWidget()->zoomIn();
    window->showConfigWindow();
    auto *settings = window->findChild<ConfigWindow *>();
    settings->findChild<QComboBox *>(QStringLiteral("shownTileService"))
        ->setCurrentText(QStringLiteral("Custom Tiles"));
    settings->findChild<QPushButton *>(QStringLiteral("tryTileService"))->click();
    QVERIFY(!settings->findChild<QLabel *>(QStringLiteral("trialWords"))->text().isEmpty());
    QTest::qWait(100);
    QCOMPARE(m_server->count(), 0);
}

void TestTileMaps::saysWhatIsMissing()
{
    const auto window = makeWindow([](Config &config) {
        config.mapTileConsent = true;
        config.mapCustomTileUrl = QStringLiteral("http://127.0.0.1:1/{z}/{x}/{y}.png"); // nobody listens there
    });
    QTRY_VERIFY(window->tileMaps()->notice().contains(QStringLiteral("Map tiles:")));
    toggle(*window)->trigger();
    QCOMPARE(window->tileMaps()->notice(), QString());
}

void TestTileMaps::downloadsTheAreaOfTheView()
{
    const auto window = makeWindow([](Config &config) { config.mapTileVisible = false; });
    window->tileMaps()->setQuestion([](const QString &) { return true; });
    window->showBingMapsDownloaderWindow();
    auto *dialog = window->findChild<TileDownloadWindow *>();
    QVERIFY(dialog && dialog->isVisible());
    const TileDownloadJob proposed = dialog->job();
    QCOMPARE(proposed.service, TileService::Custom);
    QVERIFY(proposed.area.north > 48.0 && proposed.area.south < 48.0);
    QVERIFY(proposed.area.west < 16.0 && proposed.area.east > 16.0);
    auto *start = dialog->findChild<QPushButton *>(QStringLiteral("start"));
    dialog->findChild<QComboBox *>(QStringLiteral("target"))->setCurrentIndex(1);
    start->click(); // a file is needed
    QTest::qWait(100);
    QCOMPARE(m_server->count(), 0);

    QTemporaryDir directory;
    dialog->findChild<QWidget *>(QStringLiteral("archive"))
        ->findChild<QLineEdit *>()
        ->setText(directory.filePath(QStringLiteral("area")));
    dialog->findChild<QSpinBox *>(QStringLiteral("lastLevel"))->setValue(6);
    const qint64 count = dialog->job().plan().count();
    start->click();
    const auto *status = dialog->findChild<QLabel *>(QStringLiteral("status"));
    QTRY_VERIFY2(status->text().startsWith(QStringLiteral("Finished")), qPrintable(status->text()));
    QVERIFY(QFile::exists(directory.filePath(QStringLiteral("area.mbtiles"))));
    QCOMPARE(m_server->count(), count);
}

void TestTileMaps::downloadNeedsTheRightWhereTermsForbidIt()
{
    const auto window = makeWindow([this](Config &config) {
        config.mapTileConsent = true;
        config.mapTileVisible = false;
        config.mapGoogleTileServer = m_server->address();
    });
    window->showBingMapsDownloaderWindow();
    auto *dialog = window->findChild<TileDownloadWindow *>();
    auto *service = dialog->findChild<QComboBox *>(QStringLiteral("service"));
    service->setCurrentIndex(service->findData(static_cast<int>(TileService::GoogleMaps)));
    QVERIFY(!dialog->findChild<QLabel *>(QStringLiteral("terms"))->text().isEmpty());
    QVERIFY(dialog->findChild<QCheckBox *>(QStringLiteral("termsConfirmed"))->isVisibleTo(dialog));
    dialog->findChild<QPushButton *>(QStringLiteral("start"))->click();
    QTest::qWait(100);
    QCOMPARE(m_server->count(), 0);
    QVERIFY(!TileDownloadJob::stored());
}

VYX_TEST(TestTileMaps)
#include "tst_tile_maps.moc"
