#pragma once

#include "app/log_level.h"

#include <QHash>
#include <QMutex>
#include <QString>

#include <atomic>
#include <functional>

// Stands where log lines leave the thread that they come from. What nobody sees goes no further, and of a fault that
// repeats itself the first few are shown in full and the others as their number. All functions may be called on any
// thread.
class LogGate {
public:
    using Sink = std::function<void(LogLevel level, const QString &text)>;

    // Lines of one kind that pass between two calls of sumUp().
    static constexpr int PassedInFull = 3;

    // The sink is called on the thread of the caller.
    explicit LogGate(Sink sink);

    // The level from which on the program's log shows lines; all of them at first.
    static void setShownLevel(LogLevel level) { ShownLevel.store(level, std::memory_order_relaxed); }
    // False: a line of that level would be dropped, so that its text need not be made.
    static bool isShown(LogLevel level) { return level >= ShownLevel.load(std::memory_order_relaxed); }

    void log(LogLevel level, const QString &text);

    // Says how many lines have been kept back, and begins to count anew. To be called once a second.
    void sumUp();

private:
    struct Kind {
        LogLevel level = LogLevel::None;
        QString text; // of the first
        int count = 0;
    };

    bool passes(LogLevel level, const QString &text);

    static std::atomic<LogLevel> ShownLevel;

    const Sink m_sink;
    QMutex m_mutex;
    QHash<std::size_t, Kind> m_kinds; // by what their texts have in common
};
