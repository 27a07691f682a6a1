#include "app/config.h"
#include "test_program.h"
#include "tiles/tile_providers.h"

#include <QTest>

namespace {

Config withKeys()
{
    Config config;
    config.mapOpenAipApiKey = QStringLiteral("openkey");
    config.mapTiandituApiKey = QStringLiteral("sky key");
    config.mapBingTileServer = QStringLiteral("http://h");
    config.mapOpenAipTileServer = QStringLiteral("http://h/");
    config.mapGoogleTileServer = QStringLiteral("http://h");
    config.mapTiandituTileServer = QStringLiteral("http://h");
    config.mapFaaTileServer = QStringLiteral("http://h/base");
    return config;
}

constexpr TileIndex Index{3, 5, 4};

} // namespace

class TestTileRequest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void asks_data();
    void asks();
    void hasAHostForEveryService();
    void tellsVariantsApart();
    void saysWhatIsMissing();
    void keepsHostileSettingsInPlace();
    void customTemplates_data();
    void customTemplates();
    void customHeaders_data();
    void customHeaders();
};

void TestTileRequest::asks_data()
{
    QTest::addColumn<TileService>("service");
    QTest::addColumn<int>("variant");
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("file");
    const auto bing = [](const char *name, int imagery, const QString &rest) {
        QTest::addRow("Bing %s", name) << TileService::BingMaps << imagery << "http://h/comp/ch/0213?mkt=en-US&" + rest
                                       << QStringLiteral("/%1/en-US/4/0213.jpeg").arg(QLatin1String(name));
    };
    QTest::addRow("Bing aerial") << TileService::BingMaps << 0 << "http://h/tiles/a0213.jpeg?g=13858"
                                 << "/aerial/4/0213.jpeg";
    bing("aerial-label", 1, "it=A,G,L&og=2290&n=z");
    bing("road", 2, "it=G,L&shading=hill&og=2290&n=z");
    bing("road-lite", 3, "it=G,L&cstl=WL&og=2290&n=z");
    bing("road-gray", 4, "it=G,L&cstl=CG&og=2290&n=z");
    bing("road-dark", 5, "it=G,L&cstl=WD&og=2290&n=z");
    QTest::addRow("OpenAIP") << TileService::OpenAip << 0 << "http://h/api/data/openaip/4/3/5.png"
                             << "/4/3/5.png";
    QTest::addRow("Google road") << TileService::GoogleMaps << 0 << "http://h/vt/lyrs=r&scale=2&x=3&y=5&z=4&hl=en&gl=us"
                                 << "/r/en/us/4/3/5@2x.png";
    QTest::addRow("Google hybrid") << TileService::GoogleMaps << 5
                                   << "http://h/vt/lyrs=y&scale=2&x=3&y=5&z=4&hl=en&gl=us"
                                   << "/y/en/us/4/3/5@2x.png";
    const auto tianditu = [](TileService service, const char *layer, int variant) {
        QTest::addRow("Tianditu %s", layer)
            << service << variant
            << QStringLiteral("http://h/%1_w/wmts?SERVICE=WMTS&REQUEST=GetTile&VERSION=1.0.0&LAYER=%1&STYLE=default"
                              "&TILEMATRIXSET=w&FORMAT=tiles&TILEMATRIX=4&TILEROW=5&TILECOL=3&tk=sky%20key")
                   .arg(QLatin1String(layer))
            << QStringLiteral("/%1/4/3/5.png").arg(QLatin1String(layer));
    };
    tianditu(TileService::Tianditu, "img", 0);
    tianditu(TileService::Tianditu, "vec", 1);
    tianditu(TileService::Tianditu, "ter", 2);
    tianditu(TileService::TiandituAnnotation, "cia", 0);
    tianditu(TileService::TiandituAnnotation, "cva", 1);
    tianditu(TileService::TiandituAnnotation, "cta", 2);
    const auto faa =
        [](const char *chart, const char *service, int variant) {
            QTest::addRow("FAA %s", chart)
                << TileService::Faa << variant
                << QStringLiteral("http://h/base/%1/MapServer/tile/4/5/3").arg(QLatin1String(service))
                << QStringLiteral("/%1/4/3/5.png").arg(QLatin1String(chart));
        };
    faa("vfr-sectional", "VFR_Sectional", 0);
    faa("vfr-terminal", "VFR_Terminal", 1);
    faa("ifr-area-low", "IFR_AreaLow", 2);
    faa("ifr-high", "IFR_High", 3);
}

void TestTileRequest::asks()
{
    QFETCH(TileService, service);
    QFETCH(int, variant);
    Config config = withKeys();
    config.mapBingImagery = static_cast<BingTileImagery>(variant);
    config.mapGoogleLayer = static_cast<GoogleTileLayer>(variant);
    config.mapTiandituLayer = static_cast<TiandituTileLayer>(variant);
    config.mapFaaChart = static_cast<FaaTileChart>(variant);
    const TileRequest request = tileServiceSetup(service, config).request;
    QCOMPARE(request.problem, QString());
    QTEST(QString::fromLatin1(request.url(Index).toEncoded()), "url");
    QTEST(request.filePath(Index), "file");
    QCOMPARE(request.url({16, 0, 4}), QUrl());
    QCOMPARE(request.filePath({0, 16, 4}), QString());
}

void TestTileRequest::hasAHostForEveryService()
{
    Config config;
    config.mapTiandituApiKey = config.mapOpenAipApiKey = QStringLiteral("key");
    for (int service = 1; service <= 6; ++service) {
        const TileRequest request = tileServiceSetup(static_cast<TileService>(service), config).request;
        QVERIFY2(request.url(Index).scheme() == QLatin1String("https"), qPrintable(request.server));
        QVERIFY(!request.url(Index).toString().contains(u'{'));
    }
}

