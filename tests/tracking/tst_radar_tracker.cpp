#include "asterix/encoder.h"
#include "geo/mercator_projector.h"
#include "tracking/radar_tracker.h"

#include <QSignalSpy>
#include <QTest>

#include <optional>

namespace {

constexpr int None = -1;
constexpr int RotationPeriod = 4; // seconds

struct Value {
    const char *path;
    double value;
};
using Values = QList<Value>;

struct Register {
    int code;
    quint64 bits; // 56, the first one highest
};
using Registers = QList<Register>;

// A status bit, numbered from 1 as in the register's layout, and the value in so many bits after it.
quint64 field(int status, int valueBits, std::optional<int> value)
{
    const quint64 mask = (1u << valueBits) - 1;
    return value ? (quint64(1) << valueBits | (quint64(*value) & mask)) << (56 - status - valueBits) : 0;
}

// Selected altitudes in 16 ft.
Register vertical(std::optional<int> mcp, std::optional<int> fms)
{
    return {0x40, field(1, 12, mcp) | field(14, 12, fms)};
}

// Vertical rates in 32 feet per minute.
Register speed(std::optional<int> baro, std::optional<int> inertial)
{
    return {0x60, field(35, 10, baro) | field(46, 10, inertial)};
}

struct Report {
    double second;
    int trackNumber = None;
    int address = None;
};

struct Rates {
    double second;
    std::optional<int> baro;
    std::optional<int> inertial;
};

} // namespace

