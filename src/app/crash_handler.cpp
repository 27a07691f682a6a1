#include "app/crash_handler.h"

#include "app/app_identity.h"
#include "app/crash_log_writer.h"
#include "app/fault_context.h"
#include "app/memory_map_reader.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTimeZone>

#include <algorithm>
#include <array>
#include <atomic>
#include <climits>
#include <csignal>
#include <cstring>
#include <ctime>
#include <execinfo.h>
#include <fcntl.h>
#include <limits>
#include <link.h>
#include <sys/mman.h>
#include <unistd.h>

namespace {

constexpr std::array FatalSignals{SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT};

struct Image {
    std::uintptr_t base = 0; // load address
    std::uintptr_t size = 0;
};

// Everything that the handler could not find out for itself: it may neither allocate nor call into Qt. Time zone rules
// are among it, so the next change of the offset from UTC is looked up beforehand.
struct Prepared {
    std::array<char, PATH_MAX> logFile{};
    std::array<char, 32> version{};
    std::array<char, 64> revision{};
    Image image;
    std::int64_t utcOffset = 0; // seconds
    std::int64_t nextUtcOffset = 0;
    std::int64_t nextUtcOffsetFrom = std::numeric_limits<std::int64_t>::max(); // seconds since 1970
};

Prepared prepared;

void writeHeader(CrashLogWriter &log, int signal, const siginfo_t &info, const FaultContext &context)
{
    const std::int64_t now = time(nullptr);
    log.dateTime(now + (now < prepared.nextUtcOffsetFrom ? prepared.utcOffset : prepared.nextUtcOffset));
    log.text(" version=").text(prepared.version.data()).text(" git=").text(prepared.revision.data());
    log.text(" exception=0x").hex(static_cast<std::uintptr_t>(signal));
    log.text(" rip=0x").hex(context.rip).text(" base=0x").hex(prepared.image.base);
    const bool raisedByAccess = signal == SIGSEGV && info.si_code > 0; // and not by kill()
    if (raisedByAccess) {
        log.text(" access=").decimal(context.access);
        log.text(" data=0x").hex(reinterpret_cast<std::uintptr_t>(info.si_addr));
    }
    log.text("\n");
}

void writeCallStack(CrashLogWriter &log)
{
    static std::array<void *, 64> frames;
    const int count = backtrace(frames.data(), static_cast<int>(frames.size()));
    for (int i = 0; i < count; ++i) {
        log.text("  0x").hex(reinterpret_cast<std::uintptr_t>(frames[static_cast<std::size_t>(i)])).text("\n");
    }
}

void writeRegisters(CrashLogWriter &log, const FaultContext &context)
{
    log.text("  rsp=0x").hex(context.rsp).text(" rbp=0x").hex(context.rbp);
    log.text(" rax=0x").hex(context.rax).text(" rbx=0x").hex(context.rbx);
    log.text(" rcx=0x").hex(context.rcx).text(" rdx=0x").hex(context.rdx);
    log.text(" rsi=0x").hex(context.rsi).text(" rdi=0x").hex(context.rdi).text("\n");
}

// The readable region that holds the address. An exhausted stack has its pointer in the guard below it, so a region
// that begins a little higher counts too.
bool findStackRegion(std::uintptr_t stackPointer, MemoryRegion *region)
{
    constexpr std::uintptr_t LargestGuard = 1U << 20;
    MemoryMapReader map;
    while (map.next(region)) {
        if (region->readable && stackPointer < region->end) {
            return region->begin <= stackPointer || region->begin - stackPointer <= LargestGuard;
        }
    }
    return false;
}

// Words on the stack that point into the program: return addresses that a damaged chain of frames would not show.
// Memory is read through its file, which fails where a plain access would fault.
void writeStackScan(CrashLogWriter &log, std::uintptr_t stackPointer)
{
    static MemoryRegion region;
    static std::array<std::uintptr_t, 512> words;
    if (!findStackRegion(stackPointer, &region)) {
        return;
    }
    const int memory = open("/proc/self/mem", O_RDONLY | O_CLOEXEC);
    constexpr std::uintptr_t Alignment = sizeof words[0];
    auto address = (std::max(stackPointer, region.begin) + Alignment - 1) / Alignment * Alignment;
    while (address < region.end) {
        const auto wanted = std::min<std::size_t>(sizeof words, region.end - address);
        const auto count = pread(memory, words.data(), wanted, static_cast<off_t>(address));
        if (count < static_cast<ssize_t>(Alignment)) {
            break;
        }
        const auto wordCount = static_cast<std::size_t>(count) / Alignment;
        for (std::size_t i = 0; i < wordCount; ++i) {
            const auto word = words[i];
            if (word > prepared.image.base && word < prepared.image.base + prepared.image.size) {
                log.text("  stack 0x").hex(word).text("\n");
            }
        }
        address += wordCount * Alignment;
    }
    close(memory);
}

void writeModule(CrashLogWriter &log, const MemoryRegion &module)
{
    if (!module.executable) {
        return;
    }
    log.text("  mod 0x").hex(module.begin).text(" size=0x").hex(module.end - module.begin);
    log.text(" ").text(module.name.data()).text("\n");
}

// A module is the run of regions that one file is mapped to, one of them executable: mapped data files are none.
void writeModules(CrashLogWriter &log)
{
    static MemoryRegion module;
    static MemoryRegion region;
    module = {};
    MemoryMapReader map;
    while (map.next(&region)) {
        if (region.name[0] != '/') {
            continue;
        }
        if (std::strcmp(region.name.data(), module.name.data()) != 0) {
            writeModule(log, module);
            module = region;
        }
        module.end = region.end;
        module.executable = module.executable || region.executable;
    }
    writeModule(log, module);
}

void writeReport(int signal, const siginfo_t &info, const void *signalContext)
{
    static FaultContext context;
    CrashLogWriter log(prepared.logFile.data());
    if (!log.isOpen()) {
        return;
    }
    context = faultContext(signalContext);
    writeHeader(log, signal, info, context);
    log.flush(); // following the frames of a damaged stack may fault again
    writeCallStack(log);
    writeRegisters(log, context);
    writeStackScan(log, context.rsp);
    writeModules(log);
}

// All fatal signals are blocked while it runs: a fault in here ends the process at once.
void unhandledExceptionHandler(int signal, siginfo_t *info, void *context)
{
    static std::atomic_flag reporting;
    while (reporting.test_and_set()) {
        pause(); // another thread crashed first; its signal ends the process
    }
    constexpr unsigned int SecondsForTheReport = 10;
    std::signal(SIGALRM, SIG_DFL);
    alarm(SecondsForTheReport); // the stack capture may wait for a lock that the crash left held
    writeReport(signal, *info, context);
    alarm(0);
    std::signal(signal, SIG_DFL);
    raise(signal); // takes effect when this handler returns to the place of the fault
}

int addressRangeOf(dl_phdr_info *info, std::size_t, void *result)
{
    const auto pageMask = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE)) - 1;
    std::uintptr_t begin = std::numeric_limits<std::uintptr_t>::max();
    std::uintptr_t end = 0;
    for (int i = 0; i < info->dlpi_phnum; ++i) {
        const auto &segment = info->dlpi_phdr[i];
        if (segment.p_type == PT_LOAD) {
            begin = std::min<std::uintptr_t>(begin, segment.p_vaddr & ~pageMask);
            end = std::max<std::uintptr_t>(end, segment.p_vaddr + segment.p_memsz);
        }
    }
    *static_cast<Image *>(result) = {info->dlpi_addr + begin, end - begin};
    return 1; // the first is the program itself; no need of the libraries
}

