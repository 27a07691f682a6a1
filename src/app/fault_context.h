#pragma once

#include <cstdint>

// The processor's state at the moment of a fault. The register names are those of the x86-64; on another processor they
// stand for the registers with the nearest role.
struct FaultContext {
    // What the instruction did that faulted on a memory address.
    enum Access { Read = 0, Write = 1, Execute = 8 };

    std::uintptr_t rip = 0;
    std::uintptr_t rsp = 0;
    std::uintptr_t rbp = 0;
    std::uintptr_t rax = 0;
    std::uintptr_t rbx = 0;
    std::uintptr_t rcx = 0;
    std::uintptr_t rdx = 0;
    std::uintptr_t rsi = 0;
    std::uintptr_t rdi = 0;
    Access access = Read;
};

// From the third argument of a signal handler; async-signal-safe. All zero on a processor that is not known here.
FaultContext faultContext(const void *signalContext);
