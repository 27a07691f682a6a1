#include "map_import/map_import.h"

#include "map_import/feature_reader.h"
#include "map_import/map_builder.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <array>

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(MapImport)
};

struct Format {
    const char *name;
    const char *suffixes;
};

constexpr std::array Formats = {
    Format{"GeoJSON", "*.geojson *.json"},
    Format{"KML", "*.kml"},
    Format{"Shapefile", "*.shp"},
    Format{"DXF", "*.dxf"},
};

MapData finished(const MapBuilder &builder, const QFileInfo &file)
{
    MapData map = builder.map();
    map.name = map.title = file.completeBaseName();
    map.description = Text::tr("Imported from %1").arg(file.fileName());
    return map;
}

} // namespace

bool MapImport::available()
{
    return FeatureReader::available();
}

QString MapImport::libraryVersion()
{
    return FeatureReader::libraryVersion();
}

QString MapImport::missingText()
{
    if (available()) {
        return {};
    }
    return Text::tr(
        "This program was built without GDAL, which reads GeoJSON, KML, Shapefile and DXF. Install its development "
        "package (Debian and Ubuntu: libgdal-dev) and build again.");
}

QStringList MapImport::nameFilters()
{
    QStringList filters;
    QStringList all;
    for (const Format &format : Formats) {
        filters.append(QStringLiteral("%1 (%2)").arg(QLatin1String(format.name), QLatin1String(format.suffixes)));
        all.append(QLatin1String(format.suffixes));
    }
    filters.prepend(Text::tr("Geographic files (%1)").arg(all.join(QLatin1Char(' '))));
    return filters;
}

bool MapImport::handles(const QString &file)
{
    const QString pattern = QStringLiteral("*.") + QFileInfo(file).suffix().toLower();
    for (const Format &format : Formats) {
        if (QString(QLatin1String(format.suffixes)).split(QLatin1Char(' ')).contains(pattern)) {
            return true;
        }
    }
    return false;
}

MapData MapImport::read(
    const QString &file, const Options &options, const Progress &progress, QString *error, Report *report)
{
    QString reason;
    Report unread;
    Report &counts = report ? *report : unread;
    counts = {};
    const QFileInfo info(file);
    MapBuilder builder(options);
    bool isRead = false;
    if (!available()) {
        reason = missingText();
    } else if (!info.isFile() || !info.isReadable()) {
        reason = Text::tr("File \"%1\" does not exist or is not readable.").arg(info.absoluteFilePath());
    } else {
        isRead = FeatureReader::read(
            info.absoluteFilePath(), {options.layers, options.epsg}, progress,
            [&builder](const ImportFeature &feature) { builder.add(feature); }, counts, &reason);
    }
    if (isRead && builder.features() == 0) {
        reason =
            (QStringList{Text::tr("Nothing in \"%1\" can be shown on a map.").arg(info.fileName())} + counts.messages)
                .join(QLatin1Char(' '));
        isRead = false;
    }
    if (error) {
        *error = reason;
    }
    return isRead ? finished(builder, info) : MapData();
}
