#include "fetcher_rig.h"
#include "test_program.h"
#include "tiles/tile_image.h"

#include <QDirIterator>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr TileIndex Second{2, 2, 3};

ServerAnswer chunked(const QByteArray &body)
{
    ServerAnswer answer = TileServer::content(body);
    answer.chunked = true;
    return answer;
}

} // namespace

// Against a server on this machine, by the requests that it counts.
class TestTileFetcher : public QObject, FetcherRig {
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }
    void cleanup() { end(); }
    void fetches();
    void readsAnswersInPieces();
    void staysWithinTheLimit();
    void nearestFirst();
    void inOrderWithoutACentre();
    void failures_data();
    void failures();
    void isBlockedAfterRejection();
    void honoursRetryAfter();
    void countsRequestsTogetherAsOneFailure();
    void saysThatItIsBack();
    void letsNoTileHoldUpOthers();
    void givesUpSlowAnswersOfViewsLeft();
    void reportsMissingTilesOnce();
    void mendsItsCache();
    void cachesWholeAnswersOnly();
    void nothingLeavesWithoutConsent();
    void namesItself();
};

void TestTileFetcher::fetches()
{
    QByteArray octets;
    connect(m_fetcher.get(), &TileFetcher::received, this,
        [&](const TileIndex &, const QByteArray &came) { octets = came; });
    ask(First);
    ask(First);
    QVERIFY(m_fetcher->holds(First));
    settle();
    QCOMPARE(m_received, QList{First});
    QCOMPARE(decodeTileImage(octets).pixelColor(5, 5), TileServer::colorOf(First));
    QCOMPARE(m_server->count(), 1);
    QCOMPARE(m_server->requests().first().headers.value("x-key"), QByteArray(Secret));
    QVERIFY(m_server->requests().first().headers.value("user-agent").startsWith("Vyx Display/"));
    QCOMPARE(m_log, QStringList());
}

void TestTileFetcher::readsAnswersInPieces()
{
    m_server->setAnswer(chunked(TileServer::tile(First)));
    QByteArray octets;
    connect(m_fetcher.get(), &TileFetcher::received, this,
        [&](const TileIndex &, const QByteArray &came) { octets = came; });
    ask(First);
    settle();
    QCOMPARE(octets, TileServer::tile(First));
}

void TestTileFetcher::staysWithinTheLimit()
{
    m_fetcher->setMaxConcurrentRequests(0);
    QCOMPARE(m_fetcher->maxConcurrentRequests(), 1);
    m_fetcher->setMaxConcurrentRequests(100);
    QCOMPARE(m_fetcher->maxConcurrentRequests(), 32);
    m_fetcher->setMaxConcurrentRequests(3);
    m_server->setLatency(10);
    for (int x = 0; x < 16; ++x) {
        m_fetcher->enqueue({x, 1, 4});
    }
    m_fetcher->pump();
    QTRY_COMPARE(m_received.size(), 16);
    QCOMPARE(m_server->mostConcurrent(), 3);
    QCOMPARE(m_server->count(), 16);
}

void TestTileFetcher::nearestFirst()
{
    m_fetcher->setMaxConcurrentRequests(1);
    m_fetcher->setCentres({{4, {0.0, 4.5}}});
    for (const int x : {7, 3, 15, 0, 1}) { // 15 is the neighbour of 0 beyond the 180th meridian
        m_fetcher->enqueue({x, 4, 4});
    }
    m_fetcher->pump();
    QTRY_COMPARE(m_received.size(), 5);
    QCOMPARE(m_received.at(4).x, 7);
    QCOMPARE(m_received.at(3).x, 3);
    QVERIFY(m_received.at(0).x == 0 || m_received.at(0).x == 15);
}

