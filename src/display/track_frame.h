#pragma once

#include "display/track_label_cache.h"
#include "display/track_look.h"
#include "engine/display_snapshot.h"
#include "view/geo_view.h"

#include <QPoint>
#include <QRect>
#include <QSharedPointer>

#include <vector>

// One track of a frame; places and rectangles in pixels of the screen.
struct ShownTrack {
    const TrackSnapshot *track = nullptr;
    QPoint place; // on whole pixels, so that nothing shimmers while the track moves or the view is panned
    bool selected = false;
    bool alerting = false;
    const TrackLabelLayout *label = nullptr; // null: shows none
    int lines = 0; // of the label that are shown, from the top
    QRect labelRect; // of these, without padding
    QRect labelVisible; // bounds what other labels and the screen's edge leave to be seen; empty: nothing
    unsigned int hiddenLines = 0; // not shown, or under other labels; one bit a line from the top
};

// What is painted now, or was painted last. One object is filled again for each frame, for its memory's sake.
struct TrackFrame {
    // Above this zoom, in metres per pixel, nothing but symbols is drawn.
    static constexpr double DetailLimit = 5000.0;

    bool showsDetails() const { return view.metresPerPixel() <= DetailLimit; }

    GeoView view;
    TrackLook look;
    QSharedPointer<const DisplaySnapshot> snapshot; // holds the tracks; may be null
    std::vector<ShownTrack> tracks; // in painting order: the most urgent last

    // Of a track's symbol and vector. In the standard layout all tracks have one colour.
    const QColor &color(const ShownTrack &shown) const;
    // Of the line from a track to its label.
    const QColor &leaderColor(const ShownTrack &shown) const;

    // Takes the tracks of the snapshot that can reach into the view.
    void collect(unsigned long long selectedTrack);
};
