#pragma once

#include <cstdint>
#include <vector>

namespace korvane::airdb {

// From a 24-bit address to the block that it is in. The first 12 bits choose one of 4096 entries, which names a block
// when all addresses below it are in that one, else a page of 64 entries for the next 6 bits; and those in turn for the
// last 6. Some 80 kB hold the blocks of the world.
class BlockPages {
public:
    BlockPages();

    // Addresses first to last (at most 0xFFFFFF) are in this block (0 or more), whatever they were in before.
    void paint(std::uint32_t first, std::uint32_t last, int block);

    // -1 where there is none. The address is at most 0xFFFFFF.
    int find(std::uint32_t address) const
    {
        std::uint32_t entry = m_entries[address >> 12];
        if (entry & Page) {
            entry = m_entries[(entry & ~Page) + (address >> 6 & 0x3F)];
        }
        if (entry & Page) {
            entry = m_entries[(entry & ~Page) + (address & 0x3F)];
        }
        return static_cast<int>(entry) - 1;
    }

private:
    static constexpr std::uint32_t Page = 0x80000000; // the rest is where it starts; else block + 1, 0 for none

    // The entries from base on stand for 2^shift addresses each, counted from the first one's address.
    void paintEntries(std::size_t base, unsigned shift, std::uint32_t first, std::uint32_t last, std::uint32_t value);
    std::size_t pageBelow(std::size_t entry);

    std::vector<std::uint32_t> m_entries;
};

} // namespace korvane::airdb
