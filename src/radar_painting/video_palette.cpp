#include "radar_painting/video_palette.h"

#include <algorithm>
#include <cmath>

VideoPalette::VideoPalette(const Settings &settings)
{
    const auto blend = [](double low, double high, double part) { return low + (high - low) * part; };
    for (int step = 0; step < AgeSteps; ++step) {
        const double age = static_cast<double>(step) / AgeSteps;
        const double strength = 1.0 - age * age;
        for (int amplitude = std::clamp(settings.threshold, 0, 255) + 1; amplitude < 256; ++amplitude) {
            const int room = 255 - std::max(settings.threshold, 0);
            const double part = static_cast<double>(amplitude - 255 + room) / room;
            const double opacity = blend(settings.lowOpacity, settings.highOpacity, part);
            const auto channel = [&](int low, int high) {
                return static_cast<int>(std::lround(blend(low, high, part)));
            };
            m_colors[static_cast<std::size_t>(step)][static_cast<std::size_t>(amplitude)] = qPremultiply(qRgba(
                channel(settings.low.red(), settings.high.red()), channel(settings.low.green(), settings.high.green()),
                channel(settings.low.blue(), settings.high.blue()),
                std::clamp(static_cast<int>(std::lround(opacity * strength)), 0, 255)));
        }
    }
}
