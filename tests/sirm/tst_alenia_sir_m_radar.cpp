// The messages on the wire: every field at its place, in its unit and within its range; damage told by its place.

#include "example/nearest_track.h"
#include "sirm/alenia_sir_m_radar_decoder.h"
#include "sirm/alenia_sir_m_radar_encoder.h"
#include "test_files.h"
#include "test_program.h"

#include <cmath>
#include <limits>
#include <QTest>

namespace {

using Decoder = AleniaSirMRadarDecoder;
using Plot = AleniaSirMRadarPlotRecord;
using Track = AleniaSirMRadarTrackRecord;
using Error = Decoder::Error;

Decoder::Result decode(const QByteArray &octets)
{
    return Decoder::decode(
        reinterpret_cast<const unsigned char *>(octets.constData()), static_cast<std::size_t>(octets.size()));
}

QByteArray hexOf(const auto &octets)
{
    return QByteArray(reinterpret_cast<const char *>(octets.data()), static_cast<qsizetype>(octets.size())).toHex();
}

Track fullTrack()
{
    Track track;
    track.setTrackNumber(0x123);
    track.setTrackType(2);
    track.setCoasting(true);
    track.setVerticalTrend(1);
    track.setPosition(1.5, -2);
    track.setVelocity(-100, 50.25);
    track.setModeACode(07700);
    track.setModeCHeight(35006.25);
    track.setRateOfClimbDescent(-12.5);
    track.setTrackEnd(true);
    return track;
}

AleniaSirMRadarDataMessage dataMessage()
{
    AleniaSirMRadarDataMessage message;
    message.setRadarId(7);
    message.setTimeOfDay(0x01020304);
    message.setSector(13);
    Plot plot;
    plot.setPlotType(3);
    plot.setPolar(100.5, 270);
    plot.setModeACode(01234);
    plot.setModeCHeight(-100);
    message.addPlotRecord(plot);
    message.addTrackRecord(fullTrack());
    return message;
}

constexpr char PlotHex[] = "00c63240c000029cfff00000";
constexpr char TrackHex[] = "012307d500000600fffff800fce001920fc015e1fce08000";
constexpr char DataHex[] = "020700300102030480"
                           "0d0101";
constexpr char NorthHex[] = "0109000c05265bff80000fa0";

} // namespace

