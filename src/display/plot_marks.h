#pragma once

#include "tracking/track.h"

#include <QColor>
#include <QImage>

#include <array>

// The small marks that stand for plots, by what detected them: a cross where the primary radar did, a ring where the
// secondary radar did, a square where Mode S did, and these with the arms of a cross where the primary radar did too; a
// diamond, a triangle and a filled square for ADS-B, multilateration and surface movement radar; a dot for what is not
// known. Each in steps from fresh to nearly gone.
class PlotMarks {
public:
    static constexpr int FadeSteps = 12;
    static constexpr std::size_t Kinds = Track::Smr + 1;

    // To be called before each painting; draws them anew where one of the two has changed.
    void prepare(const QColor &color, double devicePixelRatio);

    // In device pixels, a square with the plot's place in its middle pixel, as large as its ink. A step is 0 to
    // FadeSteps - 1.
    const QImage &mark(Track::Type type, int step) const;
    static Track::Type kindOf(Track::Type type) { return type <= Track::Smr ? type : Track::Unknown; }
    // Device pixels that the largest reaches from its middle.
    int reach() const { return m_reach; }

private:
    QImage drawn(Track::Type type, double opacity) const;

    QColor m_color;
    double m_ratio = 0.0; // 0: nothing drawn yet
    int m_reach = 0;
    std::array<std::array<QImage, FadeSteps>, Kinds> m_marks;
};
