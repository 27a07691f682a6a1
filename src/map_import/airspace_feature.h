#pragma once

#include "map_import/import_feature.h"

#include <optional>

// What airspace data say of an airspace, in the map's terms.
struct AirspaceFeature {
    QString className; // "ctr", "tma", "restricted", "danger", "prohibited", "fir", "route" or "airspace"
    QString caption; // kind and name, below them the vertical limits: "CTR PRAHA\nGND-FL060"

    // Nothing where the feature does not look like an airspace: one has a type that is one of airspaces (a number of
    // the OpenAIP list or a usual abbreviation) and a limit or an ICAO class.
    static std::optional<AirspaceFeature> of(const ImportFeature &feature, const QString &name);
};

// "GND", "2500FT", "1000FT AGL", "FL060", "300M" or "UNL" for an object of value, unit and datum, or for a text as it
// is; empty when there is no limit.
QString airspaceLimitText(const QString &limit);
