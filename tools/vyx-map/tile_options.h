#pragma once

#include "geo/geo_coordinate.h"

#include <QString>
#include <QStringList>

// What the command "tiles" is asked for.
struct TileOptions {
    static constexpr int DeepestLevel = 22;

    QStringList maps; // files, each a map or a map index
    int minLevel = 0;
    int maxLevel = 6;
    GeoCoordinate northwest; // of the area; invalid: all that the maps hold
    GeoCoordinate southeast; // lies west of the other corner where the area crosses the 180th meridian
    QString theme; // empty: none given
    QString styleSheet; // of a file; drawn on a transparent ground

    // False, with one line in error, where the text makes no sense. "3" or "3-9".
    bool setLevels(const QString &text, QString &error);
    // "lat1,lon1,lat2,lon2": opposite corners in degrees.
    bool setArea(const QString &text, QString &error);
};
