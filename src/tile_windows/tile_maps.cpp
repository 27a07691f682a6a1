#include "tile_windows/tile_maps.h"

#include "app/setting.h"
#include "display/geo_map_display.h"
#include "geo/projector.h"
#include "map_painting/geo_static_map.h"
#include "plan_view/geo_widget.h"
#include "tile_painting/geo_tile_map.h"
#include "tile_windows/tile_download_window.h"
#include "tiles/tile_deployment.h"
#include "tiles/tile_providers.h"
#include "widgets/window_opening.h"

#include <QMessageBox>

#include <algorithm>

namespace {

// Settings that a provider is made with; others are told to it.
bool makesProvider(const Setting &setting)
{
    constexpr std::array Told{"mapTileVisible", "mapTileService", "mapTileConsent"};
    return setting.groups() & SettingGroup::Tiles && !setting.themed()
        && std::ranges::none_of(Told, [&setting](const char *key) { return setting.key() == QLatin1String(key); });
}

bool sameProviders(const Config &one, const Config &other)
{
    return std::ranges::all_of(
        Setting::all(), [&](const Setting &setting) { return !makesProvider(setting) || setting.same(one, other); });
}

} // namespace

TileMaps::TileMaps(
    QWidget *window, GeoWidget *plan, Projector *projector, const std::shared_ptr<TileStocks> &stocks, Edit edit)
    : m_window(window), m_projector(projector), m_stocks(stocks), m_edit(std::move(edit))
{
    m_staticMap = plan->mapDisplay()->staticMap();
    m_bottom.map = plan->mapDisplay()->bottomTiles();
    m_top.map = plan->mapDisplay()->topTiles();
    connect(plan, &GeoWidget::viewRectChanged, this, [this](const QPoint &northWest, const QPoint &southEast) {
        m_northWest = northWest;
        m_southEast = southEast;
    });
    m_question = [this](const QString &services) {
        return QMessageBox::question(m_window, tr("Map Tiles"),
                   tr("The tiles come from %1, which learns by the requests which area is looked at and from where on "
                      "the network.\n\nAsk it from now on?")
                       .arg(services))
            == QMessageBox::Yes;
    };
}

TileMaps::~TileMaps()
{
    m_bottom.map->setProvider(nullptr);
    m_top.map->setProvider(nullptr);
}

void TileMaps::barServices()
{
    m_barred = true;
    applyConfig(m_config);
}

Config TileMaps::allowed() const
{
    Config config = m_config;
    config.mapTileService = config.mapTileService && !m_barred;
    return config;
}

void TileMaps::applyConfig(const Config &config)
{
    const bool anew = !sameProviders(config, m_config);
    m_config = config;
    give(m_bottom, config.mapTileBottomLayerProvider, anew);
    give(m_top, config.mapTileTopLayerEnable ? config.mapTileTopLayerProvider : TileService::None, anew);
    showLayers();
}

// Nothing of a layer is seen, not even whose it is, as long as it is not switched on. Where its tiles keep away the
// static maps are as they are without it.
void TileMaps::showLayers()
{
    m_bottom.map->setVisible(shown() && m_bottom.provider);
    m_top.map->setVisible(shown() && m_top.provider);
    m_staticMap->setOverTiles(m_bottom.map->visible() && m_bottom.provider->stateText().isEmpty());
    Q_EMIT changed();
}

void TileMaps::give(Layer &layer, TileService service, bool anew)
{
    if (anew || service != layer.service) {
        layer.map->setProvider(nullptr);
        layer.provider = makeTileProvider(service, allowed(), m_projector, *m_stocks);
        layer.service = service;
        if (layer.provider) {
            connect(layer.provider.get(), &TileProvider::message, this, &TileMaps::logMessage);
            connect(layer.provider.get(), &TileProvider::stateChanged, this, &TileMaps::showLayers);
        }
        layer.map->setProvider(layer.provider.get());
    }
    if (layer.provider) {
        layer.provider->setConsent(m_config.mapTileConsent);
        layer.provider->setEnabled(allowed().mapTileService);
    }
}

