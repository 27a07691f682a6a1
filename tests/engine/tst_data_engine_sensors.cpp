#include "encoded_report.h"
#include "engine_rig.h"
#include "modes/encoder.h"
#include "sirm/alenia_sir_m_radar_encoder.h"
#include "test_program.h"
#include "tracking/track.h"

#include <QLineF>
#include <QTest>
#include <QtMath>

namespace modes = korvane::modes;

namespace {

constexpr int Address = 0x4b1a2c;
constexpr int Squawk = 02345;
constexpr int Level = 35000; // feet
constexpr double Azimuth = 321.1; // degrees, from the sensor
constexpr double Heading = 123.0; // degrees
const GeoCoordinate Site(50.0, 14.0);

struct Row {
    const char *name;
    SensorType sensor;
    int processor;
    const char *report; // for ASTERIX; %1 to %7: latitude, longitude, range in NM and metres, knots in NM/s, vx, vy
    Track::Type type;
    const char *identity; // address, call sign and code
    double metres; // half a step of the encoding, each of these
    double knots;
    double degrees;
};

const Row rows[]{
    {"radar", RadarSensor, 0,
        "48 161/TRN=7 220=0x4b1a2c 240=VYX12 020/TYP=7 040/RHO=%3 040/THETA=321.1 070/MODE3A=02345 090/FL=350 "
        "200/GSP=%5 200/HDG=123",
        Track::ModeSPsr, "4B1A2C VYX12 2345", 4.1, 0.11, 0.003},
    {"radar, Alenia SIR-M", RadarSensor, 2, nullptr, Track::PsrSsr, "------ ------- 2345", 0.7, 0.18, 0.03},
    {"ADS-B", AdsbSensor, 0,
        "21 080=0x4b1a2c 170=VYX12 130/LAT=%1 130/LON=%2 070/MODE3A=02345 145=350 160/GS=%5 160/TA=123", Track::Adsb,
        "4B1A2C VYX12 2345", 1.5, 0.11, 0.003},
    {"ADS-B, Mode S", AdsbSensor, 1, nullptr, Track::Adsb, "4B1A2C VYX12 2345", 3.2, 0.71, 0.1},
    {"multilateration", MlatSensor, 0,
        "20 161/TRN=7 220=0x4b1a2c 245/CHR=VYX12 041/LAT=%1 041/LON=%2 070/MODE3A=02345 090/FL=350 202/VX=%6 202/VY=%7",
        Track::Mlat, "4B1A2C VYX12 2345", 0.4, 0.35, 0.05},
    {"system tracks", SdpsSensor, 0,
        "62 040=7 380/ADR=0x4b1a2c 390/CS=VYX12 105/LAT=%1 105/LON=%2 060/MODE3A=02345 136=350 185/VX=%6 185/VY=%7",
        Track::SdpsModeS, "4B1A2C VYX12 2345", 0.4, 0.35, 0.05},
    {"surface movement radar", SmrSensor, 0, "10 161/TRK=7 040/RHO=%4 040/TH=321.1 200/GSP=%5 200/TRA=123", Track::Smr,
        "------ ------- ----", 0.6, 0.11, 0.003},
};

QByteArray sirMMessage(const QPointF &offset, const QPointF &velocity)
{
    AleniaSirMRadarTrackRecord record;
    record.setTrackNumber(7);
    record.setTrackType(3);
    record.setPosition(offset.x() / 1000, offset.y() / 1000);
    record.setModeACode(Squawk);
    record.setModeCHeight(Level);
    record.setVelocity(velocity.x(), velocity.y());
    AleniaSirMRadarDataMessage message;
    message.addTrackRecord(record);
    const auto octets = AleniaSirMRadarEncoder::encode(message);
    return {reinterpret_cast<const char *>(octets.data()), static_cast<qsizetype>(octets.size())};
}

QList<QByteArray> modeSFrames(const GeoCoordinate &position, double knots)
{
    const modes::LatLon place{position.latitude(), position.longitude()};
    QList<QByteArray> datagrams;
    for (const auto &frame : {modes::encodeIdentification(Address, 'A', 3, "VYX12"),
             modes::encodeAirbornePosition(Address, place, Level, false),
             modes::encodeAirbornePosition(Address, place, Level, true), modes::encodeIdentityReply(Address, Squawk),
             modes::encodeVelocity(Address, knots, Heading, 0)}) {
        std::string octets;
        modes::appendEncapsulated(octets, frame, modes::ModeSEncapsulation::Beast);
        datagrams.append(QByteArray::fromStdString(octets));
    }
    return datagrams;
}

} // namespace

