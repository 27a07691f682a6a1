#pragma once

#include "display/cover_mask.h"

#include <QRectF>

struct ShownTrack;
struct TrackFrame;

// What can be seen of each label. In a crowd most labels lie under others; what cannot be seen is not painted, so that
// a frame costs what its pixels cost, however many tracks there are.
class TrackLabelVisibility {
public:
    // Fills labelVisible and hiddenLines of the frame's tracks.
    void find(TrackFrame &frame);
    // Whether labels hide all of a line that is painted before them. Of the last find().
    bool isHidden(const QRectF &boundsOfLine) const;

private:
    unsigned int hiddenLines(const ShownTrack &shown, const QRect &padded) const;

    CoverMask m_cover;
};
