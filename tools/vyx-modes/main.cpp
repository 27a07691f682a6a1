#include "vyx-modes/decode_command.h"

#include <unistd.h>

namespace {

int run(const CommandLine &command)
{
    const TextSink out = [](std::string_view text) { return writeAll(STDOUT_FILENO, text); };
    switch (command.verb) {
    case CommandLine::Verb::Decode:
        return runDecode(command, out, printLine);
    case CommandLine::Verb::Version:
        return out("vyx-modes " VYX_VERSION "\n") ? 0 : 1;
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
        printLine("vyx-modes: " + error);
        return 2;
    }
    return run(command);
}
