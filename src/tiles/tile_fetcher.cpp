#include "tiles/tile_fetcher.h"

#include "tiles/tile_disk_cache.h"
#include "tiles/tile_image.h"

#include <QCoreApplication>
#include <QNetworkAccessManager>
#include <QNetworkReply>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr int MostConcurrent = 32;
constexpr int TransferTimeout = 20'000; // milliseconds without progress
constexpr int MostRedirects = 5;
constexpr int AbsentFor = 6 * 3600; // seconds
constexpr int FaultyFor = 600; // seconds
constexpr int SaidAgainAfter = 600; // seconds
constexpr int MostUnavailable = 50'000;
constexpr int MostSaid = 50;
constexpr int Patience = 2; // seconds for an answer that no view waits for any more

QString &userAgentContact()
{
    static QString contact;
    return contact;
}

bool sameHost(const QUrl &one, const QUrl &other)
{
    return one.host() == other.host() && one.port() == other.port() && one.scheme() == other.scheme();
}

bool noLessSafe(const QUrl &from, const QUrl &to)
{
    return to.scheme() == QLatin1String("https")
        || (to.scheme() == QLatin1String("http") && from.scheme() == QLatin1String("http"));
}

void giveUp(QNetworkReply *reply, const QString &reason)
{
    reply->setProperty(TileRefusal, reason);
    reply->abort();
}

} // namespace

QString tileUserAgent()
{
    const QString agent = QStringLiteral("Vyx Display/%1").arg(QCoreApplication::applicationVersion());
    const QString &contact = userAgentContact();
    return contact.isEmpty() ? agent : agent + QStringLiteral(" (+%1)").arg(contact);
}

void setTileUserAgentContact(const QString &contact)
{
    userAgentContact() = contact.simplified();
}

TileFetcher::TileFetcher(const TileRequest &request, QObject *parent) : QObject(parent), m_request(request)
{
    m_pacingTimer.setSingleShot(true);
    connect(&m_pacingTimer, &QTimer::timeout, this, &TileFetcher::pump);
}

TileFetcher::~TileFetcher()
{
    clear();
}

// A terminal that never asks a service does not pay for being able to.
QNetworkAccessManager &TileFetcher::network()
{
    if (!m_network) {
        m_network = new QNetworkAccessManager(this);
        setProxy(m_proxy);
        setCacheDirectory(m_cacheDirectory);
    }
    return *m_network;
}

void TileFetcher::setProxy(const QNetworkProxy &proxy)
{
    m_proxy = proxy;
    if (m_network) {
        m_network->setProxy(proxy);
    }
}

void TileFetcher::setCacheDirectory(const QString &directory)
{
    m_cacheDirectory = directory;
    if (m_network) {
        const QString own = directory + u'/' + tileServiceIdentifier(m_request.service);
        m_network->setCache(directory.isEmpty() ? nullptr : new TileDiskCache(own));
    }
}

void TileFetcher::setMaxConcurrentRequests(int count)
{
    m_maxConcurrent = std::clamp(count, 1, MostConcurrent);
}

void TileFetcher::setConsent(bool given)
{
    m_consent = given;
    if (!given) {
        clear();
    }
    Q_EMIT stateChanged();
}

void TileFetcher::enqueue(const TileIndex &index)
{
    if (const auto sent = m_inFlight.find(index); sent != m_inFlight.end()) {
        sent->wanted = true;
    } else if (index.onMap() && canAsk() && !isMissing(index)) {
        m_queue.insert(index);
    }
}

void TileFetcher::keepOnly(const QSet<TileIndex> &wanted)
{
    m_queue.intersect(wanted);
    const QDateTime longAgo = m_pacing.now().addSecs(-Patience);
    for (auto sent = m_inFlight.begin(); sent != m_inFlight.end();) {
        sent->wanted = wanted.contains(sent.key());
        if (!sent->wanted && sent->since <= longAgo) {
            forget(*sent);
            sent = m_inFlight.erase(sent);
        } else {
            ++sent;
        }
    }
}

void TileFetcher::forget(const InFlight &request)
{
    request.reply->disconnect(this);
    request.reply->abort();
    request.reply->deleteLater();
}

double TileFetcher::distance(const TileIndex &index) const
{
    if (m_centres.isEmpty()) {
        constexpr double Beyond = 1 << (TileIndex::MaxLevel + 1); // columns and rows
        return (index.level * Beyond + index.y) * Beyond + index.x;
    }
    double nearest = std::numeric_limits<double>::infinity();
    for (const auto &[level, place] : m_centres) {
        if (level == index.level) {
            const double columns = 1 << index.level;
            const double across = std::abs(index.x + 0.5 - place.x());
            const double dx = std::min(across, std::abs(columns - across));
            const double dy = index.y + 0.5 - place.y();
            nearest = std::min(nearest, dx * dx + dy * dy);
        }
    }
    return std::isfinite(nearest) ? nearest : 0.0;
}

