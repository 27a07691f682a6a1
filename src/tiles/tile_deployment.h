#pragma once

#include "app/tile_services.h"

#include <QString>
#include <QStringList>

// Where the tile services are reached, and under which terms: facts about them, not about this program. Settings of the
// form map…TileServer replace an address.
struct TileDeployment {
    QString server; // may hold {s}
    QStringList servers; // what {s} stands for
    bool bulkDownloadForbidden = false; // without a right of one's own
    QString terms; // what the service allows, in a sentence; empty: nothing is known
};

// Bing's aerial images come from another host than its maps.
TileDeployment tileDeployment(TileService service, bool bingAerial = true);

// As shown to the operator: "Bing Maps"
QString tileServiceName(TileService service);
