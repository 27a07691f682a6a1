#include "vyx-map/info_command.h"

#include "vyx-map/map_bounds.h"

#include <utility>

namespace {

void printTexts(const MapData &map, const LineSink &out)
{
    for (const auto &[key, value] :
        {std::pair{"name", map.name}, {"title", map.title}, {"description", map.description}, {"author", map.author},
            {"version", map.version}, {"comment", map.comment}}) {
        if (!value.isEmpty()) {
            out(QStringLiteral("%1 %2").arg(QLatin1String(key), -12).arg(value));
        }
    }
}

void printGroups(const MapData &map, const LineSink &out)
{
    MapBounds bounds;
    QStringList lines;
    for (const MapElementGroup &group : map.groups) {
        const qint64 points = bounds.add(group);
        lines.append(QStringLiteral("%1 %2 %3 %4 %5 %6 %7 %8")
                         .arg(group.name, -20)
                         .arg(group.className, -12)
                         .arg(group.polylines.size(), 9)
                         .arg(group.polygons.size(), 9)
                         .arg(points, 9)
                         .arg(group.symbols.size(), 8)
                         .arg(group.labels.size(), 8)
                         .arg(group.images.size(), 7));
    }
    out(QStringLiteral("%1 %2").arg(QLatin1String("bounds"), -12).arg(bounds.text()));
    out({});
    out(QStringLiteral("group                class            lines     areas    points  symbols   labels  images"));
    for (const QString &line : std::as_const(lines)) {
        out(line);
    }
}

void printMissingImages(const MapData &map, const LineSink &out)
{
    for (const MapElementGroup &group : map.groups) {
        for (const MapImageElement &image : group.images) {
            if (image.pixmap.isNull()) {
                out(QStringLiteral("missing image: %1").arg(image.file.isEmpty() ? image.name : image.file));
            }
        }
    }
}

} // namespace

int runInfo(const CommandLine &command, const PercentSink &progress, const LineSink &out, const LineSink &err)
{
    MapData map;
    if (!readInput(command, map, progress, err)) {
        return 1;
    }
    const QString format = command.inputFormat == MapFile::Unknown ? QStringLiteral("imported")
                                                                   : MapFile::formatToString(command.inputFormat);
    out(QStringLiteral("%1 %2").arg(QLatin1String("file"), -12).arg(command.input));
    out(QStringLiteral("%1 %2").arg(QLatin1String("format"), -12).arg(format));
    out(QStringLiteral("%1 %2 octets").arg(QLatin1String("size"), -12).arg(QFileInfo(command.input).size()));
    printTexts(map, out);
    printGroups(map, out);
    printMissingImages(map, out);
    return 0;
}
