#include "tile_download/tile_download.h"

#include "tile_download/tile_sink.h"
#include "tiles/tile_deployment.h"
#include "tiles/tile_fetcher.h"
#include "tiles/tile_image.h"
#include "tiles/tile_providers.h"

#include <chrono>

using namespace std::chrono_literals;
using State = TileDownloadProgress::State;

namespace {

// So many are looked up in one go; the next go is a turn of the event loop later.
constexpr int LooksAtOnce = 500;
// Queued beside those in flight, so that the line is never idle.
constexpr qsizetype Ahead = 16;

} // namespace

TileDownload::TileDownload(const TileDownloadJob &job, const Config &config, QObject *parent)
    : QObject(parent), m_job(job), m_config(config), m_setup(tileServiceSetup(job.service, config)), m_plan(job.plan()),
      m_next(job.position)
{
    m_progress.total = m_plan.count();
    m_progress.present = job.position;
    m_reportTimer.setInterval(250ms);
    m_saveTimer.setInterval(5s);
    m_fillTimer.setSingleShot(true);
    m_fillTimer.setInterval(0);
    connect(&m_reportTimer, &QTimer::timeout, this, [this] { Q_EMIT progressed(m_progress); });
    connect(&m_saveTimer, &QTimer::timeout, this, &TileDownload::save);
    connect(&m_fillTimer, &QTimer::timeout, this, &TileDownload::fill);
}

TileDownload::~TileDownload()
{
    if (m_progress.state != State::Finished && m_progress.state != State::Cancelled && m_sink) {
        save();
    }
}

void TileDownload::start()
{
    if (tileDeployment(m_job.service).bulkDownloadForbidden && !m_job.termsConfirmed) {
        return fail(tr("The terms of %1 forbid downloading its tiles in bulk.").arg(tileServiceName(m_job.service)));
    }
    if (!m_setup.request.problem.isEmpty()) {
        return fail(m_setup.request.problem);
    }
    QString error;
    m_sink = TileSink::create(m_setup, m_job.archive, m_job.position == 0);
    if (!m_sink->open(&error)) {
        m_sink.reset();
        return fail(error);
    }
    // No cache on disk: every tile comes once, and would drive out what views need.
    m_fetcher = new TileFetcher(m_setup.request, this);
    m_fetcher->setProxy(tileProxy(m_config).toNetworkProxy());
    m_fetcher->setConsent(m_config.mapTileConsent);
    connect(m_fetcher, &TileFetcher::received, this, &TileDownload::take);
    connect(m_fetcher, &TileFetcher::unavailable, this, &TileDownload::refuse);
    connect(m_fetcher, &TileFetcher::stateChanged, this, &TileDownload::showWaiting);
    connect(m_fetcher, &TileFetcher::message, this, &TileDownload::message);
    resume();
}

void TileDownload::resume()
{
    if (!m_fetcher || m_reportTimer.isActive()) {
        return;
    }
    setState(State::Running);
    m_reportTimer.start();
    m_saveTimer.start();
    m_fetcher->resetBackoff();
    m_fetcher->resetAuthBlock();
    for (auto asked = m_positions.cbegin(); asked != m_positions.cend(); ++asked) {
        m_fetcher->enqueue(asked.key());
    }
    fill();
}

void TileDownload::pause()
{
    if (m_progress.state == State::Running || m_progress.state == State::Waiting) {
        stop();
        save();
        setState(State::Paused);
    }
}

void TileDownload::cancel()
{
    if (m_progress.state == State::Finished || m_progress.state == State::Cancelled) {
        return;
    }
    stop();
    if (m_sink) {
        m_sink->discard();
    }
    TileDownloadJob::forget();
    setState(State::Cancelled);
}

// Looks for tiles that are to be asked for, until enough are on their way.
void TileDownload::fill()
{
    int looks = 0;
    while (m_next < m_plan.count() && m_open.size() < static_cast<std::size_t>(Ahead)) {
        if (++looks > LooksAtOnce) {
            m_fillTimer.start();
            break;
        }
        request(m_next++);
    }
    m_fetcher->pump();
    finishIfDone();
}

void TileDownload::request(qint64 position)
{
    const TileIndex index = m_plan.at(position);
    if (m_sink->holds(index)) {
        ++m_progress.present;
    } else if (index.level < m_setup.request.minLevel || index.level > m_setup.request.maxLevel
        || m_fetcher->isMissing(index)) {
        ++m_progress.unavailable;
    } else {
        m_positions.insert(index, position);
        m_open.insert(position);
        m_fetcher->enqueue(index);
    }
}

void TileDownload::take(const TileIndex &index, const QByteArray &octets)
{
    QString error;
    if (!isWholeTileImage(octets)) {
        return m_fetcher->reject(index, tr("what came is no image"));
    }
    if (!m_sink->put(index, octets, &error)) {
        return fail(error);
    }
    ++m_progress.fetched;
    m_progress.octets += octets.size();
    settle(index);
}

void TileDownload::refuse(const TileIndex &index)
{
    if (m_positions.contains(index)) {
        ++m_progress.unavailable;
        settle(index);
    }
}

void TileDownload::settle(const TileIndex &index)
{
    m_open.erase(m_positions.take(index));
    if (!m_fillTimer.isActive()) {
        m_fillTimer.start();
    }
}

void TileDownload::finishIfDone()
{
    if (m_next < m_plan.count() || !m_open.empty()) {
        return;
    }
    stop();
    QString error;
    if (!m_sink->finish(&error)) {
        return fail(error);
    }
    TileDownloadJob::forget();
    setState(State::Finished);
}

void TileDownload::fail(const QString &reason)
{
    stop();
    if (m_sink) {
        save();
    }
    Q_EMIT message(LogLevel::Warning, tr("Download of tiles stopped: %1").arg(reason));
    setState(State::Failed, reason);
}

void TileDownload::setState(State state, const QString &reason)
{
    m_progress.state = state;
    m_progress.reason = reason;
    Q_EMIT progressed(m_progress);
}

// The service rests after a failure and is asked again by itself.
void TileDownload::showWaiting()
{
    if (m_progress.state == State::Running || m_progress.state == State::Waiting) {
        const QString reason = m_fetcher->stateText();
        setState(m_fetcher->paused() || !m_fetcher->canAsk() ? State::Waiting : State::Running, reason);
    }
}

void TileDownload::save()
{
    QString error;
    if (!m_sink->flush(&error)) {
        Q_EMIT message(LogLevel::Warning, error);
        return;
    }
    m_job.position = firstOpen();
    if (!m_job.store()) {
        Q_EMIT message(LogLevel::Warning, tr("Cannot write %1.").arg(TileDownloadJob::stateFile()));
    }
}

// What is under way is given up; it stays open, for resume() to ask for again.
void TileDownload::stop()
{
    m_fillTimer.stop();
    m_reportTimer.stop();
    m_saveTimer.stop();
    if (m_fetcher) {
        m_fetcher->clear();
    }
}

qint64 TileDownload::firstOpen() const
{
    return m_open.empty() ? m_next : *m_open.begin();
}
