#pragma once

#include "display/alert_board.h"

#include <QHash>
#include <QLineF>
#include <QList>
#include <QRectF>

class QPainter;
struct ConflictGeometry;
struct TrackFrame;

// The lines between the two tracks of each short-term conflict alert, with their distance, the difference of their
// levels and the time to their closest approach.
class ConflictLinePainter {
public:
    using Tracks = QHash<unsigned long long, const TrackSnapshot *>; // by TrackSnapshot::incarnationId

    void paintLines(
        QPainter *painter, const TrackFrame &frame, const QList<AlertBoard::Entry> &alerts, const Tracks &tracks) const;
    // Above all labels.
    void paintTexts(
        QPainter *painter, const TrackFrame &frame, const QList<AlertBoard::Entry> &alerts, const Tracks &tracks) const;

    // "3.2 NM 400 ft 45 s", without what is not known.
    static QString text(const ConflictGeometry &geometry);

private:
    static void paintLine(
        QPainter *painter, const TrackFrame &frame, const TrackSnapshot &one, const TrackSnapshot &other);
    static void paintText(
        QPainter *painter, const TrackFrame &frame, const TrackSnapshot &one, const TrackSnapshot &other);
};
