#include "fragment_assembler.h"

#include <algorithm>
#include <cstring>

namespace korvane::astfile {

namespace {

constexpr qint64 LifetimeMs = 30000;
constexpr std::size_t MaxAssemblies = 64;
constexpr std::size_t MaxDatagram = 65535;

} // namespace

std::span<const unsigned char> FragmentAssembler::add(const Key &key, const Fragment &fragment, qint64 timeMs)
{
    // Only the last fragment may have a length that is no multiple of eight; others overlap or leave holes then.
    const bool aligned = fragment.last || fragment.data.size() % 8 == 0;
    if (fragment.data.empty() || !aligned || fragment.offset + fragment.data.size() > MaxDatagram) {
        return {};
    }
    dropStale(timeMs);
    Assembly &assembly = assemblyFor(key, timeMs);
    store(assembly, fragment);
    if (!complete(assembly)) {
        return {};
    }
    m_whole.swap(assembly.octets);
    const std::size_t total = assembly.total;
    m_assemblies.erase(m_assemblies.begin() + (&assembly - m_assemblies.data()));
    return {reinterpret_cast<const unsigned char *>(m_whole.constData()), total};
}

FragmentAssembler::Assembly &FragmentAssembler::assemblyFor(const Key &key, qint64 timeMs)
{
    const auto found = std::find_if(
        m_assemblies.begin(), m_assemblies.end(), [&key](const Assembly &assembly) { return assembly.key == key; });
    if (found != m_assemblies.end()) {
        return *found;
    }
    if (m_assemblies.size() == MaxAssemblies) {
        m_assemblies.erase(m_assemblies.begin());
    }
    Assembly &assembly = m_assemblies.emplace_back();
    assembly.key = key;
    assembly.startMs = timeMs;
    return assembly;
}

void FragmentAssembler::dropStale(qint64 timeMs)
{
    std::erase_if(m_assemblies, [timeMs](const Assembly &assembly) { return timeMs - assembly.startMs > LifetimeMs; });
}

void FragmentAssembler::store(Assembly &assembly, const Fragment &fragment)
{
    Range range = {fragment.offset, fragment.offset + fragment.data.size()};
    assembly.octets.resize(std::max<qsizetype>(assembly.octets.size(), static_cast<qsizetype>(range.end)));
    std::memcpy(assembly.octets.data() + range.begin, fragment.data.data(), fragment.data.size());
    if (fragment.last) {
        assembly.total = range.end;
    }
    std::erase_if(assembly.received, [&range](const Range &other) {
        const bool joins = other.begin <= range.end && range.begin <= other.end;
        if (joins) {
            range = {std::min(range.begin, other.begin), std::max(range.end, other.end)};
        }
        return joins;
    });
    assembly.received.push_back(range);
}

bool FragmentAssembler::complete(const Assembly &assembly)
{
    return assembly.total > 0 && assembly.received.size() == 1 && assembly.received.front().begin == 0
        && assembly.received.front().end >= assembly.total;
}

} // namespace korvane::astfile
