#pragma once

#include "vyx-asterix/decode_command.h"

// Counts and rates by category and SAC/SIC, a line each. Rates are records a second of reception in captures, and of
// the records' own time of day in files of blocks; "-" where a span of time is not known. Returns the exit status.
int runStat(const CommandLine &command, const TextSink &out, const LineSink &err);
