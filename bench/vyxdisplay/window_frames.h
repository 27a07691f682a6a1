#pragma once

// What the programs that drive the terminal's window by hand share.

#include "app/app_identity.h"
#include "app/app_paths.h"
#include "demonstration/demo_traffic.h"
#include "ui/main_window.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <utility>
#include <vector>

// Processor time of this thread so far.
inline double threadMs()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1000.0 + static_cast<double>(time.tv_nsec) / 1e6;
}

// Tells what the window's thread spends its time on, event by event.
class WatchedApplication final : public QApplication {
public:
    struct Handled {
        QString what; // receiver and kind of the event
        double milliseconds = 0.0; // processor time, with that of the events that it led to
    };

    using QApplication::QApplication;

    // Those that took long enough to be seen in a frame, since the last call.
    std::vector<Handled> takeHandled() { return std::exchange(m_handled, {}); }

    bool notify(QObject *receiver, QEvent *event) override
    {
        const bool onWindow = QThread::currentThread() == thread();
        const QString what = QStringLiteral("%1 %2").arg(receiver->metaObject()->className()).arg(event->type());
        const double before = threadMs();
        const bool done = QApplication::notify(receiver, event);
        const double taken = threadMs() - before;
        if (onWindow && taken > LeastMs) {
            m_handled.push_back({what, taken});
        }
        return done;
    }

private:
    static constexpr double LeastMs = 0.5;

    std::vector<Handled> m_handled;
};

// A program that drives the window with settings of its own, and what it was told on its command line.
class WindowProgram {
public:
    WindowProgram(int &argc, char *argv[], const QString &profile, const QList<QCommandLineOption> &options)
        : m_application(argc, argv)
    {
        setApplicationIdentity();
        AppPaths::setProfile(profile);
        m_options.addHelpOption();
        m_options.addOptions(options);
        m_options.process(m_application);
    }

    QString text(const QString &option) const { return m_options.value(option); }
    int number(const QString &option) const { return text(option).toInt(); }
    bool isSet(const QString &option) const { return m_options.isSet(option); }
    WatchedApplication &application() { return m_application; }

private:
    WatchedApplication m_application;
    QCommandLineParser m_options;
};

inline constexpr double FrameMs = 1000.0 / 60.0;

// What frames took, milliseconds, in ascending order once they have been sorted.
struct Frames {
    std::vector<double> work;
    std::vector<double> clock;

    static QString figures(std::vector<double> &times)
    {
        std::sort(times.begin(), times.end());
        return QString("%1 / %2 / %3 ms")
            .arg(times[times.size() / 2], 0, 'f', 1)
            .arg(times[times.size() * 95 / 100], 0, 'f', 1)
            .arg(times.back(), 0, 'f', 1);
    }
};

// Says why it cannot be played.
inline bool prepared(DemoTraffic &demo)
{
    QString error;
    const bool done = demo.prepare(&error);
    if (!done) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
    }
    return done;
}

inline void let(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        QThread::msleep(1);
    }
}

// As the operator ends it; returns when all has stopped.
inline void endWindow(MainWindow &window)
{
    window.setExitQuestion([] { return true; });
    QObject::connect(&window, &MainWindow::shutdownComplete, qApp, [] { QCoreApplication::exit(); });
    window.requestExit();
    QApplication::exec();
}
