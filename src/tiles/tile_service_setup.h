#pragma once

#include "tiles/tile_request.h"

#include <QColor>

// One service as the settings have it: what it is asked, and where its tiles are kept.
struct TileServiceSetup {
    TileRequest request;
    QString tileDirectory; // absolute
    QString archive; // an MBTiles file that takes the place of service and directory; empty: none
    bool saveFiles = false; // whether fetched tiles are written to the directory
    bool offlinePriority = false; // whether the directory is read before the service is asked
    bool offlineOnly = false; // whether the service is never asked
    QString copyright;
    QColor copyrightColor{Qt::black}; // on the service's images

    bool operator==(const TileServiceSetup &) const = default;
};
