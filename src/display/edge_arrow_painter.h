#pragma once

#include "display/alert_board.h"

#include <QHash>
#include <QList>
#include <QRectF>

#include <vector>

class QPainter;
struct TrackFrame;

// Arrows at the edge of the view that point to alerting tracks outside it, with what they alert to and the name of the
// track.
class EdgeArrowPainter {
public:
    using Tracks = QHash<unsigned long long, const TrackSnapshot *>; // by TrackSnapshot::incarnationId

    void paint(QPainter *painter, const TrackFrame &frame, const AlertBoard &board, const Tracks &tracks);

private:
    void paintArrow(QPainter *painter, const TrackFrame &frame, const TrackSnapshot &track, bool filled);

    std::vector<QRectF> m_texts; // of the frame: one that has no room is left out
};
