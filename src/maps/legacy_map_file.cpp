#include "maps/legacy_map_file.h"

#include "maps/map_xml_reader.h"

#include <QHash>

namespace {

// The class of what states none.
const auto NoClass = QLatin1String("nil");

double degrees(const MapXmlReader &xml, QLatin1String name)
{
    bool good = false;
    const double value = xml.attributes().value(name).trimmed().toDouble(&good);
    return good ? value : qQNaN(); // a missing number is no zero
}

GeoCoordinate position(const MapXmlReader &xml)
{
    return {degrees(xml, QLatin1String("lat")), degrees(xml, QLatin1String("lon"))};
}

QString className(const MapXmlReader &xml)
{
    const QString name = xml.attribute(QLatin1String("class"));
    return name.isEmpty() ? QString(NoClass) : name;
}

void readMeta(MapXmlReader &xml, MapData &map)
{
    map.title = xml.attribute(QLatin1String("title"));
    map.description = xml.attribute(QLatin1String("description"));
    map.author = xml.attribute(QLatin1String("author"));
    map.version = xml.attribute(QLatin1String("edition"));
    map.comment = xml.attribute(QLatin1String("comment"));
    xml.skip();
}

template <class Shape>
void readShape(MapXmlReader &xml, QList<Shape> &shapes)
{
    Shape shape;
    shape.name = xml.attribute(QLatin1String("comment"));
    while (xml.nextChild()) {
        if (xml.name() == QLatin1String("point")) {
            shape.points.append(position(xml));
        }
        xml.skip();
    }
    shapes.append(shape);
}

void readLabel(MapXmlReader &xml, QList<MapLabelElement> &labels)
{
    labels.append({xml.attribute(QLatin1String("name")), xml.attribute(QLatin1String("content")), position(xml)});
    xml.skip();
}

// The map with an index of its groups: a file may have as many classes as it has lines.
class GroupedMap {
public:
    MapElementGroup &group(const QString &className)
    {
        const auto known = m_groups.constFind(className);
        if (known != m_groups.constEnd()) {
            return map.groups[*known];
        }
        m_groups.insert(className, map.groups.size());
        MapElementGroup group;
        group.name = className;
        group.className = className;
        return map.groups.emplaceBack(group);
    }

    MapData map;

private:
    QHash<QString, qsizetype> m_groups;
};

void readElement(MapXmlReader &xml, GroupedMap &grouped)
{
    const QString name = xml.name().toString();
    if (name == QLatin1String("default")) {
        readMeta(xml, grouped.map);
    } else if (name == QLatin1String("line")) {
        readShape(xml, grouped.group(className(xml)).polylines);
    } else if (name == QLatin1String("polygon")) {
        readShape(xml, grouped.group(className(xml)).polygons);
    } else if (name == QLatin1String("label") || name == QLatin1String("zlabel")) {
        readLabel(xml, grouped.group(className(xml)).labels);
    } else {
        xml.skip();
    }
}

} // namespace

MapData LegacyMapFile::readFile()
{
    m_file.seek(0);
    MapXmlReader xml(&m_file);
    xml.setStep([this](qint64 characters) { return reportProgress(characters); });
    const bool valid = xml.nextChild() && xml.name() == QLatin1String("airport");
    GroupedMap grouped;
    while (valid && xml.nextChild()) {
        readElement(xml, grouped);
    }
    xml.finish();
    if (!valid && !xml.hasError()) {
        setLastError(tr("This is not a valid Legacy format map file."));
    } else if (xml.hasError() && lastError().isEmpty()) {
        setLastError(tr("Failed to parse the legacy map file at line %1.").arg(xml.lineNumber()));
    }
    return grouped.map;
}

bool LegacyMapFile::writeFile(const MapData &)
{
    return false;
}
