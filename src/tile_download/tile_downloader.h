#pragma once

#include "tile_download/tile_download.h"

#include <QObject>

class QThread;

// Runs a download on a thread of its own, so that neither requests nor writing hold up the window. GUI thread; nothing
// here waits.
class TileDownloader final : public QObject {
    Q_OBJECT

public:
    explicit TileDownloader(QObject *parent = nullptr);
    ~TileDownloader() override; // what runs is saved, to be taken up again

    // Gives up another one that is under way, which stays to be taken up again.
    void start(const TileDownloadJob &job, const Config &config);
    void pause();
    void resume();
    void cancel();

    // Running, paused or waiting.
    bool active() const;
    const TileDownloadProgress &progress() const { return m_progress; }

Q_SIGNALS:
    void progressed(const TileDownloadProgress &progress);
    void message(LogLevel level, const QString &text);

private:
    void end();
    void note(const TileDownloadProgress &progress);

    // Both delete themselves when the thread has finished. Null while there is no download.
    TileDownload *m_download = nullptr;
    QThread *m_thread = nullptr;
    TileDownloadProgress m_progress;
};
