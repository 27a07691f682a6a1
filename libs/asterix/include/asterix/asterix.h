#pragma once

// The ASTERIX library: data blocks to records, records to engineering units.
//
// No function of this library throws, prints, aborts or reads past the octets that it is given. Decoded blocks and
// records point into the caller's octets: they are valid as long as those are, and until the block is decoded into
// again. Every function may be called on any thread; two threads must not decode into the same block at once.

#include "asterix/alert_records.h"
#include "asterix/bds.h"
#include "asterix/items.h"
#include "asterix/radar_records.h"
#include "asterix/report_values.h"
#include "asterix/target_records.h"
#include "asterix/video_records.h"
#include "asterix/weather_records.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace korvane::asterix {

struct Uap;

// Items of one record, as field reference numbers: no category of the published documents has more.
inline constexpr int MaxFieldReferenceNumbers = 70;

// Why a block was not decoded whole.
enum class Error : std::uint8_t {
    None,
    BlockHeaderTruncated, // fewer than three octets
    BlockLengthZero, // the length field is zero
    BlockLengthTooShort, // the length field is 1 or 2
    BlockTruncated, // the length field runs past the octets at hand
    UnknownCategory, // no table for the category (or its edition) is built in
    FspecTruncated, // the FSPEC runs past the block
    SpareFspecBit, // an FSPEC bit is set that the UAP gives to no item
    ItemTruncated, // an item runs past the block
    RepetitionTruncated, // a repetition count runs past the block
    ExplicitLengthZero, // an explicit length of zero
    ExplicitLengthTruncated, // an explicit length runs past the block
    SparePresenceBit, // a compound item's presence bit is set that belongs to no sub-field
    RandomFieldSequence, // a random field sequence names a field that does not exist
};

// One line in English for log and standard error; never null.
const char *errorText(Error error);

} // namespace korvane::asterix

// A generic data record: where each of its items stands. Small enough to be copied, points into the decoded octets.
struct _ast_datarecord_t {
    bool valid = false; // all of its items lie within the block
    std::uint16_t length = 0; // octets, FSPEC included
    const unsigned char *data = nullptr; // its first FSPEC octet
    const korvane::asterix::Uap *uap = nullptr; // names and order of its items
    // Octets from data to each item, by field reference number minus 1; 0 where the item is absent.
    std::uint16_t itemOffsets[korvane::asterix::MaxFieldReferenceNumbers] = {};
};

// One decoded data block. Reuse it from block to block: its records keep their memory.
struct _ast_datablock_t {
    std::uint32_t category = 0;
    bool valid = false; // every record decoded, none left over
    std::uint32_t size = 0; // octets that the block takes in the message, header included; 0: length field is zero
    std::vector<_ast_datarecord_t> records; // complete records; those before the fault where valid is false
    korvane::asterix::Error error = korvane::asterix::Error::None;
    std::uint32_t errorOffset = 0; // octets from the block's first octet to the fault
    // Smart decoding's memory of which edition recent sources sent; survives from block to block.
    std::array<std::uint32_t, 16> recentEditions{};
};

// A user application profile: which edition's table decodes each category. Opaque.
struct _ast_uap_t;
extern const _ast_uap_t *const AST_UAP_STANDARD;
extern const _ast_uap_t *const AST_UAP_CAT001_PLOT;
extern const _ast_uap_t *const AST_UAP_ASR10SS;
extern const _ast_uap_t *const AST_UAP_CAT021_VER023;
extern const _ast_uap_t *const AST_UAP_CAT021_VER026;
extern const _ast_uap_t *const AST_UAP_CAT021_VER21;
extern const _ast_uap_t *const AST_UAP_CAT021_VER27;
extern const _ast_uap_t *const AST_UAP_THALES;

// Library log: level 0 debug, 1 information, 2 warning, 3 critical, 4 panic; text in UTF-8, valid during the call.
using _ast_log_handler_t = void (*)(int level, const char *text);

void ast_library_init();
const char *ast_library_version();
// Null switches the log off. The handler is called on the decoding thread.
void ast_log_handler_reg(_ast_log_handler_t handler);

// Decodes the one data block at data. False when there is no whole block there (header or body cut short, length field
// of 1 or 2): block->error says why. True otherwise: block->size is how far to advance (0 when the length field is
// zero), block->valid whether all records decoded. A category without a table gives true, valid false, no records.
bool ast_datablock_decode(
    _ast_datablock_t *block, const unsigned char *data, std::size_t length, const _ast_uap_t *uap);
// The same, choosing the profile by the block's own contents: CAT001 plot or track by each record's TYP, CAT021 by
// which edition decodes the block to its end and most plausibly. Where that leaves several editions, it is the one that
// earlier blocks of this source, decoded into the same block object, were of; otherwise the newest.
bool ast_datablock_smart_decode(_ast_datablock_t *block, const unsigned char *data, std::size_t length);

// "CAT048" and so on into buffer, cut to size and zero-terminated. Returns buffer.
char *ast_category_to_str(char *buffer, std::size_t size, std::uint32_t category);

// The source of a record of any category; not present where it has no item 010.
_ast_sacsic_t ast_datarecord_get_sacsic(const _ast_datarecord_t &record);