void TileFetcher::pump()
{
    if (m_queue.isEmpty() || !canAsk()) {
        return;
    }
    if (const int delay = m_pacing.delay(); delay > 0) {
        m_pacingTimer.start(delay);
        return;
    }
    while (!m_queue.isEmpty() && m_inFlight.size() < m_maxConcurrent) {
        const auto toCentre = [this](const TileIndex &index) { return distance(index); };
        const TileIndex nearest = *std::ranges::min_element(m_queue, {}, toCentre);
        m_queue.remove(nearest);
        send(nearest, false);
    }
}

void TileFetcher::send(const TileIndex &index, bool pastCache)
{
    InFlight first;
    first.since = m_pacing.now();
    first.round = m_round;
    get(index, m_request.url(index), pastCache, first);
}

void TileFetcher::get(const TileIndex &index, const QUrl &url, bool pastCache, const InFlight &before)
{
    QNetworkRequest request(url);
    request.setHeader(
        QNetworkRequest::UserAgentHeader, m_request.userAgent.isEmpty() ? tileUserAgent() : m_request.userAgent);
    for (const auto &[name, value] : m_request.headers) {
        request.setRawHeader(name, value);
    }
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setTransferTimeout(TransferTimeout);
    if (pastCache) {
        request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    }
    QNetworkReply *reply = network().get(request);
    InFlight sent = before;
    sent.reply = reply;
    m_inFlight.insert(index, sent);
    connect(reply, &QNetworkReply::finished, this, [this, index, reply] { finish(index, reply); });
    connect(reply, &QNetworkReply::downloadProgress, this, [reply](qint64 received, qint64 total) {
        if (std::max(received, total) > MaxTileOctets) {
            giveUp(reply, tr("the answer is larger than a tile can be"));
        }
    });
}

// Headers of the settings may hold a key, which is nobody else's.
QString TileFetcher::refusal(const QUrl &from, const QUrl &target, int redirects) const
{
    if (redirects >= MostRedirects) {
        return tr("%1 redirects too often").arg(from.host());
    }
    if (!noLessSafe(from, target)) {
        return tr("%1 redirects to an insecure address").arg(from.host());
    }
    if (!m_request.headers.isEmpty() && !sameHost(from, target)) {
        return tr("%1 redirects to another server, which must not see the key").arg(from.host());
    }
    return {};
}

// True when the reply was a redirect, and has become another request.
bool TileFetcher::follow(const TileIndex &index, QNetworkReply *reply, const InFlight &request)
{
    const QUrl target = reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (target.isEmpty()) {
        return false;
    }
    const QUrl resolved = reply->url().resolved(target);
    const QString reason = refusal(reply->url(), resolved, request.redirects);
    if (!reason.isEmpty()) {
        reply->setProperty(TileRefusal, reason);
        return false;
    }
    InFlight next = request;
    ++next.redirects;
    get(index, resolved, true, next);
    return true;
}

void TileFetcher::finish(const TileIndex &index, QNetworkReply *reply)
{
    const InFlight request = m_inFlight.take(index);
    reply->deleteLater();
    if (follow(index, reply, request)) {
        return;
    }
    const TileAnswer answer = TileAnswer::of(reply);
    if (answer.kind == TileAnswer::ServiceError) {
        forgetCached(reply->url());
    }
    if (answer.fromCache && answer.kind == TileAnswer::ServiceError) {
        send(index, true); // what the cache holds was damaged
        return;
    }
    settle(index, answer, request);
    pump();
    if (m_inFlight.isEmpty() && m_queue.isEmpty()) {
        reportMissing();
        Q_EMIT idle();
    }
}

void TileFetcher::settle(const TileIndex &index, const TileAnswer &answer, const InFlight &request)
{
    switch (answer.kind) {
    case TileAnswer::Image:
        ++m_answers;
        m_answersAtFailure.remove(index);
        if (!answer.fromCache) {
            succeed(request.round);
        }
        Q_EMIT received(index, answer.octets);
        return;
    case TileAnswer::Missing:
        succeed(request.round);
        markUnavailable(index, answer);
        return;
    case TileAnswer::Malformed:
    case TileAnswer::ServiceError:
        complain(answer.message(), false);
        markUnavailable(index, answer);
        return;
    case TileAnswer::NetworkError:
        if (failsAlone(index)) {
            markUnavailable(index, answer);
            return;
        }
        break;
    case TileAnswer::Authentication:
    case TileAnswer::RateLimited:
        break;
    }
    if (request.wanted) {
        m_queue.insert(index);
    }
    pauseAfter(answer, request.round);
    complain(answer.message(), true);
}

