#pragma once

#include "maps/map_index.h"

#include <QHash>
#include <QObject>
#include <QTimer>

#include <utility>

class GeoStaticMap;
class MapLibrary;

// Keeps the static map layer at what the library holds. Changes that come together are handed over once, and those that
// do not show, such as how far a file has been read, not at all.
class StaticMapFeed final : public QObject {
    Q_OBJECT

public:
    // Both must outlive the feed. What the library holds by now is handed over too.
    StaticMapFeed(MapLibrary *library, GeoStaticMap *layer, QObject *parent = nullptr);

private:
    void handOver();
    void handOverChanged(quint64 id);

    MapLibrary *m_library;
    GeoStaticMap *m_layer;
    QHash<quint64, std::pair<MapIndexEntry, quint64>> m_given; // entry and revision by the map's id
    QTimer m_delay;
};
