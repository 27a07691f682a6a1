#pragma once

#include <string>
#include <utility>
#include <vector>

// What the program is asked to do.
struct CommandLine {
    enum class Verb { Help, Version, Decode, Encode, Stat, Doctor, Assess };

    Verb verb = Verb::Help;
    std::string fileName;
    std::string outputName; // encode; empty: standard output
    bool isExpanding = false; // decode: reserved expansion fields as objects
    bool isJson = false; // doctor and assess: one object in place of text
    struct Assess {
        std::vector<int> sensors; // SAC * 256 + SIC; empty: all
        bool isSiteGiven = false;
        double site[3] = {}; // of the only sensor: latitude and longitude in degrees, height in metres
        std::string reportName; // empty: none
    };
    Assess assess;
    std::vector<std::pair<int, std::string>> editions; // category and edition, in their order

    // The arguments without the program's name. False, with one line in error, when they make no sense.
    static bool parse(const std::vector<std::string> &arguments, CommandLine &out, std::string &error);

    static const char *helpText();
};
