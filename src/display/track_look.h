#pragma once

#include "app/config.h"
#include "display/track_label_lines.h"

#include <QColor>
#include <QFont>
#include <QPoint>
#include <QRect>

// The colours of tracks. The defaults are the settings' own.
struct TrackColors {
    QColor symbol; // and speed vector and trail
    QColor casing; // round symbols
    QColor leader;
    QColor coasting;
    QColor caution;
    QColor label;
    QColor labelDetail;
    QColor labelSelected;
    QColor labelAlert;
    QColor labelAlertText; // on a ground of the alert colour
    QColor labelBackground; // with its opacity

    TrackColors() : TrackColors(Config()) { }
    explicit TrackColors(const Config &config);
};

// Everything that decides how tracks are drawn, apart from the tracks. A plain value; sizes in pixels.
struct TrackLook {
    TrackLook();

    void setLabelFont(const QFont &font);

    // Pixels of ground round a label's text.
    int shownPadding() const { return backgroundVisible ? backgroundPadding : 0; }
    // The label with its ground: the padding goes round it, except below it. The veil of a compact label is tight.
    QRect padded(const QRect &label) const;
    bool showsLabels() const { return labelVisible && fields.any(); }
    // Under words in the alert or caution colour that may stand on the text of a label.
    QColor alertGround() const;
    // How many labels on top of each other let nothing through that an eye could see; 0: however many do not.
    int coveringLabels() const;
    bool isCompact() const { return layout == Config::TrackLabelLayout::Compact; }
    // Of a track's vector, as vectorRange: the selected track's is longer in the compact layout.
    int vectorRangeOf(bool selected) const { return isCompact() && selected ? 3 * vectorRange : vectorRange; }

    TrackColors colors;
    Config::TrackLabelLayout layout = Config::TrackLabelLayout::Standard;
    bool autoPlace = false;
    int longestCoastingMs = 0; // without a report, from which on a coasting track needs a look; 0: none does

    bool targetTypeSymbol = false; // an aircraft turned to its heading instead of the kind of surveillance
    bool sensorTypeSymbol = true;
    int symbolSize = 24;

    QFont labelFont;
    QFont identityFont; // the same in bold
    QString drawnMarks; // characters that the font lacks
    QPoint labelOffset; // from the track to the label's upper left corner, y upwards
    bool labelVisible = true;
    TrackLabelFields fields;
    bool backgroundVisible = true;
    int backgroundPadding = 3;

    bool trailVisible = true;
    int trailDots = 20;

    bool vectorVisible = true;
    bool vectorTimeMode = true;
    int vectorRange = 1; // minutes in time mode, else nautical miles
    bool vectorTicksVisible = true;
};
