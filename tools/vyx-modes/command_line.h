#pragma once

#include "modes/cpr.h"
#include "modes/mode_s_encapsulation.h"

#include <optional>
#include <string>
#include <vector>

// What the program is asked to do.
struct CommandLine {
    enum class Verb { Help, Version, Decode };

    Verb verb = Verb::Help;
    std::string fileName;
    std::optional<korvane::modes::ModeSEncapsulation::Format> format; // none: by the first octet
    std::optional<korvane::modes::LatLon> reference; // the receiver's place
    bool isCorrecting = false;
    bool isCheckingAddress = false;

    // The arguments without the program's name. False, with one line in error, when they make no sense.
    static bool parse(const std::vector<std::string> &arguments, CommandLine &out, std::string &error);

    static const char *helpText();
};
