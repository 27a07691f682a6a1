#pragma once

#include "display/track_pens.h"

class QPainter;
class TrackLabelVisibility;
struct ShownTrack;
struct TrackFrame;

// The line from a track to its label.
class TrackLeaderPainter {
public:
    // Before the tracks of a frame.
    void prepare(const TrackFrame &frame);
    // With labels that are painted over it: not where these hide all of it.
    void paint(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown,
        const TrackLabelVisibility *labels = nullptr);

private:
    TrackPens m_pens;
};
