#pragma once

#include <QRect>

#include <vector>

class QPainter;
struct ShownTrack;
struct TrackFrame;

// Where a track has been.
class TrackTrailPainter {
public:
    void paint(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown);

private:
    std::vector<QRect> m_dots; // kept for their memory
};
