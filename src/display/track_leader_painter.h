#pragma once

#include "display/track_pens.h"

class QPainter;
struct ShownTrack;
struct TrackFrame;

// The line from a track to its label.
class TrackLeaderPainter {
public:
    // Before the tracks of a frame.
    void prepare(const TrackFrame &frame);
    void paint(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown);

private:
    TrackPens m_pens;
};
