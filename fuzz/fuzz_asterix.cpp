// Decodes its input as data blocks in every way there is, takes every record apart, prints it, and encodes it again.

#include "asterix/asterix.h"
#include "asterix/json_encoder.h"
#include "asterix/json_writer.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

using korvane::asterix::appendRecordJson;
using korvane::asterix::JsonEncoder;
using korvane::asterix::TextBuffer;

// What must hold does not depend on assertions being compiled in.
void require(bool condition, const char *what)
{
    if (condition)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

void disassemble(const _ast_datarecord_t &record)
{
    _ast_datarecord_001_t cat001;
    _ast_datarecord_002_t cat002;
    _ast_datarecord_034_t cat034;
    _ast_datarecord_048_t cat048;
    _ast_datarecord_062_t cat062;
    ast_datarecord_001_disassemble(&cat001, record);
    ast_datarecord_002_disassemble(&cat002, record);
    ast_datarecord_034_disassemble(&cat034, record);
    ast_datarecord_048_disassemble(&cat048, record);
    ast_datarecord_062_disassemble(&cat062, record);
    ast_datarecord_get_sacsic(record);
    for (unsigned i = 0; cat048.i250.present && i < cat048.i250.count; ++i) {
        ast_bds_40_decode(cat048.i250.octets + 8U * i);
        ast_bds_60_decode(cat048.i250.octets + 8U * i);
    }
    require(cat048.valid + cat062.valid + cat034.valid + cat001.valid + cat002.valid <= 1, "record of two categories");
}

std::string print(const _ast_datablock_t &block)
{
    TextBuffer text;
    for (const _ast_datarecord_t &record : block.records)
        appendRecordJson(text, record, {.block = 1});
    return std::string(text.text());
}

// What was printed encodes, and what was encoded prints the same again: the line's place in the block aside, since the
// encoder's wire form may be shorter.
class Encoding {
public:
    void repeat(const _ast_datarecord_t &record)
    {
        m_line.clear();
        appendRecordJson(m_line, record, {.block = 1});
        if (!m_encoder.addLine(m_line.text()))
            return; // a record with too much in it for the wire form
        m_encoder.finish();
        require(itemsOf(m_again) == itemsOf(m_line.text()), "encoded record differs");
    }

private:
    static std::string_view itemsOf(std::string_view line) { return line.substr(line.find("\"items\"")); }

    void decodeAgain(std::span<const unsigned char> octets)
    {
        require(ast_datablock_smart_decode(&m_block, octets.data(), octets.size()), "encoded block is not whole");
        require(m_block.valid && m_block.records.size() == 1, "encoded block does not decode");
        m_again = print(m_block);
    }

    TextBuffer m_line;
    std::string m_again;
    _ast_datablock_t m_block;
    JsonEncoder m_encoder{[this](std::span<const unsigned char> octets) { decodeAgain(octets); }};
};

void decode(const unsigned char *data, std::size_t size, const _ast_uap_t *uap)
{
    _ast_datablock_t block;
    const bool isWhole =
        uap ? ast_datablock_decode(&block, data, size, uap) : ast_datablock_smart_decode(&block, data, size);
    require(!isWhole || block.size <= size, "block is longer than its octets");
    require(block.valid == (block.error == korvane::asterix::Error::None), "valid and error disagree");
    require(block.valid || block.errorOffset <= size, "fault is beyond the octets");
    for (const _ast_datarecord_t &record : block.records) {
        require(record.valid && record.data + record.length <= data + block.size, "record is beyond its block");
        disassemble(record);
    }
    print(block);
    static Encoding encoding; // kept: making an encoder costs more than everything else here
    for (const _ast_datarecord_t &record : block.records) {
        if (!uap)
            encoding.repeat(record);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    decode(data, size, nullptr);
    decode(data, size, AST_UAP_STANDARD);
    decode(data, size, AST_UAP_CAT001_PLOT);
    return 0;
}
