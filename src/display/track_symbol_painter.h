#pragma once

#include "display/track_symbols.h"

class QPainter;
struct ShownTrack;
struct TrackFrame;

// What stands at a track's place.
class TrackSymbolPainter {
public:
    // Before the tracks of a frame.
    void prepare(QPainter *painter, const TrackFrame &frame);
    void paint(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown);

private:
    TrackSymbols m_symbols{24, Qt::black};
};
