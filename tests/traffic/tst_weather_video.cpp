#include "played_scenario.h"

#include "test_program.h"
#include "traffic/earth.h"
#include "traffic/weather_station.h"

#include <cmath>

namespace {

constexpr char Frame[] = R"({"name": "t", "startTime": "2025-06-01T23:59:50Z",
    "radars": [{"name": "R", "sac": 1, "sic": 2, "lat": 40, "lon": 116}],
    "%1": [{"name": "S", "sac": 1, "sic": 2, "lat": 40, "lon": 116 %2}],
    "flights": [{"squawk": "1", "performance": {"speed": 20},
        "route": [{"lat": 40.3, "lon": 116.4, "altitude": 9000}, {"lat": 41, "lon": 117}]}]})";

Scenario scenario(const char *kind, const QString &more)
{
    return PlayedScenario::read(QString::fromLatin1(Frame).arg(QLatin1String(kind), more).toUtf8().constData());
}

// Calls take for each record that the second station sends until the time.
template <typename Take>
void play(TrafficSource &source, double until, Take take)
{
    while (source.nextTime() < until) {
        const TrafficSource::Sending sending = source.next();
        if (sending.station != 1) {
            continue;
        }
        for (const QByteArray &datagram : *sending.datagrams) {
            const auto *data = reinterpret_cast<const unsigned char *>(datagram.constData());
            _ast_datablock_t block;
            for (std::size_t at = 0; at < static_cast<std::size_t>(datagram.size()); at += block.size) {
                const auto left = static_cast<std::size_t>(datagram.size()) - at;
                QVERIFY(ast_datablock_smart_decode(&block, data + at, left) && block.valid);
                for (const _ast_datarecord_t &record : block.records) {
                    take(record);
                }
            }
        }
    }
}

struct Picture {
    static constexpr int Azimuths = 360;

    double step = 0; // nautical miles
    unsigned count = 0;
    unsigned announced = 0;
    std::vector<std::array<unsigned char, 256>> levels = std::vector<std::array<unsigned char, 256>>(Azimuths);

    // True when the record ends the picture.
    bool take(const _ast_datarecord_t &generic)
    {
        _ast_datarecord_008_t record;
        ast_datarecord_008_disassemble(&record, generic);
        if (record.i000.type == 254) {
            *this = Picture();
            step = std::ldexp(1.0, record.i100.scalingFactor - 7);
        }
        for (int i = 0; i < record.i034.count; ++i) {
            const _ast_weather_polar_vector_t &vector = record.i034.vectors[i];
            auto &row = levels[static_cast<std::size_t>(std::lround(vector.azimuth)) % Azimuths];
            for (int cell = vector.startRange; cell < vector.endRange; ++cell) {
                row[static_cast<std::size_t>(cell)] = record.i020.intensity;
            }
            ++count;
        }
        announced = record.i120.present ? record.i120.count : 0;
        return record.i000.type == 255;
    }

    // East and north of the radar, in miles, weighed with the area.
    std::pair<double, double> middle() const
    {
        double sum = 0;
        double east = 0;
        double north = 0;
        for (int azimuth = 0; azimuth < Azimuths; ++azimuth) {
            for (int cell = 0; cell < 256; ++cell) {
                const double range = (cell + 0.5) * step;
                const double weight = range * levels[static_cast<std::size_t>(azimuth)][static_cast<std::size_t>(cell)];
                sum += weight;
                east += weight * range * std::sin(Earth::radians(azimuth));
                north += weight * range * std::cos(Earth::radians(azimuth));
            }
        }
        return {east / sum, north / sum};
    }
};

struct Radial {
    double start = 0; // degrees
    double end = 0;
    double cellSize = 0; // metres
    std::vector<unsigned> cells;
};

std::vector<Radial> radialsOf(TrafficSource &source, double until)
{
    std::vector<Radial> radials;
    play(source, until, [&radials](const _ast_datarecord_t &record) {
        std::vector<unsigned> cells(20000);
        _ast_video_vector_t vector{};
        QCOMPARE(ast_datarecord_240_get_vector(&vector, cells.data(), cells.size(), record), int(AST_VIDEO_OK));
        cells.resize(vector.cellCount);
        radials.push_back({vector.startAzimuth, vector.endAzimuth, vector.cellSize, std::move(cells)});
    });
    return radials;
}

} // namespace

