#pragma once

class QPainter;
struct ShownTrack;
struct TrackFrame;

// What stands round the symbols of few tracks: rings of the selected track and of that under the pointer, and the head
// of an alerting track whose label is not shown.
class TrackHighlightPainter {
public:
    void paint(QPainter *painter, const TrackFrame &frame) const;

private:
    static void paintRing(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown);
    static void paintHead(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown);
};