class TestRadarTracker : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_now = m_start;
        m_manager = QSharedPointer<TrackManager>::create();
        m_manager->setClock([this] { return m_now; });
        const auto sensor = QSharedPointer<RadarSensorInfo>::create();
        sensor->setLocation({50.0, 8.0});
        sensor->setRotationPeriod(RotationPeriod);
        m_tracker = std::make_unique<RadarTracker>(sensor, m_manager, &m_projector);
    }

    void antenna()
    {
        for (const int category : {2, 34}) {
            QSignalSpy rotated(m_tracker.get(), &RadarTracker::antennaRotated);
            QSignalSpy north(m_tracker.get(), &RadarTracker::antennaNorthCrossed);
            send(category, {{"000", 2}}); // a sector crossing without azimuth
            send(category, {{"000", 3}, {"020", 90}}); // another message
            QCOMPARE(rotated.size() + north.size(), 0);
            send(category, {{"000", 2}, {"020", 123.75}});
            QCOMPARE(rotated, QList<QVariantList>({{123.75}}));
            QCOMPARE(north.size(), 0);
            send(category, {{"000", 1}, {"020", 0}});
            QCOMPARE(rotated.size(), 1);
            QCOMPARE(north.size(), 1);
        }
    }

    void association_data()
    {
        // One aircraft a letter.
        constexpr int a = 0x4b1a2c, b = 0x3c0001;
        QTest::addColumn<QList<Report>>("reports");
        QTest::addColumn<QList<int>>("incarnations"); // updated by each report; 0: none
        const auto row = [](const char *name, const QList<Report> &reports, const QList<int> &incarnations) {
            QTest::newRow(name) << reports << incarnations;
        };
        row("known number", {{0, 7}, {4, 7}, {5, 8}}, {1, 1, 2});
        row("known address", {{0, None, a}, {4, None, a}, {5, None, b}}, {1, 1, 2});
        row("nothing to go by", {{0}, {1, 0}, {2, 0, 0}}, {0, 0, 0});
        row("address first, number later", {{0, None, a}, {4, 7, a}, {8, 7}, {12, None, a}}, {1, 1, 1, 1});
        row("number decides when known", {{0, 7, a}, {0.5, 8, b}, {4, 7, b}}, {1, 2, 1});
        row("radar starts over with a new number", {{0, 7, a}, {3.9, 8, a}, {8, 8, a}}, {1, 1, 1});
        row("two under one address, opposite each other", {{0, 7, a}, {2, 8, a}, {4, 7, a}, {6, 8, a}}, {1, 2, 1, 2});
        row("two under one address, far apart, settle", {{0, 7, a}, {3.5, 8, a}, {4, 7, a}, {7.5, 8, a}, {8, 7, a}},
            {1, 1, 2, 1, 2});
        row("old number is given to another aircraft", {{0, 7, a}, {4, 8, a}, {4.1, 7, b}, {8, 8, a}}, {1, 1, 2, 1});
        row("track went on to another address", {{0, 7, a}, {4, 7, b}, {8, None, a}}, {1, 1, 2});
    }

    void association()
    {
        QFETCH(QList<Report>, reports);
        QSignalSpy messages(m_tracker.get(), &Tracker::message);
        QList<int> incarnations;
        for (const auto &[second, trackNumber, address] : reports) {
            setTime(second + 0.001); // no report at the time when the store was made
            Values values{{"040/RHO", 10}};
            if (trackNumber != None)
                values.append({"161/TRN", double(trackNumber)});
            if (address != None)
                values.append({"220", double(address)});
            send(48, values);
            int updated = 0;
            for (const auto &each : m_manager->allTracks())
                updated += each->lastUpdate() == m_now ? int(each->incarnationId()) : 0;
            incarnations.append(updated);
        }
        QTEST(incarnations, "incarnations");
        QCOMPARE(messages.size(), incarnations.count(0));
    }

    void positions_data()
    {
        // Worked out with vectors on the sphere of 6371007.2 m, and ellipsoidal Mercator.
        QTest::addColumn<Values>("values");
        QTest::addColumn<double>("latitude");
        QTest::addColumn<double>("longitude");
        QTest::addColumn<QPointF>("plane");
        const auto row = [](const char *name, const Values &values, double latitude, double longitude, QPointF plane) {
            QTest::newRow(name) << values << latitude << longitude << plane;
        };
        row("polar before Cartesian", {{"040/RHO", 10}, {"040/THETA", 90}, {"042/X", 1}, {"042/Y", 2}}, 49.9997115,
            8.2591113, {919400.06, 6413474.77});
        row("polar, far north-west", {{"040/RHO", 255.5}, {"040/THETA", 326.25}}, 53.4744216, 4.0282270,
            {448420.17, 7036878.75});
        row("west", {{"042/X", -10}, {"042/Y", 0}}, 49.9997115, 7.7408887, {861711.79, 6413474.77});
        row("north-east", {{"042/X", 3}, {"042/Y", 4}}, 50.0665957, 8.0778416, {899221.21, 6425033.78});
        row("south-west", {{"042/X", -3}, {"042/Y", -4}}, 49.9333524, 7.9223739, {881914.63, 6402022.47});
    }

    void positions()
    {
        QFETCH(Values, values);
        QFETCH(double, latitude);
        QFETCH(double, longitude);
        QFETCH(QPointF, plane);
        for (const int category : {1, 48}) {
            init();
            auto report = values;
            report.append({category == 1 ? "161" : "161/TRN", 7});
            if (category == 1 && values.first().value > 250)
                continue; // CAT001 does not reach as far
            send(category, report);
            const auto position = track()->geoCoordinate();
            QVERIFY2(qAbs(position.latitude() - latitude) < 1e-6 && qAbs(position.longitude() - longitude) < 1e-6,
                qPrintable(position.toATCString(GeoCoordinate::DecimalDegrees)));
            const auto error = track()->carCoordinate() - plane;
            QVERIFY(std::hypot(error.x(), error.y()) < 0.1);
            QCOMPARE(track()->history().size(), 1u);
            QCOMPARE(track()->history().front().carCoordinate(), track()->carCoordinate());
            send(category, {report.last()}); // a report without position is recorded at the last one
            QCOMPARE(track()->geoCoordinate(), position);
            QCOMPARE(track()->history().size(), 2u);
        }
    }

    void typeAndState()
    {
        constexpr std::array types{Track::Unknown, Track::Psr, Track::Ssr, Track::PsrSsr, Track::ModeS, Track::ModeS,
            Track::ModeSPsr, Track::ModeSPsr};
        for (int value = 0; value < 8; ++value) {
            send(48, {{"161/TRN", 7}, {"020/TYP", double(value)}, {"170/CNF", 1}});
            QCOMPARE(track()->type(), types[value]);
            QVERIFY(track()->tentative());
            send(48, {{"161/TRN", 7}, {"170/CNF", 0}});
            QVERIFY(track()->confirmed());
            QCOMPARE(track()->type(), types[value]); // no descriptor: as it was
            send(1, {{"161", 7}, {"020/SSRPSR", double(value % 4)}, {"170/CON", value > 3 ? 1.0 : 0.0}});
            QCOMPARE(track()->type(), types[value % 4]);
            QCOMPARE(track()->tentative(), value > 3);
        }
        track()->setState(Track::Coasting);
        send(48, {{"161/TRN", 7}});
        QVERIFY(track()->confirmed());
    }

    void plainFields()
    {
        const Value number{"161/TRN", 7};
        send(48,
            {number, {"070/V", 1}, {"070/G", 1}, {"070/L", 1}, {"070/MODE3A", 07421}, {"090/V", 1}, {"090/FL", 101.25},
                {"200/GSP", 0.125}, {"200/HDG", 270}},
            "VYX12");
        QCOMPARE(track()->modeAString(), QStringLiteral("7421GS"));
        QCOMPARE(track()->modeSCallsign(), QStringLiteral("VYX12"));
        QCOMPARE(track()->level(), 10125);
        QCOMPARE(track()->groundSpeed(), 450.0);
        QCOMPARE(track()->heading(), 270.0);
        send(48, {number, {"090/G", 1}, {"090/FL", 102}}, "VYX13"); // a garbled level is none
        QCOMPARE(track()->modeSCallsign(), QStringLiteral("VYX13"));
        QCOMPARE(track()->modeAString(), QStringLiteral("7421GS")); // kept
        QVERIFY(!track()->levelValid());
        QVERIFY(!track()->groundSpeedValid() && !track()->headingValid());
        send(48, {number, {"070/MODE3A", 0}, {"090/FL", -3.5}}, "");
        QCOMPARE(track()->modeAString(), QStringLiteral("0000"));
        QCOMPARE(track()->level(), -350);
        QVERIFY(!track()->modeSCallsignValid());
    }

    void selectedAltitude()
    {
        // The seconds until a report without registers, and what is left then.
        const std::tuple<Registers, double, int> rows[]{{{vertical(2188, 600)}, 4.0, 35008}, // the autopilot's first
            {{vertical({}, 600)}, 4.0, 9600}, {{{0x40, {}}, vertical(625, {})}, 4.0, None}, // the first of its code
            {{vertical(625, {})}, 12.0, 10000}, {{vertical(625, {})}, 12.001, None}};
        for (const auto &[registers, silence, altitude] : rows) {
            init();
            send(48, {{"161/TRN", 7}}, nullptr, registers);
            setTime(silence);
            send(48, {{"161/TRN", 7}});
            QCOMPARE(track()->selectedAltitudeValid() ? track()->selectedAltitude() : None, altitude);
        }
    }

    void verticalRate_data()
    {
        QTest::addColumn<QList<Rates>>("reports"); // in 32 feet per minute
        QTest::addColumn<int>("rate"); // None: not valid
        QTest::addColumn<int>("trend");
        const auto row = [](const char *name, const QList<Rates> &reports, int rate, Track::VerticalTrend trend) {
            QTest::newRow(name) << reports << rate << int(trend);
        };
        row("climb", {{0, 7, -62}}, 224, Track::TrendClimbing);
        row("descent", {{0, -7, {}}}, -224, Track::TrendDescending);
        row("inertial rate alone", {{0, {}, -31}}, -992, Track::TrendDescending);
        row("barometric rate too large", {{0, 188, 38}}, 1216, Track::TrendClimbing);
        row("both too large", {{0, 188, -188}}, None, Track::TrendUnknown);
        row("kept for 12 s", {{0, 7, {}}, {12, 188, {}}}, 224, Track::TrendClimbing);
        row("then forgotten", {{0, 7, {}}, {12.001, 188, {}}}, None, Track::TrendUnknown);
        row("a new rate counts anew", {{0, 7, {}}, {8, -10, {}}, {20, {}, {}}}, -320, Track::TrendDescending);
    }

    void verticalRate()
    {
        QFETCH(QList<Rates>, reports);
        for (const auto &[second, baro, inertial] : reports) {
            setTime(second);
            send(48, {{"161/TRN", 7}}, nullptr, {vertical(625, {}), speed(baro, inertial)});
        }
        QTEST(track()->verticalRateValid() ? track()->verticalRate() : None, "rate");
        QTEST(int(track()->verticalTrend()), "trend");
    }

    void cat001Association()
    {
        QSignalSpy messages(m_tracker.get(), &Tracker::message);
        send(1, {{"040/RHO", 10}});
        QCOMPARE(m_manager->trackCount(), 0);
        QCOMPARE(messages.size(), 1);
        send(1, {{"161", 7}, {"070/MODE3A", 01234}, {"090/HGT", 80}});
        send(1, {{"161", 7}, {"040/RHO", 11}, {"090/HGT", 81.5}, {"200/GSP", 0.0625}, {"200/HDG", 45}});
        QCOMPARE(m_manager->trackCount(), 1);
        QCOMPARE(track()->modeAString(), QStringLiteral("1234"));
        QCOMPARE(track()->level(), 8150);
        QCOMPARE(track()->groundSpeed(), 225.0);
        QCOMPARE(track()->heading(), 45.0);
        send(1, {{"161", 0}});
        QCOMPARE(m_manager->trackCount(), 2); // 0 is a number in this category
        QCOMPARE(messages.size(), 1);
    }

    void damagedBlockIsIgnored()
    {
        auto octets = encoded(48, {{"161/TRN", 7}, {"040/RHO", 10}}, nullptr, {});
        receive(octets.chopped(1));
        octets.chop(1);
        octets[2] = static_cast<char>(octets.size()); // a block of that length, with its record cut short
        receive(octets);
        QCOMPARE(m_manager->trackCount(), 0);
    }

