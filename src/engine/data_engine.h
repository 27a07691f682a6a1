#pragma once

#include "app/config.h"
#include "app/log_gate.h"
#include "engine/input_recorder.h"
#include "engine/picture_publisher.h"
#include "engine/pipeline_stats.h"
#include "engine/recording_input.h"
#include "engine/report_archive.h"
#include "engine/source_monitor.h"
#include "engine/stream_ledger.h"
#include "engine/stream_tap.h"
#include "processors/video_processor.h"
#include "tracking/alert.h"
#include "tracking/clock.h"
#include "tracking/plot_store.h"

#include <QByteArray>
#include <QDateTime>
#include <QObject>
#include <QSharedPointer>
#include <QTimer>

#include <atomic>
#include <memory>

class AlertManager;
class AlertProcessor;
class Projector;
class SensorInfo;
class Tracker;
class TrackManager;

// The ingest pipeline: reads messages from one input at a time (UDP, a serial line or a recording), decodes and routes
// them to the tracker of the input's sensor and to the processors, and publishes what the display needs.
//
// Everything in it lives on the thread that it is moved to; call its slots by queued invocation from elsewhere. It
// talks back by signals and through the slots only.
class DataEngine final : public QObject {
    Q_OBJECT

public:
    // Projector and slots belong to the caller and must outlive the engine; statistics are published nowhere without a
    // slot. Nothing happens before init().
    DataEngine(Projector *projector, SnapshotSlot<DisplaySnapshot> *displaySlot, SnapshotSlot<VideoBatch> *videoSlot,
        SnapshotSlot<WeatherProcessor::Picture> *weatherSlot, SnapshotSlot<InputStatistics> *statisticsSlot = nullptr,
        QObject *parent = nullptr);
    ~DataEngine() override;

    // Before init(): what the engine takes the time from, the system's own clock otherwise.
    void setClock(const std::shared_ptr<Clock> &clock);

    // Counts one message and routes it as one of the open input; nothing without one. Data need to live during the call
    // only.
    void procMessage(const QByteArray &data);

    // Since the input was opened; on the engine's thread.
    quint64 messagesReceived() const { return m_publisher.meter().messages(); }
    quint64 bytesReceived() const { return m_publisher.meter().octets(); }

    // From any thread: as long as there are more calls of the first than of the second, reading a recording is given up
    // wherever it stands, so that a closeInput() that is on its way, or the end of the thread, need not wait for it.
    void cancelReading() { ++m_readingCancelled; }
    void allowReading() { --m_readingCancelled; }

public Q_SLOTS:
    // Makes the stores and starts publishing; first thing to run on the engine's thread.
    void init();

    // Opens the input that the configuration names. Answers with inputOpened or inputOpenFailed, both with requestId;
    // while an input is open it only logs a warning, and when its reading is cancelled the closeInput() that follows
    // answers. replayStart, for recordings: where to begin; invalid: at the beginning. Tracks, alerts and counters of
    // the input before are cleared, successful or not.
    void openInput(const Config &config, const QSharedPointer<SensorInfo> &sensor, const QDateTime &replayStart,
        quint64 requestId);

    // Answers with inputClosed and the identifier of the request that opened the input; silent when nothing is open.
    // The last picture stays published and does not age.
    void closeInput();

    // The last picture goes; nothing while an input is open.
    void forgetPicture();

    // A paused live input is read and thrown away; a paused recording holds its position. The picture stands still, and
    // does not age, until a live input is resumed: then it has aged by the time that has passed.
    void pauseInput(bool paused);

    // From the next packet on.
    void setReplaySpeed(ReplaySpeed::Speed speed);
    // Whether the recording that is being played starts again at its end.
    void setReplayAutoRewind(bool on) { m_replay.autoRewind = on; }

    // Makes seeking in the recording that it was made of quick; of no effect on others. From the next opening on.
    void setRecordingIndex(const korvane::astfile::RecordingIndex &index) { m_nextIndex = index; }

    // What the live input receives, paused or not, is written to a capture from now on, until stopped or the input is
    // closed. Answers with recordingStarted and, at its end or when it fails, recordingStopped.
    void startRecording(const QString &fileName);
    void stopRecording();

