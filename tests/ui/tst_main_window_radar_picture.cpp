#include "display/geo_map_display.h"
#include "display/geo_track_display.h"
#include "map_painting/geo_static_map.h"
#include "plan_view/geo_widget.h"
#include "radar_painting/geo_video_map.h"
#include "radar_painting/geo_weather_map.h"
#include "test_program.h"
#include "ui/weather_intensity_window.h"
#include "window_fixture.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>

// Weather and radar video: their road from the slots to their layers, and the actions that show them.
class TestMainWindowRadarPicture : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void actionsShowTheLayers();
    void weatherReachesItsLayerAndItsWindow();
    void videoOfStrangersIsReported();

private:
    WindowFixture m_fixture;
};

namespace {

QString shownLevels(const WeatherIntensityWindow &window)
{
    QString levels;
    for (int level = 0; level < GeoWeatherMap::LevelCount; ++level) {
        const auto *box = window.findChild<QCheckBox *>(QStringLiteral("level%1").arg(level));
        levels += box->isEnabled() && box->isChecked() ? QString::number(level) : QStringLiteral("-");
    }
    return levels;
}

} // namespace

void TestMainWindowRadarPicture::actionsShowTheLayers()
{
    const auto window = WindowFixture::makeWindow();
    const GeoMapDisplay *map = window->geoWidget()->mapDisplay();
    // What does not change need not be made anew.
    const QSignalSpy others(map->staticMap(), &GeoLayer::polluted);
    const QSignalSpy tracks(window->geoWidget()->trackDisplay(), &GeoTrackDisplay::polluted);
    const QSignalSpy maps(window->geoWidget()->mapDisplay(), &GeoMapDisplay::polluted);
    for (const auto &[id, layer] :
        {std::pair<ActionId, const GeoLayer *>(ActionId::ToggleWeatherMap, map->weatherMap()),
            std::pair<ActionId, const GeoLayer *>(ActionId::ToggleVideoMap, map->videoMap())}) {
        QVERIFY(!layer->visible() && !action(*window, id)->isChecked());
        action(*window, id)->trigger();
        QVERIFY(layer->visible() && action(*window, id)->isChecked());
    }
    QVERIFY(others.isEmpty() && tracks.isEmpty() && !maps.isEmpty());
    QVERIFY(window->config().mapWeatherVisible && window->config().mapVideoVisible);
    QVERIFY(WindowFixture::close(*window));
}

void TestMainWindowRadarPicture::weatherReachesItsLayerAndItsWindow()
{
    const auto window = WindowFixture::makeWindow();
    GeoWeatherMap *weather = window->geoWidget()->mapDisplay()->weatherMap();
    weather->setLevelVisible(2, false);
    action(*window, ActionId::WeatherIntensity)->trigger();
    const auto *intensity = window->findChild<WeatherIntensityWindow *>();
    QCOMPARE(shownLevels(*intensity), QStringLiteral("01-34567"));
    auto picture = QSharedPointer<WeatherProcessor::Picture>::create();
    picture->vectors = {{4, 10.0, 20.0, 90.0}, {4, 10.0, 20.0, 91.0}};
    window->engineHost().shared().weather.publish(picture);
    window->pullSlots();
    QCOMPARE(intensity->findChild<QLabel *>("count4")->text(), QStringLiteral("2"));
    intensity->findChild<QCheckBox *>("level5")->click();
    QVERIFY(!weather->levelVisible(5) && weather->levelVisible(4));
    // What the last input left behind is not the next one's weather.
    window->openInput();
    QCOMPARE(intensity->findChild<QLabel *>("count4")->text(), QStringLiteral("0"));
    QVERIFY(WindowFixture::close(*window));
}

void TestMainWindowRadarPicture::videoOfStrangersIsReported()
{
    const auto window = WindowFixture::makeWindow([](Config &config) { config.mapVideoVisible = true; });
    auto batch = QSharedPointer<VideoBatch>::create();
    for (const auto &[sac, sic] : {std::pair<int, int>(1, 2), {7, 8}, {7, 8}}) {
        VideoProcessor::Radial radial;
        radial.sac = static_cast<unsigned char>(sac);
        radial.sic = static_cast<unsigned char>(sic);
        radial.cellSize = 50.0;
        radial.endAzimuth = 1.0;
        radial.amplitudes = {200, 200};
        batch->radials.append(radial);
    }
    window->engineHost().shared().video.publish(batch);
    window->pullSlots();
    const QString log = logText(*window);
    QCOMPARE(log.count("Radar video of SAC 7, SIC 8 is not shown"), 1);
    QCOMPARE(log.count("Radar video of"), 1);
    QVERIFY(WindowFixture::close(*window));
}

VYX_TEST(TestMainWindowRadarPicture)
#include "tst_main_window_radar_picture.moc"
