#pragma once

#include "processors/video_processor.h"

#include <QList>

// The radar video that arrived between two publications; never changed once published.
struct VideoBatch {
    QList<VideoProcessor::Radial> radials; // in the order of arrival
    double firstTime = -1.0; // time of day of the first radial, seconds; -1.0 while the batch is empty
    double lastTime = -1.0; // the same of the last one
};
