#pragma once

#include "app/background_pass.h"
#include "astfile/rec_file.h"
#include "recognition/stream_findings.h"

#include <functional>

// What a look at the beginning of a recording found.
struct RecordingFindings {
    QString fileName;
    korvane::astfile::RecFile::Format format = korvane::astfile::RecFile::Unknown;
    // Why it cannot be played, as one sentence; empty where it can.
    QString fault;
    // From where on it is damaged, and how, within what was looked at, as one sentence; empty where it is not.
    QString damage;
    bool whole = false; // all of it was looked at
    StreamFindings stream;

    bool playable() const { return fault.isEmpty(); }
};

// Octets of the file passed over, and in all, 0 where that is not known. False gives up; the findings are then worth
// nothing.
using AnalysisProgress = std::function<bool(qint64 octetsRead, qint64 octetsTotal)>;

// Reads on until some 16 MiB of messages, or the whole file, have been looked at. Tells whether a file can be played
// and as what; waits for the disk, so not for the GUI thread: see RecordingAnalysis.
RecordingFindings analyseRecording(const QString &fileName, const AnalysisProgress &progress = {});

// The same on a worker that nobody ever waits for, one recording at a time.
class RecordingAnalysis final : public QObject {
    Q_OBJECT

public:
    explicit RecordingAnalysis(QObject *parent = nullptr);

    // Gives up the one under way.
    void start(const QString &fileName);
    // No answer comes any more.
    void cancel() { m_pass.cancel(); }
    bool running() const { return m_pass.running(); }

Q_SIGNALS:
    // 0 to 100, each value once.
    void progressed(int percent);
    void finished(const RecordingFindings &findings);

private:
    BackgroundPass m_pass;
};
