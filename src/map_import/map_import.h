#pragma once

#include "maps/map_data.h"

#include <QStringList>

#include <functional>

// Makes a map of a file in a format of geographic information systems: GeoJSON, KML, Shapefile or DXF. Needs the GDAL
// library; a build without it says so.
class MapImport {
public:
    // Percent read so far, 0 to 100; false ends the reading with an error.
    using Progress = std::function<bool(int percent)>;

    // Names of properties are compared without regard to case; the first of a list that a feature has, and that is not
    // empty, counts.
    struct Options {
        QStringList nameProperties = {
            QStringLiteral("name"), QStringLiteral("ident"), QStringLiteral("icao"), QStringLiteral("icaoCode")};
        QStringList classProperties = {
            QStringLiteral("class"), QStringLiteral("icaoClass"), QStringLiteral("type"), QStringLiteral("Layer")};
        QStringList captionProperties = {QStringLiteral("caption"), QStringLiteral("label"), QStringLiteral("Text")};
        QString className; // of everything, when not empty; else the class property's value, else the layer's name
        QString symbolType; // of every point, when not empty; else the property "symbol" or what the class suggests
        QStringList layers; // to read; empty: all
        bool pointSymbols = true; // a point becomes a symbol
        bool pointLabels = true; // a point, and an airspace, becomes a label where it has a caption or a name
        bool fillAreas = true; // an area becomes a polygon; else its outline becomes polylines
        bool airspaces = true; // recognises the properties of airspace data
        double tolerance = 0; // lines are simplified to within so many metres
        int epsg = 0; // reference system of the file's coordinates; 0: the file's own, or degrees where it states none
    };

    // What was read, and what was left out.
    struct Report {
        qint64 features = 0; // read
        qint64 skipped = 0; // without a usable shape, or outside of the globe
        QStringList messages; // one for each reason of skipping, with its count
    };

    static bool available();
    // Of the GDAL library that runs with the program; empty without one.
    static QString libraryVersion();
    // Why not, and what to install; empty when available.
    static QString missingText();
    // For a file dialog, such as "GeoJSON (*.geojson *.json)", with one for all of them first.
    static QStringList nameFilters();
    // By the suffix, whatever its case: the file is one for this class, available or not.
    static bool handles(const QString &file);

    // On failure the map is empty and the reason is in the error. Error, report and progress may be null. May be called
    // on any thread.
    static MapData read(const QString &file, const Options &options, const Progress &progress, QString *error,
        Report *report = nullptr);
};
