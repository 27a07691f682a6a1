#pragma once

#include "app/background_pass.h"
#include "assessment/sensor_assessor.h"

#include <functional>

// The check of all radars in a recording.
struct RecordingAssessment {
    QString fileName;
    QString fault; // why there is no report, one sentence; empty where there is one
    QString damage; // from where on the file is damaged, and how; what lies before was looked at
    bool cancelled = false; // what was looked at until then is in the report
    AssessmentReport report;
};

// Octets of the file passed over, and in all, 0 where that is not known. False ends it.
using AssessmentProgress = std::function<bool(qint64 octetsRead, qint64 octetsTotal)>;

// Reads the whole file, which may be larger than the memory. Its envelope is found out; that of the options does not
// count. Waits for the disk.
RecordingAssessment assessRecording(
    const QString &fileName, const SensorAssessor::Options &options, const AssessmentProgress &progress = {});
