#include "modes/mode_s_encapsulation.h"

#include "extractors.h"

#include <algorithm>
#include <array>

namespace korvane::modes {

namespace {

// Everything that differs between the encapsulations.
struct FormatEntry {
    ModeSEncapsulation::Format format;
    const char *identifier;
    const char *name;
    std::size_t (*extract)(std::string_view data, std::vector<ModeSFrame> &frames);
};

constexpr std::array FormatTable{
    FormatEntry{ModeSEncapsulation::Raw, "raw", "Raw Frames (7 or 14 Octets)", extractRaw},
    FormatEntry{ModeSEncapsulation::Avr, "avr", "AVR Text", extractAvr},
    FormatEntry{ModeSEncapsulation::Beast, "beast", "Beast Binary", extractBeast},
    FormatEntry{ModeSEncapsulation::RawRssi, "raw-rssi", "Raw Frames with Signal Level", extractRawRssi},
};

const FormatEntry &entryOf(ModeSEncapsulation::Format format)
{
    const auto matches = [format](const FormatEntry &entry) { return entry.format == format; };
    const auto *const found = std::find_if(FormatTable.begin(), FormatTable.end(), matches);
    return found != FormatTable.end() ? *found : entryOf(ModeSEncapsulation::DefaultFormat);
}

} // namespace

std::vector<std::shared_ptr<ModeSEncapsulation>> ModeSEncapsulation::extract(std::string &buffer, const Format &format)
{
    std::vector<ModeSFrame> frames;
    buffer.erase(0, extractAll(buffer, format, frames));
    const auto block = std::make_shared<std::vector<ModeSEncapsulation>>();
    block->reserve(frames.size());
    std::vector<std::shared_ptr<ModeSEncapsulation>> encapsulations;
    encapsulations.reserve(frames.size());
    for (const ModeSFrame &frame : frames) {
        encapsulations.emplace_back(block, &block->emplace_back(frame, format));
    }
    return encapsulations;
}

std::size_t ModeSEncapsulation::extractAll(std::string_view data, Format format, std::vector<ModeSFrame> &frames)
{
    frames.clear();
    return entryOf(format).extract(data, frames);
}

std::string ModeSEncapsulation::identifier(const Format &format)
{
    return entryOf(format).identifier;
}

ModeSEncapsulation::Format ModeSEncapsulation::fromIdentifier(const std::string &identifier)
{
    const auto matches = [&identifier](const FormatEntry &entry) { return identifier == entry.identifier; };
    const auto *const found = std::find_if(FormatTable.begin(), FormatTable.end(), matches);
    return found != FormatTable.end() ? found->format : DefaultFormat;
}

std::string ModeSEncapsulation::name(const Format &format)
{
    return entryOf(format).name;
}

} // namespace korvane::modes
