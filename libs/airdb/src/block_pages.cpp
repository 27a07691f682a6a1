#include "block_pages.h"

#include <algorithm>

namespace korvane::airdb {

namespace {

constexpr std::size_t PageSize = 64;

} // namespace

BlockPages::BlockPages() : m_entries(4096) { }

void BlockPages::paint(std::uint32_t first, std::uint32_t last, int block)
{
    paintEntries(0, 12, first, last, static_cast<std::uint32_t>(block) + 1);
}

void BlockPages::paintEntries(
    std::size_t base, unsigned shift, std::uint32_t first, std::uint32_t last, std::uint32_t value)
{
    const std::uint32_t span = 1U << shift;
    for (std::uint32_t start = first / span * span; start <= last; start += span) {
        const std::size_t entry = base + start / span;
        const std::uint32_t from = std::max(first, start) - start;
        const std::uint32_t to = std::min(last, start + span - 1) - start;
        if (from == 0 && to == span - 1) {
            m_entries[entry] = value;
        } else {
            paintEntries(pageBelow(entry), shift - 6, from, to, value);
        }
    }
}

std::size_t BlockPages::pageBelow(std::size_t entry)
{
    if ((m_entries[entry] & Page) == 0) {
        const std::size_t page = m_entries.size();
        m_entries.resize(page + PageSize, m_entries[entry]);
        m_entries[entry] = static_cast<std::uint32_t>(page) | Page;
    }
    return m_entries[entry] & ~Page;
}

} // namespace korvane::airdb