// As a download wants it, which keeps the place that it has come to.
void TestTileFetcher::inOrderWithoutACentre()
{
    m_fetcher->setMaxConcurrentRequests(1);
    const QList<TileIndex> order{{3, 1, 2}, {0, 2, 3}, {7, 2, 3}, {1, 3, 3}, {0, 0, 4}};
    for (const int i : {3, 1, 4, 0, 2}) {
        m_fetcher->enqueue(order[i]);
    }
    m_fetcher->pump();
    QTRY_COMPARE(m_received.size(), 5);
    QCOMPARE(m_received, order);
}

// What is said, and whether the tile is asked for again at once, after a while, or not at all.
void TestTileFetcher::failures_data()
{
    QTest::addColumn<ServerAnswer>("answer");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("kept"); // in the queue, to be asked again
    const auto host = QStringLiteral("127.0.0.1");
    const auto rejected = QStringLiteral("Tile service rejected the request (authentication failed): ");
    const auto limited = QStringLiteral("Tile service is rate limiting requests: ");
    const auto error = QStringLiteral("Tile service error: ");
    const auto row = [](const char *name, const ServerAnswer &answer, const QString &text, bool kept) {
        QTest::addRow("%s", name) << answer << text << kept;
    };
    row("400", TileServer::status(400), QStringLiteral("Request parameter error."), false);
    row("401", TileServer::status(401), rejected + "HTTP 401 Unauthorized from " + host, true);
    row("403", TileServer::status(403), rejected + "HTTP 403 Forbidden from " + host, true);
    row("404", TileServer::status(404),
        QStringLiteral("1 tiles are not available from the tile service (outside coverage or zoom limit)."), false);
    row("204", TileServer::status(204),
        QStringLiteral("1 tiles are not available from the tile service (outside coverage or zoom limit)."), false);
    row("429", TileServer::status(429), limited + "HTTP 429 Too Many Requests from " + host, true);
    row("503", TileServer::status(503, "5"), limited + "HTTP 503 Service Unavailable from " + host, true);
    row("500", TileServer::status(500), error + "HTTP 500 Internal Server Error from " + host, false);
    row("empty", TileServer::content({}), error + "an empty answer from " + host, false);
    row("a page", TileServer::content("<html>Log in</html>", "text/html"),
        error + "an answer from " + host + " that is no whole image", false);
    row("an image cut off by the service", TileServer::content(TileServer::tile(First).chopped(20)),
        error + "an answer from " + host + " that is no whole image", false);
    row("larger than a tile", TileServer::content(QByteArray(MaxTileOctets + 1, 'x')),
        error + "the answer is larger than a tile can be", false);
    row("larger than a tile, as is found meanwhile", chunked(QByteArray(MaxTileOctets + 1, 'x')),
        error + "the answer is larger than a tile can be", false);
    const QString closed =
        "Network error while requesting tiles: the connection was closed before the answer was complete (" + host + ')';
    ServerAnswer cutOff = TileServer::content(TileServer::tile(First));
    cutOff.cutOff = true;
    row("connection closed half way", cutOff, closed, true);
    cutOff.chunked = true;
    row("connection closed between pieces", cutOff, closed, true);
}

void TestTileFetcher::failures()
{
    QFETCH(ServerAnswer, answer);
    QFETCH(bool, kept);
    m_server->setAnswer(answer);
    ask(First);
    settle();
    QTEST(m_log.join(u'|'), "text");
    QCOMPARE(m_received.size(), 0);
    QCOMPARE(m_fetcher->queued(), kept ? 1 : 0);
    QCOMPARE(m_unavailable.size(), kept ? 0 : 1);
    QCOMPARE(m_fetcher->isMissing(First), !kept);
    ask(First);
    QVERIFY(quiet());
    QCOMPARE(m_server->count(), 1);
    if (!kept) {
        ask(Second); // others are still asked for
        QTRY_COMPARE(m_server->count(), 2);
        m_now = m_now.addDays(1);
        m_server->behave();
        ask(First);
        QTRY_VERIFY(m_received.contains(First));
    }
}

