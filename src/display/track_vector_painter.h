#pragma once

#include "display/track_pens.h"

#include <QLineF>

#include <vector>

class QPainter;
class TrackLabelVisibility;
struct ShownTrack;
struct TrackFrame;

// Where a track goes: a line along its heading with a tick for each unit of its range. In the compact layout a longer
// one marks its end.
class TrackVectorPainter {
public:
    // Before the tracks of a frame.
    void prepare(const TrackFrame &frame);
    // With labels that are painted over it: not where these hide all of it.
    void paint(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown,
        const TrackLabelVisibility *labels = nullptr);

private:
    TrackPens m_pens;
    std::vector<QLineF> m_lines; // kept for their memory
};
