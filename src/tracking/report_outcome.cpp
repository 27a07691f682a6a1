#include "tracking/report_outcome.h"

#include <QCoreApplication>

#include <array>

namespace {

struct Wording {
    const char *name;
    const char *text;
};

// In the order of the outcomes.
constexpr std::array<Wording, ReportOutcomeCount> Wordings{{
    {"track", QT_TRANSLATE_NOOP("ReportOutcome", "shown as track")},
    {"trackEnd", QT_TRANSLATE_NOOP("ReportOutcome", "ended a track")},
    {"plot", QT_TRANSLATE_NOOP("ReportOutcome", "shown as plot")},
    {"alert", QT_TRANSLATE_NOOP("ReportOutcome", "alert")},
    {"weather", QT_TRANSLATE_NOOP("ReportOutcome", "weather")},
    {"video", QT_TRANSLATE_NOOP("ReportOutcome", "radar video")},
    {"sourceStatus", QT_TRANSLATE_NOOP("ReportOutcome", "status of the source")},
    {"otherSource", QT_TRANSLATE_NOOP("ReportOutcome", "another SAC/SIC than the sensor's")},
    {"malformed", QT_TRANSLATE_NOOP("ReportOutcome", "cannot be decoded")},
    {"noReader", QT_TRANSLATE_NOOP("ReportOutcome", "a kind of message that is not shown")},
    {"wrongSensorKind", QT_TRANSLATE_NOOP("ReportOutcome", "not of the configured kind of sensor")},
    {"noIdentity", QT_TRANSLATE_NOOP("ReportOutcome", "no track number, no address")},
    {"testTarget", QT_TRANSLATE_NOOP("ReportOutcome", "test target")},
    {"noPosition", QT_TRANSLATE_NOOP("ReportOutcome", "no position")},
    {"outOfRange", QT_TRANSLATE_NOOP("ReportOutcome", "position out of range")},
    {"noTrackNumber", QT_TRANSLATE_NOOP("ReportOutcome", "no system track number free")},
    {"incomplete", QT_TRANSLATE_NOOP("ReportOutcome", "incomplete message")},
    {"unsupported", QT_TRANSLATE_NOOP("ReportOutcome", "unsupported form of message")},
    {"modeAC", QT_TRANSLATE_NOOP("ReportOutcome", "Mode A/C reply")},
    {"unknownAddress", QT_TRANSLATE_NOOP("ReportOutcome", "Mode S address not confirmed")},
}};

const Wording &wording(ReportOutcome outcome)
{
    return Wordings[static_cast<std::size_t>(outcome)];
}

} // namespace

const char *reportOutcomeName(ReportOutcome outcome)
{
    return wording(outcome).name;
}

QString reportOutcomeText(ReportOutcome outcome)
{
    return QCoreApplication::translate("ReportOutcome", wording(outcome).text);
}