void TestTileFetcher::isBlockedAfterRejection()
{
    m_server->setAnswer(TileServer::status(401));
    ask(First);
    settle();
    m_server->behave();
    m_now = m_now.addSecs(TilePacing::AuthenticationBlock - 1);
    ask(Second);
    QVERIFY(quiet());
    QCOMPARE(m_server->count(), 1);
    QVERIFY(m_fetcher->paused());
    m_fetcher->resetAuthBlock();
    QTRY_COMPARE(m_received.size(), 2);
    QCOMPARE(m_fetcher->stateText(), QString());
}

void TestTileFetcher::honoursRetryAfter()
{
    m_server->setAnswer(TileServer::status(429, "Sun, 01 Mar 2026 12:01:00 GMT"));
    ask(First);
    settle();
    m_server->behave();
    m_now = m_now.addSecs(59);
    ask(Second);
    QVERIFY(quiet());
    QCOMPARE(m_server->count(), 1);
    m_now = m_now.addSecs(1);
    m_fetcher->pump();
    QTRY_COMPARE(m_received.size(), 2);
}

void TestTileFetcher::countsRequestsTogetherAsOneFailure()
{
    m_server->setAnswer(TileServer::status(429));
    m_server->setLatency(20);
    for (int x = 0; x < 6; ++x) {
        ask({x, 0, 4});
    }
    settle();
    QCOMPARE(m_server->count(), 6);
    QCOMPARE(m_fetcher->queued(), 6);
    QCOMPARE(m_log.size(), 1);
    m_now = m_now.addSecs(1); // the first delay, not the sixth
    m_server->behave();
    m_fetcher->pump();
    QTRY_COMPARE(m_received.size(), 6);
}

void TestTileFetcher::saysThatItIsBack()
{
    m_server->setAnswer(TileServer::status(429));
    for (int attempt = 0; attempt < 4; ++attempt) {
        ask(First);
        settle();
        m_now = m_now.addSecs(60);
    }
    QCOMPARE(m_server->count(), 4);
    QCOMPARE(m_log.size(), 1); // an outage is said once
    m_server->behave();
    m_fetcher->pump();
    QTRY_COMPARE(m_received.size(), 1);
    QCOMPARE(m_log.last(), QStringLiteral("Tile service connection restored."));
    QCOMPARE(m_fetcher->stateText(), QString());
    ask(Second);
    settle();
    QCOMPARE(m_log.size(), 2);
}

void TestTileFetcher::letsNoTileHoldUpOthers()
{
    ServerAnswer cutOff = TileServer::content(TileServer::tile(First));
    cutOff.cutOff = true;
    m_server->setAnswers([&](const QByteArray &target) {
        return TileServer::indexOf(target) == First ? std::optional(cutOff) : std::nullopt;
    });
    for (int x = 0; x < 5; ++x) {
        ask(First);
        ask({x, 7, 4});
        settle();
        m_now = m_now.addSecs(30);
    }
    m_fetcher->pump();
    settle();
    QCOMPARE(m_received.size(), 5);
    QCOMPARE(m_unavailable, QList{First});
    const auto asked = [](const TileServer::Request &request) { return TileServer::indexOf(request.target) == First; };
    QVERIFY(std::ranges::count_if(m_server->requests(), asked) <= 3);
}

void TestTileFetcher::givesUpSlowAnswersOfViewsLeft()
{
    ServerAnswer silent;
    silent.silent = true;
    m_server->setAnswer(silent);
    for (int x = 0; x < 6; ++x) {
        ask({x, 0, 4});
    }
    m_fetcher->keepOnly({First, {0, 0, 4}});
    QCOMPARE(m_fetcher->inFlight(), 6); // an answer may be on its way
    m_now = m_now.addSecs(2);
    m_fetcher->keepOnly({First, {0, 0, 4}});
    QCOMPARE(m_fetcher->inFlight(), 1);
    m_server->behave();
    ask(First);
    QTRY_VERIFY(m_received.contains(First));
    m_fetcher->clear();
}

