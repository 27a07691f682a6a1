#pragma once

#include "app/config.h"
#include "engine/display_snapshot.h"
#include "engine/replay_speed.h"
#include "engine/snapshot_slot.h"
#include "engine/source_statistics.h"
#include "engine/video_batch.h"
#include "geo/mercator_projector.h"
#include "processors/weather_processor.h"

#include <QObject>
#include <QSharedPointer>

class DataEngine;
class QThread;
class SensorInfo;
struct ReportQuestion;
class StreamTap;
namespace korvane::astfile {
class RecordingIndex;
}

#include <memory>

// Keeps the data engine, the thread that it runs on and what it shares with the display. All calls to the engine go
// through here, as queued invocations; its answers are the engine's own signals. GUI thread only.
class EngineHost final : public QObject {
    Q_OBJECT

public:
    // Everything that both threads see. The projector never changes; the slots lock themselves.
    struct Shared {
        MercatorProjector projector;
        SnapshotSlot<DisplaySnapshot> display;
        SnapshotSlot<VideoBatch> video;
        SnapshotSlot<WeatherProcessor::Picture> weather;
        SnapshotSlot<InputStatistics> statistics;
    };

    // The engine gets a thread of its own unless the environment variable VYXDISPLAY_NO_DATA_THREAD is set. It does
    // nothing before start(), so that its signals can be connected first.
    explicit EngineHost(QObject *parent = nullptr);
    ~EngineHost() override;

    void start();

    // Null once stopped.
    DataEngine *engine() const { return m_engine; }
    Shared &shared() const { return *m_shared; }

    // replayStart, for recordings: where to begin; invalid: at the beginning.
    void openInput(const Config &config, const QSharedPointer<SensorInfo> &sensor, const QDateTime &replayStart,
        quint64 requestId);
    void closeInput();
    void forgetPicture();
    void pauseInput(bool paused);
    void setReplaySpeed(ReplaySpeed::Speed speed);
    void setReplayAutoRewind(bool on);
    void setRecordingIndex(const korvane::astfile::RecordingIndex &index);
    void startRecording(const QString &fileName);
    void stopRecording();
    void setSnapshotTrailDots(int dots);
    // Answered by DataEngine::reportsAnswered and sightings.
    void askForReports(const ReportQuestion &question);
    void lookUp(const QString &text, quint64 requestId);

    // See DataEngine.
    void openTap(const std::shared_ptr<StreamTap> &tap);
    void closeTap(const std::shared_ptr<StreamTap> &tap);

    // Ends engine and thread, waiting for the thread this long. False when it did not stop in time: it is then left
    // running, with all that it uses, until the process ends. Does nothing a second time.
    bool stop(int waitMs);

private:
    // Queues a call on the engine's thread; nothing once the engine is gone.
    template <typename Command>
    void post(Command command);

    std::shared_ptr<Shared> m_shared;
    DataEngine *m_engine = nullptr; // deletes itself when its thread has finished; without a thread, deleted by stop()
    QThread *m_thread = nullptr; // deletes itself when it has finished
};
