#pragma once

#include "app/config.h"
#include "app/log_level.h"
#include "asterix/asterix.h"
#include "astfile/data_packet.h"
#include "astfile/recording_index.h"
#include "engine/display_snapshot.h"
#include "engine/input_recorder.h"
#include "engine/pipeline_meter.h"
#include "engine/pipeline_stats.h"
#include "engine/replay_speed.h"
#include "engine/snapshot_slot.h"
#include "engine/video_batch.h"
#include "modes/mode_s_decoder.h"
#include "modes/receiver_clock.h"
#include "processors/video_processor.h"
#include "processors/weather_processor.h"
#include "tracking/alert.h"

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
#include <string>
#include <vector>

class AlertManager;
class AlertProcessor;
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
    // Whether the recording that is being played starts again at its end.
    void setReplayAutoRewind(bool on) { m_config.inputFileAutoRewind = on; }

    // Makes seeking in the recording that it was made of quick; of no effect on others. From the next opening on.
    void setRecordingIndex(const korvane::astfile::RecordingIndex &index) { m_recordingIndex = index; }

    // What the live input receives, paused or not, is written to a capture from now on, until stopped or the input is
    // closed. Answers with recordingStarted and, at its end or when it fails, recordingStopped.
    void startRecording(const QString &fileName);
    void stopRecording();

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
    void recordingStarted(const QString &fileName);
    void recordingStopped();
    // A safety net was reported as running or not; off for all that ran when the input closes.
    void alertStatusChanged(Alert::Type type, bool on);

private:
    // Life cycle.
    void makeProcessors();
    void discardInputState();
    void createTracker();
    void configureTracker();
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

    // Writing a recording.
    void connectRecorder();
    void recordDatagram(
        const QByteArray &data, const QUdpSocket *socket, const QHostAddress &sender, quint16 senderPort);
    void recordSerialData(const QByteArray &data);

    // Routing.
    void procAsterixMessage(const QByteArray &data);
    bool decodeBlock(const unsigned char *data, std::size_t length);
    bool fromConfiguredSensor();
    void routeBlock();
    void logUnsupportedCategory();
    void procModeSMessage(const QByteArray &data);
    void procModeSFrame(korvane::modes::ModeSFrame &frame);
    void procAleniaSirMMessage(const QByteArray &data);
    void logAleniaSirMFailure(qsizetype size);

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
    QSharedPointer<AlertProcessor> m_alertProcessor;
    QSharedPointer<WeatherProcessor> m_weatherProcessor;
    QSharedPointer<VideoProcessor> m_videoProcessor;
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
    korvane::astfile::RecordingIndex m_recordingIndex; // null where none was given
    korvane::astfile::DataPacket m_packet; // the one that is due
    ReplaySpeed::Speed m_replaySpeed = ReplaySpeed::Normal;
    QTimer m_replayTimer{this}; // children, so that they follow the engine to its thread
    QElapsedTimer m_progressTimer; // since the last replayProgress

    InputRecorder m_recorder{this};

    _ast_datablock_t m_block; // reused by every block
    QSet<quint16> m_mismatchingSources; // SAC * 256 + SIC, already reported

    // Per input; frames and message are reused.
    std::unique_ptr<korvane::modes::ModeSDecoder> m_modesDecoder;
    korvane::modes::ReceiverClock m_receiverClock;
    std::string m_modesBuffer; // the beginning of a frame whose rest is to come
    std::vector<korvane::modes::ModeSFrame> m_modesFrames;
    std::shared_ptr<korvane::modes::ModeSMessage> m_modesMessage;
    bool m_aleniaSirMFailureReported = false;

    int m_trailDots = 0;
    QTimer m_snapshotTimer{this};
    QTimer m_videoTimer{this};
    QSharedPointer<VideoBatch> m_videoBatch;
    QElapsedTimer m_clock; // the meter's
    PipelineMeter m_meter;
};
