#pragma once

#include "text_output.h"
#include "vyx-modes/command_line.h"

// Returns the exit status.
int runDecode(const CommandLine &command, const TextSink &out, const LineSink &err);
