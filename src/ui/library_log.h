#pragma once

class MainWindow;

// Carries the log lines of the ASTERIX library, from whatever thread they come, into the application log.
namespace AsterixLogHandler {

// The window that shows the log; null drops the lines. A window takes itself out before it goes.
void setWindow(MainWindow *window);

// To be registered with the library. Levels are the library's, text is UTF-8. Any thread.
void log(int level, const char *text);

} // namespace AsterixLogHandler
