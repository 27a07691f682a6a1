#pragma once

#include "vyx-map/command_line.h"

#include <functional>

using LineSink = std::function<void(const QString &line)>;
using PercentSink = std::function<void(int percent)>;

// Reads the command's input, in a map format or by importing it. False with the reasons in err, which gets warnings
// too. The progress may be null.
bool readInput(const CommandLine &command, MapData &map, const PercentSink &progress, const LineSink &err);
