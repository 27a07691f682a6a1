#pragma once

#include "geo/geo_coordinate.h"
#include "tracking/track.h"

#include <QDateTime>
#include <QList>
#include <QPointF>
#include <QString>

// What the display sees of one track: a copy of its accessors at the moment of publication. Units as in Track: knots,
// degrees clockwise from north, feet, feet per minute; plane points in metres, x east, y north.
struct TrackSnapshot {
    quint64 incarnationId = 0;
    unsigned int trackNumber = 0; // the terminal's
    unsigned int sensorTrackNumber = 0; // the sensor's own; 0: it sends none
    unsigned int icaoAddr = 0;
    bool icaoAddrValid = false;
    QString icaoAddrString;
    QString callsign;
    bool callsignValid = false;
    unsigned int modeACode = 0;
    bool modeACodeValid = false;
    bool modeACodeSmoothed = false;
    bool modeACodeGarbled = false;
    QString modeAString;
    Track::Type type = Track::Unknown;
    Track::State state = Track::Tentative;
    bool coasting = false;
    GeoCoordinate geoCoordinate;
    bool geoCoordinateValid = false;
    QPointF carCoordinate;
    bool carCoordinateValid = false;
    double groundSpeed = 0.0;
    bool groundSpeedValid = false;
    double heading = 0.0;
    bool headingValid = false;
    bool onGround = false;
    int level = 0;
    bool levelValid = false;
    int selectedAltitude = 0;
    bool selectedAltitudeValid = false;
    int verticalRate = 0;
    bool verticalRateValid = false;
    Track::VerticalTrend verticalTrend = Track::TrendUnknown;
    Track::Type detectedBy = Track::Unknown; // of a system track the kind of sensor behind it
    Track::Emergency emergency = Track::NoEmergency;
    bool spi = false;
    QDateTime lastUpdate; // UTC
    QString alertsString; // "MSAW APW STCA", those that are active
    QList<QPointF> trail; // newest first, plane metres
};
