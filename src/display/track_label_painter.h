#pragma once

#include "display/track_label_cache.h"

#include <QColor>
#include <QPen>

#include <functional>

class QPainter;
struct ShownTrack;
struct TrackFrame;

// Labels: ground, text, and the frames of alerts and of coasting tracks.
class TrackLabelPainter {
public:
    // Before the tracks of a frame.
    void prepare(QPainter *painter, const TrackFrame &frame);
    // What lies between a label's ground and its text is painted in between.
    void paint(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown,
        const std::function<void()> &paintBetween = {}) const;

private:
    void paintGround(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown) const;
    void paintHeads(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown) const;
    void paintText(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown) const;
    void paintFrame(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown) const;
    const QPen &penFor(TrackLabelLayout::Kind kind, const ShownTrack &shown) const;

    bool m_compact = false;
    QPen m_pen;
    QPen m_detailPen;
    QPen m_selectedPen;
    QPen m_coastingPen;
    QPen m_alertPen;
    QPen m_cautionPen;
    QPen m_filledHeadPen;
    QPen m_coastingFramePen;
    QColor m_alertGround; // what the alert line stands on
    QColor m_cautionGround;
};