// Whether others came since it failed before: then it is the tile and not the way to the service, which the others need
// not wait for.
bool TileFetcher::failsAlone(const TileIndex &index)
{
    if (m_answersAtFailure.size() > MostUnavailable) {
        m_answersAtFailure.clear();
    }
    const int before = m_answersAtFailure.value(index, m_answers);
    m_answersAtFailure.insert(index, m_answers);
    return before != m_answers;
}

// Requests that were under way together fail together; that is one failure.
void TileFetcher::pauseAfter(const TileAnswer &answer, int round)
{
    if (answer.kind == TileAnswer::Authentication) {
        m_pacing.blockAuthentication();
    } else if (round == m_round) {
        m_pacing.enterBackoff(answer.retryAfter);
    }
    if (round == m_round) {
        ++m_round;
    }
}

// What was sent before the last pause says nothing about the time after it.
void TileFetcher::succeed(int round)
{
    if (round != m_round || m_trouble.isEmpty()) {
        return;
    }
    m_pacing.resetBackoff();
    m_trouble.clear();
    if (std::exchange(m_disconnected, false)) {
        const QDateTime again = m_pacing.now().addSecs(SaidAgainAfter);
        for (QDateTime &until : m_said) {
            until = until.isNull() ? again : until;
        }
        Q_EMIT message(LogLevel::Info, tr("Tile service connection restored."));
    }
    Q_EMIT stateChanged();
}

// A line is said once while the connection is down, and otherwise once in ten minutes.
void TileFetcher::complain(const QString &text, bool connection)
{
    m_trouble = text;
    Q_EMIT stateChanged();
    const auto said = m_said.constFind(text);
    if (said != m_said.cend() && (said->isNull() || m_pacing.now() < *said)) {
        return;
    }
    if (m_said.size() >= MostSaid) {
        m_said.clear();
    }
    m_said.insert(text, connection ? QDateTime() : m_pacing.now().addSecs(SaidAgainAfter));
    m_disconnected = m_disconnected || connection;
    Q_EMIT message(LogLevel::Warning, text);
}

void TileFetcher::reject(const TileIndex &index, const QString &reason)
{
    TileAnswer answer;
    answer.kind = TileAnswer::ServiceError;
    answer.reason = reason;
    forgetCached(m_request.url(index));
    complain(answer.message(), false);
    markUnavailable(index, answer);
}

void TileFetcher::markUnavailable(const TileIndex &index, const TileAnswer &answer)
{
    forgetExpired();
    const bool absent = answer.kind == TileAnswer::Missing;
    m_unavailable.insert(index, {m_pacing.now().addSecs(absent ? AbsentFor : FaultyFor), absent});
    m_newlyAbsent += absent ? 1 : 0;
    Q_EMIT unavailable(index, answer);
}

void TileFetcher::forgetExpired()
{
    if (m_unavailable.size() < MostUnavailable) {
        return;
    }
    const QDateTime now = m_pacing.now();
    m_unavailable.removeIf([&now](const auto &entry) { return entry.value().until <= now; });
    if (m_unavailable.size() >= MostUnavailable) {
        m_unavailable.clear();
    }
}

bool TileFetcher::isMissing(const TileIndex &index) const
{
    const auto found = m_unavailable.constFind(index);
    return found != m_unavailable.cend() && m_pacing.now() < found->until;
}

int TileFetcher::missingCount() const
{
    const QDateTime now = m_pacing.now();
    return static_cast<int>(std::ranges::count_if(
        m_unavailable, [&now](const Unavailable &entry) { return entry.absent && now < entry.until; }));
}

QString TileFetcher::missingText(qsizetype count)
{
    return tr("%1 tiles are not available from the tile service (outside coverage or zoom limit).").arg(count);
}

void TileFetcher::reportMissing()
{
    if (std::exchange(m_newlyAbsent, 0) > 0) {
        Q_EMIT message(LogLevel::Info, missingText(missingCount()));
    }
}

void TileFetcher::clear()
{
    m_queue.clear();
    m_pacingTimer.stop();
    for (const InFlight &request : std::exchange(m_inFlight, {})) {
        forget(request);
    }
}

void TileFetcher::clearCache()
{
    if (QAbstractNetworkCache *cache = network().cache()) {
        cache->clear();
    }
}

void TileFetcher::forgetCached(const QUrl &url)
{
    if (QAbstractNetworkCache *cache = network().cache()) {
        cache->remove(url);
    }
}

void TileFetcher::resetBackoff()
{
    m_pacing.resetBackoff();
    pump();
}

void TileFetcher::resetAuthBlock()
{
    m_pacing.resetAuthBlock();
    pump();
}

QString TileFetcher::stateText() const
{
    if (!m_request.problem.isEmpty()) {
        return m_request.problem;
    }
    return m_consent ? m_trouble : tr("online maps have not been agreed to, so the service is not asked");
}
