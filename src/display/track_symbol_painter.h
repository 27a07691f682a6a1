#pragma once

#include "display/track_symbols.h"

#include <bitset>

class QPainter;
struct ShownTrack;
struct TrackFrame;

// What stands at a track's place.
class TrackSymbolPainter {
public:
    // Before the tracks of a frame.
    void prepare(QPainter *painter, const TrackFrame &frame);
    void paint(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown);

    // Those that have been painted since prepare().
    const std::bitset<TrackSymbols::Count> &painted() const { return m_painted; }
    // Valid until the next call.
    const QPixmap &pixmap(TrackSymbols::Symbol symbol, const QColor &color, double ratio)
    {
        return m_symbols.pixmap(symbol, color, ratio);
    }

private:
    TrackSymbols m_symbols{24, Qt::black};
    std::bitset<TrackSymbols::Count> m_painted;
};