template <std::size_t Size>
void copy(const QByteArray &text, std::array<char, Size> *destination)
{
    const auto length = std::min<std::size_t>(static_cast<std::size_t>(text.size()), Size - 1);
    std::copy_n(text.constData(), length, destination->begin());
    (*destination)[length] = '\0';
}

void prepareTimeZone()
{
    const auto now = QDateTime::currentDateTimeUtc();
    const auto zone = QTimeZone::systemTimeZone();
    prepared.utcOffset = zone.offsetFromUtc(now);
    const auto change = zone.nextTransition(now);
    if (change.atUtc.isValid()) {
        prepared.nextUtcOffset = change.offsetFromUtc;
        prepared.nextUtcOffsetFrom = change.atUtc.toSecsSinceEpoch();
    }
}

void installHandlers()
{
    struct sigaction action = {};
    action.sa_sigaction = unhandledExceptionHandler;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK;
    sigemptyset(&action.sa_mask);
    for (const int signal : FatalSignals) {
        sigaddset(&action.sa_mask, signal);
    }
    for (const int signal : FatalSignals) {
        sigaction(signal, &action, nullptr);
    }
}

// The stack that a thread's signal handlers run on, for as long as the thread lives.
class AlternateStack {
public:
    AlternateStack() : m_memory(mmap(nullptr, Size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0))
    {
        stack_t stack = {};
        stack.ss_sp = m_memory;
        stack.ss_size = Size;
        if (m_memory != MAP_FAILED) {
            sigaltstack(&stack, &m_previous);
        }
    }
    ~AlternateStack()
    {
        if (m_memory == MAP_FAILED) {
            return;
        }
        sigaltstack(&m_previous, nullptr);
        munmap(m_memory, Size);
    }
    AlternateStack(const AlternateStack &) = delete;
    AlternateStack &operator=(const AlternateStack &) = delete;

private:
    static constexpr std::size_t Size = std::size_t{128} * 1024; // the unwinder and the report need some 20 kilobytes

    void *m_memory;
    stack_t m_previous = {};
};

} // namespace

void installCrashHandler(const QString &logFile)
{
    QDir().mkpath(QFileInfo(logFile).absolutePath());
    copy(QFile::encodeName(logFile), &prepared.logFile);
    copy(QCoreApplication::applicationVersion().toUtf8(), &prepared.version);
    copy(buildRevision().toUtf8(), &prepared.revision);
    dl_iterate_phdr(addressRangeOf, &prepared.image);
    prepareTimeZone();
    std::array<void *, 1> frame;
    backtrace(frame.data(), 1); // loads the unwinder now: later it would allocate
    prepareThreadForCrashHandler();
    installHandlers();
}

void prepareThreadForCrashHandler()
{
    thread_local const AlternateStack stack;
}
