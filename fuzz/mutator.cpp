#include "mutator.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t MaxOctets = 4096;

// The length field made to fit, so that a fault further in is reached.
void mendLength(Octets &octets)
{
    if (octets.size() < 3) {
        return;
    }
    octets[1] = static_cast<unsigned char>(octets.size() >> 8);
    octets[2] = static_cast<unsigned char>(octets.size());
}

} // namespace

Mutator::Mutator(std::vector<Octets> corpus, std::uint64_t seed) : m_corpus(std::move(corpus)), m_random(seed) { }

std::size_t Mutator::below(std::size_t limit)
{
    return limit == 0 ? 0 : std::uniform_int_distribution<std::size_t>(0, limit - 1)(m_random);
}

unsigned char Mutator::octet()
{
    constexpr unsigned char Favourites[] = {0x00, 0x01, 0x02, 0x7F, 0x80, 0xFE, 0xFF};
    return below(2) ? Favourites[below(std::size(Favourites))] : static_cast<unsigned char>(below(256));
}

Octets Mutator::next()
{
    Octets octets = m_corpus[below(m_corpus.size())];
    for (std::size_t count = 1 + below(4); count > 0; --count) {
        mutate(octets);
    }
    if (octets.size() > MaxOctets) {
        octets.resize(MaxOctets);
    }
    // Mostly whole blocks: otherwise nothing but the header would be looked at.
    if (below(8) != 0) {
        mendLength(octets);
    }
    return octets;
}

void Mutator::mutate(Octets &octets)
{
    switch (below(6)) {
    case 0:
    case 1:
        if (!octets.empty()) {
            octets[below(octets.size())] ^= static_cast<unsigned char>(1U << below(8));
        }
        break;
    case 2:
        editLength(octets);
        break;
    case 3:
        octets.resize(below(octets.size() + 1));
        break;
    case 4:
        splice(octets);
        break;
    default:
        insert(octets);
    }
}

void Mutator::splice(Octets &octets)
{
    const Octets &other = m_corpus[below(m_corpus.size())];
    const auto from = static_cast<std::ptrdiff_t>(below(other.size()));
    const std::size_t at = below(octets.size() + 1);
    octets.resize(at);
    octets.insert(octets.end(), other.begin() + from, other.end());
}

void Mutator::insert(Octets &octets)
{
    Octets inserted(1 + below(8));
    std::generate(inserted.begin(), inserted.end(), [this] { return octet(); });
    const auto at = static_cast<std::ptrdiff_t>(below(octets.size() + 1));
    octets.insert(octets.begin() + at, inserted.begin(), inserted.end());
}

// Counts, lengths and FX bits lie anywhere; the block's own length is where it is.
void Mutator::editLength(Octets &octets)
{
    if (octets.size() < 4) {
        return;
    }
    const std::size_t at = below(4) == 0 ? 1 + below(2) : 3 + below(octets.size() - 3);
    octets[at] = octet();
}
