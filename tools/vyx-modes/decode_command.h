#pragma once

#include "vyx-modes/command_line.h"

#include <functional>
#include <string_view>

// Text to standard output, in large pieces; false ends the run.
using TextSink = std::function<bool(std::string_view text)>;
// One line, without its end, to standard error.
using LineSink = std::function<void(std::string_view line)>;

// Returns the exit status.
int runDecode(const CommandLine &command, const TextSink &out, const LineSink &err);