// Images that differ must not share a file.
void TestTileRequest::tellsVariantsApart()
{
    Config config;
    const auto google = [&config] { return tileServiceSetup(TileService::GoogleMaps, config).request.filePath(Index); };
    QSet<QString> files{google()};
    config.mapGoogleHiDpiTiles = false;
    files.insert(google());
    config.mapGoogleHostLanguage = QStringLiteral("de");
    files.insert(google());
    config.mapGoogleGeographyLocation = QStringLiteral("at");
    files.insert(google());
    config.mapBingImagery = BingTileImagery::Road;
    const auto bing = [&config] { return tileServiceSetup(TileService::BingMaps, config).request.filePath(Index); };
    files.insert(bing());
    config.mapBingCulture = QStringLiteral("de-AT");
    files.insert(bing());
    QCOMPARE(files.size(), 6);
}

void TestTileRequest::saysWhatIsMissing()
{
    const Config config;
    const auto problem = [](TileService service, const Config &settings) {
        return tileServiceSetup(service, settings).request.problem;
    };
    QCOMPARE(problem(TileService::Tianditu, config), QStringLiteral("Map World API key is not configured."));
    QCOMPARE(problem(TileService::TiandituAnnotation, config), QStringLiteral("Map World API key is not configured."));
    QCOMPARE(problem(TileService::OpenAip, config), QStringLiteral("OpenAIP API key is not configured."));
    QVERIFY(!problem(TileService::Custom, config).isEmpty());
    for (const char *server : {"ftp://h", "h", "http://", "file:///etc", "http://h?x=1", "https://h:99999"}) {
        Config other;
        other.mapBingTileServer = QLatin1String(server);
        QVERIFY2(!problem(TileService::BingMaps, other).isEmpty(), server);
    }
}

// Neither the file nor the host may be chosen by what is meant to be a language or a key.
void TestTileRequest::keepsHostileSettingsInPlace()
{
    Config config = withKeys();
    config.mapBingImagery = BingTileImagery::Road;
    const QString hostile = QStringLiteral("../../{x}\\..//etc?a=b#c&it=X@evil\n");
    config.mapBingCulture = config.mapGoogleHostLanguage = config.mapGoogleGeographyLocation = hostile;
    config.mapTiandituApiKey = hostile;
    for (const TileService service : {TileService::BingMaps, TileService::GoogleMaps, TileService::Tianditu}) {
        const TileRequest request = tileServiceSetup(service, config).request;
        const QString file = request.filePath(Index);
        QVERIFY2(!file.contains(QLatin1String("..")) && !file.contains(u'\\'), qPrintable(file));
        const QUrl url = request.url(Index);
        QCOMPARE(url.host(), QStringLiteral("h"));
        QVERIFY(!url.hasFragment());
        QVERIFY2(!url.toEncoded().contains("../"), url.toEncoded().constData());
    }
}

void TestTileRequest::customTemplates_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("url"); // empty: refused
    QTest::addRow("usual") << "http://h/{z}/{x}/{y}.png"
                           << "http://h/4/3/5.png";
    QTest::addRow("rows from the south") << "https://h:81/t/{z}/{x}/{-y}?k=1"
                                         << "https://h:81/t/4/3/10?k=1";
    QTest::addRow("quadkey") << " http://h/q{quadkey} "
                             << "http://h/q0213";
    QTest::addRow("servers in turn") << "http://{s}.h/{z}/{x}/{y}"
                                     << "http://c.h/4/3/5";
    QTest::addRow("no row") << "http://h/{z}/{x}"
                            << "";
    QTest::addRow("no scheme") << "h/{z}/{x}/{y}"
                               << "";
    QTest::addRow("a file") << "file:///{z}/{x}/{y}"
                            << "";
    QTest::addRow("a host for every tile") << "http://h{x}/{z}/{x}/{y}"
                                           << "";
    QTest::addRow("placeholder as port") << "http://h:{z}/{z}/{x}/{y}"
                                         << "";
}

void TestTileRequest::customTemplates()
{
    QFETCH(QString, address);
    QFETCH(QString, url);
    Config config;
    config.mapCustomTileUrl = address;
    const TileServiceSetup setup = tileServiceSetup(TileService::Custom, config);
    QCOMPARE(setup.request.problem.isEmpty(), !url.isEmpty());
    if (!url.isEmpty()) {
        QCOMPARE(setup.request.url(Index).toString(), url);
        QVERIFY(!setup.request.filePath(Index).contains(QLatin1String("h/")));
    }
}

void TestTileRequest::customHeaders_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QByteArray>("name"); // empty: refused
    QTest::addColumn<QByteArray>("value");
    QTest::addRow("usual") << "X-Key: a b:c" << QByteArray("X-Key") << QByteArray("a b:c");
    QTest::addRow("no colon") << "X-Key" << QByteArray() << QByteArray();
    QTest::addRow("second line") << "X-Key: a\r\nHost: evil" << QByteArray() << QByteArray();
    QTest::addRow("blank in the name") << "X Key: a" << QByteArray() << QByteArray();
}

void TestTileRequest::customHeaders()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, value);
    QFETCH(QString, line);
    Config config;
    config.mapCustomTileUrl = QStringLiteral("http://h/{z}/{x}/{y}");
    config.mapCustomTileHeader = line;
    const TileRequest request = tileServiceSetup(TileService::Custom, config).request;
    QCOMPARE(request.problem.isEmpty(), !name.isEmpty());
    QCOMPARE(request.headers.size(), name.isEmpty() ? 0 : 1);
    if (!name.isEmpty()) {
        QCOMPARE(request.headers.first(), qMakePair(name, value));
    }
}

VYX_TEST(TestTileRequest)

#include "tst_tile_request.moc"
