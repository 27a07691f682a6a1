#include "modes/mode_s_encapsulation.h"

#include <algorithm>
#include <array>

namespace korvane::modes {

namespace {

struct FormatTexts {
    ModeSEncapsulation::Format format;
    const char *identifier;
    const char *name;
};

constexpr std::array formatTexts{
    FormatTexts{ModeSEncapsulation::Raw, "raw", "Raw Frames (7 or 14 Octets)"},
    FormatTexts{ModeSEncapsulation::Avr, "avr", "AVR Text"},
    FormatTexts{ModeSEncapsulation::Beast, "beast", "Beast Binary"},
    FormatTexts{ModeSEncapsulation::RawRssi, "raw-rssi", "Raw Frames with Signal Level"},
};

const FormatTexts &textsOf(ModeSEncapsulation::Format format)
{
    const auto matches = [format](const FormatTexts &texts) { return texts.format == format; };
    const auto *const found = std::find_if(formatTexts.begin(), formatTexts.end(), matches);
    return found != formatTexts.end() ? *found : textsOf(ModeSEncapsulation::DefaultFormat);
}

} // namespace

std::string ModeSEncapsulation::identifier(const Format &format)
{
    return textsOf(format).identifier;
}

ModeSEncapsulation::Format ModeSEncapsulation::fromIdentifier(const std::string &identifier)
{
    const auto matches = [&identifier](const FormatTexts &texts) { return identifier == texts.identifier; };
    const auto *const found = std::find_if(formatTexts.begin(), formatTexts.end(), matches);
    return found != formatTexts.end() ? found->format : DefaultFormat;
}

std::string ModeSEncapsulation::name(const Format &format)
{
    return textsOf(format).name;
}

} // namespace korvane::modes
