#include "map_windows/static_map_feed.h"

#include "map_painting/geo_static_map.h"
#include "maps/map_library.h"

StaticMapFeed::StaticMapFeed(MapLibrary *library, GeoStaticMap *layer, QObject *parent)
    : QObject(parent), m_library(library), m_layer(layer)
{
    m_delay.setSingleShot(true);
    m_delay.setInterval(0);
    connect(&m_delay, &QTimer::timeout, this, &StaticMapFeed::handOver);
    connect(library, &MapLibrary::mapsChanged, &m_delay, qOverload<>(&QTimer::start));
    connect(library, &MapLibrary::mapChanged, this, &StaticMapFeed::handOverChanged);
    connect(library, &MapLibrary::styleSheetChanged, this, [this] { m_layer->setStyleSheet(m_library->styleSheet()); });
    if (!library->maps().isEmpty()) {
        layer->setStyleSheet(library->styleSheet());
        m_delay.start();
    }
}

void StaticMapFeed::handOver()
{
    m_given.clear();
    for (const MapLibrary::Map &map : m_library->maps()) {
        m_given.insert(map.id, {map.entry, map.revision});
    }
    m_layer->setMaps(m_library->maps());
}

void StaticMapFeed::handOverChanged(quint64 id)
{
    const MapLibrary::Map *map = m_library->map(id);
    if (map && m_given.value(id) != std::pair(map->entry, map->revision)) {
        m_delay.start();
    }
}
