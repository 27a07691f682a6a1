#include "settings/tile_config_page.h"

#include "app/app_paths.h"
#include "tile_download/tile_trial.h"
#include "tiles/tile_deployment.h"
#include "tiles/tile_providers.h"
#include "widgets/field_form.h"
#include "widgets/file_edit.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QUrl>

#include <algorithm>
#include <array>

namespace {

// Services that differ in settings; Map World has one set for its maps and their names.
constexpr std::array ServicesWithSettings{TileService::BingMaps, TileService::OpenAip, TileService::GoogleMaps,
    TileService::Tianditu, TileService::Faa, TileService::Custom};

TileService settingsOf(TileService service)
{
    return service == TileService::TiandituAnnotation ? TileService::Tianditu : service;
}

bool isWebAddress(const QString &text)
{
    const QUrl url(text, QUrl::TolerantMode);
    return !url.host().isEmpty() && (url.scheme() == QStringLiteral("http") || url.scheme() == QStringLiteral("https"));
}

} // namespace

TileConfigPage::TileConfigPage(QWidget *parent) : ConfigPage(tr("Map Tiles"), parent)
{
    addLayerRows();
    addServiceRows();
    addNetworkRows();
    form()->addStretch();
}

void TileConfigPage::addLayerRows()
{
    form()->addHeading(tr("Layers"));
    addSwitch(tr("Show map &tiles"), &Config::mapTileVisible,
        tr("Draws maps or pictures of the ground from a service or a file."));
    Choices<TileService> services;
    for (int i = static_cast<int>(TileService::None); i <= static_cast<int>(TileService::Custom); ++i) {
        const auto service = static_cast<TileService>(i);
        services.append({tileServiceName(service), service});
    }
    m_bottom = addChoice(tr("&Under the static maps:"), &Config::mapTileBottomLayerProvider, services,
        tr("Where the tiles come from that lie at the bottom of the picture."));
    addSwitch(tr("A second service &over the static maps"), &Config::mapTileTopLayerEnable,
        tr("For tiles that are transparent apart from names or airspaces."));
    addChoice(tr("O&ver the static maps:"), &Config::mapTileTopLayerProvider, services,
        tr("Where the tiles come from that lie over the static maps."));
    addNumber(tr("&Dim the lower tiles:"), &Config::mapTileDimming,
        tr("Towards the background colour, so that traffic stays in front."));
    addNumber(tr("Take out their &colour:"), &Config::mapTileDesaturation, tr("100 % leaves greys."));
}

void TileConfigPage::addServiceRows()
{
    form()->addHeading(tr("Services"));
    addSwitch(tr("Make &requests to tile services"), &Config::mapTileService,
        tr("Off: only tiles that are on this machine already are shown."));
    addSwitch(tr("&Agreed that services learn which area is looked at"), &Config::mapTileConsent,
        tr("No service is asked before this has been agreed to once."));
    m_shownService = new QComboBox;
    m_shownService->setObjectName(QStringLiteral("shownTileService"));
    for (const TileService service : ServicesWithSettings) {
        m_shownService->addItem(tileServiceName(service), static_cast<int>(service));
    }
    m_shownService->setToolTip(tr("The service whose settings stand below; this chooses no service."));
    form()->addField(tr("Settings o&f:"), m_shownService);
    addBingRows();
    addOpenAipRows();
    addGoogleRows();
    addTiandituRows();
    addFaaRows();
    addCustomRows();
    addTrialRow();
    connect(m_shownService, &QComboBox::currentIndexChanged, this, &TileConfigPage::showService);
    showService();
}

void TileConfigPage::addBingRows()
{
    m_service = TileService::BingMaps;
    ofService(addChoice<BingTileImagery>(tr("&Imagery:"), &Config::mapBingImagery,
        {{tr("Aerial"), BingTileImagery::Aerial}, {tr("Aerial with labels"), BingTileImagery::AerialLabel},
            {tr("Road"), BingTileImagery::Road}, {tr("Road, light"), BingTileImagery::RoadLite},
            {tr("Road, grey"), BingTileImagery::RoadGray}, {tr("Road, dark"), BingTileImagery::RoadDark}},
        tr("Which pictures of the service are shown.")));
    ofService(addText(tr("&Language and region:"), &Config::mapBingCulture, tr("Such as en-US or de-DE.")));
    addTileFileRows(&Config::mapBingTileDir, &Config::mapBingSaveTileFiles, &Config::mapBingOfflinePriority,
        &Config::mapBingOfflineOnly);
    addServerRow(&Config::mapBingTileServer);
}

