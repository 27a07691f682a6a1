#pragma once

#include "maps/map_file.h"

#include <QSharedPointer>
#include <QString>

// What came of reading a map file.
struct MapLoad {
    QSharedPointer<const MapData> data; // null on failure
    QString error;
};

// Reads a whole map file. The progress may be null. Any thread.
MapLoad loadMap(const QString &path, MapFile::Format format, const MapFile::Progress &progress);
