#pragma once

#include "maps/map_file.h"

#include <QList>
#include <QString>

#include <optional>

// One map file that the display loads. What the index does not state is unset.
struct MapIndexEntry {
    QString file; // as written in the index; relative to the index's folder
    std::optional<bool> visible; // shown when unset
    std::optional<int> priority; // maps of higher priority are drawn over the others; 0 when unset
    std::optional<int> minZoom; // metres per pixel: shown from this view scale ...
    std::optional<int> maxZoom; // ... to this one, both included; no limit when unset
    MapFile::Format format = MapFile::Unknown; // unknown: found by the suffix

    bool operator==(const MapIndexEntry &) const = default;
};

// How an index names a file: relative where the file is below the index's folder, so that both can be moved together;
// absolute elsewhere.
QString pathInMapIndex(const QString &file, const QString &indexFile);

// Empty on failure, with the reason in the error, which may be null.
QList<MapIndexEntry> readMapIndex(const QString &fileName, QString *error);

// Written whole or not at all; attributes that are unset are left out.
bool writeMapIndex(const QString &fileName, const QList<MapIndexEntry> &entries, QString *error);
