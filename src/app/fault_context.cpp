#include "app/fault_context.h"

#include <ucontext.h>

#if defined(__aarch64__)
#include <asm/sigcontext.h>
#endif

namespace {

#if defined(__x86_64__)

FaultContext contextOf(const mcontext_t &machine)
{
    const auto reg = [&machine](int index) { return static_cast<std::uintptr_t>(machine.gregs[index]); };
    // Bits of the page fault error code.
    constexpr std::uintptr_t Written = 1U << 1;
    constexpr std::uintptr_t Fetched = 1U << 4;
    const auto error = reg(REG_ERR);
    const auto access = error & Fetched ? FaultContext::Execute
        : error & Written               ? FaultContext::Write
                                        : FaultContext::Read;
    return {reg(REG_RIP), reg(REG_RSP), reg(REG_RBP), reg(REG_RAX), reg(REG_RBX), reg(REG_RCX), reg(REG_RDX),
        reg(REG_RSI), reg(REG_RDI), access};
}

#elif defined(__aarch64__)

// The kernel appends records to the context; the one with the exception syndrome tells what was accessed and how.
FaultContext::Access accessOf(const mcontext_t &machine)
{
    const auto *record = reinterpret_cast<const _aarch64_ctx *>(machine.__reserved);
    while (record->magic && record->magic != ESR_MAGIC) {
        record = reinterpret_cast<const _aarch64_ctx *>(reinterpret_cast<const char *>(record) + record->size);
    }
    if (!record->magic) {
        return FaultContext::Read;
    }
    const auto syndrome = reinterpret_cast<const esr_context *>(record)->esr;
    const auto exceptionClass = syndrome >> 26 & 0x3F;
    if (exceptionClass == 0x20 || exceptionClass == 0x21) { // instruction abort
        return FaultContext::Execute;
    }
    return syndrome & 1U << 6 ? FaultContext::Write : FaultContext::Read;
}

// Argument registers for argument registers, frame pointer for frame pointer, x19 for the first callee-saved one.
FaultContext contextOf(const mcontext_t &machine)
{
    const auto &x = machine.regs;
    return {machine.pc, machine.sp, x[29], x[0], x[19], x[3], x[2], x[1], x[0], accessOf(machine)};
}

#else

FaultContext contextOf(const mcontext_t &)
{
    return {};
}

#endif

} // namespace

FaultContext faultContext(const void *signalContext)
{
    return contextOf(static_cast<const ucontext_t *>(signalContext)->uc_mcontext);
}