void TileConfigPage::addOpenAipRows()
{
    m_service = TileService::OpenAip;
    ofService(addSecret(tr("&Key:"), &Config::mapOpenAipApiKey, tr("From your account at the service.")));
    addTileFileRows(&Config::mapOpenAipTileDir, &Config::mapOpenAipSaveTileFiles, &Config::mapOpenAipOfflinePriority,
        &Config::mapOpenAipOfflineOnly);
    addServerRow(&Config::mapOpenAipTileServer);
}

void TileConfigPage::addGoogleRows()
{
    m_service = TileService::GoogleMaps;
    ofService(addChoice<GoogleTileLayer>(tr("&Map:"), &Config::mapGoogleLayer,
        {{tr("Road"), GoogleTileLayer::Road}, {tr("Roads alone"), GoogleTileLayer::Hybrid},
            {tr("Terrain"), GoogleTileLayer::Terrain}, {tr("Satellite"), GoogleTileLayer::Satellite},
            {tr("Map with Terrain"), GoogleTileLayer::Standard},
            {tr("Satellite with Road"), GoogleTileLayer::SatelliteHybrid},
            {tr("Terrain with Road"), GoogleTileLayer::TerrainStandard}},
        tr("Which maps of the service are shown.")));
    ofService(addText(tr("&Language:"), &Config::mapGoogleHostLanguage, tr("Such as en or de.")));
    ofService(addText(tr("&Country:"), &Config::mapGoogleGeographyLocation, tr("Such as us or de.")));
    ofService(addSwitch(tr("Tiles of twice the resolution"), &Config::mapGoogleHiDpiTiles,
        tr("Sharper on fine screens, and four times as much to load.")));
    addTileFileRows(&Config::mapGoogleTileDir, &Config::mapGoogleSaveTileFiles, &Config::mapGoogleOfflinePriority,
        &Config::mapGoogleOfflineOnly);
    addServerRow(&Config::mapGoogleTileServer);
}

void TileConfigPage::addTiandituRows()
{
    m_service = TileService::Tianditu;
    ofService(addChoice<TiandituTileLayer>(tr("&Map:"), &Config::mapTiandituLayer,
        {{tr("Imagery"), TiandituTileLayer::Imagery}, {tr("Vector"), TiandituTileLayer::Vector},
            {tr("Terrain"), TiandituTileLayer::Terrain}},
        tr("Which maps of the service are shown.")));
    ofService(addSecret(tr("&Key:"), &Config::mapTiandituApiKey, tr("From your account at the service.")));
    addTileFileRows(&Config::mapTiandituTileDir, &Config::mapTiandituSaveTileFiles, &Config::mapTiandituOfflinePriority,
        &Config::mapTiandituOfflineOnly);
    addServerRow(&Config::mapTiandituTileServer);
}

void TileConfigPage::addFaaRows()
{
    m_service = TileService::Faa;
    ofService(addChoice<FaaTileChart>(tr("&Chart:"), &Config::mapFaaChart,
        {{tr("VFR sectional"), FaaTileChart::VfrSectional}, {tr("VFR terminal"), FaaTileChart::VfrTerminal},
            {tr("IFR area, low"), FaaTileChart::IfrAreaLow}, {tr("IFR high"), FaaTileChart::IfrHigh}},
        tr("Which charts of the service are shown.")));
    addTileFileRows(&Config::mapFaaTileDir, &Config::mapFaaSaveTileFiles, &Config::mapFaaOfflinePriority,
        &Config::mapFaaOfflineOnly);
    addServerRow(&Config::mapFaaTileServer);
}

