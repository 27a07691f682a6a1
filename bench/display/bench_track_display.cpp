#include "app/config.h"
#include "display/geo_track_display.h"
#include "view/geo_view.h"

#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>

#include <random>

namespace {

constexpr QSize Screen(1920, 1080);
constexpr double MetresPerPixel = 300.0;

// One aircraft somewhere in the view, with everything that a label can show.
TrackSnapshot track(quint64 id, std::mt19937 &random)
{
    const auto below = [&random](int limit) { return int(random() % unsigned(limit)); };
    TrackSnapshot track;
    track.incarnationId = id;
    track.trackNumber = unsigned(id);
    track.icaoAddrString = QStringLiteral("%1").arg(0x3C0000 + id, 6, 16, QLatin1Char('0')).toUpper();
    track.icaoAddrValid = track.callsignValid = true;
    track.callsign = QStringLiteral("VYX%1").arg(id);
    track.modeACodeValid = true;
    track.modeAString = QStringLiteral("%1").arg(below(4096), 4, 8, QLatin1Char('0'));
    track.type = static_cast<Track::Type>(below(11));
    track.carCoordinateValid = true;
    track.carCoordinate = QPointF(below(Screen.width()), below(Screen.height())) * MetresPerPixel;
    track.groundSpeed = 120 + below(400);
    track.groundSpeedValid = true;
    track.heading = below(360);
    track.headingValid = true;
    track.level = 100 * below(450);
    track.levelValid = true;
    track.selectedAltitude = 100 * below(450);
    track.selectedAltitudeValid = true;
    track.verticalRate = below(6000) - 3000;
    track.verticalRateValid = true;
    track.verticalTrend = static_cast<Track::VerticalTrend>(below(4));
    for (int i = 1; i <= 20; ++i) {
        track.trail.append(track.carCoordinate - QPointF(i, i % 3) * 1000.0);
    }
    return track;
}

QSharedPointer<const DisplaySnapshot> airPicture(int tracks)
{
    std::mt19937 random(1);
    auto snapshot = QSharedPointer<DisplaySnapshot>::create();
    for (int i = 1; i <= tracks; ++i) {
        snapshot->tracks.append(track(quint64(i), random));
    }
    return snapshot;
}

// The compact layout as the dark themes have it: a veil that lets through what lies under it.
void chooseCompact(GeoTrackDisplay &display)
{
    Config config;
    config.trackLabelLayout = Config::TrackLabelLayout::Compact;
    config.trackLabelBackgroundOpacity = 60;
    display.applyConfig(config);
    display.setSymbolSize(12);
    QFont font = display.labelFont();
    font.setPointSize(10);
    display.setLabelFont(font);
}

void showAllFields(GeoTrackDisplay &display)
{
    display.showTrackNum(true);
    display.showIcaoAddr(true);
    display.showSelectedAltitude(true);
    display.showVerticalRate(true);
    display.showHeading(true);
    display.setVectorRange(3);
}

void paintFrame(GeoTrackDisplay &display, QImage &image)
{
    const QTransform toScreen(1.0 / MetresPerPixel, 0.0, 0.0, -1.0 / MetresPerPixel, 0.0, Screen.height());
    QPainter painter(&image);
    painter.setWorldTransform(toScreen);
    display.paint(&painter, GeoView(toScreen, Screen));
}

// The same snapshot again, as while the view is panned.
void paintAgain(benchmark::State &state, GeoTrackDisplay &display, const QColor &ground)
{
    display.setSnapshot(airPicture(int(state.range(0))));
    QImage image(Screen, QImage::Format_ARGB32_Premultiplied);
    image.fill(ground);
    paintFrame(display, image);
    for (auto _ : state) {
        paintFrame(display, image);
    }
}

void paintSameSnapshot(benchmark::State &state)
{
    GeoTrackDisplay display;
    showAllFields(display);
    paintAgain(state, display, QColor(173, 173, 173));
}

void paintCompact(benchmark::State &state)
{
    GeoTrackDisplay display;
    chooseCompact(display);
    paintAgain(state, display, QColor(20, 28, 36));
}

// A new snapshot each frame in which one track in twenty was updated, as from an antenna of four seconds.
void paintNewSnapshots(benchmark::State &state)
{
    constexpr int Interval = 20;
    GeoTrackDisplay display;
    showAllFields(display);
    DisplaySnapshot picture = *airPicture(int(state.range(0)));
    QImage image(Screen, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(173, 173, 173));
    qsizetype turn = 0;
    for (auto _ : state) {
        state.PauseTiming();
        turn = (turn + 1) % Interval;
        for (qsizetype i = turn; i < picture.tracks.size(); i += Interval) {
            picture.tracks[i].groundSpeed += 1.0;
        }
        const auto snapshot = QSharedPointer<DisplaySnapshot>::create(picture);
        state.ResumeTiming();
        display.setSnapshot(snapshot);
        paintFrame(display, image);
    }
}

} // namespace

BENCHMARK(paintSameSnapshot)->Arg(200)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(paintCompact)->Arg(200)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(paintNewSnapshots)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond);
