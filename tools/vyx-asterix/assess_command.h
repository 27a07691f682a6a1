#pragma once

#include "vyx-asterix/decode_command.h"

#include <atomic>

// Checks the radars of a recording: text or JSON on out, a report in a file where one is asked for. stop, set from
// outside, ends the reading; what was read is told. Returns the exit status.
int runAssess(const CommandLine &command, const TextSink &out, const LineSink &err, const std::atomic<bool> &stop);
