#pragma once

#include "display/alert_board.h"
#include "display/track_label_cache.h"
#include "display/track_look.h"
#include "engine/display_snapshot.h"
#include "view/geo_view.h"

#include <QPoint>
#include <QRect>
#include <QSharedPointer>

#include <span>
#include <vector>

// One track of a frame; places and rectangles in pixels of the screen.
struct ShownTrack {
    const TrackSnapshot *track = nullptr;
    QPoint place; // on whole pixels, so that nothing shimmers while the track moves or the view is panned
    bool selected = false;
    bool hovered = false;
    bool alerting = false;
    bool inDistress = false; // tells of an emergency
    bool overdue = false; // has been coasting for too long
    bool asking = false; // for the acknowledgement of an alert or an emergency
    bool blinkedOff = false; // what of it blinks is off now
    const TrackLabelLayout *label = nullptr; // null: shows none
    int lines = 0; // of the label that are shown, from the top
    QRect labelRect; // of these, without padding
    QRect labelVisible; // bounds what other labels and the screen's edge leave to be seen; empty: nothing
    unsigned int hiddenLines = 0; // not shown, or under other labels; one bit a line from the top

    // Painted after the others.
    bool isRaised() const { return selected || hovered || alerting || inDistress; }
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
    unsigned long long selectedTrack = 0;
    unsigned long long hoveredTrack = 0;
    bool blinkOn = true;

    // Of a track's symbol and vector. In the standard layout all tracks have one colour.
    const QColor &color(const ShownTrack &shown) const;
    // Of the line from a track to its label.
    const QColor &leaderColor(const ShownTrack &shown) const;

    // In painting order they stand at the end.
    std::span<const ShownTrack> raised() const;
    std::span<const ShownTrack> ordinary() const;

    // Takes the tracks of the snapshot that can reach into the view.
    void collect(const AlertBoard &alerts);
};
