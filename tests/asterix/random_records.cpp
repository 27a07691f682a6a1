#include "random_records.h"

#include "layout.h"

#include <random>
#include <string>

using korvane::asterix::BlockEncoder;
using korvane::asterix::findTable;
using korvane::asterix::isElement;
using korvane::asterix::Kind;
using korvane::asterix::Node;
using korvane::asterix::Uap;

struct RandomRecords::Filler {
    Filler(int category, const char *variation, std::uint32_t seed)
        : encoder(category, nullptr, variation),
          uap(variation ? findTable(category)->variation(variation) : findTable(category)->uaps.front().get()),
          random(seed)
    {
    }

    bool chance(double probability) { return std::bernoulli_distribution(probability)(random); }
    unsigned below(unsigned limit) { return static_cast<unsigned>(random() % limit); }

    // All ones, all zeros and the sign bit alone come more often than chance would have them.
    std::uint64_t bits(unsigned count)
    {
        const std::uint64_t ones = ~std::uint64_t{0} >> (64 - count);
        const std::uint64_t choices[] = {0, ones, std::uint64_t{1} << (count - 1), random(), random()};
        return choices[below(5)] & ones;
    }

    std::string text(unsigned size)
    {
        std::string out;
        while (out.size() < size)
            out += "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789"[below(36)];
        return out;
    }

    void fill(const Node &node, const std::string &path)
    {
        if (node.kind == Kind::Icao || node.kind == Kind::Ascii) {
            encoder.setText(path, text(node.bits / (node.kind == Kind::Icao ? 6 : 8)));
        } else if (isElement(node.kind) || node.kind == Kind::Case) {
            encoder.setRaw(path, bits(node.bits));
        } else if (node.isRepetitive()) {
            fillRepetitions(node, path);
        } else if (node.kind == Kind::Explicit) {
            const unsigned char contents[] = {0x0A, 0xFF, static_cast<unsigned char>(below(256))};
            encoder.setExplicit(path, contents);
        } else {
            fillChildren(node, path);
        }
    }

    void fillRepetitions(const Node &node, const std::string &path)
    {
        for (unsigned count = 1 + below(3); count > 0; --count) {
            if (node.plainElements) {
                encoder.setRaw(path, bits(node.children[0].bits));
            } else {
                encoder.addRepetition(path);
                fillChildren(node.children[0], path);
            }
        }
    }

    void fillChildren(const Node &node, const std::string &path)
    {
        const bool isChoice = node.kind == Kind::Compound;
        encoder.setPresent(path);
        for (const Node &child : node.children) {
            if (child.kind == Kind::ExtentEnd && chance(0.5))
                return;
            if (!child.name.empty() && (!isChoice || chance(0.5)))
                fill(child, path + '/' + child.name);
        }
    }

    BlockEncoder encoder;
    const Uap *uap;
    std::mt19937_64 random;
};

RandomRecords::RandomRecords(int category, const char *variation, std::uint32_t seed)
    : m_filler(std::make_unique<Filler>(category, variation, seed))
{
}

RandomRecords::~RandomRecords() = default;

const BlockEncoder &RandomRecords::makeBlock(int records)
{
    m_filler->encoder.beginBlock();
    for (int i = 0; i < records; ++i) {
        m_filler->encoder.beginRecord();
        const double rate = m_filler->chance(0.5) ? 0.2 : 0.8;
        for (int slot = 0; slot < m_filler->uap->count; ++slot) {
            const Node *item = m_filler->uap->steps[static_cast<std::size_t>(slot)].node;
            if (item && m_filler->chance(rate))
                m_filler->fill(*item, item->name);
        }
        m_filler->encoder.endRecord();
    }
    return m_filler->encoder;
}
