#pragma once

#include "app/log_level.h"

#include <QString>

#include <functional>

class QObject;

// Carries the log lines of the decoding libraries, from whatever thread they come, into the application log. Those that
// nobody sees stay on that thread; what repeats itself comes as its number, once a second.
namespace LibraryLog {

using Sink = std::function<void(LogLevel level, const QString &text)>;

// Lines go to the sink by queued calls in the receiver's thread. Without a receiver they are dropped; one takes itself
// out before it goes.
void setSink(QObject *receiver, Sink sink);

// Says what has been kept back. Otherwise once a second, while there is a receiver.
void sumUp();

// The handler of the ASTERIX library. Levels are the library's, text is UTF-8. Any thread.
void logAsterix(int level, const char *text);

// Hands the handlers to the libraries. With everything shown the Mode S library tells each of its steps.
void install(bool showEverything);

} // namespace LibraryLog
