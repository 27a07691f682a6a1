#pragma once

#include "tracking/alert.h"

#include <QDateTime>
#include <QString>

// What the display sees of one alert: a copy of its accessors at the moment of publication. Times are UTC.
struct AlertSnapshot {
    struct TrackSide {
        quint64 incarnationId = 0; // of the matching Track, 0 when none is held
        unsigned int otherTrackNumber = 0;
        unsigned int modeACode = 0;
        bool modeACodeValid = false;
        QString text; // the label under which the alert shows this track
    };

    unsigned int id = 0;
    Alert::Type type = Alert::None;
    Alert::State state = Alert::Initial;
    bool endedUnheard = false; // for want of data, not by the safety nets' word
    QString stateString;
    QString objectName;
    QDateTime lastUpdate;
    QDateTime startTime;
    QDateTime endTime;
    TrackSide track1;
    bool track2Applicable = false;
    TrackSide track2; // where it does not apply only its text means anything
};
