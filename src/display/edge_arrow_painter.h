#pragma once

#include "display/alert_board.h"

#include <QColor>
#include <QHash>
#include <QList>
#include <QPolygonF>
#include <QRect>
#include <QString>

#include <vector>

class QPainter;
struct TrackFrame;

// Arrows at the edge of the view that point to alerting tracks outside it, with what they alert to and the name of the
// track.
class EdgeArrowPainter {
public:
    using Tracks = QHash<unsigned long long, const TrackSnapshot *>; // by TrackSnapshot::incarnationId

    // Takes the arrows of a frame.
    void prepare(const TrackFrame &frame, const AlertBoard &board, const Tracks &tracks);
    void clear() { m_arrows.clear(); }

    void paint(QPainter *painter, const TrackFrame &frame) const;

    // Of the frame's arrows and their texts, in pixels.
    QList<QRect> places() const;

private:
    struct Arrow {
        QPolygonF shape;
        QColor color;
        bool filled = false;
        QString words;
        QRect text; // null: there is no room for it
    };

    void add(const TrackFrame &frame, const TrackSnapshot &track, bool filled);

    std::vector<Arrow> m_arrows;
};
