// A program for the tests to crash, to kill while it saves settings, and to copy to where it is portable.
//
//   app_child crash KIND FILE     installs the crash handler on the file and crashes
//   app_child save FILE           saves two versions of the settings in turn for ever, after the line "saving"
//   app_child paths PROFILE [PATH]...  prints what AppPaths answers, one "name=value" a line, how PATHs are stored and
//                                      resolved last
//   app_child own DIRECTORY       keeps the settings in it, after the line "owns" or "is late", until it is killed

#include "app/app_identity.h"
#include "app/app_log.h"
#include "app/app_paths.h"
#include "app/config.h"
#include "app/crash_handler.h"
#include "app/settings_owner.h"

#include <QHash>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

namespace {

#define VYX_UNCHECKED __attribute__((noinline, no_sanitize("address", "undefined")))

VYX_UNCHECKED void writeNull()
{
    volatile int *volatile nowhere = nullptr;
    *nowhere = 1;
}

VYX_UNCHECKED void readLowAddress()
{
    const volatile int *volatile low = reinterpret_cast<const volatile int *>(0x10);
    static_cast<void>(*low);
}

VYX_UNCHECKED void executeNull()
{
    void (*volatile nothing)() = nullptr;
    nothing();
}

VYX_UNCHECKED int exhaustStack(int depth)
{
    volatile char frame[256];
    frame[0] = static_cast<char>(depth);
    return depth < 0 ? 0 : exhaustStack(depth + 1) + frame[0];
}

void exhaustThreadStack()
{
    std::thread([] {
        prepareThreadForCrashHandler();
        exhaustStack(1);
    }).join();
}

void crash(const QString &kind)
{
    const rlimit noCoreDump = {0, 0};
    setrlimit(RLIMIT_CORE, &noCoreDump);
    const QHash<QString, void (*)()> kinds{{"null-write", writeNull}, {"low-read", readLowAddress},
        {"null-call", executeNull}, {"stack", [] { exhaustStack(1); }}, {"thread-stack", exhaustThreadStack},
        {"abort", std::abort}, {"signal", [] { std::raise(SIGSEGV); }}};
    if (const auto function = kinds.value(kind)) {
        function();
    }
}

[[noreturn]] void saveForEver(const QString &fileName)
{
    Config first;
    Config second;
    second.sensorName = QString(50000, QLatin1Char('x'));
    std::puts("saving");
    std::fflush(stdout);
    for (;;) {
        second.save(fileName);
        first.save(fileName);
    }
}

void print(const char *name, const QString &value)
{
    std::printf("%s=%s\n", name, qUtf8Printable(value));
}

void printPaths(const QStringList &paths)
{
    print("portable", AppPaths::isPortable() ? "yes" : "no");
    print("debug", debugModeMarked() ? "yes" : "no");
    print("exeDir", AppPaths::exeDir());
    print("appDataDir", AppPaths::appDataDir());
    print("configDir", AppPaths::configDir());
    print("crashLogFile", AppPaths::crashLogFile());
    print("profiles", AppPaths::profiles().join(' '));
    for (const auto &path : paths) {
        print("stored", AppPaths::storePath(path));
        print("resolved", AppPaths::resolvePath(AppPaths::storePath(path)));
    }
}

} // namespace

int main(int argc, char *argv[])
{
    const QStringList arguments(argv + 1, argv + argc);
    const auto command = arguments.value(0);
    setApplicationIdentity();
    if (command == "crash") {
        installCrashHandler(arguments.value(2));
        crash(arguments.value(1));
    } else if (command == "save") {
        saveForEver(arguments.value(1));
    } else if (command == "own") {
        const SettingsOwner owner(arguments.value(1));
        std::puts(SettingsOwner::mayWrite() ? "owns" : "is late");
        std::fflush(stdout);
        pause();
    } else if (command == "paths") {
        AppPaths::setProfile(arguments.value(1));
        printPaths(arguments.mid(2));
        return 0;
    }
    return 1;
}
