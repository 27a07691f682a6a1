#pragma once

#include "asterix/encoder.h"
#include "layout.h"

#include <cstdint>
#include <random>
#include <string>
#include <vector>

// Fills one record after the other with random contents of every item that its table has.
class RandomRecords {
    using BlockEncoder = korvane::asterix::BlockEncoder;
    using Kind = korvane::asterix::Kind;
    using Node = korvane::asterix::Node;

public:
    // edition: null for the standard one. variation: null where the category has one UAP only.
    RandomRecords(int category, const char *edition, const char *variation, std::uint32_t seed)
        : m_encoder(category, edition, variation),
          m_uap(variation ? korvane::asterix::findTable(category, edition)->variation(variation)
                          : korvane::asterix::findTable(category, edition)->uaps.front().get()),
          m_random(seed)
    {
    }

    // A block of so many records.
    const BlockEncoder &makeBlock(int records)
    {
        m_encoder.beginBlock();
        for (int i = 0; i < records; ++i) {
            m_encoder.beginRecord();
            const double rate = chance(0.5) ? 0.2 : 0.8;
            for (int slot = 0; slot < m_uap->count; ++slot) {
                const Node *item = m_uap->steps[static_cast<std::size_t>(slot)].node;
                if (item && chance(rate)) {
                    fill(*item, item->name);
                }
            }
            m_encoder.endRecord();
        }
        return m_encoder;
    }

private:
    bool chance(double probability) { return std::bernoulli_distribution(probability)(m_random); }
    unsigned below(unsigned limit) { return static_cast<unsigned>(m_random() % limit); }

    // All ones, all zeros and the sign bit alone come more often than chance would have them.
    std::uint64_t bits(unsigned count)
    {
        const std::uint64_t ones = ~std::uint64_t{0} >> (64 - count);
        const std::uint64_t choices[] = {0, ones, std::uint64_t{1} << (count - 1), m_random(), m_random()};
        return choices[below(5)] & ones;
    }

    std::string text(unsigned size)
    {
        std::string out;
        while (out.size() < size) {
            out += "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789"[below(36)];
        }
        return out;
    }

    void fill(const Node &node, const std::string &path)
    {
        if (node.kind == Kind::Icao || node.kind == Kind::Ascii) {
            m_encoder.setText(path, text(node.bits / (node.kind == Kind::Icao ? 6 : 8)));
        } else if (node.bits > 64 && korvane::asterix::isElement(node.kind)) {
            fillWide(node, path);
        } else if (korvane::asterix::isElement(node.kind) || node.kind == Kind::Case) {
            m_encoder.setRaw(path, bits(node.bits));
        } else if (node.isRepetitive()) {
            fillRepetitions(node, path);
        } else if (node.kind == Kind::Explicit) {
            const unsigned char contents[] = {0x0A, 0xFF, static_cast<unsigned char>(below(256))};
            m_encoder.setExplicit(path, contents);
        } else {
            fillChildren(node, path);
        }
    }

    void fillWide(const Node &node, const std::string &path)
    {
        std::vector<unsigned char> octets(node.bits / 8U);
        for (unsigned char &octet : octets) {
            octet = static_cast<unsigned char>(below(256));
        }
        m_encoder.setExplicit(path, octets);
    }

    void fillRepetitions(const Node &node, const std::string &path)
    {
        for (unsigned count = 1 + below(3); count > 0; --count) {
            if (node.plainElements) {
                fill(node.children[0], path);
            } else {
                m_encoder.addRepetition(path);
                fillChildren(node.children[0], path);
            }
        }
    }

    void fillChildren(const Node &node, const std::string &path)
    {
        const bool isChoice = node.kind == Kind::Compound;
        m_encoder.setPresent(path);
        for (const Node &child : node.children) {
            if (child.kind == Kind::ExtentEnd && chance(0.5)) {
                return;
            }
            if (!child.name.empty() && (!isChoice || chance(0.5))) {
                fill(child, path + '/' + child.name);
            }
        }
    }

    BlockEncoder m_encoder;
    const korvane::asterix::Uap *m_uap;
    std::mt19937_64 m_random;
};
