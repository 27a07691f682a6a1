#pragma once

#include "engine/source_statistics.h"
#include "sensors/sensor_type.h"

#include <QString>

#include <optional>

// What a source is judged by, beside its counts.
struct JudgementBasis {
    qint64 nowMs = 0; // of the statistics
    bool live = true; // no recording is played
    bool expecting = true; // the input is open and not paused
    SensorType sensorKind = UnknownSensor; // as configured
    quint8 sensorSac = 0;
    quint8 sensorSic = 0;
    bool inputSilent = false; // nothing arrives any more, from whichever source
    bool plotsShown = false;
    // When the same SAC/SIC last sent anything at this endpoint, of whatever category and edition; 0: as this one.
    qint64 stationHeardMs = 0;
    // The same for this category alone: editions may take turns.
    qint64 categoryHeardMs = 0;
};

// How a source does, and what to do about it.
struct SourceJudgement {
    enum class Light {
        Off, // nothing is expected of it
        Green,
        Amber, // late, thin against its own last ten minutes, without its targets, or of no use at all
        Red, // silent for three of its periods
    };
    enum class Trouble { None, Silent, CategorySilent, Late, Thin, Unused };
    enum class Cure { None, ShowPlots, UseSacSic, UseSensorKind };

    Light light = Light::Off;
    Trouble trouble = Trouble::None;
    QString state; // one or a few words: "silent since 21:29:37"
    std::optional<double> shownShare; // of its records, 0 to 1; nothing without any
    std::optional<ReportOutcome> reason; // the most frequent of those for which records were not shown
    QString sentence; // what is the matter, and what to do
    QString whyNotUsed; // the part of it that tells why records are not shown; may be empty
    Cure cure = Cure::None;
    QString cureText; // on a button
    SensorType cureKind = UnknownSensor; // for UseSensorKind
};

namespace SourceJudge {

constexpr double LateSeconds = 3.0;
constexpr double SilentPeriods = 3.0;
constexpr double AssumedPeriod = 4.0; // seconds, where none is known
constexpr double ThinPart = 0.6; // of its own rate

// "4.2 s", "3.5 h".
QString delayText(double seconds);

// "25/12 CAT048", "25/12 CAT048 (input 2)", "Mode S", "SIR-M 3".
QString nameOf(const SourceStatistics &source);

SourceJudgement judge(const SourceStatistics &source, const JudgementBasis &basis);
// The basis of this source among all of the input: when its station and its category were heard last.
JudgementBasis basisFor(const SourceStatistics &source, const InputStatistics &input, JudgementBasis basis);

// Whether it sends all the time: targets, video and the antenna's way, unlike pictures, alerts and states.
bool isSteady(const SourceStatistics &source);
// Whether it brings what stands on the scope: tracks, plots, weather or video.
bool bringsTargets(const SourceStatistics &source);
// After so many seconds without a record the source is silent.
double patience(const SourceStatistics &source);

} // namespace SourceJudge
