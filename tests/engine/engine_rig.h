#pragma once

#include "engine/data_engine.h"
#include "geo/mercator_projector.h"
#include "sensors/radar_sensor_info.h"

#include <QSignalSpy>
#include <QStringList>
#include <QUdpSocket>

// An engine with everything that the main window gives it, on the thread of the test, and a record of what it says.
class EngineRig {
public:
    MercatorProjector projector;
    SnapshotSlot<DisplaySnapshot> displaySlot;
    SnapshotSlot<VideoBatch> videoSlot;
    SnapshotSlot<WeatherProcessor::Picture> weatherSlot;
    DataEngine engine{&projector, &displaySlot, &videoSlot, &weatherSlot};
    QSignalSpy opened{&engine, &DataEngine::inputOpened};
    QSignalSpy failed{&engine, &DataEngine::inputOpenFailed};
    QSignalSpy closed{&engine, &DataEngine::inputClosed};
    QSignalSpy northCrossed{&engine, &DataEngine::antennaNorthCrossed};
    QStringList log; // "W text", by the level's first letter
    Config config; // of the next open()

    EngineRig()
    {
        QObject::connect(&engine, &DataEngine::logMessage, &engine, [this](LogLevel level, const QString &text) {
            log += QChar(QLatin1Char("NDIWCP"[static_cast<int>(level)])) + QLatin1Char(' ') + text;
        });
        config.inputUdpMulticast1 = false;
        config.inputUdpMulticast2 = false;
        engine.init();
    }

    static QSharedPointer<RadarSensorInfo> radar(double rotationPeriod = 4.0)
    {
        const auto sensor = QSharedPointer<RadarSensorInfo>::create();
        sensor->setName(QStringLiteral("Test radar"));
        sensor->setSacSic(25, 10);
        sensor->setLocation(GeoCoordinate(50.0, 14.0));
        sensor->setRotationPeriod(rotationPeriod);
        return sensor;
    }

    void open(quint64 requestId = 1, const QSharedPointer<SensorInfo> &sensor = radar(), const QDateTime &start = {})
    {
        engine.openInput(config, sensor, start, requestId);
    }

    // The tracks in a snapshot taken now.
    QList<TrackSnapshot> tracks()
    {
        engine.publishSnapshot();
        return displaySlot.read().value->tracks;
    }

    // A port that nobody uses at the moment.
    static quint16 freePort()
    {
        QUdpSocket socket;
        return socket.bind(QHostAddress::LocalHost, 0) ? socket.localPort() : 0;
    }
};

// One CAT048 plot of SAC/SIC 25/10 with the sensor's track number, at 10 NM and the azimuth in 1/65536 of a circle.
inline QByteArray plotBlock(quint8 trackNumber, quint16 azimuth = 0, quint8 sic = 10)
{
    const std::array<quint8, 13> octets = {0x30, 0, 13, 0x91, 0x10, 25, sic, 0x0a, 0x00,
        static_cast<quint8>(azimuth >> 8), static_cast<quint8>(azimuth), 0, trackNumber};
    return {reinterpret_cast<const char *>(octets.data()), octets.size()};
}

// One CAT034 north marker.
inline QByteArray northMarkerBlock(quint8 sac = 25, quint8 sic = 10)
{
    return QByteArray::fromHex("220007 c0") + static_cast<char>(sac) + static_cast<char>(sic) + '\x01';
}
