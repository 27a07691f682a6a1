#pragma once

#include "app/config.h"
#include "app/log_level.h"
#include "tile_download/tile_download_job.h"
#include "tiles/tile_service_setup.h"

#include <QHash>
#include <QMetaType>
#include <QObject>
#include <QTimer>

#include <memory>
#include <set>

class TileFetcher;
class TileSink;
struct TileAnswer;

// How far a download has come.
struct TileDownloadProgress {
    enum class State { Running, Paused, Waiting, Finished, Failed, Cancelled };

    State state = State::Running;
    qint64 total = 0;
    qint64 fetched = 0;
    qint64 present = 0; // there already
    qint64 unavailable = 0; // the service has no such tile, or what came was no image
    qint64 octets = 0; // of the fetched ones
    QString reason; // of Waiting and Failed, in words

    qint64 done() const { return fetched + present + unavailable; }
};
Q_DECLARE_METATYPE(TileDownloadProgress)

// Downloads the tiles of a job one after the other, at the pace that the service allows, and writes them. Belongs to
// one thread, that of its event loop; see TileDownloader for the window's side.
class TileDownload final : public QObject {
    Q_OBJECT

public:
    TileDownload(const TileDownloadJob &job, const Config &config, QObject *parent = nullptr);
    ~TileDownload() override; // the job stays as it stands, to be taken up again

    void start();
    // Requests under way are given up; they come again.
    void pause();
    void resume();
    // The job is forgotten; tile files that came stay, an unfinished archive goes.
    void cancel();

    const TileDownloadProgress &progress() const { return m_progress; }

Q_SIGNALS:
    void progressed(const TileDownloadProgress &progress);
    void message(LogLevel level, const QString &text);

private:
    void fill();
    void request(qint64 position);
    void take(const TileIndex &index, const QByteArray &octets);
    void refuse(const TileIndex &index);
    void settle(const TileIndex &index);
    void finishIfDone();
    void fail(const QString &reason);
    void setState(TileDownloadProgress::State state, const QString &reason = {});
    void showWaiting();
    void save();
    void stop();
    qint64 firstOpen() const;

    TileDownloadJob m_job;
    const Config m_config;
    const TileServiceSetup m_setup;
    const TilePlan m_plan;
    std::unique_ptr<TileSink> m_sink;
    TileFetcher *m_fetcher = nullptr;
    QTimer m_reportTimer{this};
    QTimer m_saveTimer{this};
    QTimer m_fillTimer{this};
    QHash<TileIndex, qint64> m_positions; // of the tiles asked for
    std::set<qint64> m_open; // the same positions in order
    qint64 m_next = 0; // the first position not looked at
    TileDownloadProgress m_progress;
};
