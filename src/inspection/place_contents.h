#pragma once

#include "processors/shown_cells.h"
#include "tracking/plot.h"

#include <optional>

class GeoWidget;

// What the plan view shows at a place, beside tracks.
struct PlaceContents {
    std::optional<Plot> plot;
    std::optional<ShownWeather> weather;
    std::optional<ShownEcho> echo;
};

// Plane metres.
PlaceContents contentsAt(const GeoWidget &plan, const QPointF &place);
