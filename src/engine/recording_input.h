#pragma once

#include "astfile/data_packet.h"
#include "astfile/rec_file.h"
#include "astfile/recording_index.h"
#include "engine/input.h"
#include "engine/replay_clock.h"
#include "engine/replay_speed.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QTimer>

#include <functional>

namespace korvane::astfile {
class FileReader;
}

// How recordings are played. May change while one is, except where a member says otherwise.
struct ReplaySettings {
    ReplaySpeed::Speed speed = ReplaySpeed::Normal;
    bool autoRewind = false; // start again at the end
    QDateTime start; // of the opening: where to begin, and after each rewind; invalid: at the beginning
    korvane::astfile::RecordingIndex index; // of the opening: makes seeking quick; null or another file's: none
};

// A recording, played in its own time: the pipeline's clock shows the recorded time while it has one.
class RecordingInput final : public Input {
    Q_OBJECT

public:
    // Settings outlive the input. cancelled is asked while the file is read: true gives up, since a close is to come.
    RecordingInput(const QString &fileName, const ReplaySettings *settings, ReplayClock clock,
        std::function<bool()> cancelled, std::unique_ptr<MessageRouter> router, QObject *parent = nullptr);
    ~RecordingInput() override;

    Opening open() override;
    void close() override;
    QStringList endpoints() const override { return {m_fileName}; }
    bool isLive() const override { return false; }
    void setPaused(bool paused) override;
    void updateClock() override;

Q_SIGNALS:
    // Time stamp of the packet just played, UTC, invalid where the recording has none; at most five times a second.
    void progressed(const QDateTime &time);
    // Time begins, or begins anew: what has been shown belongs to another time.
    void restarted();

private:
    Opening openFile();
    korvane::astfile::RecFile::Format formatOfFile(QString *reason) const;
    Opening startReplay();
    bool seekStart();
    void logStart();
    void schedule(qint64 delayMs);
    void playPacket();
    void reachPacketTime();
    void reportProgress();
    void scheduleNext(const QDateTime &previousTime);
    qint64 recordedDelay(const QDateTime &previousTime) const;
    void rewind();
    void reportReadError(const QString &summary);

    const QString m_fileName;
    const ReplaySettings *const m_settings;
    ReplayClock m_clock;
    const std::function<bool()> m_cancelled;
    std::unique_ptr<korvane::astfile::FileReader> m_reader; // null once closed
    korvane::astfile::DataPacket m_packet; // the one that is due
    bool m_stampedBySources = false; // not by one recorder
    QTimer m_timer{this};
    QElapsedTimer m_progressTimer; // since the last progress
    QElapsedTimer m_sinceUpdate; // of the clock
};