class TestWeatherVideo : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void picturesAreTheCells_data()
    {
        QTest::addColumn<int>("range");
        QTest::addColumn<double>("step");
        QTest::newRow("near") << 30 << 0.125;
        QTest::newRow("usual") << 120 << 0.5;
        QTest::newRow("far") << 300 << 2.0;
    }

    void picturesAreTheCells()
    {
        QFETCH(int, range);
        QFETCH(double, step);
        TrafficSource source(scenario("weatherRadars", QStringLiteral(R"(, "range": %1, "period": 40)").arg(range)), 5);
        const auto &station = dynamic_cast<const WeatherStation &>(source.station(1));
        Picture picture;
        int pictures = 0;
        play(source, 81, [&](const _ast_datarecord_t &record) {
            if (!picture.take(record)) {
                return;
            }
            ++pictures;
            QCOMPARE(picture.step, step);
            QVERIFY(picture.count > 200);
            QCOMPARE(picture.announced, picture.count);
            for (int azimuth = 0; azimuth < Picture::Azimuths; ++azimuth) {
                for (int cell = 0; cell < range / step; ++cell) {
                    const double miles = (cell + 0.5) * step;
                    const int level = station.cells().levelAt(
                        miles * std::sin(Earth::radians(azimuth)), miles * std::cos(Earth::radians(azimuth)));
                    const int shown = picture.levels[static_cast<std::size_t>(azimuth)][static_cast<std::size_t>(cell)];
                    QCOMPARE(shown, level);
                }
            }
        });
        QCOMPARE(pictures, 3);
    }

    void cellsMoveWithTheWind()
    {
        TrafficSource source(
            scenario("weatherRadars", R"(, "cells": 1, "windDirection": 270, "windSpeed": 60, "period": 60)"), 3);
        Picture picture;
        std::vector<std::pair<double, double>> middles;
        play(source, 301, [&](const _ast_datarecord_t &record) {
            if (picture.take(record)) {
                middles.push_back(picture.middle());
            }
        });
        QCOMPARE(middles.size(), std::size_t(6));
        for (std::size_t i = 1; i < middles.size(); ++i) {
            QVERIFY(std::abs(middles[i].first - middles[i - 1].first - 1) < 0.35);
            QVERIFY(std::abs(middles[i].second - middles[i - 1].second) < 0.35);
        }
    }

    void echoesLieWhereTheFlightsAre_data()
    {
        QTest::addColumn<int>("radials");
        QTest::addColumn<int>("cells");
        QTest::newRow("coarse") << 360 << 200;
        QTest::newRow("usual") << 2048 << 1024;
        QTest::newRow("fine") << 4096 << 2048;
    }

    void echoesLieWhereTheFlightsAre()
    {
        QFETCH(int, radials);
        QFETCH(int, cells);
        const QString video = R"(, "radials": %1, "cells": %2, "range": 30, "noise": 0, "clutterRange": 0)";
        TrafficSource source(scenario("videoRadars", video.arg(radials).arg(cells)), 1);
        const std::vector<Radial> turn = radialsOf(source, 4.01);
        QCOMPARE(turn.size(), std::size_t(radials));
        const double distance = Earth::distance(40, 116, 40.3, 116.4);
        const double slant = std::hypot(distance, 9000 * 0.3048);
        const Radial *brightest = nullptr;
        unsigned peak = 0;
        int aboveHalf = 0;
        for (std::size_t i = 0; i < turn.size(); ++i) {
            QCOMPARE(turn[i].end, turn[(i + 1) % turn.size()].start);
            QVERIFY(std::abs(turn[i].cellSize * cells - 30 * 1852) < 1);
            const auto most = std::max_element(turn[i].cells.begin(), turn[i].cells.end());
            if (*most > peak) {
                peak = *most;
                brightest = &turn[i];
            }
            aboveHalf += *most > 100 ? 1 : 0;
        }
        QVERIFY(peak > 140 && peak <= 162); // weaker than near the radar
        const auto cell = std::max_element(brightest->cells.begin(), brightest->cells.end()) - brightest->cells.begin();
        const double centre = (static_cast<double>(cell) + 0.5) * brightest->cellSize;
        QVERIFY(std::abs(centre - slant) < brightest->cellSize + 25);
        const double middle = brightest->start + 180.0 / radials;
        QVERIFY(std::abs(Earth::turnBetween(middle, Earth::bearing(40, 116, 40.3, 116.4))) < 360.0 / radials + 0.1);
        QVERIFY(std::abs(aboveHalf * 360.0 / radials - 1.1) < 0.6 + 360.0 / radials);
    }

    void noiseIsEverywhereAndClutterNear()
    {
        const QString video = R"(, "radials": 256, "cells": 300, "range": 30, "noise": 20, "clutterRange": 10)";
        TrafficSource source(scenario("videoRadars", video), 1);
        const std::vector<Radial> turns = radialsOf(source, 8.01);
        QCOMPARE(turns.size(), std::size_t(512));
        double near = 0;
        double far = 0;
        double difference = 0; // of the clutter from turn to turn
        for (std::size_t i = 0; i < 256; ++i) {
            for (std::size_t cell = 0; cell < 100; ++cell) {
                near += turns[i].cells[cell] / 25600.0;
                far += turns[i].cells[cell + 150] / 25600.0;
                difference += std::abs(int(turns[i].cells[cell]) - int(turns[i + 256].cells[cell])) / 25600.0;
            }
        }
        QVERIFY2(far > 16 && far < 20, qPrintable(QString::number(far)));
        QVERIFY2(near > far + 15, qPrintable(QString::number(near)));
        QVERIFY2(difference < 14, qPrintable(QString::number(difference)));
    }
};

VYX_TEST(TestWeatherVideo)
#include "tst_weather_video.moc"
