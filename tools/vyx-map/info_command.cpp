#include "vyx-map/info_command.h"

#include <algorithm>
#include <utility>

namespace {

// The corners of what has a place.
class Bounds {
public:
    void add(const GeoCoordinate &point)
    {
        if (!point.isValid()) {
            return;
        }
        m_south = std::min(m_south, point.latitude());
        m_north = std::max(m_north, point.latitude());
        m_west = std::min(m_west, point.longitude());
        m_east = std::max(m_east, point.longitude());
    }

    QString text() const
    {
        if (m_south > m_north) {
            return QStringLiteral("none");
        }
        return QStringLiteral("%1 to %2")
            .arg(GeoCoordinate(m_south, m_west).toATCString(), GeoCoordinate(m_north, m_east).toATCString());
    }

private:
    double m_south = 90;
    double m_north = -90;
    double m_west = 180;
    double m_east = -180;
};

template <typename Elements, typename Sink>
qint64 forEachPoint(const Elements &elements, const Sink &sink)
{
    qint64 count = 0;
    for (const auto &element : elements) {
        for (const GeoCoordinate &point : element.points) {
            sink(point);
        }
        count += element.points.size();
    }
    return count;
}

// Returns the number of points that lines and areas have.
qint64 addGroup(const MapElementGroup &group, Bounds &bounds)
{
    const auto add = [&bounds](const GeoCoordinate &point) { bounds.add(point); };
    for (const MapSymbolElement &symbol : group.symbols) {
        bounds.add(symbol.coordinate);
    }
    for (const MapLabelElement &label : group.labels) {
        bounds.add(label.coordinate);
    }
    for (const MapImageElement &image : group.images) {
        bounds.add(image.northwest);
        bounds.add(image.southeast);
    }
    return forEachPoint(group.polylines, add) + forEachPoint(group.polygons, add);
}

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
    Bounds bounds;
    QStringList lines;
    for (const MapElementGroup &group : map.groups) {
        const qint64 points = addGroup(group, bounds);
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