private:
    void setTime(double second) { m_now = m_start.addMSecs(qRound64(second * 1000)); }
    QByteArray encoded(int category, const Values &values, const char *callsign, const Registers &registers)
    {
        korvane::asterix::BlockEncoder encoder(category, nullptr, category == 1 ? "track" : nullptr);
        encoder.beginBlock();
        encoder.beginRecord();
        bool complete = encoder.set("010/SAC", 25);
        for (const auto &[path, value] : values)
            complete = encoder.set(path, value) && complete;
        if (callsign)
            complete = encoder.setText("240", callsign) && complete;
        for (const auto &[code, bits] : registers) {
            complete = encoder.addRepetition("250") && encoder.setRaw("250/MBDATA", bits)
                && encoder.set("250/BDS1", code >> 4) && encoder.set("250/BDS2", code & 15) && complete;
        }
        if (!complete || !encoder.endRecord())
            qFatal("a report of the test cannot be encoded");
        const auto block = encoder.block();
        return QByteArray(reinterpret_cast<const char *>(block.data()), static_cast<qsizetype>(block.size()));
    }

    void receive(const QByteArray &octets)
    {
        _ast_datablock_t block;
        ast_datablock_smart_decode(&block, reinterpret_cast<const unsigned char *>(octets.constData()), octets.size());
        m_tracker->procAsterixMessage(block);
    }

    void send(int category, const Values &values, const char *callsign = nullptr, const Registers &registers = {})
    {
        receive(encoded(category, values, callsign, registers));
    }

    QSharedPointer<Track> track() { return m_manager->findTrackByOtherTrackNum(7); }

    const QDateTime m_start = QDateTime::fromSecsSinceEpoch(1'800'000'000, Qt::UTC);
    QDateTime m_now;
    MercatorProjector m_projector;
    QSharedPointer<TrackManager> m_manager;
    std::unique_ptr<RadarTracker> m_tracker;
};

QTEST_GUILESS_MAIN(TestRadarTracker)
#include "tst_radar_tracker.moc"
