#pragma once

#include "vyx-map/input_map.h"

#include <atomic>

// Returns the program's exit status. Looks at "cancelled" often, which may be set by a signal: an MBTiles file is then
// as it was before, a folder keeps what has been written.
int runTiles(const CommandLine &command, const PercentSink &progress, const LineSink &out, const LineSink &err,
    const std::atomic<bool> &cancelled);
