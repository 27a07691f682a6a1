#include "ui/library_log.h"

#include "asterix/asterix.h"
#include "modes/log.h"
#include "ui/main_window.h"

#include <QMutex>

namespace {

QMutex windowMutex;
MainWindow *logWindow = nullptr; // under the mutex

void show(LogLevel level, const QString &text)
{
    const QMutexLocker lock(&windowMutex);
    if (!logWindow) {
        return;
    }
    QMetaObject::invokeMethod(
        logWindow, [window = logWindow, level, text] { window->showLog(level, text); }, Qt::QueuedConnection);
}

// Mode S chatter is for debugging, whatever level it has in the library.
class ModesLogHandler final : public korvane::modes::LogHandler {
public:
    void log(korvane::modes::Log::Level, const std::string &text) override
    {
        show(LogLevel::Debug, QString::fromStdString(text));
    }
};

} // namespace

void LibraryLog::setWindow(MainWindow *window)
{
    const QMutexLocker lock(&windowMutex);
    logWindow = window;
}

void LibraryLog::logAsterix(int level, const char *text)
{
    show(level >= 0 && level <= 4 ? static_cast<LogLevel>(level + 1) : LogLevel::Debug, QString::fromUtf8(text));
}

void LibraryLog::install(bool showEverything)
{
    using korvane::modes::Log;
    static ModesLogHandler modesHandler;
    ast_log_handler_reg(&logAsterix);
    Log::setLogHandler(&modesHandler);
    if (showEverything) {
        Log::setShowLevel(Log::Debug);
    }
}
