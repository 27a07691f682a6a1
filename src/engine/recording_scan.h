#pragma once

#include "astfile/recording_index.h"

#include <QObject>
#include <QThread>

#include <atomic>
#include <memory>

// Reads a recording from end to end beside everything else, to find out its time span and where in the file which time
// is. One recording at a time; ends with this object.
class RecordingScan final : public QObject {
    Q_OBJECT

public:
    explicit RecordingScan(QObject *parent = nullptr);
    ~RecordingScan() override;

    // Gives up the scan under way. A file of no known format finishes with an error.
    void start(const QString &fileName);
    // No answer comes any more.
    void cancel();
    bool running() const { return m_pass != nullptr; }

Q_SIGNALS:
    // 0 to 100, each value once.
    void progressed(int percent);
    // A null index when the file cannot be opened. The error is empty, or names the fault up to which the index goes.
    void finished(const korvane::astfile::RecordingIndex &index, const QString &error);

private:
    // What both threads see of one pass.
    struct Pass {
        std::atomic<bool> cancelled = false;
        std::atomic<int> percent = -1;
    };

    void scan(const std::shared_ptr<Pass> &pass, const QString &fileName);
    void end();

    std::shared_ptr<Pass> m_pass; // null while none is under way
    std::unique_ptr<QThread> m_thread;
};
