#include "app/config.h"
#include "geo/mercator_projector.h"
#include "tile_server.h"
#include "tiles/tile_providers.h"

#include <benchmark/benchmark.h>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QThread>

// What a view of 40 tiles costs the GUI thread: the processor time is that of this thread alone.

namespace {

constexpr int Level = 12;
constexpr int Columns = 8;
constexpr int Rows = 5;
constexpr int Tile = TileGeometry::TileSize;

// A tile service in a thread of its own, 50 ms away.
class Service {
public:
    Service()
    {
        m_thread.start();
        m_context.moveToThread(&m_thread);
        run([this] {
            m_server = std::make_unique<TileServer>();
            m_server->setLatency(50);
            m_address = m_server->address();
        });
    }
    ~Service()
    {
        run([this] { m_server.reset(); });
        m_thread.quit();
        m_thread.wait();
    }

    const QString &address() const { return m_address; }

private:
    void run(const std::function<void()> &work)
    {
        QMetaObject::invokeMethod(&m_context, work, Qt::BlockingQueuedConnection);
    }

    QThread m_thread;
    QObject m_context;
    std::unique_ptr<TileServer> m_server;
    QString m_address;
};

struct Terminal {
    explicit Terminal(const QString &server)
    {
        config.mapTileConsent = true;
        config.mapTileCacheDir = directory.filePath(QStringLiteral("cache"));
        config.mapOpenAipTileDir = directory.filePath(QStringLiteral("tiles"));
        config.mapOpenAipApiKey = QStringLiteral("key");
        config.mapOpenAipTileServer = server;
        start();
    }

    void start()
    {
        provider.reset(); // and with it what is in memory
        provider = makeTileProvider(TileService::OpenAip, config, &projector, stocks);
    }

    void show(int step)
    {
        const int x = (100 + step * Columns) % (4096 - Columns) * Tile;
        const int y = (100 + step * Columns / 4096 * Rows) * Tile;
        provider->requestTiles(TileGeometry::pixelXYToLatLong(x, y, Level),
            TileGeometry::pixelXYToLatLong(x + Columns * Tile - 2, y + Rows * Tile - 2, Level),
            TileGeometry::Circumference / double(Tile << Level) * 1.000001);
    }

    // Until the view is there; the longest that the event loop was busy goes up to longest.
    void settle(double &longest)
    {
        while (!provider->settled()) {
            QThread::usleep(200);
            QElapsedTimer timer;
            timer.start();
            QCoreApplication::processEvents();
            longest = std::max(longest, 1e-6 * double(timer.nsecsElapsed()));
        }
    }

    QTemporaryDir directory;
    Config config;
    MercatorProjector projector;
    TileStocks stocks;
    std::unique_ptr<TileProvider> provider;
};

void unchangedView(benchmark::State &state)
{
    const Service service;
    Terminal terminal(service.address());
    double longest = 0.0;
    terminal.show(0);
    terminal.settle(longest);
    for (auto _ : state) {
        terminal.show(0);
    }
}

void viewFromService(benchmark::State &state)
{
    const Service service;
    Terminal terminal(service.address());
    double longest = 0.0;
    int step = 0;
    for (auto _ : state) {
        terminal.show(step++);
        terminal.settle(longest);
    }
    state.counters["longest_ms"] = longest;
}

void viewFromFiles(benchmark::State &state)
{
    const Service service;
    Terminal terminal(service.address());
    double longest = 0.0;
    constexpr int Views = 10;
    for (int step = 0; step < Views; ++step) {
        terminal.show(step);
        terminal.settle(longest);
    }
    QThread::msleep(300); // the files are written behind the pictures
    longest = 0.0;
    int step = 0;
    for (auto _ : state) {
        if (step % Views == 0) {
            state.PauseTiming();
            terminal.start();
            state.ResumeTiming();
        }
        terminal.show(step++ % Views);
        terminal.settle(longest);
    }
    state.counters["longest_ms"] = longest;
}

BENCHMARK(unchangedView)->Unit(benchmark::kMicrosecond);
BENCHMARK(viewFromService)->Iterations(200)->Unit(benchmark::kMillisecond);
BENCHMARK(viewFromFiles)->Iterations(200)->Unit(benchmark::kMillisecond);

} // namespace
