#pragma once

#include <QString>

#include <span>

// A user application profile that ASTERIX may be decoded with. Settings know it by its place in the list.
struct UapProfile {
    const char *identifier; // on the command line
    QString (*name)(); // on screen
};

// The first is the automatic choice.
std::span<const UapProfile> uapProfiles();
