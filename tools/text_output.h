#pragma once

#include <cerrno>
#include <functional>
#include <string>
#include <string_view>
#include <unistd.h>

// Text to standard output, in large pieces; false ends the run.
using TextSink = std::function<bool(std::string_view text)>;
// One line, without its end, to standard error.
using LineSink = std::function<void(std::string_view line)>;

// False when the descriptor takes no more.
inline bool writeAll(int descriptor, std::string_view text)
{
    while (!text.empty()) {
        const ssize_t written = ::write(descriptor, text.data(), text.size());
        if (written < 0 && errno != EINTR) {
            return false;
        }
        if (written > 0) {
            text.remove_prefix(static_cast<std::size_t>(written));
        }
    }
    return true;
}

// A line to standard error.
inline void printLine(std::string_view line)
{
    writeAll(STDERR_FILENO, std::string(line) + '\n');
}
