#pragma once

#include <string>

namespace korvane::modes {

class LogHandler;

// Where the library says what it came across. Silent until a handler is set.
class Log {
public:
    enum Level { Debug, Info, Warning, Critical, Off };

    // The handler is not owned; null sets none. It is called on the thread that decodes.
    static void setLogHandler(LogHandler *handler);
    // The least level that reaches the handler: Info at first.
    static void setShowLevel(Level level);

    static bool isShown(Level level);
    static void write(Level level, const std::string &text);
};

class LogHandler {
public:
    LogHandler() = default;
    virtual ~LogHandler(); // takes itself out of use
    LogHandler(const LogHandler &) = delete;
    LogHandler &operator=(const LogHandler &) = delete;

    virtual void log(Log::Level level, const std::string &text) = 0;
};

} // namespace korvane::modes