// Each kind of sensor from the socket to the picture: what is shown is what was sent, as finely as it can be encoded.
class TestDataEngineSensors final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whatIsSentIsShown_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < int(std::size(rows)); ++i) {
            QTest::newRow(rows[i].name) << i;
        }
    }

    void whatIsSentIsShown()
    {
        QFETCH(int, index);
        const auto &row = rows[index];
        const bool onGround = row.sensor == SmrSensor;
        const double distance = onGround ? 2345.6 : 34567.8;
        const double knots = onGround ? 34.0 : 432.1;
        const GeoCoordinate position = Site.atDistanceAndAzimuth(distance, Azimuth);
        const auto vector = [](double length, double degrees) {
            return QPointF(qSin(qDegreesToRadians(degrees)), qCos(qDegreesToRadians(degrees))) * length;
        };
        const auto velocity = vector(knots * 1852 / 3600, Heading);
        QList<QByteArray> datagrams;
        if (row.report) {
            QString report = row.report;
            int number = 0;
            for (const double value : {position.latitude(), position.longitude(), distance / 1852, distance,
                     knots / 3600, velocity.x(), velocity.y()}) {
                report.replace(QStringLiteral("%%1").arg(++number), QString::number(value, 'g', 17));
            }
            datagrams.append(encodedReport(report.section(' ', 0, 0).toInt(), report.section(' ', 1)));
        } else {
            datagrams = row.processor == 1 ? modeSFrames(position, knots)
                                           : QList<QByteArray>{sirMMessage(vector(distance, Azimuth), velocity)};
        }

        EngineRig rig;
        rig.config.processorType = static_cast<Config::ProcessorType>(row.processor);
        const auto sensor = SensorInfo::create(row.sensor);
        sensor->setLocation(Site);
        rig.open(1, sensor);
        QUdpSocket source;
        for (const auto &datagram : datagrams) {
            source.writeDatagram(datagram, QHostAddress::LocalHost, rig.port());
        }
        QTRY_COMPARE(rig.engine.messagesReceived(), quint64(datagrams.size()));

        const auto tracks = rig.tracks();
        QCOMPARE(tracks.size(), 1);
        const auto &track = tracks.first();
        QCOMPARE(track.type, row.type);
        QCOMPARE(track.state, Track::Confirmed);
        QCOMPARE(QStringList({track.icaoAddrString, track.callsign, track.modeAString}).join(' '), row.identity);
        QCOMPARE(track.levelValid ? track.level : -1, onGround ? -1 : Level);
        QCOMPARE(track.onGround, onGround);
        QPointF plane;
        rig.projector.toCartesian(&plane.rx(), &plane.ry(), position.latitude(), position.longitude());
        // The plane stretches lengths by less than 1.6 at this latitude.
        for (const double error :
            {track.geoCoordinate.distanceTo(position), QLineF(track.carCoordinate, plane).length() / 1.6}) {
            QVERIFY2(error <= row.metres, qPrintable(QString::number(error)));
        }
        QVERIFY2(qAbs(track.groundSpeed - knots) <= row.knots, qPrintable(QString::number(track.groundSpeed)));
        QVERIFY2(qAbs(track.heading - Heading) <= row.degrees, qPrintable(QString::number(track.heading)));
    }
};

VYX_TEST(TestDataEngineSensors)
#include "tst_data_engine_sensors.moc"