    // Past positions per track in the snapshots from the next one on; 0 when nobody draws them.
    void setSnapshotTrailDots(int count);

    // Answered with reportsAnswered.
    void askForReports(const ReportQuestion &question);
    // Whom the stream has named by that callsign, code, address or number: answered with sightings.
    void lookUp(const QString &text, quint64 requestId);

    // The tap gets copies of what inputs receive from now on, whichever input it is, until it is closed. Its reader may
    // have what has come every 200 ms.
    void openTap(const std::shared_ptr<StreamTap> &tap);
    void closeTap(const std::shared_ptr<StreamTap> &tap);

    // Called by timers every 200 ms, and by whoever wants a picture at once.
    void publishSnapshot();
    void publishVideoBatch();
    // Called by a timer every second, and when an input is opened or closed.
    void publishStatistics();

    void accumulateVideoRadial(const VideoProcessor::Radial &radial);
    void publishWeatherPicture(const WeatherProcessor::Picture &picture);

Q_SIGNALS:
    void logMessage(LogLevel level, const QString &text);
    void inputOpened(quint64 requestId);
    // Why the input of that request cannot be opened or has ended by itself, one sentence; before the signal that says
    // that it did. It has been logged, too.
    void inputFault(quint64 requestId, const QString &reason);
    void inputOpenFailed(quint64 requestId);
    void inputClosed(quint64 requestId);
    // Time stamp of the packet just played, UTC, invalid where the recording has none; at most five times a second.
    void replayProgress(const QDateTime &time);
    void antennaRotated(double azimuthDegrees);
    void antennaNorthCrossed();
    void pipelineStats(const PipelineStats &stats);
    void recordingStarted(const QString &fileName);
    void recordingStopped();
    void reportsAnswered(const AskedReports &reports);
    void sightings(const Sightings &sightings);
    // A safety net was reported as running or not; off for all that ran when the input closes.
    void alertStatusChanged(Alert::Type type, bool on);

private:
    void makeProcessors();
    void startTimers();
    void connectRecorder();
    void log(LogLevel level, const QString &text) { m_logGate.log(level, text); }

    // Everything that is seen of one input or of one run through a recording.
    void clearPicture();
    void restartPicture();

    bool processorAvailable();
    std::unique_ptr<Input> makeInput();
    std::unique_ptr<Input> makeRecordingInput();
    void connectInput(Input *input);
    std::unique_ptr<MessageRouter> makeRouter();
    QSharedPointer<Tracker> makeTracker();
    void configureTracker(Tracker *tracker);
    void reportOpening(Input::Opening opening);
    void agePicture();
    InputStatistics statistics() const;

    Projector *const m_projector;

    // As given with the last openInput().
    Config m_config;
    QSharedPointer<SensorInfo> m_sensor;
    quint64 m_requestId = 0;
    ReplaySettings m_replay;
    korvane::astfile::RecordingIndex m_nextIndex; // the next opening's

    std::shared_ptr<Clock> m_clock = std::make_shared<Clock>();
    PlotStore m_plots;
    SourceMonitor m_sources{m_clock};
    QSharedPointer<TrackManager> m_trackManager;
    ReportArchive m_archive;
    StreamTaps m_taps;
    StreamLedger m_ledger{m_sources, m_archive, m_taps};
    QSharedPointer<AlertManager> m_alertManager;
    QSharedPointer<AlertProcessor> m_alertProcessor;
    QSharedPointer<WeatherProcessor> m_weatherProcessor;
    QSharedPointer<VideoProcessor> m_videoProcessor;

    PicturePublisher m_publisher;
    int m_trailDots = 0;
    QTimer m_snapshotTimer{this}; // children, so that they follow the engine to its thread
    QTimer m_videoTimer{this};
    QTimer m_secondTimer{this}; // of log and statistics
    LogGate m_logGate{[this](LogLevel level, const QString &text) { Q_EMIT logMessage(level, text); }};

    InputRecorder m_recorder{this};
    Input *m_input =
        nullptr; // a child; null while none is open. One that is closed goes when all that it does is done.
    std::atomic<int> m_readingCancelled = 0;
};