bool TileMaps::needsService(TileService service) const
{
    if (service == TileService::None) {
        return false;
    }
    const TileServiceSetup setup = tileServiceSetup(service, m_config);
    return setup.archive.isEmpty() && !setup.offlineOnly;
}

QString TileMaps::servicesToAsk() const
{
    QStringList names;
    for (const Layer *layer : {&m_bottom, &m_top}) {
        if (needsService(layer->service)) {
            names.append(tileServiceName(layer->service));
        }
    }
    names.removeDuplicates();
    return names.join(tr(" and "));
}

bool TileMaps::shown() const
{
    // Switched off by the operator, requests need no agreement: he sees what is on this machine.
    const bool agreed = !m_barred && (m_config.mapTileConsent || !m_config.mapTileService);
    return m_config.mapTileVisible && (m_bottom.provider || m_top.provider) && (agreed || servicesToAsk().isEmpty());
}

QString TileMaps::notice() const
{
    if (!shown()) {
        return {};
    }
    for (const Layer *layer : {&m_bottom, &m_top}) {
        const QString state = layer->provider ? layer->provider->stateText() : QString();
        if (!state.isEmpty()) {
            return tr("Map tiles: %1").arg(state);
        }
    }
    return {};
}

void TileMaps::show(bool on)
{
    if (on && !m_bottom.provider && !m_top.provider) {
        Q_EMIT logMessage(LogLevel::Info, tr("No tile service is chosen: see Map Tiles in the settings."));
    }
    const QString services = servicesToAsk();
    if (on && m_barred && !services.isEmpty()) {
        Q_EMIT logMessage(LogLevel::Info, tr("The demonstration asks no tile service, only files of tiles are shown."));
        Q_EMIT changed();
        return;
    }
    const bool agreed = m_config.mapTileConsent || !m_config.mapTileService || services.isEmpty();
    if (on && !agreed && !askConsent(services)) {
        Q_EMIT logMessage(LogLevel::Info, tr("No tiles are shown: no service is asked before that is agreed to."));
        Q_EMIT changed();
        return;
    }
    m_edit([on](Config &config) { config.mapTileVisible = on; });
    Q_EMIT changed(); // the action too, where nothing has changed
}

bool TileMaps::askConsent(const QString &services)
{
    if (m_question(services)) {
        m_edit([](Config &config) { config.mapTileConsent = true; });
        return true;
    }
    return false;
}

void TileMaps::showDownloadWindow()
{
    if (!m_downloads) {
        m_downloads = new TileDownloadWindow([this] { return m_config; }, m_window);
        m_downloads->setView([this] { return areaOfView(); });
        m_downloads->setConsent([this](TileService service) {
            if (m_barred) {
                return false;
            }
            return m_config.mapTileConsent || askConsent(tileServiceName(service));
        });
        connect(m_downloads, &TileDownloadWindow::message, this, &TileMaps::logMessage);
    }
    m_downloads->prepare();
    bringUp(m_downloads);
}

// Off the map, the map's edges.
TileArea TileMaps::areaOfView() const
{
    const auto corner = [this](const QPoint &point) {
        double latitude = 0.0;
        double longitude = 0.0;
        m_projector->toWgs84(&latitude, &longitude, point.x(), point.y());
        return GeoCoordinate(latitude, std::remainder(longitude, 360.0));
    };
    const GeoCoordinate northWest = corner(m_northWest);
    const GeoCoordinate southEast = corner(m_southEast);
    const auto latitude = [](const GeoCoordinate &place) {
        return std::clamp(place.latitude(), -TileGeometry::MaxLatitude, TileGeometry::MaxLatitude);
    };
    return {latitude(northWest), northWest.longitude(), latitude(southEast), southEast.longitude()};
}
