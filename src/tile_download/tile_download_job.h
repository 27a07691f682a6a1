#pragma once

#include "app/tile_services.h"
#include "tile_download/tile_plan.h"

#include <QString>

#include <optional>

// What is to be downloaded, and how far that has come. It outlives the program in a file, so that a download that was
// broken off can be taken up again.
struct TileDownloadJob {
    TileService service = TileService::None;
    TileArea area;
    int firstLevel = 1;
    int lastLevel = 1;
    QString archive; // an MBTiles file, absolute; empty: the service's directory of tile files
    bool termsConfirmed = false; // the operator has the right to download in bulk where the service forbids it
    qint64 position = 0; // of the first tile in the plan that is not dealt with yet

    bool operator==(const TileDownloadJob &) const = default;

    TilePlan plan() const { return TilePlan(area, firstLevel, lastLevel); }

    // The file in which the job of this user is kept while it is unfinished.
    static QString stateFile();
    // Nothing when there is none, or none that can be taken up.
    static std::optional<TileDownloadJob> stored();
    // False: it could not be written.
    bool store() const;
    static void forget();
};
