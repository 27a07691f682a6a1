#pragma once

#include <QColor>

#include <array>

// The colours of radar video by amplitude and age. Above the threshold, colour and opacity go evenly from low to high;
// an echo fades with its age, slowly at first.
class VideoPalette {
public:
    static constexpr int AgeSteps = 32;

    struct Settings {
        QColor low;
        QColor high;
        int lowOpacity = 0; // 0 to 255
        int highOpacity = 0;
        int threshold = 0; // amplitudes up to this are not shown; 0 to 255

        bool operator==(const Settings &other) const = default;
    };

    explicit VideoPalette(const Settings &settings);

    // Premultiplied ARGB of the 256 amplitudes; the step is 0 to AgeSteps, at AgeSteps all is transparent.
    const QRgb *colors(int ageStep) const { return m_colors[static_cast<std::size_t>(ageStep)].data(); }

private:
    std::array<std::array<QRgb, 256>, AgeSteps + 1> m_colors = {};
};
