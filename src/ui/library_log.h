#pragma once

class MainWindow;

// Carries the log lines of the decoding libraries, from whatever thread they come, into the application log.
namespace LibraryLog {

// The window that shows the log; null drops the lines. A window takes itself out before it goes.
void setWindow(MainWindow *window);

// The handler of the ASTERIX library. Levels are the library's, text is UTF-8. Any thread.
void logAsterix(int level, const char *text);

// Hands the handlers to the libraries. With everything shown the Mode S library tells each of its steps.
void install(bool showEverything);

} // namespace LibraryLog
