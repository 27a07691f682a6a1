#pragma once

#include "vyx-asterix/decode_command.h"

// Blocks to out; lines that cannot be encoded are reported and left away. Returns the exit status.
int runEncode(const CommandLine &command, const TextSink &out, const LineSink &err);
