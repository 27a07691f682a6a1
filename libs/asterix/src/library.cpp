#include "asterix/asterix.h"

#include "layout.h"
#include "profile.h"
#include "smart_decode.h"
#include "walker.h"

#include <atomic>
#include <cstdio>

namespace korvane::asterix {
namespace {

constexpr std::size_t HeaderOctets = 3;
// The category whose edition smart decoding chooses.
constexpr unsigned char EditionsToChoose = 21;
constexpr int LogDebug = 0;

std::atomic<_ast_log_handler_t> logHandler{nullptr};

void logFault(const _ast_datablock_t &block)
{
    const _ast_log_handler_t handler = logHandler.load(std::memory_order_relaxed);
    if (!handler) {
        return;
    }
    char text[128];
    std::snprintf(text, sizeof text, "CAT%03u: %s (octet %u)", static_cast<unsigned>(block.category),
        errorText(block.error), static_cast<unsigned>(block.errorOffset));
    handler(LogDebug, text);
}

void refuse(_ast_datablock_t &block, Error error, std::size_t offset)
{
    block.error = error;
    block.errorOffset = static_cast<std::uint32_t>(offset);
}

// Reads the header. True: there is a whole block with a body to decode. False: result is what to return.
bool beginBlock(_ast_datablock_t &block, const unsigned char *data, std::size_t length, bool &result)
{
    block.category = length > 0 ? data[0] : 0;
    block.valid = false;
    block.size = 0;
    block.records.clear();
    block.error = Error::None;
    block.errorOffset = 0;
    result = false;
    if (length < HeaderOctets) {
        refuse(block, Error::BlockHeaderTruncated, length);
    } else {
        block.size = std::uint32_t{data[1]} << 8 | data[2];
        result = block.size == 0;
        if (block.size == 0) {
            refuse(block, Error::BlockLengthZero, 1);
        } else if (block.size < HeaderOctets) {
            refuse(block, Error::BlockLengthTooShort, 1);
        } else if (block.size > length) {
            refuse(block, Error::BlockTruncated, length);
        } else {
            return true;
        }
    }
    logFault(block);
    return false;
}

} // namespace

const char *errorText(Error error)
{
    switch (error) {
    case Error::None:
        return "no error";
    case Error::BlockHeaderTruncated:
        return "fewer than three octets of a block header";
    case Error::BlockLengthZero:
        return "block length is zero";
    case Error::BlockLengthTooShort:
        return "block length is less than the header's";
    case Error::BlockTruncated:
        return "block runs past the end of the data";
    case Error::UnknownCategory:
        return "no table for this category";
    case Error::FspecTruncated:
        return "FSPEC runs past the end of the block";
    case Error::SpareFspecBit:
        return "FSPEC bit of no item is set";
    case Error::ItemTruncated:
        return "item runs past the end of the block";
    case Error::RepetitionTruncated:
        return "repetition count runs past the end of the block";
    case Error::ExplicitLengthZero:
        return "explicit length is zero";
    case Error::ExplicitLengthTruncated:
        return "explicit length runs past the end of the block";
    case Error::SparePresenceBit:
        return "presence bit of no sub-item is set";
    case Error::RandomFieldSequence:
        return "random field sequence names a field that does not exist";
    }
    return "unknown error";
}

} // namespace korvane::asterix

using namespace korvane::asterix;

void ast_library_init()
{
    prepareSmartDecoding(); // makes the tables, too, now rather than with the first datagram
}

const char *ast_library_version()
{
    return "1.0.0";
}

void ast_log_handler_reg(_ast_log_handler_t handler)
{
    logHandler.store(handler);
}

bool ast_datablock_decode(_ast_datablock_t *block, const unsigned char *data, std::size_t length, const _ast_uap_t *uap)
{
    bool result = false;
    if (!beginBlock(*block, data, length, result)) {
        return result;
    }
    const CategoryTable *table = uap->tables[block->category];
    if (table) {
        decodeRecords(*block, data, *table, uap->forced);
    } else {
        refuse(*block, Error::UnknownCategory, 0);
    }
    if (!block->valid) {
        logFault(*block);
    }
    return true;
}

bool ast_datablock_smart_decode(_ast_datablock_t *block, const unsigned char *data, std::size_t length)
{
    // In CAT001 each record says which UAP it has; the standard table follows it.
    if (length == 0 || data[0] != EditionsToChoose) {
        return ast_datablock_decode(block, data, length, AST_UAP_STANDARD);
    }
    bool result = false;
    if (!beginBlock(*block, data, length, result)) {
        return result;
    }
    decodeCat021(*block, data);
    if (!block->valid) {
        logFault(*block);
    }
    return true;
}

char *ast_category_to_str(char *buffer, std::size_t size, std::uint32_t category)
{
    if (size > 0) {
        std::snprintf(buffer, size, "CAT%03u", static_cast<unsigned>(category));
    }
    return buffer;
}

_ast_sacsic_t ast_datarecord_get_sacsic(const _ast_datarecord_t &record)
{
    _ast_sacsic_t sacsic;
    if (!record.valid || record.itemOffsets[record.uap->sacSic] == 0) {
        return sacsic;
    }
    const unsigned char *at = record.data + record.itemOffsets[record.uap->sacSic];
    return {true, at[0], at[1]};
}
