#pragma once

#include "engine/radial_watch.h"
#include "explanation/echo_explanation.h"
#include "explanation/weather_explanation.h"
#include "tracking/plot.h"

#include <optional>

class GeoWidget;

// What the plan view shows at a place, beside tracks.
struct PlaceContents {
    struct Echo {
        ShownEcho shown;
        RadialQuestion radial; // that it was drawn from
    };

    std::optional<Plot> plot;
    std::optional<ShownWeather> weather;
    std::optional<Echo> echo;
};

// Plane metres.
PlaceContents contentsAt(const GeoWidget &plan, const QPointF &place);
