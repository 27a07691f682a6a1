#pragma once

#include "explanation/absence.h"

class GeoWidget;
class Projector;
struct DisplaySnapshot;

// The tracks of the snapshot that have the identity, with what the plan view showed of them in its last frame.
QList<LiveTarget> findOnScope(
    const IdentityQuery &query, const DisplaySnapshot &snapshot, const GeoWidget &plan, Projector &projector);
