#include "ui/library_log.h"

#include "app/log_gate.h"
#include "asterix/asterix.h"
#include "modes/log.h"

#include <QMutex>
#include <QObject>
#include <QTimer>

#include <utility>

namespace {

constexpr int SumIntervalMs = 1000;

QMutex sinkMutex;
QObject *sinkReceiver = nullptr; // these two under the mutex
LibraryLog::Sink sink;

void post(LogLevel level, const QString &text)
{
    const QMutexLocker lock(&sinkMutex);
    if (sinkReceiver) {
        QMetaObject::invokeMethod(
            sinkReceiver, [to = sink, level, text] { to(level, text); }, Qt::QueuedConnection);
    }
}

LogGate &gate()
{
    static LogGate instance(&post);
    return instance;
}

// The text becomes a string only when somebody will see it.
template <typename MakeText>
void show(LogLevel level, MakeText makeText)
{
    if (LogGate::isShown(level)) {
        gate().log(level, makeText());
    }
}

// Mode S chatter is for debugging, whatever level it has in the library.
class ModesLogHandler final : public korvane::modes::LogHandler {
public:
    void log(korvane::modes::Log::Level, const std::string &text) override
    {
        show(LogLevel::Debug, [&text] { return QString::fromStdString(text); });
    }
};

} // namespace

void LibraryLog::setSink(QObject *receiver, Sink newSink)
{
    {
        const QMutexLocker lock(&sinkMutex);
        sinkReceiver = receiver;
        sink = std::move(newSink);
    }
    if (receiver) {
        auto *timer = new QTimer(receiver);
        QObject::connect(timer, &QTimer::timeout, &LibraryLog::sumUp);
        timer->start(SumIntervalMs);
    }
}

void LibraryLog::sumUp()
{
    gate().sumUp();
}

void LibraryLog::logAsterix(int level, const char *text)
{
    show(level >= 0 && level <= 4 ? static_cast<LogLevel>(level + 1) : LogLevel::Debug,
        [text] { return QString::fromUtf8(text); });
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
