#pragma once

#include "explanation/report_view.h"
#include "tracking/track_snapshot.h"

#include <QDateTime>

#include <optional>

// Where one value that the display shows of a track comes from.
struct ExplainedValue {
    QString name; // "Level"
    QString value; // as the display has it; a dash where it has none
    QString item; // "I048/090/FL"; empty where no report that is kept has it
    QString rule; // that was applied; may be empty
    int report = -1; // which of the reports it was taken from; -1: none of them
    std::optional<qint64> ageMs; // since that report arrived, to the time of the picture
    QList<BitRange> bits; // in that report
};

// What the settings of the input change about where values come from.
struct ExplanationSettings {
    bool ignoreWgs84 = false; // positions
    bool ignoreCartesian = false;
    bool correctLongitudeWrap = false;
    bool correctSlantRange = false; // of the radar
};

// Every value of the track as the display has it, with the item that it was taken from by the rules of the trackers.
// reports: the track's own, newest first. now: of the picture that holds the track.
QList<ExplainedValue> explainTrack(const TrackSnapshot &track, const QList<ReportView> &reports, const QDateTime &now,
    const ExplanationSettings &settings = {});

// The values with their items and rules, one a line, for people.
QString explanationText(const QList<ExplainedValue> &values);
