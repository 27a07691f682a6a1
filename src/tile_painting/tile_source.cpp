#include "tile_painting/tile_source.h"

TileSource TileSource::of(const TileProvider &provider)
{
    TileSource source;
    source.image = [&provider](const TileIndex &index) { return provider.image(index); };
    source.levelFor = [&provider](double metresPerPixel) { return provider.levelFor(metresPerPixel); };
    source.logo = [&provider](TileProvider::LogoStyle style) { return provider.styledLogo(style); };
    source.minLevel = provider.minLevel();
    source.maxLevel = provider.maxLevel();
    source.copyright = provider.copyright();
    source.copyrightColor = provider.copyrightColor();
    return source;
}
