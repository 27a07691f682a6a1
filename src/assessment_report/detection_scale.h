#pragma once

#include "assessment/detection_grid.h"

#include <QColor>
#include <QString>

#include <array>
#include <optional>

// Which kind of detection is shown.
enum class DetectionKind { Any, Primary, Secondary };

// Colours of probabilities of detection, in steps that can be told apart by those who do not tell red from green.
namespace detectionscale {

struct Step {
    double from; // probability, 0 to 1
    QRgb color;
};

// From bad to good: reds to blues.
inline constexpr std::array Steps = {Step{0.0, 0xffb2182b}, Step{0.7, 0xffef8a62}, Step{0.8, 0xfff6c19c},
    Step{0.9, 0xffb5d7ea}, Step{0.95, 0xff67a9cf}, Step{0.98, 0xff2166ac}};
// Fewer looks than these say nothing about a cell.
inline constexpr qint64 LeastLooks = 5;

// Nothing where there were too few looks.
std::optional<double> probability(const DetectionGrid::Cell &cell, DetectionKind kind);
QColor color(double probability);
// "90 to 95 %".
QString stepText(std::size_t step);

} // namespace detectionscale
