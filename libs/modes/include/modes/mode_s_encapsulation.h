#pragma once

#include <string>

namespace korvane::modes {

// The transport encapsulations in which receivers hand out Mode S frames.
class ModeSEncapsulation {
public:
    enum Format {
        Raw = 0, // frames of 7 or 14 octets, one after the other
        Avr = 1, // text: '*', the frame in hexadecimal, ';'
        Beast = 2, // binary: escape octet 0x1A, frame kind, 12 MHz time stamp, signal level, frame
        RawRssi = 3, // frames of 7 or 14 octets, each followed by its signal level
    };
    static constexpr Format DefaultFormat = Beast;

    // A stable text per format, for files; that of the default format for a value that is none.
    static std::string identifier(const Format &format);
    // The inverse, exact; the default format for an unknown identifier.
    static Format fromIdentifier(const std::string &identifier);
    // The name of a format in plain English, for lists to choose from.
    static std::string name(const Format &format);
};

} // namespace korvane::modes
