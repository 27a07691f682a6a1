#include "modes/log.h"

#include <atomic>

namespace korvane::modes {

namespace {

std::atomic<LogHandler *> handlerInUse = nullptr;
std::atomic<Log::Level> shownLevel = Log::Info;

} // namespace

void Log::setLogHandler(LogHandler *handler)
{
    handlerInUse = handler;
}

void Log::setShowLevel(Level level)
{
    shownLevel = level;
}

bool Log::isShown(Level level)
{
    return handlerInUse && level != Off && level >= shownLevel;
}

void Log::write(Level level, const std::string &text)
{
    if (LogHandler *const handler = isShown(level) ? handlerInUse.load() : nullptr) {
        handler->log(level, text);
    }
}

LogHandler::~LogHandler()
{
    LogHandler *self = this;
    handlerInUse.compare_exchange_strong(self, nullptr);
}

} // namespace korvane::modes
