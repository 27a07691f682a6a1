#pragma once

#include "vyx-asterix/decode_command.h"

// Says what a recording holds, how it is encapsulated, which edition each source sends, and what is wrong: see
// CommandLine::helpText(). The exit status.
int runDoctor(const CommandLine &command, const TextSink &out, const LineSink &err);
