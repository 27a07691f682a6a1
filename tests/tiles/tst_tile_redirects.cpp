#include "fetcher_rig.h"
#include "test_program.h"

// To which other places a fetcher lets itself be sent, and what it tells them.
class TestTileRedirects : public QObject, FetcherRig {
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }
    void cleanup() { end(); }
    void followsRedirects_data();
    void followsRedirects();
    void keepsHeadersFromOtherServers();
    void staysOnSecureWays_data();
    void staysOnSecureWays();
    void distrustsUnknownServers();
};

void TestTileRedirects::followsRedirects_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<int>("requests");
    QTest::addColumn<bool>("arrives");
    QTest::addRow("elsewhere on the server") << "/moved/3/1/2.png" << 2 << true;
    QTest::addRow("a loop") << "/loop/3/1/2.png" << 6 << false;
    QTest::addRow("a file") << "file:///etc/passwd" << 1 << false;
}

void TestTileRedirects::followsRedirects()
{
    QFETCH(QString, target);
    QFETCH(int, requests);
    QFETCH(bool, arrives);
    m_server->setAnswers([&](const QByteArray &asked) -> std::optional<ServerAnswer> {
        return asked.startsWith("/moved") ? std::nullopt : std::optional(TileServer::redirect(target));
    });
    ask(First);
    settle();
    QVERIFY2(m_server->count() <= requests, qPrintable(QString::number(m_server->count())));
    QCOMPARE(m_received.size(), arrives ? 1 : 0);
    QCOMPARE(m_log.size(), arrives ? 0 : 1);
    QVERIFY(arrives || m_log.first().startsWith(QLatin1String("Tile service error: ")));
}

void TestTileRedirects::keepsHeadersFromOtherServers()
{
    TileServer other;
    m_server->setAnswer(
        TileServer::redirect(other.tileTemplate().replace(QLatin1String("{z}/{x}/{y}"), QLatin1String("3/1/2"))));
    ask(First);
    settle();
    QCOMPARE(other.count(), 0);
    m_config.mapCustomTileHeader.clear();
    make(m_server->tileTemplate());
    ask(First);
    settle();
    QCOMPARE(other.count(), 1);
    QCOMPARE(m_received.size(), 1);
}

void TestTileRedirects::staysOnSecureWays_data()
{
    using Transport = TileServer::Transport;
    QTest::addColumn<TileServer::Transport>("from");
    QTest::addColumn<TileServer::Transport>("to");
    QTest::addColumn<bool>("key");
    QTest::addColumn<QString>("refusal");
    const auto insecure = QStringLiteral("insecure address");
    QTest::addRow("from secure to insecure") << Transport::Tls << Transport::Plain << false << insecure;
    QTest::addRow("from secure to insecure, with a key") << Transport::Tls << Transport::Plain << true << insecure;
    QTest::addRow("from secure to secure") << Transport::Tls << Transport::Tls << false << QString();
    QTest::addRow("from secure to secure, with a key")
        << Transport::Tls << Transport::Tls << true << QStringLiteral("must not see the key");
    QTest::addRow("from insecure to secure") << Transport::Plain << Transport::Tls << false << QString();
}

// Redirects to another server.
void TestTileRedirects::staysOnSecureWays()
{
    QFETCH(TileServer::Transport, from);
    QFETCH(TileServer::Transport, to);
    QFETCH(bool, key);
    QFETCH(QString, refusal);
    QVERIFY(TileServer::hasTls());
    TileServer::setTrusted(true);
    TileServer first(from);
    TileServer second(to);
    first.setAnswer(TileServer::redirect(second.address() + QStringLiteral("/3/1/2.png")));
    if (!key) {
        m_config.mapCustomTileHeader.clear();
    }
    make(first.tileTemplate());
    ask(First);
    settle();
    TileServer::setTrusted(false);
    QCOMPARE(first.count(), 1);
    QCOMPARE(second.count(), refusal.isEmpty() ? 1 : 0);
    QCOMPARE(m_received.size(), second.count());
    QVERIFY2(refusal.isEmpty() ? m_log.isEmpty() : m_log.join(u'|').contains(refusal), qPrintable(m_log.join(u'|')));
}

void TestTileRedirects::distrustsUnknownServers()
{
    QVERIFY(TileServer::hasTls());
    TileServer stranger(TileServer::Transport::Tls);
    make(stranger.tileTemplate());
    ask(First);
    settle();
    QCOMPARE(stranger.count(), 0); // nor has it seen the key
    QCOMPARE(
        m_log, QStringList{"Network error while requesting tiles: no secure connection could be made (127.0.0.1)"});
}

VYX_TEST(TestTileRedirects)

#include "tst_tile_redirects.moc"
