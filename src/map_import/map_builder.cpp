#include "map_import/map_builder.h"

#include "map_import/airspace_feature.h"
#include "map_import/ring_shape.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr std::array SymbolTypes = {"airport", "navaid", "vor", "dme", "vordme", "ndb", "tacan", "waypoint",
    "reporting", "obstacle", "heliport", "radar", "cross", "circle", "square", "diamond", "dot"};
constexpr const char *DefaultSymbol = "dot";

bool isNumber(const QString &text)
{
    bool isGood = false;
    text.toDouble(&isGood);
    return isGood;
}

GeoCoordinate coordinateOf(const LonLat &point)
{
    return {point.latitude, std::remainder(point.longitude, 360.0)};
}

QList<GeoCoordinate> coordinatesOf(const LonLatLine &line)
{
    QList<GeoCoordinate> result;
    result.reserve(line.size());
    for (const LonLat &point : line) {
        result.append(coordinateOf(point));
    }
    return result;
}

double degreesAcross(const LonLatArea &area)
{
    const LonLatLine outline = RingShape::unwound(area.value(0));
    const auto [west, east] = std::minmax_element(
        outline.begin(), outline.end(), [](const LonLat &a, const LonLat &b) { return a.longitude < b.longitude; });
    return outline.isEmpty() ? 0.0 : east->longitude - west->longitude;
}

} // namespace

void MapBuilder::add(const ImportFeature &feature)
{
    ++m_features;
    const Described described = describe(feature);
    MapElementGroup &group = getGroup(m_map, described.className);
    addPoints(feature, described, group);
    for (const LonLatLine &line : feature.lines) {
        addLine(line, described.name, group);
    }
    for (const LonLatArea &area : feature.areas) {
        addArea(area, described.name, group);
    }
    if (described.isAirspace && m_options.pointLabels) {
        addAreaLabel(feature, described, group);
    }
}

MapBuilder::Described MapBuilder::describe(const ImportFeature &feature) const
{
    Described described;
    described.name = feature.property(m_options.nameProperties);
    described.caption = feature.property(m_options.captionProperties);
    described.isText = !feature.property({QStringLiteral("Text")}).isEmpty();
    const auto airspace = m_options.airspaces ? AirspaceFeature::of(feature, described.name) : std::nullopt;
    described.isAirspace = airspace.has_value();
    if (airspace && described.caption.isEmpty()) {
        described.caption = airspace->caption;
    }
    if (!m_options.className.isEmpty()) {
        described.className = m_options.className;
    } else {
        described.className = airspace ? airspace->className : classOf(feature);
    }
    return described;
}

QString MapBuilder::classOf(const ImportFeature &feature) const
{
    for (const QString &property : m_options.classProperties) {
        const QString value = feature.property({property});
        // A number is a code of the file's own and no style's name.
        if (!value.isEmpty() && !isNumber(value)) {
            return value;
        }
    }
    return feature.layer.isEmpty() ? QStringLiteral("nil") : feature.layer;
}

QString MapBuilder::symbolOf(const ImportFeature &feature, const QString &className) const
{
    if (!m_options.symbolType.isEmpty()) {
        return m_options.symbolType;
    }
    const QString stated = feature.property({QStringLiteral("symbol")}).toLower();
    for (const char *type : SymbolTypes) {
        if (stated == QLatin1String(type) || (stated.isEmpty() && className.toLower() == QLatin1String(type))) {
            return QLatin1String(type);
        }
    }
    return className.compare(QLatin1String("fix"), Qt::CaseInsensitive) == 0 ? QStringLiteral("waypoint")
                                                                             : QLatin1String(DefaultSymbol);
}

void MapBuilder::addPoints(const ImportFeature &feature, const Described &described, MapElementGroup &group) const
{
    const QString caption = described.caption.isEmpty() ? described.name : described.caption;
    for (const LonLat &point : feature.points) {
        if (m_options.pointSymbols && !described.isText) {
            group.symbols.append({described.name, symbolOf(feature, group.className), coordinateOf(point)});
        }
        if (m_options.pointLabels && !caption.isEmpty()) {
            group.labels.append({described.name, caption, coordinateOf(point)});
        }
    }
}

void MapBuilder::addLine(const LonLatLine &line, const QString &name, MapElementGroup &group) const
{
    group.polylines.append({name, coordinatesOf(RingShape::simplified(line, m_options.tolerance))});
}

void MapBuilder::addArea(const LonLatArea &area, const QString &name, MapElementGroup &group) const
{
    LonLatArea rings;
    for (const LonLatLine &ring : area) {
        rings.append(RingShape::simplifiedRing(ring, m_options.tolerance));
    }
    if (m_options.fillAreas) {
        group.polygons.append({name, coordinatesOf(RingShape::withHoles(rings))});
        return;
    }
    for (const LonLatLine &ring : rings) {
        group.polylines.append({name, coordinatesOf(ring + ring.first(1))});
    }
}

// One label for all parts of an airspace, in the widest.
void MapBuilder::addAreaLabel(const ImportFeature &feature, const Described &described, MapElementGroup &group) const
{
    if (described.caption.isEmpty()) {
        return;
    }
    const LonLatArea *widest = &feature.areas.first();
    for (const LonLatArea &area : feature.areas) {
        if (degreesAcross(area) > degreesAcross(*widest)) {
            widest = &area;
        }
    }
    group.labels.append({described.name, described.caption, coordinateOf(RingShape::labelPlace(widest->first()))});
}
