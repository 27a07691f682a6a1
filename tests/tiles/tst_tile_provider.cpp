#include "app/config.h"
#include "geo/mercator_projector.h"
#include "test_program.h"
#include "tile_server.h"
#include "tiles/mb_tiles_writer.h"
#include "tiles/tile_fetcher.h"
#include "tiles/tile_providers.h"

#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

namespace {

// A rectangle on a map of 256 << level pixels.
struct ViewBox {
    QRect pixels;
    int level = 6;

    GeoCoordinate topLeft() const { return TileGeometry::pixelXYToLatLong(pixels.left(), pixels.top(), level); }
    GeoCoordinate bottomRight() const { return TileGeometry::pixelXYToLatLong(pixels.right(), pixels.bottom(), level); }
    double resolution() const { return TileGeometry::Circumference / double(256 << level) * 1.0000001; }
    void show(TileProvider &provider) const { provider.requestTiles(topLeft(), bottomRight(), resolution()); }
    QSet<TileIndex> tiles() const
    {
        const auto all = TileGeometry::tilesCovering(topLeft(), bottomRight(), level).tiles();
        return {all.begin(), all.end()};
    }
};

constexpr ViewBox Home{QRect(5000, 5000, 700, 500), 6};

bool shows(const TileProvider &provider, const ViewBox &view)
{
    return std::ranges::all_of(view.tiles(), [&](const TileIndex &index) {
        const QImage image = provider.image(index);
        return !image.isNull() && image.pixelColor(0, 0) == TileServer::colorOf(index);
    });
}

// The middle of level n is the same place as the middle of level n + 1.
ViewBox panned(const ViewBox &view, int step)
{
    ViewBox next = view;
    if (step % 10 == 9) {
        next.level = view.level == 6 ? 7 : 6;
        const QPoint middle = next.level == 7 ? view.pixels.center() * 2 : view.pixels.center() / 2;
        next.pixels.moveCenter(middle);
    } else {
        next.pixels.translate(step % 40 < 20 ? 90 : -70, step % 3 == 0 ? 60 : -20);
    }
    return next;
}

} // namespace

class TestTileProvider : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void showsAView();
    void asksForNothingNeedless();
    void sharesWithOtherViews();
    void staysWithinItsMemory();
    void savesAndReadsFiles();
    void mendsFiles();
    void fallsBackToFiles();
    void asksNobodyWithoutConsent();
    void asksForNothingHidden();
    void refusesImagesThatCannotBeShown();
    void saysThatTheAreaIsNotCovered();
    void looksAcrossThe180thMeridian();
    void readsArchives();
    void refusesArchives_data();
    void refusesArchives();
    void coarsensWideViews();
    void hasLogos();

private:
    // With a memory of its own.
    std::unique_ptr<TileProvider> make(TileService service = TileService::OpenAip);
    bool saved(const TileProvider &provider, const ViewBox &view) const;

    std::unique_ptr<TileServer> m_server;
    std::unique_ptr<QTemporaryDir> m_directory;
    MercatorProjector m_projector;
    Config m_config;
    QStringList m_log;
};

void TestTileProvider::init()
{
    m_server = std::make_unique<TileServer>();
    m_directory = std::make_unique<QTemporaryDir>();
    m_log.clear();
    m_config = Config();
    m_config.mapTileConsent = true;
    m_config.mapTileCacheDir.clear();
    m_config.mapOpenAipApiKey = QStringLiteral("key");
    m_config.mapOpenAipTileServer = m_server->address();
    m_config.mapOpenAipTileDir = m_directory->path();
}

std::unique_ptr<TileProvider> TestTileProvider::make(TileService service)
{
    TileStocks stocks;
    auto provider = makeTileProvider(service, m_config, &m_projector, stocks);
    connect(
        provider.get(), &TileProvider::message, this, [this](LogLevel, const QString &text) { m_log.append(text); });
    return provider;
}

