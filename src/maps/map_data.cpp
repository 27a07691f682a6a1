#include "maps/map_data.h"

#include <QImage>

#include <algorithm>

namespace {

// Pixmaps with and without an alpha channel may show the same.
QImage comparable(const QPixmap &pixmap)
{
    return pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

bool samePicture(const QPixmap &one, const QPixmap &other)
{
    if (one.isNull() || other.isNull() || one.size() != other.size()) {
        return one.isNull() && other.isNull();
    }
    return one.cacheKey() == other.cacheKey() || comparable(one) == comparable(other);
}

} // namespace

bool MapImageElement::operator==(const MapImageElement &other) const
{
    return name == other.name && file == other.file && northwest == other.northwest && southeast == other.southeast
        && samePicture(pixmap, other.pixmap);
}

MapElementGroup &getGroup(MapData &map, const QString &className)
{
    const auto found = std::find_if(map.groups.begin(), map.groups.end(),
        [&className](const MapElementGroup &group) { return group.className == className; });
    if (found != map.groups.end()) {
        return *found;
    }
    MapElementGroup group;
    group.name = className;
    group.className = className;
    return map.groups.emplaceBack(group);
}
