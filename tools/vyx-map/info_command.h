#pragma once

#include "vyx-map/input_map.h"

// Returns the program's exit status.
int runInfo(const CommandLine &command, const PercentSink &progress, const LineSink &out, const LineSink &err);
