#pragma once

#include "geo/geo_coordinate.h"

#include <QList>
#include <QPixmap>
#include <QString>

// What a static map holds. Values; names may be empty and need not differ. Coordinates are WGS-84 and may be invalid:
// what draws them leaves out what has no place.

struct MapPolylineElement {
    QString name;
    QList<GeoCoordinate> points;

    bool operator==(const MapPolylineElement &) const = default;
};

struct MapPolygonElement {
    QString name;
    QList<GeoCoordinate> points; // the last is joined to the first

    bool operator==(const MapPolygonElement &) const = default;
};

struct MapLabelElement {
    QString name;
    QString caption; // the text shown; may have several lines
    GeoCoordinate coordinate;

    bool operator==(const MapLabelElement &) const = default;
};

struct MapSymbolElement {
    QString name;
    QString type; // a symbol's name
    GeoCoordinate coordinate;

    bool operator==(const MapSymbolElement &) const = default;
};

struct MapImageElement {
    QString name;
    QString file; // relative to the map's file
    QPixmap pixmap; // north up; null when it could not be loaded
    GeoCoordinate northwest; // corners
    GeoCoordinate southeast;

    // Compares the pictures pixel by pixel.
    bool operator==(const MapImageElement &other) const;
};

// Elements that are styled alike.
struct MapElementGroup {
    QString name;
    QString className; // in the style sheet
    QList<MapPolylineElement> polylines;
    QList<MapPolygonElement> polygons;
    QList<MapSymbolElement> symbols;
    QList<MapLabelElement> labels;
    QList<MapImageElement> images;

    bool operator==(const MapElementGroup &) const = default;
};

struct MapData {
    QString name;
    QString title;
    QString description;
    QString author;
    QString version;
    QString comment;
    QList<MapElementGroup> groups;

    bool operator==(const MapData &) const = default;
};

// The first group of the class; where there is none, a new one whose name and class are both the text.
MapElementGroup &getGroup(MapData &map, const QString &className);
