#include "vyx-asterix/assess_command.h"
#include "vyx-asterix/decode_command.h"
#include "vyx-asterix/doctor_command.h"
#include "vyx-asterix/encode_command.h"
#include "vyx-asterix/stat_command.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace {

int openOutput(const CommandLine &command)
{
    if (command.outputName.empty()) {
        return STDOUT_FILENO;
    }
    const int descriptor = ::open(command.outputName.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (descriptor < 0) {
        printLine(command.outputName + ": " + std::strerror(errno));
    }
    return descriptor;
}

std::atomic<bool> stopRequested{false};
static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler sets it");

void requestStop(int)
{
    stopRequested = true;
}

// The second Ctrl-C ends the program as any other.
int runInterruptibly(const CommandLine &command, const TextSink &out)
{
    struct sigaction action = {};
    action.sa_handler = requestStop;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    ::sigaction(SIGINT, &action, nullptr);
    return runAssess(command, out, printLine, stopRequested);
}

int run(const CommandLine &command)
{
    const int descriptor = openOutput(command);
    if (descriptor < 0) {
        return 1;
    }
    const TextSink out = [descriptor](std::string_view text) { return writeAll(descriptor, text); };
    switch (command.verb) {
    case CommandLine::Verb::Decode:
        return runDecode(command, out, printLine);
    case CommandLine::Verb::Encode:
        return runEncode(command, out, printLine);
    case CommandLine::Verb::Stat:
        return runStat(command, out, printLine);
    case CommandLine::Verb::Doctor:
        return runDoctor(command, out, printLine);
    case CommandLine::Verb::Assess:
        return runInterruptibly(command, out);
    case CommandLine::Verb::Version:
        return out("vyx-asterix " VYX_VERSION "\n") ? 0 : 1;
    default:
        return out(CommandLine::helpText()) ? 0 : 1;
    }
}

} // namespace

int main(int argc, char *argv[])
{
    CommandLine command;
    std::string error;
    if (!CommandLine::parse({argv + 1, argv + argc}, command, error)) {
        printLine("vyx-asterix: " + error);
        return 2;
    }
    return run(command);
}
