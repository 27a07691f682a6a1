#pragma once

#include "app/config.h"
#include "app/log_level.h"
#include "asterix/asterix.h"
#include "astfile/data_packet.h"
#include "engine/display_snapshot.h"
#include "engine/pipeline_meter.h"
#include "engine/pipeline_stats.h"
#include "engine/replay_speed.h"
#include "engine/snapshot_slot.h"
#include "engine/video_batch.h"
#include "processors/video_processor.h"
#include "processors/weather_processor.h"

#include <QByteArray>
#include <QDateTime>
#include <QElapsedTimer>
#include <QHostAddress>
#include <QNetworkInterface>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QSharedPointer>
#include <QTimer>

#include <array>
#include <memory>

class AlertManager;
class Projector;
class QSerialPort;
class QUdpSocket;
class SensorInfo;
class Tracker;
class TrackManager;
namespace korvane::astfile {
class FileReader;
}

// The ingest pipeline: reads messages from one input at a time (UDP, a serial line or a recording), decodes and routes
// them to the tracker of the input's sensor and to the processors, and publishes what the display needs.
//
// Everything in it lives on the thread that it is moved to; call its slots by queued invocation from elsewhere. It
// talks back by signals and through the three snapshot slots only.
class DataEngine final : public QObject {
    Q_OBJECT

public:
    // Projector and slots belong to the caller and must outlive the engine. Nothing happens before init().
    DataEngine(Projector *projector, SnapshotSlot<DisplaySnapshot> *displaySlot, SnapshotSlot<VideoBatch> *videoSlot,
        SnapshotSlot<WeatherProcessor::Picture> *weatherSlot, QObject *parent = nullptr);
    ~DataEngine() override;

    // Counts one message and routes it by the configured processor type. Data need to live during the call only.
    void procMessage(const QByteArray &data);

    // Since the input was opened; on the engine's thread.
    quint64 messagesReceived() const { return m_meter.messages(); }
    quint64 bytesReceived() const { return m_meter.octets(); }

public Q_SLOTS:
    // Makes the stores and starts publishing; first thing to run on the engine's thread.
    void init();

    // Opens the input that the configuration names. Answers with inputOpened or inputOpenFailed, both with requestId;
    // while an input is open it only logs a warning. replayStart, for recordings: where to begin; invalid: at the
    // beginning. Tracks, alerts and counters of the input before are cleared, successful or not.
    void openInput(const Config &config, const QSharedPointer<SensorInfo> &sensor, const QDateTime &replayStart,
        quint64 requestId);

    // Answers with inputClosed and the identifier of the request that opened the input; silent when nothing is open.
    // The last picture stays published.
    void closeInput();

    // A paused live input is read and thrown away; a paused recording holds its position.
    void pauseInput(bool paused);

    // From the next packet on.
    void setReplaySpeed(ReplaySpeed::Speed speed);

    // Past positions per track in the snapshots from the next one on; 0 when nobody draws them.
    void setSnapshotTrailDots(int count);

    // Called by timers every 200 ms, and by whoever wants a picture at once.
    void publishSnapshot();
    void publishVideoBatch();

    void accumulateVideoRadial(const VideoProcessor::Radial &radial);
    void publishWeatherPicture(const WeatherProcessor::Picture &picture);

Q_SIGNALS:
    void logMessage(LogLevel level, const QString &text);
    void inputOpened(quint64 requestId);
    void inputOpenFailed(quint64 requestId);
    void inputClosed(quint64 requestId);
    // Time stamp of the packet just played, UTC, invalid where the recording has none; at most five times a second.
    void replayProgress(const QDateTime &time);
    void antennaRotated(double azimuthDegrees);
    void antennaNorthCrossed();
    void pipelineStats(const PipelineStats &stats);

private:
    // Life cycle.
    void discardInputState();
    void createTracker();
    bool processorAvailable();
    bool openInputByKind();

    // UDP.
    struct UdpInput {
        quint16 port = 0;
        bool multicast = false;
        QHostAddress group;
        QNetworkInterface lanInterface;
    };
    UdpInput udpInput1() const;
    UdpInput udpInput2() const;
    bool openInputUdp();
    bool openUdpSocket(QPointer<QUdpSocket> &socket, const UdpInput &input);
    bool joinUdpGroup(QUdpSocket *socket, const UdpInput &input);
    void procInputUdp(QUdpSocket *socket);
    void drainUdpSocket(QUdpSocket *socket);
    void continueDrain(QUdpSocket *socket);
    bool readUdpDatagram(QUdpSocket *socket);
    void warnOfBacklog(QUdpSocket *socket);
    void closeInputUdp();
    void closeUdpSocket(QPointer<QUdpSocket> &socket, const UdpInput &input);

    // Serial line.
    bool openInputSerial();
    void applySerialSettings();
    void procInputSerial();
    void procSerialError();
    void closeInputSerial();

    // Recording.
    bool openInputFile();
    bool startInputFileReplay();
    bool seekReplayStart();
    void logReplayStart();
    void scheduleReplay(qint64 delayMs);
    void procInputFile();
    void reportProgress();
    void scheduleNextPacket(const QDateTime &previousTime);
    void rewindInputFile();
    void logReadError(const QString &summary);
    void closeInputFile();

    // Routing.
    void procAsterixMessage(const QByteArray &data);
    bool decodeBlock(const unsigned char *data, std::size_t length);
    bool fromConfiguredSensor();
    void routeBlock();

    Projector *const m_projector;
    SnapshotSlot<DisplaySnapshot> *const m_displaySlot;
    SnapshotSlot<VideoBatch> *const m_videoSlot;
    SnapshotSlot<WeatherProcessor::Picture> *const m_weatherSlot;

    Config m_config; // as given with the last openInput()
    QSharedPointer<SensorInfo> m_sensor;
    QDateTime m_replayStart;
    quint64 m_requestId = 0;
    bool m_inputOpen = false;
    bool m_inputPaused = false;

    QSharedPointer<TrackManager> m_trackManager;
    QSharedPointer<AlertManager> m_alertManager;
    QSharedPointer<Tracker> m_tracker; // null for sensors that none serves

    // Children. A closed input may be closing while it is being read, so they are deleted later.
    QPointer<QUdpSocket> m_udpSocket1;
    QPointer<QUdpSocket> m_udpSocket2;
    QSet<const QUdpSocket *> m_scheduledDrains; // continue on the next turn of the event loop
    QByteArray m_receiveBuffer; // reused by every datagram and chunk
    QElapsedTimer m_backlogTimer; // since the last backlog warning
    std::array<quint32, 2> m_udpDrops = {}; // by socket, at the last backlog warning
    QPointer<QSerialPort> m_serialPort;

    std::unique_ptr<korvane::astfile::FileReader> m_fileReader;
    korvane::astfile::DataPacket m_packet; // the one that is due
    ReplaySpeed::Speed m_replaySpeed = ReplaySpeed::Normal;
    QTimer m_replayTimer{this}; // children, so that they follow the engine to its thread
    QElapsedTimer m_progressTimer; // since the last replayProgress

    _ast_datablock_t m_block; // reused by every block
    QSet<quint16> m_mismatchingSources; // SAC * 256 + SIC, already reported

    int m_trailDots = 0;
    QTimer m_snapshotTimer{this};
    QTimer m_videoTimer{this};
    QSharedPointer<VideoBatch> m_videoBatch;
    QElapsedTimer m_clock; // the meter's
    PipelineMeter m_meter;
};