bool TestTileProvider::saved(const TileProvider &provider, const ViewBox &view) const
{
    return std::ranges::all_of(view.tiles(),
        [&](const TileIndex &index) { return QFile::exists(m_directory->path() + provider.tileFilePath(index)); });
}

void TestTileProvider::showsAView()
{
    const auto provider = make();
    const QSignalSpy changes(provider.get(), &TileProvider::tilesChanged);
    Home.show(*provider);
    QTRY_VERIFY(shows(*provider, Home));
    QTRY_VERIFY(!changes.isEmpty());
    QVERIFY(changes.size() < Home.tiles().size());
    QCOMPARE(m_server->count(), Home.tiles().size());
    QVERIFY(provider->settled());
    Home.show(*provider);
    ViewBox closer = Home;
    closer.pixels.translate(3, 3);
    closer.show(*provider);
    QTest::qWait(50);
    QCOMPARE(m_server->count(), Home.tiles().size());
    QCOMPARE(provider->stateText(), QString());
}

// While an operator pans and zooms through two hundred views, faster than the service answers.
void TestTileProvider::asksForNothingNeedless()
{
    m_server->setLatency(50);
    const auto provider = make();
    ViewBox view = Home;
    QSet<TileIndex> seen;
    int mostStale = 0;
    for (int step = 0; step < 200; ++step) {
        view = panned(view, step);
        view.show(*provider);
        QTest::qWait(5);
        int stale = 0;
        const QSet<TileIndex> wanted = view.tiles();
        for (const TileServer::Request &request : m_server->requests()) {
            const TileIndex index = *TileServer::indexOf(request.target);
            stale += !seen.contains(index) && !wanted.contains(index) ? 1 : 0;
            seen.insert(index);
        }
        mostStale = std::max(mostStale, stale);
    }
    QTRY_VERIFY(shows(*provider, view));
    QTRY_VERIFY(provider->settled());
    // What was in flight when the view changed may still arrive at the server after it.
    QVERIFY2(mostStale <= TileFetcher::DefaultConcurrentRequests, qPrintable(QString::number(mostStale)));
    QVERIFY(m_server->mostConcurrent() <= TileFetcher::DefaultConcurrentRequests);
    QCOMPARE(m_server->duplicatesInFlight(), 0);
    for (const TileServer::Request &request : m_server->requests()) {
        QCOMPARE(m_server->count(request.target), 1); // all of it is still in memory
    }
}

// Two views of one program that overlap, one of which moves on while the service takes its time.
void TestTileProvider::sharesWithOtherViews()
{
    m_server->setLatency(50);
    TileStocks stocks;
    auto first = makeTileProvider(TileService::OpenAip, m_config, &m_projector, stocks);
    const auto second = makeTileProvider(TileService::OpenAip, m_config, &m_projector, stocks);
    QSignalSpy firstLog(first.get(), &TileProvider::message);
    QSignalSpy secondLog(second.get(), &TileProvider::message);
    ViewBox aside = Home;
    aside.pixels.translate(300, 0);
    ViewBox far = Home;
    far.pixels.translate(4000, 4000);
    far.show(*first);
    aside.show(*second);
    Home.show(*first); // what is far is left before it was asked for, but for what was sent at once
    QTRY_VERIFY(shows(*first, Home) && shows(*second, aside));
    QVERIFY(m_server->mostConcurrent() <= TileFetcher::DefaultConcurrentRequests);
    QVERIFY(m_server->count() <= (Home.tiles() | aside.tiles()).size() + TileFetcher::DefaultConcurrentRequests);
    for (const TileServer::Request &request : m_server->requests()) {
        QCOMPARE(m_server->count(request.target), 1);
    }

    m_server->setAnswer(TileServer::status(503));
    m_server->forgetRequests();
    far.show(*first);
    QTRY_COMPARE(firstLog.size(), 1); // once for all views
    const qsizetype asked = m_server->count();
    far.pixels.translate(1000, 0);
    far.show(*second); // the pause holds for it too
    QTest::qWait(80);
    QCOMPARE(m_server->count(), asked);
    QCOMPARE(secondLog.size(), 0);
    QVERIFY(!second->stateText().isEmpty());

    first.reset();
    Home.show(*second);
    QVERIFY(shows(*second, Home)); // what the other has left behind
    m_config.mapOpenAipApiKey = QStringLiteral("another");
    const auto third = makeTileProvider(TileService::OpenAip, m_config, &m_projector, stocks);
    QVERIFY(third->image(*Home.tiles().begin()).isNull());
}

