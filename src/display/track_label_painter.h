#pragma once

#include <QColor>
#include <QPen>

class QPainter;
struct ShownTrack;
struct TrackFrame;

// Labels: ground, text, and the frames of alerts and of coasting tracks.
class TrackLabelPainter {
public:
    // Before the tracks of a frame.
    void prepare(QPainter *painter, const TrackFrame &frame);
    void paint(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown) const;

private:
    void paintGround(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown) const;
    void paintText(QPainter *painter, const ShownTrack &shown) const;
    void paintFrame(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown) const;

    QPen m_pen;
    QPen m_selectedPen;
    QPen m_alertPen;
    QPen m_coastingFramePen;
    QColor m_alertGround; // what the alert line stands on
};
