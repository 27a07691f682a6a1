#pragma once

#include <cstdint>
#include <random>
#include <vector>

using Octets = std::vector<unsigned char>;

// Makes malformed inputs out of good ones: bit flips, edits of lengths, truncations, splices and insertions. The same
// for the same seed and corpus.
class Mutator {
public:
    // corpus: not empty; of longer inputs than one block the first block's length field is the one that is edited.
    Mutator(std::vector<Octets> corpus, std::uint64_t seed);

    Octets next();

private:
    std::size_t below(std::size_t limit);
    unsigned char octet();
    void mutate(Octets &octets);
    void splice(Octets &octets);
    void insert(Octets &octets);
    void editLength(Octets &octets);

    std::vector<Octets> m_corpus;
    std::mt19937_64 m_random;
};
