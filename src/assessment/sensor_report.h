#pragma once

#include "assessment/detection_grid.h"
#include "geo/geo_coordinate.h"

#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>
#include <vector>

// What a sensor check found: plain values, made by SensorAssessor.

// A value and half the width of its 95 % confidence interval, in the same unit.
struct AssessedValue {
    double value = 0.0;
    double confidence = 0.0;
};

// What radars are compared with.
enum class ReferenceKind : quint8 { Adsb, SystemTracks };

// Differences between a radar and a reference: measured minus true, so that the radar would have to take them off.
struct BiasReport {
    struct Residual {
        float range; // metres from the radar, as the reference says
        float azimuth; // degrees
        float rangeError; // metres; only what the time offset makes is taken off
        float azimuthError; // degrees; likewise
    };

    ReferenceKind reference = ReferenceKind::Adsb;
    qint64 matched = 0; // plots with a reference at their time
    qint64 sampled = 0; // of them, those that were kept for the estimate
    qint64 used = 0; // of them, those that are not outliers
    int aircraft = 0; // among those used
    bool solved = false; // false: too few, or from too few directions; none of what follows is known then
    AssessedValue rangeBias; // metres
    AssessedValue rangeGain; // parts of the range
    AssessedValue azimuthBias; // degrees
    AssessedValue timeOffset; // seconds that the radar's time stamps are ahead
    double rangeDeviation = 0.0; // random error, metres, one standard deviation
    double azimuthDeviation = 0.0; // degrees
    std::vector<Residual> residuals; // a sample for plots
};

struct RotationReport {
    enum class Basis : quint8 { None, NorthMarkers, Sectors, Reported, TrackUpdates };
    struct Turn {
        float time; // seconds from the beginning of the data
        float period; // seconds
    };

    Basis basis = Basis::None; // nothing else is known where there is none
    qint64 turns = 0; // that were measured; 0: as the radar says
    double period = 0.0; // seconds, mean
    double jitter = 0.0; // seconds, one standard deviation from turn to turn, resolution of the time stamps taken off
    double shortest = 0.0;
    double longest = 0.0;
    std::vector<Turn> course; // a sample for plots
};

// Time of arrival minus time of day. Holds the way, the radar's own delay and what the two clocks differ by.
struct DelayReport {
    qint64 count = 0; // 0: the data have no times of arrival
    double least = 0.0; // seconds
    double median = 0.0;
    double most = 0.0; // 95 % of them are below
};

struct DetectionReport {
    DetectionGrid grid;
    double primaryRange = 0.0; // metres within which 99 % of the primary detections lie; 0: none
};

struct FalsePlotReport {
    qint64 plots = 0; // all plots that were looked at
    qint64 lone = 0; // nothing else within the turns around them belongs to them
    qint64 doubled = 0; // a second plot of one target in one turn: reflections, splits
    double turns = 0.0; // within which they were counted

    qint64 all() const { return lone + doubled; }
};

struct SensorReport {
    quint8 sac = 0;
    quint8 sic = 0;
    QString name; // of the sensor file; empty where it is not there
    GeoCoordinate site; // invalid: not known, and so are the differences
    qint64 plots = 0;
    qint64 serviceMessages = 0;
    QString trouble; // why there are no differences, one sentence; empty where there are
    RotationReport rotation;
    DelayReport serviceDelay; // of sector and north messages
    DelayReport plotDelay;
    DetectionReport detection;
    FalsePlotReport falsePlots;
    QList<BiasReport> biases; // one for each reference that is there

    QString title() const; // "Radar North (25/11)"
    bool isSite() const { return site.isValid(); }
};

struct AssessmentReport {
    QString source; // file or input
    QDateTime first; // of the data, UTC; invalid where only times of day are known
    double duration = 0.0; // seconds
    qint64 records = 0;
    qint64 references = 0; // reports of reference targets
    QList<SensorReport> sensors; // by SAC/SIC
};
