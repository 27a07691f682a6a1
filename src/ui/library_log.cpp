#include "ui/asterix_log_handler.h"

#include "ui/main_window.h"

#include <QMutex>

namespace {

QMutex windowMutex;
MainWindow *logWindow = nullptr; // under the mutex

LogLevel applicationLevel(int level)
{
    return level >= 0 && level <= 4 ? static_cast<LogLevel>(level + 1) : LogLevel::Debug;
}

} // namespace

void AsterixLogHandler::setWindow(MainWindow *window)
{
    const QMutexLocker lock(&windowMutex);
    logWindow = window;
}

void AsterixLogHandler::log(int level, const char *text)
{
    const QString message = QString::fromUtf8(text);
    const QMutexLocker lock(&windowMutex);
    if (!logWindow) {
        return;
    }
    QMetaObject::invokeMethod(
        logWindow, [window = logWindow, level, message] { window->showLog(applicationLevel(level), message); },
        Qt::QueuedConnection);
}