void TileConfigPage::addCustomRows()
{
    m_service = TileService::Custom;
    auto *file = ofService(new FileEdit(tr("Select Tile File"), tr("MBTiles (*.mbtiles);;All files (*)")));
    file->setToolTip(tr("A file of tiles needs no network. It goes before the address."));
    form()->addField(tr("&File of tiles:"), file);
    bind<QString>(
        file, &Config::mapCustomTileFile, [file](const QString &path) { file->setPath(path); },
        [file] { return std::optional(AppPaths::storePath(file->path())); });
    m_template = ofService(addText(tr("&Address:"), &Config::mapCustomTileUrl,
        tr("Such as https://tiles.example/{z}/{x}/{y}.png. Placeholders: {z}, {x}, {y}, {-y} (counted from the south), "
           "{quadkey} and {s} (a, b or c).")));
    m_header = ofService(addSecret(
        tr("&Header:"), &Config::mapCustomTileHeader, tr("\"Name: value\", sent with each request, for a key.")));
    ofService(addNumber(tr("Deepest &level:"), &Config::mapCustomTileMaxLevel,
        tr("The deepest level that has tiles; closer views enlarge these.")));
}

void TileConfigPage::addTrialRow()
{
    m_trial = new TileTrial(this);
    auto *attempt = new QPushButton(tr("&Try"));
    attempt->setObjectName(QStringLiteral("tryTileService"));
    attempt->setAutoDefault(false);
    attempt->setToolTip(tr("Fetches one tile from this service with the values of this page."));
    m_trialWords = new QLabel;
    m_trialWords->setObjectName(QStringLiteral("trialWords"));
    m_trialWords->setTextFormat(Qt::PlainText);
    m_trialWords->setWordWrap(true);
    form()->addField(attempt);
    form()->addField(m_trialWords);
    connect(attempt, &QPushButton::clicked, this, &TileConfigPage::tryService);
    connect(m_trial, &TileTrial::finished, m_trialWords, &QLabel::setText);
}

void TileConfigPage::tryService()
{
    if (!validate()) {
        return;
    }
    Config entered = m_loaded;
    store(&entered);
    const auto service = static_cast<TileService>(m_shownService->currentData().toInt());
    if (m_barred && tileServiceSetup(service, entered).archive.isEmpty()) {
        m_trialWords->setText(tr("The demonstration asks no tile service, only files of tiles are shown."));
        return;
    }
    m_trialWords->setText(tr("Asking %1 ...").arg(m_shownService->currentText()));
    m_trial->start(service, entered);
}

QLineEdit *TileConfigPage::addText(const QString &label, QString Config::*member, const QString &toolTip)
{
    auto *field = new QLineEdit;
    field->setToolTip(toolTip);
    form()->addField(label, field);
    bind(field, member);
    return field;
}

// Shown as dots, and taken as typed: blanks may belong to it.
QLineEdit *TileConfigPage::addSecret(const QString &label, QString Config::*member, const QString &toolTip)
{
    auto *field = new QLineEdit;
    field->setEchoMode(QLineEdit::PasswordEchoOnEdit);
    field->setToolTip(toolTip);
    form()->addField(label, field);
    bind<QString>(
        field, member, [field](const QString &text) { field->setText(text); },
        [field] { return std::optional(field->text()); });
    return field;
}

FileEdit *TileConfigPage::addDirectory(const QString &label, QString Config::*member, const QString &toolTip)
{
    auto *field = new FileEdit(tr("Select Directory"), {});
    field->setToolTip(toolTip);
    field->setChoosingDirectory(true);
    form()->addField(label, field);
    bind<QString>(
        field, member, [field](const QString &path) { field->setPath(path); },
        [field] { return std::optional(AppPaths::storePath(field->path())); });
    return field;
}

void TileConfigPage::addTileFileRows(
    QString Config::*directory, bool Config::*save, bool Config::*priority, bool Config::*only)
{
    ofService(addSwitch(tr("&Keep tiles as files"), save,
        tr("Writes each tile that is loaded to the directory below, for times without a network.")));
    ofService(
        addDirectory(tr("Di&rectory of the files:"), directory, tr("Where tiles are kept for good, a file each.")));
    ofService(addSwitch(tr("Files before requests"), priority, tr("A tile that is there as a file is not requested.")));
    ofService(addSwitch(tr("Files only"), only, tr("The service is not asked.")));
}

void TileConfigPage::addServerRow(QString Config::*member)
{
    auto *field = ofService(
        addText(tr("Other &server:"), member, tr("Such as https://tiles.example:8443. Empty: the service's own.")));
    m_servers.append(field);
}

