#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

// One region of the address space. The name is a file's path, "[stack]" and its like, or empty.
struct MemoryRegion {
    std::uintptr_t begin = 0;
    std::uintptr_t end = 0;
    bool readable = false;
    bool executable = false;
    std::array<char, 512> name{}; // longer ones are cut off
};

// Reads the memory map of the own process region by region, in ascending order, with nothing but async-signal-safe
// calls.
class MemoryMapReader {
public:
    MemoryMapReader();
    ~MemoryMapReader();
    MemoryMapReader(const MemoryMapReader &) = delete;
    MemoryMapReader &operator=(const MemoryMapReader &) = delete;

    // False at the end.
    bool next(MemoryRegion *region);

private:
    // The next character, 0 at the end of the file.
    char take();
    std::uintptr_t takeHex(char terminator);
    void skipField();
    char takeAfterBlanks();

    std::array<char, 4096> m_buffer;
    std::size_t m_at = 0;
    std::size_t m_filled = 0;
    int m_file;
};
