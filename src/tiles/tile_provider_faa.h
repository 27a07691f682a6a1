#pragma once

#include "tiles/tile_provider.h"

class Config;

// Aeronautical charts of the United States.
class TileProviderFaa final : public TileProvider {
    Q_OBJECT

public:
    using TileChart = FaaTileChart;

    using TileProvider::TileProvider;

    static TileServiceSetup setup(const Config &config);
    static QString tileChartToString(TileChart chart) { return faaTileChartToString(chart); }
    static TileChart tileChartFromString(const QString &text) { return faaTileChartFromString(text); }
};