void TileConfigPage::addNetworkRows()
{
    form()->addHeading(tr("Network"));
    addDirectory(tr("Directory of the cac&he:"), &Config::mapTileCacheDir,
        tr("Where tiles are kept that have been loaded, up to a bound."));
    addSwitch(tr("Use a &proxy"), &Config::mapTileUseProxy, tr("Reaches the services through a SOCKS 5 proxy."));
    addText(tr("Proxy hos&t:"), &Config::mapTileProxyHostname, tr("Name or address of the proxy."));
    addNumber(tr("Proxy &port:"), &Config::mapTileProxyPort, tr("The TCP port of the proxy."));
    addText(tr("Proxy &user:"), &Config::mapTileProxyUser, tr("Empty for a proxy that asks for no name."));
    addSecret(tr("Proxy pass&word:"), &Config::mapTileProxyPassword,
        tr("Stands in the settings file as it is entered here."));
    addSwitch(tr("The proxy looks up host &names"), &Config::mapTileProxyHostnameLookup,
        tr("Off: this machine looks them up itself."));
}

void TileConfigPage::load(const Config &config)
{
    ConfigPage::load(config);
    m_loaded = config;
    for (const QLineEdit *field : m_servers + QList{m_template, m_header}) {
        m_loadedTexts[field] = field->text();
    }
    const int shown = m_shownService->findData(static_cast<int>(settingsOf(config.mapTileBottomLayerProvider)));
    m_shownService->setCurrentIndex(std::max(shown, 0));
}

QString TileConfigPage::context(const QWidget *field) const
{
    for (auto fields = m_serviceFields.cbegin(); fields != m_serviceFields.cend(); ++fields) {
        if (fields->contains(field)) {
            return tileServiceName(fields.key());
        }
    }
    return {};
}

QWidget *TileConfigPage::reveal(QWidget *field)
{
    for (auto fields = m_serviceFields.cbegin(); fields != m_serviceFields.cend(); ++fields) {
        if (fields->contains(field)) {
            m_shownService->setCurrentIndex(m_shownService->findData(static_cast<int>(fields.key())));
        }
    }
    return field;
}

void TileConfigPage::showService()
{
    const auto shown = static_cast<TileService>(m_shownService->currentData().toInt());
    for (auto fields = m_serviceFields.cbegin(); fields != m_serviceFields.cend(); ++fields) {
        for (QWidget *field : fields.value()) {
            form()->setRowVisible(field, fields.key() == shown);
        }
    }
    m_trialWords->clear();
}

bool TileConfigPage::validate()
{
    bool valid = validateCustom();
    for (QLineEdit *server : std::as_const(m_servers)) {
        valid &= checkServer(server);
    }
    showRefused();
    return valid;
}

// A note is of use only where it can be seen.
void TileConfigPage::showRefused()
{
    for (auto fields = m_serviceFields.cbegin(); fields != m_serviceFields.cend(); ++fields) {
        const bool refused = std::any_of(
            fields->begin(), fields->end(), [this](const QWidget *field) { return !form()->note(field).isEmpty(); });
        if (refused) {
            m_shownService->setCurrentIndex(m_shownService->findData(static_cast<int>(fields.key())));
            return;
        }
    }
}

bool TileConfigPage::validateCustom()
{
    const QString address = m_template->text().trimmed();
    const bool tiled = address.contains(QStringLiteral("{quadkey}"))
        || (address.contains(QStringLiteral("{z}")) && address.contains(QStringLiteral("{x}"))
            && (address.contains(QStringLiteral("{y}")) || address.contains(QStringLiteral("{-y}"))));
    const bool good = address.isEmpty() || !edited(m_template) || (tiled && isWebAddress(address));
    const bool headed = m_header->text().isEmpty() || !edited(m_header) || m_header->text().indexOf(u':') > 0;
    const bool addressed = form()->check(m_template,
        good ? QString() : tr("An address with http:// or https://, and {z}, {x} and {y} or {quadkey} in it."));
    return form()->check(m_header, headed ? QString() : tr("A name, a colon and a value.")) && addressed;
}

bool TileConfigPage::checkServer(QLineEdit *field)
{
    const QString address = field->text().trimmed();
    return form()->check(field,
        address.isEmpty() || !edited(field) || isWebAddress(address)
            ? QString()
            : tr("An address with http:// or https:// and a host."));
}

bool TileConfigPage::edited(const QLineEdit *field) const
{
    return field->text() != m_loadedTexts.value(field);
}
