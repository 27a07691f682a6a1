#pragma once

#include <QString>

#include <array>
#include <cstddef>

// The online tile services and what can be chosen of each, with the identifiers under which files know the values. A
// value outside an enumeration gets its first identifier, an unknown identifier its first value.

enum class TileService {
    None = 0,
    BingMaps = 1,
    OpenAip = 2,
    GoogleMaps = 3,
    Tianditu = 4,
    TiandituAnnotation = 5,
    Faa = 6,
    Custom = 7, // the site's own: a template or a file of tiles
};

enum class BingTileImagery {
    Aerial = 0,
    AerialLabel = 1,
    Road = 2,
    RoadLite = 3,
    RoadGray = 4,
    RoadDark = 5,
};

enum class GoogleTileLayer {
    Road = 0,
    Hybrid = 1,
    Terrain = 2,
    Satellite = 3,
    Standard = 4,
    SatelliteHybrid = 5,
    TerrainStandard = 6,
};

enum class TiandituTileLayer {
    Imagery = 0,
    Vector = 1,
    Terrain = 2,
};

enum class FaaTileChart {
    VfrSectional = 0,
    VfrTerminal = 1,
    IfrAreaLow = 2,
    IfrHigh = 3,
};

namespace tile_texts {

inline constexpr std::array Services{
    "none", "bingmaps", "openaip", "googlemaps", "tianditu", "tiandituannotation", "faa", "custom"};
inline constexpr std::array BingImagery{"aerial", "aerial-label", "road", "road-lite", "road-gray", "road-dark"};
inline constexpr std::array GoogleLayers{"r", "h", "t", "s", "m", "y", "p"};
inline constexpr std::array TiandituLayers{"img", "vec", "ter"};
inline constexpr std::array FaaCharts{"vfr-sectional", "vfr-terminal", "ifr-area-low", "ifr-high"};

template <typename Enum, std::size_t Count>
QString identifierOf(Enum value, const std::array<const char *, Count> &texts)
{
    const auto index = static_cast<std::size_t>(value);
    return QString::fromLatin1(texts.at(index < Count ? index : 0));
}

template <typename Enum, std::size_t Count>
Enum valueOf(const QString &identifier, const std::array<const char *, Count> &texts)
{
    for (std::size_t index = 0; index < Count; ++index) {
        if (identifier == QLatin1String(texts.at(index))) {
            return static_cast<Enum>(index);
        }
    }
    return static_cast<Enum>(0);
}

} // namespace tile_texts

inline QString tileServiceIdentifier(TileService service)
{
    return tile_texts::identifierOf(service, tile_texts::Services);
}

inline TileService tileServiceFromIdentifier(const QString &identifier)
{
    return tile_texts::valueOf<TileService>(identifier, tile_texts::Services);
}

inline QString bingTileImageryToString(BingTileImagery imagery)
{
    return tile_texts::identifierOf(imagery, tile_texts::BingImagery);
}

inline BingTileImagery bingTileImageryFromString(const QString &text)
{
    return tile_texts::valueOf<BingTileImagery>(text, tile_texts::BingImagery);
}

inline QString googleTileLayerToCode(GoogleTileLayer layer)
{
    return tile_texts::identifierOf(layer, tile_texts::GoogleLayers);
}

inline GoogleTileLayer googleTileLayerFromCode(const QString &code)
{
    return tile_texts::valueOf<GoogleTileLayer>(code, tile_texts::GoogleLayers);
}

inline QString tiandituTileLayerToCode(TiandituTileLayer layer)
{
    return tile_texts::identifierOf(layer, tile_texts::TiandituLayers);
}

inline TiandituTileLayer tiandituTileLayerFromCode(const QString &code)
{
    return tile_texts::valueOf<TiandituTileLayer>(code, tile_texts::TiandituLayers);
}

inline QString faaTileChartToString(FaaTileChart chart)
{
    return tile_texts::identifierOf(chart, tile_texts::FaaCharts);
}

inline FaaTileChart faaTileChartFromString(const QString &text)
{
    return tile_texts::valueOf<FaaTileChart>(text, tile_texts::FaaCharts);
}
