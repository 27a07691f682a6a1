#include "tile_download/tile_trial.h"

#include "tiles/mb_tiles_reader.h"
#include "tiles/tile_fetcher.h"
#include "tiles/tile_geometry.h"
#include "tiles/tile_image.h"
#include "tiles/tile_providers.h"

#include <QLocale>

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

namespace {

// A level that every service has: some 150 km a tile.
constexpr int TrialLevel = 8;

// The tile at the centre of the display.
TileIndex trialTile(const TileRequest &request, const GeoCoordinate &centre)
{
    const int level = std::clamp(TrialLevel, request.minLevel, request.maxLevel);
    const QPoint tile =
        TileGeometry::pixelXYToTileXY(TileGeometry::latLongToPixelXY(centre.latitude(), centre.longitude(), level));
    return {tile.x(), tile.y(), static_cast<quint8>(level)};
}

} // namespace

TileTrial::TileTrial(QObject *parent) : QObject(parent)
{
    m_limit.setSingleShot(true);
    m_limit.setInterval(20s);
    connect(&m_limit, &QTimer::timeout, this, [this] { finish(tr("No answer came within 20 seconds.")); });
}

TileTrial::~TileTrial() = default;

void TileTrial::start(TileService service, const Config &config)
{
    delete m_fetcher;
    m_fetcher = nullptr;
    const TileServiceSetup setup = tileServiceSetup(service, config);
    QString words = setup.request.problem;
    if (!setup.archive.isEmpty()) {
        words = tryArchive(setup.archive);
    }
    if (!words.isEmpty()) {
        QTimer::singleShot(0, this, [this, words] { finish(words); });
        return;
    }
    m_fetcher = new TileFetcher(setup.request, this);
    ask(config);
}

QString TileTrial::tryArchive(const QString &path)
{
    MbTilesReader reader;
    if (!reader.open(path)) {
        return reader.error();
    }
    return tr("The file holds tiles of the levels %1 to %2.")
        .arg(reader.metadata().minLevel)
        .arg(reader.metadata().maxLevel);
}

void TileTrial::ask(const Config &config)
{
    m_fetcher->setProxy(tileProxy(config).toNetworkProxy());
    m_fetcher->setConsent(true);
    connect(m_fetcher, &TileFetcher::received, this,
        [this](const TileIndex &, const QByteArray &octets) { noteReceived(octets); });
    connect(m_fetcher, &TileFetcher::unavailable, this, [this](const TileIndex &index, const TileAnswer &answer) {
        finish(answer.kind == TileAnswer::Missing ? tr("The service answers, but has no tile %1.").arg(index.toString())
                                                  : answer.message());
    });
    connect(m_fetcher, &TileFetcher::stateChanged, this, [this] {
        if (m_fetcher->paused()) {
            finish(m_fetcher->stateText());
        }
    });
    m_time.start();
    m_limit.start();
    m_fetcher->enqueue(trialTile(m_fetcher->request(), config.displayCenterCoordinate));
    m_fetcher->pump();
}

void TileTrial::noteReceived(const QByteArray &octets)
{
    QString error;
    const QImage image = decodeTileImage(octets, &error);
    finish(image.isNull() ? tr("An answer came, but it is no tile: %1").arg(error)
                          : tr("A tile of %1 x %2 pixels came after %3 s (%4).")
                                .arg(image.width())
                                .arg(image.height())
                                .arg(static_cast<double>(m_time.elapsed()) / 1000.0, 0, 'f', 2)
                                .arg(QLocale().formattedDataSize(octets.size())));
}

void TileTrial::finish(const QString &words)
{
    m_limit.stop();
    if (m_fetcher) {
        m_fetcher->disconnect(this);
        m_fetcher->deleteLater();
        m_fetcher = nullptr;
    }
    Q_EMIT finished(words);
}
