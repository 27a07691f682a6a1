#pragma once

#include "engine/identity_directory.h"

#include <QList>
#include <QString>

#include <optional>

// What helps somebody see a target that he misses.
enum class Cure {
    None,
    Select, // raises symbol and label above all others
    Centre, // brings the place into view
    ZoomIn,
    ShowLabels,
    ShowPlots,
    StartInput,
    ResumeInput,
    OpenSettings, // of input and sensor
};

// A track that lives, and what of it the scope shows now.
struct LiveTarget {
    quint64 track = 0; // incarnation id
    QString name;
    QString callsign; // empty where it has none
    quint32 address = 0; // 24 bits; 0: none
    unsigned int number = 0; // of the system
    bool hasPlace = false;
    bool inView = false;
    double distance = 0.0; // nautical miles from the centre of the view
    double bearing = 0.0; // degrees clockwise from north, from there
    bool symbolCovered = false; // by the label of another
    QString coveredBy; // whose
    bool labelShown = true; // at least one line of it can be seen
    bool coasting = false;
    qint64 silentMs = 0; // since its last position
};

struct AbsenceFacts {
    bool inputOpen = false;
    bool paused = false;
    bool labelsOn = true; // by the setting
    bool detailsShown = true; // the view is not too wide for labels
    bool plotsOn = false;
    int sensorSac = -1; // that is checked; -1: none is
    int sensorSic = -1;
    QList<LiveTarget> live; // that have the identity
    QList<SeenIdentity> seen; // that have it, newest first
};

// Where a target is, and why it is not seen.
struct AbsenceFinding {
    QString who; // "VYX123, 7000, 4B1A2C"
    qint64 seenMs = 0; // last in the stream; 0: it is not told
    QString sentence;
    Cure cure = Cure::None;
    quint64 track = 0; // incarnation id, of those that live
    std::optional<QPointF> place; // where it was last, plane metres

    bool operator==(const AbsenceFinding &other) const = default;
};

// At least one finding for a query that is not empty; the living first, then the newest.
QList<AbsenceFinding> explainAbsence(const IdentityQuery &query, const AbsenceFacts &facts);

// What the button for a cure says; empty for none.
QString cureText(Cure cure);
