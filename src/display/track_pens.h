#pragma once

#include <QColor>
#include <QPen>

#include <vector>

// Pens for lines one pixel wide, by colour: of a frame's hundreds of lines few differ. Cosmetic lines take the
// painter's quickest way; their widths count device pixels.
class TrackPens {
public:
    // Before the lines of a frame.
    void prepare(double devicePixelRatio);
    // Valid until the next call.
    const QPen &line(const QColor &color, bool broken = false);

private:
    std::vector<QPen> m_pens;
    double m_devicePixelRatio = 1.0;
};