class TestAleniaSirMRadar : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyFieldHasItsPlaceOnTheWire()
    {
        const QByteArray expected = QByteArray(DataHex) + PlotHex + TrackHex;
        QCOMPARE(hexOf(AleniaSirMRadarEncoder::encode(dataMessage())), expected);

        const Decoder::Result result = decode(QByteArray::fromHex(expected) + "trailer");
        QVERIFY(result.valid());
        QCOMPARE(result.size, std::size_t{48});
        const auto &message = dynamic_cast<const AleniaSirMRadarDataMessage &>(*result.message);
        const Plot &plot = message.plotRecords().at(0);
        const Track &track = message.trackRecords().at(0);
        QVERIFY(message.timeOfDayValid() && message.sectorValid());
        const QList<unsigned> numbers = {message.radarId(), message.timeOfDay(), message.sector(), plot.plotType(),
            plot.modeACode(), track.trackNumber(), track.trackType(), track.verticalTrend(), track.modeACode()};
        QCOMPARE(numbers, (QList<unsigned>{7, 0x01020304, 13, 3, 01234, 0x123, 2, 1, 07700}));
        const QList<double> values = {plot.range(), plot.azimuth(), plot.modeCHeightImperial(),
            plot.modeCHeightMetric(), track.x(), track.y(), track.vx(), track.vy(), track.modeCHeightImperial(),
            track.rateOfClimbDescent()};
        QCOMPARE(values, (QList<double>{100.5, 270, -100, -30.48, 1.5, -2, -100, 50.25, 35006.25, -12.5}));
    }

    void northMarkerCarriesItsFlags()
    {
        AleniaSirMRadarNorthMarkerMessage marker;
        marker.setRadarId(9);
        marker.setTimeOfDay(86'399'999);
        marker.setNorthNotSynchronized(true);
        marker.setRotationPeriod(4000);
        QCOMPARE(hexOf(AleniaSirMRadarEncoder::encode(marker)), QByteArray(NorthHex));

        QByteArray octets = QByteArray::fromHex(NorthHex);
        octets[8] = 0x40;
        const Decoder::Result result = decode(octets);
        QVERIFY(result.valid() && result.message->timeOfDayValid());
        const auto &decoded = dynamic_cast<const AleniaSirMRadarNorthMarkerMessage &>(*result.message);
        QVERIFY(!decoded.northNotSynchronized() && decoded.clockNotSynchronized());
        QCOMPARE(decoded.rotationPeriod(), 4000U);
    }

    // A single set bit of the track record changes this one answer.
    void everyFlagIsABitOfItsOwn_data()
    {
        QTest::addColumn<int>("octet");
        QTest::addColumn<int>("bit");
        QTest::addColumn<QByteArray>("answers"); // coasting, end, Mode A, Mode C, rate, velocity present, valid

        QTest::newRow("nothing set") << 0 << 0 << QByteArray("0000000");
        QTest::newRow("coasting") << 3 << 0x01 << QByteArray("1000000");
        QTest::newRow("track end") << 22 << 0x80 << QByteArray("0100000");
        QTest::newRow("Mode 3/A code") << 3 << 0x40 << QByteArray("0010000");
        QTest::newRow("Mode C height") << 3 << 0x80 << QByteArray("0001000");
        QTest::newRow("rate of climb") << 2 << 0x01 << QByteArray("0000100");
        QTest::newRow("velocity not settled") << 2 << 0x02 << QByteArray("0000010");
        QTest::newRow("spare bits") << 22 << 0x7F << QByteArray("0000000");
    }

    void everyFlagIsABitOfItsOwn()
    {
        QFETCH(int, octet);
        QFETCH(int, bit);
        unsigned char octets[Track::Size] = {};
        octets[octet] = static_cast<unsigned char>(bit);
        const Track track = Track::fromOctets(octets);
        QByteArray answers;
        for (const bool answer : {track.coasting(), track.trackEnd(), track.modeACodeValid(), track.modeCHeightValid(),
                 track.rateOfClimbDescentValid(), track.velocityPresent(), track.velocityValid()}) {
            answers += answer ? '1' : '0';
        }
        QTEST(answers, "answers");
    }

    void settersRoundAndStopAtTheEnds_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("kept");

        const double infinity = std::numeric_limits<double>::infinity();
        QTest::newRow("nearest step") << "x" << 1.0006 << 1025 / 1024.0;
        QTest::newRow("half a step goes away from zero") << "x" << -1.5 / 1024 << -2 / 1024.0;
        QTest::newRow("no number") << "x" << std::nan("") << 0.0;
        QTest::newRow("largest height") << "height" << 204793.75 << 204793.75;
        QTest::newRow("one step higher") << "height" << 204800.0 << 204793.75;
        QTest::newRow("lowest height") << "height" << -1e9 << -204800.0;
        QTest::newRow("farther than can be said") << "range" << infinity << 65535 / 128.0;
        QTest::newRow("behind the radar") << "range" << -1.0 << 0.0;
        QTest::newRow("azimuth below north") << "azimuth" << -90.0 << 270.0;
        QTest::newRow("azimuth that rounds to north") << "azimuth" << 359.999 << 0.0;
        QTest::newRow("azimuth without end") << "azimuth" << infinity << 0.0;
    }

    void settersRoundAndStopAtTheEnds()
    {
        QFETCH(QString, field);
        QFETCH(double, value);
        Plot plot;
        plot.setPolar(value, value);
        Track track;
        track.setPosition(value, 0);
        track.setModeCHeight(value);
        const QHash<QString, double> kept = {{"x", track.x()}, {"height", track.modeCHeightImperial()},
            {"range", plot.range()}, {"azimuth", plot.azimuth()}};
        QTEST(kept.value(field), "kept");
    }

    void damageIsToldByItsPlace_data()
    {
        QTest::addColumn<QByteArray>("hex");
        QTest::addColumn<Error>("error");
        QTest::addColumn<int>("offset");

        const QByteArray north(NorthHex);
        const QByteArray data = QByteArray(DataHex) + PlotHex + TrackHex;
        const auto patched = [](QByteArray hex, int octet, const char *with) {
            return hex.replace(2 * octet, static_cast<int>(strlen(with)), with);
        };
        QTest::newRow("nothing") << QByteArray() << Error::HeaderTruncated << 0;
        QTest::newRow("seven octets") << north.left(14) << Error::HeaderTruncated << 7;
        QTest::newRow("type 0") << patched(north, 0, "00") << Error::UnknownType << 0;
        QTest::newRow("type 3") << patched(north, 0, "03") << Error::UnknownType << 0;
        QTest::newRow("header only") << patched(north, 2, "0008").left(16) << Error::LengthTooShort << 2;
        QTest::newRow("last octet missing") << north.left(22) << Error::MessageTruncated << 2;
        QTest::newRow("north marker too long") << patched(north, 2, "000d") + "00" << Error::LengthMismatch << 2;
        QTest::newRow("one track more than there are") << patched(data, 11, "02") << Error::LengthMismatch << 2;
        QTest::newRow("one plot less than there are") << patched(data, 10, "00") << Error::LengthMismatch << 2;
        QTest::newRow("tracks cut short") << data.chopped(2) << Error::MessageTruncated << 2;
        QTest::newRow("time of day past midnight") << patched(north, 4, "05265c00") << Error::None << 0;
        QTest::newRow("no records at all") << patched(data, 2,
            "000c01020304"
            "00000000") << Error::None << 0;
    }

    void damageIsToldByItsPlace()
    {
        QFETCH(QByteArray, hex);
        QFETCH(Error, error);
        const Decoder::Result result = decode(QByteArray::fromHex(hex));
        QCOMPARE(result.error, error);
        QTEST(static_cast<int>(result.errorOffset), "offset");
        QCOMPARE(result.valid(), error == Error::None);
    }

    void fullMessageTakesNoMore()
    {
        AleniaSirMRadarDataMessage message;
        while (message.addTrackRecord(fullTrack()) && message.addPlotRecord(Plot())) { }
        QCOMPARE(message.trackRecords().size(), std::size_t{255});
        const auto octets = AleniaSirMRadarEncoder::encode(message);
        const Decoder::Result result = Decoder::decode(octets.data(), octets.size());
        QCOMPARE(result.size, octets.size());
        const auto &decoded = dynamic_cast<const AleniaSirMRadarDataMessage &>(*result.message);
        QVERIFY(!decoded.sectorValid() && !decoded.timeOfDayValid());
        QCOMPARE(decoded.trackRecords().back().octets(), fullTrack().octets());
    }

    void exampleInTheReadmeIsCompiledAndRuns()
    {
        AleniaSirMRadarDataMessage message;
        for (const double kilometres : {80.0, 40.0, 20.0, 60.0}) {
            Track track;
            track.setTrackNumber(static_cast<unsigned>(kilometres));
            track.setPosition(0, -kilometres);
            track.setTrackType(1);
            track.setTrackEnd(kilometres == 20);
            message.addTrackRecord(track);
        }
        const auto octets = AleniaSirMRadarEncoder::encode(message);
        QCOMPARE(nearestTrack(octets.data(), octets.size()), std::string("track 40"));
        QCOMPARE(nearestTrack(octets.data(), 5), std::string("message header is cut short"));
        QVERIFY(readmeShows(SIRM_FOLDER, "nearest_track.cpp", "std::string nearestTrack"));
    }
};

VYX_TEST(TestAleniaSirMRadar)
#include "tst_alenia_sir_m_radar.moc"
