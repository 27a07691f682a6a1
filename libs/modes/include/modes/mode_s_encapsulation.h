#pragma once

#include "modes/mode_s_frame.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace korvane::modes {

// A received Mode S frame, and the transport encapsulations in which receivers hand them out.
class ModeSEncapsulation {
public:
    enum Format : int {
        Raw = 0, // frames of 7 or 14 octets, one after the other; the downlink format tells the length
        Avr = 1, // text: '*' frame ';', '@' 12 MHz time stamp, frame ';', '<' time stamp, signal level, frame ';'
        Beast = 2, // binary: escape octet 0x1A, frame kind, 12 MHz time stamp, signal level, frame
        RawRssi = 3, // frames of 7 or 14 octets, each followed by its signal level
    };
    static constexpr Format DefaultFormat = Beast;

    ModeSEncapsulation() = default;
    ModeSEncapsulation(const ModeSFrame &frame, Format format) : m_frame(frame), m_format(format) { }

    // Takes every complete frame out of the buffer, in order, and whatever is no frame with it. What stays behind is
    // the beginning of a frame, less than a hundred octets: append what is received next. The frames of one call share
    // one piece of memory, which is released with the last of them.
    static std::vector<std::shared_ptr<ModeSEncapsulation>> extract(
        std::string &buffer, const Format &format = DefaultFormat);

    // The same without an object per frame: replaces the contents of frames, whose memory is reused, and returns how
    // many octets of data are done with.
    static std::size_t extractAll(std::string_view data, Format format, std::vector<ModeSFrame> &frames);

    // Milliseconds: those of the receiver's counter until set; 0 where the receiver sends none.
    unsigned long long timeStamp() const { return m_frame.timeStamp; }
    void setTimeStamp(const unsigned long long &milliseconds) { m_frame.timeStamp = milliseconds; }

    const ModeSFrame &frame() const { return m_frame; }
    Format format() const { return m_format; }

    // A stable text per format, for files; that of the default format for a value that is none.
    static std::string identifier(const Format &format);
    // The inverse, exact; the default format for an unknown identifier.
    static Format fromIdentifier(const std::string &identifier);
    // The name of a format in plain English, for lists to choose from.
    static std::string name(const Format &format);

private:
    ModeSFrame m_frame;
    Format m_format = DefaultFormat;
};

} // namespace korvane::modes
