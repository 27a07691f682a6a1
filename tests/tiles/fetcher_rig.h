#pragma once

#include "app/config.h"
#include "tile_server.h"
#include "tiles/tile_fetcher.h"
#include "tiles/tile_providers.h"

#include <QDateTime>
#include <QStringList>
#include <QTest>

#include <memory>

// A fetcher with a secret in address and headers, and the server on this machine that it asks.
class FetcherRig {
protected:
    static constexpr TileIndex First{1, 2, 3};
    static constexpr char Secret[] = "s3cr3t";

    // Before each test, and after it.
    void begin();
    void end();
    void make(const QString &address);
    void ask(const TileIndex &index);
    void settle() { QTRY_COMPARE(m_fetcher->inFlight(), 0); }
    bool quiet() const;

    std::unique_ptr<TileServer> m_server;
    Config m_config;
    QDateTime m_now;
    QStringList m_log;
    QList<TileIndex> m_received;
    QList<TileIndex> m_unavailable;
    std::unique_ptr<TileFetcher> m_fetcher;
};

inline void FetcherRig::begin()
{
    m_server = std::make_unique<TileServer>();
    m_now = QDateTime(QDate(2026, 3, 1), QTime(12, 0), Qt::UTC);
    m_config = Config();
    m_config.mapTileConsent = true;
    m_config.mapTileCacheDir.clear();
    m_config.mapCustomTileHeader = QStringLiteral("X-Key: ") + QLatin1String(Secret);
    make(m_server->tileTemplate() + QStringLiteral("?key=") + QLatin1String(Secret));
}

inline void FetcherRig::make(const QString &address)
{
    m_log.clear();
    m_received.clear();
    m_unavailable.clear();
    m_config.mapCustomTileUrl = address;
    m_fetcher = std::make_unique<TileFetcher>(tileServiceSetup(TileService::Custom, m_config).request);
    m_fetcher->setProxy(tileProxy(m_config).toNetworkProxy());
    m_fetcher->setCacheDirectory(tileCacheDirectory(m_config));
    m_fetcher->setConsent(m_config.mapTileConsent);
    m_fetcher->setClock([this] { return m_now; });
    QObject::connect(m_fetcher.get(), &TileFetcher::message, m_fetcher.get(),
        [this](LogLevel, const QString &text) { m_log.append(text); });
    QObject::connect(m_fetcher.get(), &TileFetcher::received, m_fetcher.get(),
        [this](const TileIndex &index) { m_received.append(index); });
    QObject::connect(m_fetcher.get(), &TileFetcher::unavailable, m_fetcher.get(),
        [this](const TileIndex &index) { m_unavailable.append(index); });
}

// No text holds what the address or the headers keep secret.
inline void FetcherRig::end()
{
    for (const QString &line : m_log + QStringList{m_fetcher->stateText()}) {
        QVERIFY2(!line.contains(QLatin1String(Secret)) && !line.contains(u'?'), qPrintable(line));
    }
    m_fetcher.reset();
}

inline void FetcherRig::ask(const TileIndex &index)
{
    m_fetcher->enqueue(index);
    m_fetcher->pump();
}

// Nothing more comes by itself.
inline bool FetcherRig::quiet() const
{
    const qsizetype before = m_server->count();
    QTest::qWait(60);
    return m_server->count() == before;
}
