#pragma once

#include "map_import/import_feature.h"
#include "map_import/map_import.h"

#include <functional>

// What of a file is read, and how its coordinates are taken.
struct FeatureReaderOptions {
    QStringList layers; // empty: all
    int epsg = 0; // 0: the file's own reference system, or degrees
};

// Hands over the features of a file that have a shape on the globe, one by one; counts the others. Any thread.
class FeatureReader {
public:
    using Sink = std::function<void(const ImportFeature &)>;

    static bool available();
    static QString libraryVersion();
    // False with the reason in the error. The progress may be null.
    static bool read(const QString &file, const FeatureReaderOptions &options, const MapImport::Progress &progress,
        const Sink &sink, MapImport::Report &report, QString *error);
};
