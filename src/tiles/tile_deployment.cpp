#include "tiles/tile_deployment.h"

#include <QCoreApplication>

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(TileDeployment)
};

QStringList numbered(int first, int last)
{
    QStringList numbers;
    for (int number = first; number <= last; ++number) {
        numbers.append(QString::number(number));
    }
    return numbers;
}

QString noBulkDownload(TileService service)
{
    return Text::tr("%1 does not allow its tiles to be downloaded in bulk or kept, except under an agreement with it.")
        .arg(tileServiceName(service));
}

} // namespace

TileDeployment tileDeployment(TileService service, bool bingAerial)
{
    switch (service) {
    case TileService::BingMaps:
        return {bingAerial ? QStringLiteral("https://ecn.t{s}.tiles.virtualearth.net")
                           : QStringLiteral("https://t{s}.ssl.ak.dynamic.tiles.virtualearth.net"),
            numbered(0, 3), true, noBulkDownload(service)};
    case TileService::OpenAip:
        return {QStringLiteral("https://{s}.api.tiles.openaip.net"),
            {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}, false,
            Text::tr("OpenAIP's data may be used with attribution and not commercially (CC BY-NC).")};
    case TileService::GoogleMaps:
        return {QStringLiteral("https://mt{s}.google.com"), numbered(0, 3), true, noBulkDownload(service)};
    case TileService::Tianditu:
    case TileService::TiandituAnnotation:
        return {QStringLiteral("https://t{s}.tianditu.gov.cn"), numbered(0, 7), true, noBulkDownload(service)};
    case TileService::Faa:
        return {QStringLiteral("https://tiles.arcgis.com/tiles/ssFJjBXIUyZDrSYZ/arcgis/rest/services"), {}, false,
            Text::tr("The charts of the FAA are in the public domain.")};
    case TileService::Custom:
        return {{}, {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}, false,
            Text::tr("Please see the terms of the service behind the address.")};
    case TileService::None:
        break;
    }
    return {};
}

QString tileServiceName(TileService service)
{
    switch (service) {
    case TileService::BingMaps:
        return Text::tr("Bing Maps");
    case TileService::OpenAip:
        return Text::tr("OpenAIP");
    case TileService::GoogleMaps:
        return Text::tr("Google Maps");
    case TileService::Tianditu:
        return Text::tr("Map World");
    case TileService::TiandituAnnotation:
        return Text::tr("Map World Annotation");
    case TileService::Faa:
        return Text::tr("FAA Charts");
    case TileService::Custom:
        return Text::tr("Custom Tiles");
    case TileService::None:
        break;
    }
    return Text::tr("No Service");
}