void TestTileProvider::staysWithinItsMemory()
{
    constexpr qsizetype TileOctets = 16 * 16 * 4;
    constexpr qsizetype MostTiles = 2000;
    std::atomic<int> reads = 0;
    std::atomic<bool> onGuiThread = false;
    const auto stock = std::make_shared<TileStock>(TileStock::Source(), MostTiles * TileOctets);
    TileProvider provider(stock, &m_projector);
    QSet<TileIndex> shown;
    const auto read = [&](const TileIndex &index, QString *) {
        ++reads;
        onGuiThread = onGuiThread || QThread::currentThread() == qApp->thread();
        QImage image(16, 16, QImage::Format_RGB32);
        image.fill(TileServer::colorOf(index));
        return image;
    };
    stock->useArchive({[read]() -> TileLoader::Read { return read; }, 1, 23, {}, {}});
    ViewBox view{QRect(256, 256 * 40, 256 * 32 - 2, 256 * 32 - 2), 12};
    while (reads < 100'000) {
        view.show(provider);
        while (!provider.settled()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        QVERIFY(shows(provider, view));
        shown += view.tiles();
        shown.removeIf([&stock](const TileIndex &index) { return !stock->holds(index); });
        QVERIFY(shown.size() <= MostTiles);
        view.pixels.translate(256 * 32, 0);
    }
    QVERIFY(!onGuiThread);
}

void TestTileProvider::savesAndReadsFiles()
{
    auto provider = make();
    Home.show(*provider);
    QTRY_VERIFY(shows(*provider, Home));
    QTRY_VERIFY(saved(*provider, Home));
    m_server->forgetRequests();
    m_config.mapOpenAipOfflineOnly = true;
    m_config.mapTileConsent = false; // files need none
    provider = make();
    Home.show(*provider);
    QTRY_VERIFY(shows(*provider, Home));
    QTRY_COMPARE(provider->stateText(), QString());
    ViewBox elsewhere = Home;
    elsewhere.pixels.translate(2000, 2000);
    elsewhere.show(*provider);
    QTRY_VERIFY(provider->stateText().contains(QLatin1String("no tiles of this view are saved")));
    QCOMPARE(m_server->count(), 0);

    m_config = Config(m_config);
    m_config.mapOpenAipOfflineOnly = false;
    m_config.mapOpenAipOfflinePriority = false;
    m_config.mapOpenAipSaveTileFiles = false;
    m_config.mapTileConsent = true;
    provider = make();
    elsewhere.show(*provider);
    Home.show(*provider);
    QTRY_VERIFY(shows(*provider, Home));
    QVERIFY(m_server->count() >= Home.tiles().size()); // the service goes before the files
    QTest::qWait(50);
    for (const TileIndex &index : elsewhere.tiles()) {
        QVERIFY(!QFile::exists(m_directory->path() + provider->tileFilePath(index)));
    }
}

void TestTileProvider::mendsFiles()
{
    auto provider = make();
    Home.show(*provider);
    QTRY_VERIFY(shows(*provider, Home));
    const TileIndex index = *Home.tiles().begin();
    const QString path = m_directory->path() + provider->tileFilePath(index);
    QTRY_VERIFY(saved(*provider, Home));
    QVERIFY(QFile::resize(path, QFileInfo(path).size() / 2)); // as a crash may leave it
    m_server->forgetRequests();
    provider = make();
    Home.show(*provider);
    QTRY_VERIFY(shows(*provider, Home));
    QCOMPARE(m_server->count(), 1);
    QTRY_COMPARE(QFileInfo(path).size(), TileServer::tile(index).size());
}

// The service goes before the files, but it cannot be reached.
void TestTileProvider::fallsBackToFiles()
{
    auto provider = make();
    Home.show(*provider);
    QTRY_VERIFY(shows(*provider, Home));
    QTRY_VERIFY(saved(*provider, Home));
    m_config.mapOpenAipOfflinePriority = false;
    m_server->setAnswer(TileServer::status(503, "60"));
    m_server->forgetRequests();
    provider = make();
    Home.show(*provider);
    QTRY_VERIFY(shows(*provider, Home));
    QVERIFY(m_server->count() <= TileFetcher::DefaultConcurrentRequests);
    QCOMPARE(m_log.size(), 1);
    ViewBox elsewhere = Home;
    elsewhere.pixels.translate(2000, 2000);
    elsewhere.show(*provider);
    QTRY_VERIFY(provider->stateText().contains(QLatin1String("rate limiting")));
}

void TestTileProvider::asksNobodyWithoutConsent()
{
    m_config.mapTileConsent = false;
    const auto provider = make();
    const QSignalSpy states(provider.get(), &TileProvider::stateChanged);
    Home.show(*provider);
    QTRY_COMPARE(states.size(), 1);
    QVERIFY(provider->stateText().contains(QLatin1String("agreed")));
    QVERIFY(provider->stateText().startsWith(QLatin1String("OpenAIP: ")));
    QCOMPARE(m_server->count(), 0);
    provider->setConsent(true);
    QTRY_VERIFY(shows(*provider, Home));
    QTRY_COMPARE(provider->stateText(), QString());
}

void TestTileProvider::asksForNothingHidden()
{
    m_config.mapTileVisible = false;
    const auto provider = make();
    Home.show(*provider);
    QTest::qWait(50);
    QCOMPARE(m_server->count(), 0);
    QCOMPARE(provider->stateText(), QString());
    provider->setVisible(true);
    QTRY_VERIFY(shows(*provider, Home));
    m_server->forgetRequests();
    provider->setEnabled(false);
    ViewBox elsewhere = Home;
    elsewhere.pixels.translate(2000, 2000);
    elsewhere.show(*provider);
    QTest::qWait(50);
    QCOMPARE(m_server->count(), 0);
}

void TestTileProvider::refusesImagesThatCannotBeShown()
{
    m_server->setAnswer(TileServer::content(TileServer::bomb()));
    const auto provider = make();
    Home.show(*provider);
    QTRY_VERIFY(provider->settled() && m_server->count() == Home.tiles().size());
    QTRY_VERIFY(provider->isMissing(*Home.tiles().begin()));
    Home.show(*provider);
    QTest::qWait(50);
    QCOMPARE(m_server->count(), Home.tiles().size());
    QCOMPARE(m_log, QStringList{QStringLiteral("Tile service error: the image is too large: 30000 x 30000 pixels")});
    QVERIFY(!QFile::exists(m_directory->path() + provider->tileFilePath(*Home.tiles().begin())));
}

void TestTileProvider::saysThatTheAreaIsNotCovered()
{
    m_server->setAnswer(TileServer::status(404));
    const auto provider = make();
    Home.show(*provider);
    QTRY_VERIFY(provider->stateText().contains(QStringLiteral("%1 tiles are not available").arg(Home.tiles().size())));
    QCOMPARE(m_log.size(), 1);
    Home.show(*provider);
    QTest::qWait(50);
    QCOMPARE(m_server->count(), Home.tiles().size());
}

void TestTileProvider::looksAcrossThe180thMeridian()
{
    const auto provider = make();
    const double edge = m_projector.Projector::toCartesian(0.0, 180.0).x();
    provider->requestView({edge - 400'000.0, 3e5}, {edge + 400'000.0, -3e5}, 2000.0);
    const quint8 level = static_cast<quint8>(provider->levelFor(2000.0));
    const int last = (1 << level) - 1;
    QTRY_VERIFY(!provider->image({0, last / 2, level}).isNull() && !provider->image({last, last / 2, level}).isNull());
    QTRY_VERIFY(provider->settled());
    QVERIFY(m_server->count() < 20);
}

void TestTileProvider::readsArchives()
{
    const QString path = m_directory->filePath(QStringLiteral("site.mbtiles"));
    MbTilesWriter writer;
    MbTilesMetadata metadata;
    metadata.attribution = QStringLiteral("&copy; <a href=\"http://x\">The site</a>");
    QVERIFY(writer.open(path, metadata, MbTilesWriter::Start::Anew));
    for (const TileIndex &index : Home.tiles()) {
        QVERIFY(writer.put(index, TileServer::tile(index)));
    }
    QVERIFY(writer.finish());
    m_config.mapTileConsent = false;
    m_config.mapCustomTileFile = path;
    m_config.mapCustomTileUrl = m_server->tileTemplate();
    const auto provider = make(TileService::Custom);
    Home.show(*provider);
    QTRY_VERIFY(shows(*provider, Home));
    QCOMPARE(provider->minLevel(), 6);
    QCOMPARE(provider->maxLevel(), 6);
    QCOMPARE(provider->copyright(), QStringLiteral("© The site"));
    QCOMPARE(provider->stateText(), QString());
    QCOMPARE(m_server->count(), 0);
}

void TestTileProvider::refusesArchives_data()
{
    QTest::addColumn<QByteArray>("octets");
    QTest::addRow("absent") << QByteArray();
    QTest::addRow("another file") << QByteArray("PNG or so");
}

void TestTileProvider::refusesArchives()
{
    QFETCH(QByteArray, octets);
    m_config.mapCustomTileFile = m_directory->filePath(QStringLiteral("site.mbtiles"));
    if (!octets.isEmpty()) {
        QFile file(m_config.mapCustomTileFile);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(octets);
    }
    const auto provider = make(TileService::Custom);
    Home.show(*provider);
    QTRY_VERIFY(provider->stateText().contains(QLatin1String("site.mbtiles")));
    QCOMPARE(m_log.size(), 1);
    QCOMPARE(m_server->count(), 0);
}

void TestTileProvider::coarsensWideViews()
{
    m_config.mapFaaTileServer = m_server->address();
    m_config.mapFaaTileDir = m_directory->path();
    const auto faa = make(TileService::Faa);
    faa->requestTiles({60.0, -170.0}, {10.0, 170.0}, 50'000.0); // its coarsest level has thousands of tiles there
    QTRY_VERIFY(faa->stateText().contains(QLatin1String("wide")));
    QTest::qWait(50);
    QCOMPARE(m_server->count(), 0);
    const auto provider = make();
    m_server->setTileSide(16);
    provider->requestTiles({60.0, -170.0}, {10.0, 170.0}, 1000.0); // level 8, where there is a coarser one
    QTRY_VERIFY_WITH_TIMEOUT(m_server->count() > 0 && provider->settled(), 20'000);
    QVERIFY(m_server->count() <= TileProvider::MaxTilesPerView);
}

void TestTileProvider::hasLogos()
{
    m_config.mapTiandituApiKey = QStringLiteral("key");
    for (int service = 1; service <= 6; ++service) {
        const auto provider = make(static_cast<TileService>(service));
        for (const auto style : {TileProvider::LogoStyle::Light, TileProvider::LogoStyle::Dark}) {
            QCOMPARE(provider->styledLogo(style).height(), 40);
        }
        QVERIFY(provider->copyright().startsWith(QStringLiteral("Copyright %1 ").arg(QDate::currentDate().year())));
    }
    TileStocks stocks;
    QVERIFY(!makeTileProvider(TileService::None, m_config, &m_projector, stocks));
}

VYX_TEST(TestTileProvider)

#include "tst_tile_provider.moc"
