#pragma once

#include <QRect>

#include <array>
#include <vector>

class QColor;
class QPainter;
struct ShownTrack;
struct TrackFrame;

// Where a track has been.
class TrackTrailPainter {
public:
    // All dots in the colour of the symbol.
    void paint(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown);
    // Of all tracks at once, the older the fainter.
    void paintFading(QPainter *painter, const TrackFrame &frame);

private:
    static constexpr std::size_t Steps = 8; // from fresh to faint

    void drawDots(QPainter *painter, std::size_t step, const QColor &color);

    std::array<std::vector<QRect>, Steps> m_dots; // kept for their memory
};