void TestTileFetcher::reportsMissingTilesOnce()
{
    m_server->setAnswer(TileServer::status(404));
    for (int x = 0; x < 8; ++x) {
        ask({x, 0, 4});
    }
    QTRY_COMPARE(m_unavailable.size(), 8);
    QCOMPARE(m_log.join(u'|'),
        QStringLiteral("8 tiles are not available from the tile service (outside coverage or zoom limit)."));
    m_server->behave();
    ask({9, 0, 4});
    settle();
    QCOMPARE(m_log.size(), 1);
    QCOMPARE(m_fetcher->missingCount(), 8);
}

void TestTileFetcher::mendsItsCache()
{
    const QTemporaryDir directory;
    m_config.mapTileCacheDir = directory.path();
    make(m_server->tileTemplate());
    ServerAnswer lasting = TileServer::content(TileServer::tile(First));
    lasting.headers.append(qMakePair(QByteArray("Cache-Control"), QByteArray("max-age=1000")));
    m_server->setAnswer(lasting);
    ask(First);
    settle();
    QString path;
    const auto written = [&] {
        QDirIterator files(directory.path(), {QStringLiteral("*.d")}, QDir::Files, QDirIterator::Subdirectories);
        path = files.hasNext() ? files.next() : QString();
        return !path.isEmpty();
    };
    QTRY_VERIFY(written());
    ask(First);
    settle();
    QCOMPARE(m_received.size(), 2);
    QCOMPARE(m_server->count(), 1); // the second came from the cache
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    file.seek(file.size() - 40);
    file.write(QByteArray(40, '\0')); // as after a crash
    file.close();
    make(m_server->tileTemplate());
    ask(First);
    settle();
    QCOMPARE(m_received.size(), 1);
    QCOMPARE(m_server->count(), 2);
    QCOMPARE(m_log, QStringList());
}

// What is given up half way, or no longer wanted, leaves nothing behind.
void TestTileFetcher::cachesWholeAnswersOnly()
{
    const QTemporaryDir directory;
    m_config.mapTileCacheDir = directory.path();
    make(m_server->tileTemplate());
    m_server->setAnswer(chunked(QByteArray(MaxTileOctets + 1, 'x')));
    ask(First);
    settle();
    m_server->setAnswer(TileServer::status(500));
    ask(Second);
    settle();
    m_server->behave();
    ask({3, 2, 3});
    QTRY_COMPARE(m_received.size(), 1);
    const auto files = [&] {
        QDirIterator found(directory.path(), QDir::Files, QDirIterator::Subdirectories);
        qint64 octets = 0;
        while (found.hasNext()) {
            found.next();
            octets += found.fileInfo().size();
        }
        return octets;
    };
    QTRY_VERIFY2(files() > 0 && files() < 10'000, qPrintable(QString::number(files())));
}

void TestTileFetcher::nothingLeavesWithoutConsent()
{
    m_config.mapTileConsent = false;
    make(m_server->tileTemplate());
    ask(First);
    QVERIFY(quiet());
    QCOMPARE(m_server->count(), 0);
    QVERIFY(!m_fetcher->stateText().isEmpty());
    m_fetcher->setConsent(true);
    ask(First);
    settle();
    QCOMPARE(m_received.size(), 1);
    m_server->setLatency(50);
    ask(Second);
    m_fetcher->setConsent(false);
    QCOMPARE(m_fetcher->inFlight(), 0);
}

void TestTileFetcher::namesItself()
{
    setTileUserAgentContact(QStringLiteral("ops@example.org\r\nX: y"));
    const QString agent = tileUserAgent();
    setTileUserAgentContact({});
    QVERIFY2(agent.endsWith(QLatin1String(" (+ops@example.org X: y)")), qPrintable(agent));
    QVERIFY(!tileUserAgent().contains(u'('));
}

VYX_TEST(TestTileFetcher)

#include "tst_tile_fetcher.moc"
