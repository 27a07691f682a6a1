#pragma once

#include "engine/data_engine.h"
#include "engine/udp_input.h"
#include "geo/mercator_projector.h"
#include "sensors/radar_sensor_info.h"

#include <QCoreApplication>
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
    SnapshotSlot<InputStatistics> statisticsSlot;
    qint64 nowMs = QDateTime::currentMSecsSinceEpoch(); // of the system, set by hand
    const std::shared_ptr<Clock> clock = std::make_shared<Clock>([this] { return nowMs; }, [this] { return nowMs; });
    DataEngine engine{&projector, &displaySlot, &videoSlot, &weatherSlot, &statisticsSlot};
    QSignalSpy opened{&engine, &DataEngine::inputOpened};
    QSignalSpy failed{&engine, &DataEngine::inputOpenFailed};
    QSignalSpy closed{&engine, &DataEngine::inputClosed};
    QSignalSpy faults{&engine, &DataEngine::inputFault};
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
        config.inputUdpPort1 = config.inputUdpPort2 = 0; // any
        engine.setClock(clock);
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

    void openRecording(
        const QString &path, const QDateTime &start = {}, const QSharedPointer<SensorInfo> &sensor = radar())
    {
        config.inputComm = Config::InputComm::File;
        config.inputFileName = QFileInfo(path);
        open(1, sensor, start);
    }

    // Taken now.
    QSharedPointer<const DisplaySnapshot> snapshot()
    {
        engine.publishSnapshot();
        return displaySlot.read().value;
    }
    QList<TrackSnapshot> tracks() { return snapshot()->tracks; }

    // Made now.
    QSharedPointer<const InputStatistics> statistics()
    {
        engine.publishStatistics();
        return statisticsSlot.read().value;
    }

    // Of the open UDP input's sockets, which the system has chosen unless the configuration did.
    quint16 port(int index = 0) const { return engine.findChildren<UdpInput *>().last()->port(index); }

    // Enough for everything that is due at once.
    static void turnEventLoop()
    {
        for (int turn = 0; turn < 20; ++turn) {
            QCoreApplication::processEvents();
        }
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
