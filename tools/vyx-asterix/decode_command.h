#pragma once

#include "text_output.h"
#include "vyx-asterix/command_line.h"

// Returns the exit status.
int runDecode(const CommandLine &command, const TextSink &out, const LineSink &err);
