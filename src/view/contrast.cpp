#include "view/contrast.h"

#include <algorithm>
#include <cmath>

namespace {

double linear(float component)
{
    return component <= 0.04045f ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

double relativeLuminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

double contrastRatio(const QColor &one, const QColor &other)
{
    const auto [darker, brighter] = std::minmax({relativeLuminance(one), relativeLuminance(other)});
    return (brighter + 0.05) / (darker + 0.05);
}

QColor groundFor(const QColor &textColor)
{
    return contrastRatio(textColor, Qt::black) >= contrastRatio(textColor, Qt::white) ? Qt::black : Qt::white;
}
