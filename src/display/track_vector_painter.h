#pragma once

#include <QLineF>
#include <QPen>

#include <vector>

class QPainter;
struct ShownTrack;
struct TrackFrame;

// Where a track goes: a line along its heading with a tick for each unit of its range.
class TrackVectorPainter {
public:
    // Before the tracks of a frame.
    void prepare(const TrackFrame &frame);
    void paint(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown);

private:
    QPen m_pen;
    QPen m_coastingPen;
    std::vector<QLineF> m_lines; // kept for their memory
};
