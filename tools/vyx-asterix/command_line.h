#pragma once

#include <string>
#include <utility>
#include <vector>

// What the program is asked to do.
struct CommandLine {
    enum class Verb { Help, Version, Decode, Encode, Stat, Doctor };

    Verb verb = Verb::Help;
    std::string fileName;
    std::string outputName; // encode; empty: standard output
    bool isExpanding = false; // decode: reserved expansion fields as objects
    bool isJson = false; // doctor: one object in place of text
    std::vector<std::pair<int, std::string>> editions; // category and edition, in their order

    // The arguments without the program's name. False, with one line in error, when they make no sense.
    static bool parse(const std::vector<std::string> &arguments, CommandLine &out, std::string &error);

    static const char *helpText();
};
