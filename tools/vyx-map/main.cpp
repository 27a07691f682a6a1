#include "vyx-map/convert_command.h"
#include "vyx-map/info_command.h"
#include "vyx-map/tiles_command.h"

#include <QGuiApplication>

#include <atomic>
#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace {

void printLine(std::FILE *file, const QString &line)
{
    const QByteArray text = line.toLocal8Bit() + '\n';
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), file);
}

void printError(const QString &line)
{
    printLine(stderr, QStringLiteral("vyx-map: %1").arg(line));
}

// Shows the percentage while it changes, on one line that is gone at the end.
void printPercent(int percent)
{
    static int shown = -1;
    if (percent == shown) {
        return;
    }
    shown = percent;
    std::fprintf(stderr, percent >= 100 ? "\r    \r" : "\r%3d%%", percent);
    std::fflush(stderr);
}

// What the map formats note while they read is for their developers; errors reach the user as texts.
void hideNotes(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        printError(text);
    }
}

std::atomic<bool> cancelled = false;

int runUntilCancelled(const CommandLine &command, const PercentSink &progress, const LineSink &out)
{
    for (const int signal : {SIGINT, SIGTERM}) {
        std::signal(signal, [](int) { cancelled = true; });
    }
    return runTiles(command, progress, out, printError, cancelled);
}

int run(const CommandLine &command)
{
    const PercentSink progress = ::isatty(STDERR_FILENO) ? PercentSink(printPercent) : PercentSink();
    const LineSink out = [](const QString &line) { printLine(stdout, line); };
    switch (command.verb) {
    case CommandLine::Verb::Info:
        return runInfo(command, progress, out, printError);
    case CommandLine::Verb::Convert:
        return runConvert(command, progress, printError);
    case CommandLine::Verb::Tiles:
        return runUntilCancelled(command, progress, out);
    case CommandLine::Verb::Version:
        std::puts("vyx-map " VYX_VERSION);
        return 0;
    default:
        std::fputs(CommandLine::helpText(), stdout);
        return 0;
    }
}

} // namespace

int main(int argc, char *argv[])
{
    qInstallMessageHandler(hideNotes);
    // Maps hold pictures, for which Qt wants an application with a screen, whether there is one or not.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    CommandLine command;
    QString error;
    if (!CommandLine::parse(QCoreApplication::arguments().mid(1), command, error)) {
        printError(error);
        return 2;
    }
    const int status = run(command);
    return std::fflush(stdout) == 0 ? status : 1;
}
