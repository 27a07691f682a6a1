#pragma once

#include "recognition/stream_findings.h"

#include <optional>
#include <span>

// One way in which a stream may be meant: kind of data and encapsulation. Takes in the messages as if it were so.
class StreamHypothesis {
public:
    StreamHypothesis() = default;
    StreamHypothesis(const StreamHypothesis &) = delete;
    StreamHypothesis &operator=(const StreamHypothesis &) = delete;
    virtual ~StreamHypothesis() = default;

    // A whole message with its envelope; time in ms since 1970 UTC, where it is known.
    virtual void add(std::span<const unsigned char> message, std::optional<qint64> timeMs) = 0;
    // Octets so far that make sense this way: the greater, the more likely.
    virtual qint64 explained() const = 0;
    virtual StreamFormat format() const = 0;
    // Fills in what concerns this kind of data.
    virtual void report(StreamFindings *findings) const = 0;
};
