#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

namespace korvane::asterix {

// Builds data blocks of one category: the inverse of the decoder and of the JSON writer.
//
//     BlockEncoder encoder(48);
//     encoder.beginBlock();
//     encoder.beginRecord();
//     encoder.set("010/SAC", 25);
//     encoder.set("040/RHO", 61.5); // nautical miles
//     encoder.setText("240", "VYX123");
//     encoder.endRecord();
//     socket.send(encoder.block());
//
// A path is ITEM, ITEM/FIELD or deeper, in the names of the category document: "161", "040/RHO", "380/SAL/ALT".
// The wire form follows from what is set: the shortest FSPEC and presence fields, all extents of an extended item up to
// the highest one with a field that is set, zero in every field of a sent item that is not. Spare bits are zero and
// random field sequencing is not used.
// Memory is allocated by the constructor and while the first blocks grow, not per record. One thread at a time.
class BlockEncoder {
public:
    // A field found once and set often: spares the search for its path. Belongs to this encoder's category, edition
    // and variation; default-constructed, or of an unknown path, it is invalid and every set with it fails.
    class Handle {
    public:
        bool valid() const { return m_node >= 0; }

    private:
        friend class BlockEncoder;
        int m_node = -1;
    };

    // edition: "1.32"; null for the standard one. variation: the UAP of a category that has several, "plot" or "track"
    // for CAT001; the field that selects it (I001/020 TYP) is then set in every record by itself. Null: each record
    // takes the UAP that its selecting field asks for when it ends ("plot" where the field is not set).
    // Where no such table is built in, valid() is false and every other operation fails without effect.
    explicit BlockEncoder(int category, const char *edition = nullptr, const char *variation = nullptr);
    ~BlockEncoder();
    BlockEncoder(BlockEncoder &&other) noexcept;
    BlockEncoder &operator=(BlockEncoder &&other) noexcept;

    bool valid() const;
    int category() const;

    // Forgets all records and keeps the memory.
    void beginBlock();
    // Forgets what was set since the last endRecord().
    void beginRecord();

    Handle find(std::string_view path) const;

    // Sets a number in the unit of the field (nautical miles, degrees, knots or NM/s as the document has it), rounded
    // to the nearest multiple of its LSB. Raw fields and octal codes take their binary value. False, with nothing set,
    // when there is no such field or the value is out of the range of its bits.
    // Where a field's LSB depends on another field (I062/380 IAS on IM), set that other one first.
    bool set(std::string_view path, double value);
    bool set(Handle field, double value);
    // Sets the bits of a field as they are sent, at most 64. False when they do not fit.
    bool setRaw(std::string_view path, std::uint64_t value);
    bool setRaw(Handle field, std::uint64_t value);
    // Sets ICAO six-bit (A to Z, 0 to 9, blank), ASCII and octal text. Short text is filled with blanks; octal text
    // needs all of its digits. False for characters that the field cannot hold and for text too long.
    bool setText(std::string_view path, std::string_view text);
    bool setText(Handle field, std::string_view text);
    // Appends a repetition to a repetitive item or sub-item ("250", "380/TID"): sets of its fields go to the newest
    // one, and fail while there is none. A repetitive item of plain elements ("030") is set by its own path. False when
    // the path is not repetitive or its repetition count is used up.
    bool addRepetition(std::string_view path);
    bool addRepetition(Handle repetitive);
    // Sets the contents, without the length octet, of an explicit item (RE, SP: at most 254 octets), or a whole field
    // of any width (I048/250 MBDATA: exactly its octets). The sub-items of a reserved expansion field whose contents
    // have a table can be set instead ("RE/STA/ES"); contents that are set as a whole take their place.
    bool setExplicit(std::string_view path, std::span<const unsigned char> contents);
    bool setExplicit(Handle field, std::span<const unsigned char> contents);
    // Marks an item or sub-item as present with all that is not set in it zero: for items that are sent empty.
    bool setPresent(std::string_view path);

    // Appends the record to the block. False, with the block as it was, when it does not fit (a block ends at 65,535
    // octets, an explicit item at 255) or has an item that its UAP has no place for.
    bool endRecord();

    // The whole block, category and length included, valid until the next call that is not const.
    std::span<const unsigned char> block() const;
    std::size_t recordCount() const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace korvane::asterix
