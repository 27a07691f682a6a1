#include "engine/identity_directory.h"

#include <algorithm>

namespace {

constexpr int ShortestBeginning = 3; // of a callsign
constexpr int LargestFound = 64;

// Neighbouring numbers differ in few bits: they are spread over all.
quint64 mixed(quint64 value)
{
    value ^= value >> 31;
    value *= 0x9E3779B97F4A7C15ULL;
    return value ^ value >> 29;
}

} // namespace

IdentityQuery IdentityQuery::fromText(const QString &text)
{
    IdentityQuery query;
    const QString trimmed = text.trimmed().toUpper();
    query.callsign = trimmed;
    bool ok = false;
    const uint octal = trimmed.toUInt(&ok, 8);
    if (ok && trimmed.size() == 4) {
        query.modeA = static_cast<quint16>(octal);
    }
    const uint address = trimmed.toUInt(&ok, 16);
    if (ok && trimmed.size() == 6) {
        query.address = address;
    }
    const uint number = (trimmed.startsWith('#') ? trimmed.mid(1) : trimmed).toUInt(&ok);
    if (ok) {
        query.number = number;
    }
    return query;
}

bool IdentityQuery::matches(const QString &otherCallsign, std::optional<quint16> otherModeA, quint32 otherAddress,
    std::initializer_list<quint32> otherNumbers) const
{
    if (isEmpty()) {
        return false;
    }
    const bool isBeginning = callsign.size() >= ShortestBeginning && otherCallsign.startsWith(callsign);
    if (otherCallsign == callsign || isBeginning) {
        return true;
    }
    if ((modeA && otherModeA == modeA) || (address && *address != 0 && otherAddress == *address)) {
        return true;
    }
    return number && *number != 0 && std::find(otherNumbers.begin(), otherNumbers.end(), *number) != otherNumbers.end();
}

bool IdentityQuery::matches(const SeenIdentity &seen) const
{
    return matches(QString::fromLatin1(seen.callsign).trimmed().toUpper(), seen.modeA, seen.address,
        {seen.sensorNumber, seen.trackNumber});
}

// Who has an address is known by it, else by the sensor's number, else by the code.
quint64 IdentityDirectory::keyOf(const SeenIdentity &seen)
{
    quint64 who = 0;
    if (seen.address != 0) {
        who = 1ULL << 32 | seen.address;
    } else if (seen.sensorNumber != 0) {
        who = 2ULL << 32 | seen.sensorNumber;
    } else if (seen.modeA) {
        who = 3ULL << 32 | *seen.modeA;
    } else {
        for (const char character : seen.callsign) {
            who = who * 131 + static_cast<unsigned char>(character);
        }
    }
    const quint64 source = static_cast<quint64>(seen.category) << 16 | static_cast<quint64>(seen.sac) << 8 | seen.sic;
    return mixed(mixed(who) ^ source << 1 ^ (seen.hasEnded() ? 1 : 0));
}

void IdentityDirectory::note(const SeenIdentity &seen)
{
    const quint64 key = keyOf(seen);
    const auto known = m_index.find(key);
    const int index = known == m_index.end() ? add(key) : known->second;
    unlink(index);
    SeenIdentity &held = m_entries[static_cast<std::size_t>(index)].seen;
    const quint64 before = held.outcome == seen.outcome ? held.reports : 0;
    held = seen;
    held.reports = before + 1;
    linkAsNewest(index);
}

// The place of the one that was named longest ago, when there is no other. Its node of the index is used again, too.
int IdentityDirectory::add(quint64 key)
{
    if (m_entries.size() < MaximumIdentities) {
        const int index = static_cast<int>(m_entries.size());
        m_entries.push_back({{}, key, None, None});
        m_index.emplace(key, index);
        linkAsNewest(index);
        return index;
    }
    const int index = m_oldest;
    Entry &entry = m_entries[static_cast<std::size_t>(index)];
    auto node = m_index.extract(entry.key);
    node.key() = key;
    m_index.insert(std::move(node));
    entry.key = key;
    entry.seen = {};
    return index;
}

void IdentityDirectory::unlink(int index)
{
    const Entry &entry = m_entries[static_cast<std::size_t>(index)];
    (entry.newer == None ? m_newest : m_entries[static_cast<std::size_t>(entry.newer)].older) = entry.older;
    (entry.older == None ? m_oldest : m_entries[static_cast<std::size_t>(entry.older)].newer) = entry.newer;
}

void IdentityDirectory::linkAsNewest(int index)
{
    Entry &entry = m_entries[static_cast<std::size_t>(index)];
    entry.newer = None;
    entry.older = m_newest;
    (m_newest == None ? m_oldest : m_entries[static_cast<std::size_t>(m_newest)].newer) = index;
    m_newest = index;
}

void IdentityDirectory::clear()
{
    m_entries.clear();
    m_index.clear();
    m_newest = None;
    m_oldest = None;
}

QList<SeenIdentity> IdentityDirectory::find(const IdentityQuery &query) const
{
    QList<SeenIdentity> found;
    for (int index = m_newest; index != None && found.size() < LargestFound;) {
        const Entry &entry = m_entries[static_cast<std::size_t>(index)];
        if (query.matches(entry.seen)) {
            found.append(entry.seen);
        }
        index = entry.older;
    }
    return found;
}
