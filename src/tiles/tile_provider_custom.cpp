#include "tiles/tile_provider_custom.h"

#include "app/app_paths.h"
#include "app/config.h"

#include <QCryptographicHash>
#include <QRegularExpression>

namespace {

// Which tile is meant; without these every tile would have the same address.
bool namesTile(const QString &address)
{
    const bool row = address.contains(QLatin1String("{y}")) || address.contains(QLatin1String("{-y}"));
    return address.contains(QLatin1String("{quadkey}"))
        || (row && address.contains(QLatin1String("{x}")) && address.contains(QLatin1String("{z}")));
}

// An HTTP header's name and value. Anything else could make a second request of one.
QString addHeader(TileRequest &request, const QString &line)
{
    if (line.trimmed().isEmpty()) {
        return {};
    }
    static const QRegularExpression Form(
        QStringLiteral("^\\s*([!#$%&'*+.^_`|~0-9A-Za-z-]+)\\s*:\\s*([\\x20-\\x7e]+?)\\s*$"));
    const QRegularExpressionMatch match = Form.match(line);
    if (!match.hasMatch()) {
        return TileProviderCustom::tr("The header of the custom tile service is not of the form \"Name: value\".");
    }
    request.headers = {{match.captured(1).toLatin1(), match.captured(2).toLatin1()}};
    return {};
}

// The host stands before the first placeholder other than {s}, so that no tile goes to a host of its own.
QString splitAddress(TileRequest &request, const QString &address)
{
    static const QRegularExpression Form(QStringLiteral("^(https?://(?:[^/{}?#]|\\{s\\})+)(/.*)$"));
    const QRegularExpressionMatch match = Form.match(address);
    if (!match.hasMatch() || !namesTile(match.captured(2))) {
        return TileProviderCustom::tr(
            "The address of the custom tile service needs {z}, {x} and {y} or {-y}, or {quadkey}, after its host.");
    }
    request.server = match.captured(1);
    request.target = match.captured(2);
    return request.url({0, 0, 1}).isValid()
        ? QString()
        : TileProviderCustom::tr("The address of the custom tile service is not valid.");
}

// Services are told apart by their addresses, of which nothing can be read in the file system.
QString directoryOf(const QString &address)
{
    return QString::fromLatin1(QCryptographicHash::hash(address.toUtf8(), QCryptographicHash::Sha1).toHex().left(16));
}

} // namespace

TileServiceSetup TileProviderCustom::setup(const Config &config)
{
    TileServiceSetup setup;
    TileRequest &request = setup.request;
    request.service = TileService::Custom;
    request.servers = tileDeployment(TileService::Custom).servers;
    request.maxLevel = std::clamp(config.mapCustomTileMaxLevel, TileIndex::MinLevel, TileIndex::MaxLevel);
    const QString address = config.mapCustomTileUrl.trimmed();
    setup.archive = AppPaths::resolvePath(config.mapCustomTileFile.trimmed());
    if (!setup.archive.isEmpty()) {
        return setup;
    }
    if (address.isEmpty()) {
        request.problem = tr("Neither an address nor a file of custom tiles is configured.");
        return setup;
    }
    request.problem = splitAddress(request, address);
    if (request.problem.isEmpty()) {
        request.problem = addHeader(request, config.mapCustomTileHeader);
    }
    request.file = QStringLiteral("/%1/{z}/{x}/{y}.png").arg(directoryOf(address));
    setup.tileDirectory = AppPaths::appDataDir() + QStringLiteral("/CustomTiles/");
    setup.saveFiles = true;
    setup.offlinePriority = true;
    return setup;
}
