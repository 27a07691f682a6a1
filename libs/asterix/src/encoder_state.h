#pragma once

#include "asterix/encoder.h"
#include "layout.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace korvane::asterix {

constexpr std::size_t BlockHeaderOctets = 3;
constexpr std::size_t MaxExplicitContents = 254;

// What is set of one node in the record at hand.
struct NodeImage {
    std::uint32_t serial = 0; // of the record that last touched it
    unsigned extentEnd = 0; // extended items: the bit offset of the last field set
    std::size_t count = 0; // repetitions
    std::vector<unsigned char> octets; // of an anchor; all repetitions of a repetitive item
};

// The block under construction and the record at hand: its nodes by id, and the octets of each that are set so far.
struct BlockEncoder::State {
    const CategoryTable *table = nullptr;
    const Uap *forced = nullptr; // null: each record chooses
    std::vector<const Node *> nodes; // by id
    std::map<std::string, int, std::less<>> ids; // by path
    std::vector<NodeImage> slots; // by node id
    std::vector<const Node *> items; // touched in this record
    std::vector<unsigned char> block;
    std::uint32_t serial = 1;
    std::size_t records = 0;
    bool tooLong = false; // an explicit item of the record at hand has more contents than its length octet can say

    explicit State(const CategoryTable &ofTable);

    void reset(); // begins a block
    void beginRecord();

    NodeImage &slot(const Node &node) { return slots[static_cast<std::size_t>(node.id)]; }
    const NodeImage &slot(const Node &node) const { return slots[static_cast<std::size_t>(node.id)]; }
    bool isSet(const Node &node) const { return slot(node).serial == serial; }

    // Makes node and what holds it present, all of it zero where it was not before.
    void touch(const Node &node);

    // The octets in which node's bit offset counts; null where it belongs to a repetition of which there is none.
    unsigned char *imageFor(const Node &node);
    bool put(const Node &node, std::uint64_t bits);

    // The element that holds the value of node: itself, or the alternative of a case; null where it has none.
    const Node *elementOf(const Node &node);

    bool append(const Node &repetitive);
    // A plain element of a repetition is a repetition of its own each time that it is set.
    bool openRepetition(const Node &node) { return !node.isRepetitive() || append(node); }

    // The UAP of the record at hand.
    const Uap *chooseUap();
    // Appends the record to the block; false where something that is set cannot be sent, and the block is to be cut
    // back.
    bool emitRecord(const Uap &uap);

private:
    void enrol(const Node &node, const std::string &path);
    // What a selecting field is set to; zero where it is not, which is what will be sent.
    std::uint64_t valueOf(const Node &field);

    bool isSent(const Node &child) const { return child.kind != Kind::Vacant && isSet(child); }
    void emit(const Node &node);
    void emitOctets(const std::vector<unsigned char> &octets);
    void emitExtended(const Node &node);
    void emitCompound(const Node &node);
    void emitChildren(const Node &node);
    void emitExplicit(const Node &node); // contents as they were given, or else the sub-items that were set
    void emitRepetitiveFx(const Node &node);
    // Sets the bit of a position in the presence field or FSPEC that begins at start and ends the block so far.
    void markPresent(std::size_t start, std::size_t position);
};

} // namespace korvane::asterix
