#include "tile_download/tile_downloader.h"

#include "app/crash_handler.h"

#include <QThread>

using State = TileDownloadProgress::State;

namespace {
constexpr int EndWaitMs = 2000;
}

TileDownloader::TileDownloader(QObject *parent) : QObject(parent)
{
    qRegisterMetaType<TileDownloadProgress>();
    m_progress.state = State::Finished;
}

TileDownloader::~TileDownloader()
{
    QThread *thread = m_thread;
    end();
    // The end of the program: what has come is written before it.
    if (thread) {
        thread->wait(EndWaitMs);
    }
}

void TileDownloader::start(const TileDownloadJob &job, const Config &config)
{
    end();
    m_thread = new QThread;
    m_thread->setObjectName(QStringLiteral("tiles"));
    m_download = new TileDownload(job, config);
    m_download->moveToThread(m_thread);
    m_progress = m_download->progress();
    connect(m_thread, &QThread::started, m_download, [] { prepareThreadForCrashHandler(); });
    connect(m_thread, &QThread::started, m_download, &TileDownload::start);
    connect(m_thread, &QThread::finished, m_download, &QObject::deleteLater);
    connect(m_thread, &QThread::finished, m_thread, &QObject::deleteLater);
    connect(m_download, &TileDownload::progressed, this, &TileDownloader::note);
    connect(m_download, &TileDownload::message, this, &TileDownloader::message);
    m_thread->start(QThread::LowPriority);
}

void TileDownloader::pause()
{
    if (m_download) {
        QMetaObject::invokeMethod(m_download, &TileDownload::pause, Qt::QueuedConnection);
    }
}

void TileDownloader::resume()
{
    if (m_download) {
        QMetaObject::invokeMethod(m_download, &TileDownload::resume, Qt::QueuedConnection);
    }
}

void TileDownloader::cancel()
{
    if (m_download) {
        QMetaObject::invokeMethod(m_download, &TileDownload::cancel, Qt::QueuedConnection);
    }
}

bool TileDownloader::active() const
{
    return m_progress.state == State::Running || m_progress.state == State::Paused
        || m_progress.state == State::Waiting;
}

void TileDownloader::note(const TileDownloadProgress &progress)
{
    m_progress = progress;
    if (progress.state == State::Finished || progress.state == State::Cancelled) {
        end();
    }
    Q_EMIT progressed(progress);
}

void TileDownloader::end()
{
    if (m_download) {
        m_download->disconnect(this);
    }
    if (m_thread) {
        m_thread->quit();
    }
    m_download = nullptr;
    m_thread = nullptr;
}
