#pragma once

#include "app/background_pass.h"
#include "astfile/recording_index.h"

// Reads a recording from end to end beside everything else, to find out its time span and where in the file which time
// is. One recording at a time, on a worker that nobody ever waits for.
class RecordingScan final : public QObject {
    Q_OBJECT

public:
    explicit RecordingScan(QObject *parent = nullptr);

    // Gives up the scan under way. A file of no known format finishes with an error.
    void start(const QString &fileName);
    // No answer comes any more.
    void cancel() { m_pass.cancel(); }
    bool running() const { return m_pass.running(); }

Q_SIGNALS:
    // 0 to 100, each value once.
    void progressed(int percent);
    // A null index when the file cannot be opened. The error is empty, or names the fault up to which the index goes.
    void finished(const korvane::astfile::RecordingIndex &index, const QString &error);

private:
    BackgroundPass m_pass;
};
