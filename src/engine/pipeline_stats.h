#pragma once

#include <QMetaType>

// Throughput of the ingest pipeline over the last statistics window (about ten seconds).
struct PipelineStats {
    int snapshotTracks = 0;
    int snapshotAlerts = 0;
    int generationAverageMs = 0; // time to build one display snapshot
    int generationMaximumMs = 0;
    double inputPacketsPerSecond = 0.0;
    double inputKilobytesPerSecond = 0.0;
    double videoRadialsPerSecond = 0.0;
    double weatherSecondsPerPicture = 0.0; // meaningful only when weatherIntervalValid
    bool weatherIntervalValid = false;
    int weatherVectors = 0;
};

Q_DECLARE_METATYPE(PipelineStats)
