// Decodes its input as data blocks in every way there is, takes every record apart, prints it, and encodes it again.

#include "asterix/asterix.h"
#include "asterix/json_encoder.h"
#include "asterix/json_writer.h"

#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string>
#include <vector>

namespace {

using korvane::asterix::appendRecordJson;
using korvane::asterix::Expansion;
using korvane::asterix::JsonEncoder;
using korvane::asterix::TextBuffer;

// What must hold does not depend on assertions being compiled in.
void require(bool condition, const char *what)
{
    if (condition) {
        return;
    }
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

// Reads every octet that a typed record points at: they must lie in the record.
class Within {
public:
    explicit Within(const _ast_datarecord_t &record) : m_first(record.data), m_end(record.data + record.length) { }

    void check(const void *octets, std::size_t count) const
    {
        const auto *at = static_cast<const unsigned char *>(octets);
        require(
            at >= m_first && count <= static_cast<std::size_t>(m_end - at), "typed record points out of its record");
    }

    void check(const _ast_item_registers_t &registers) const
    {
        if (registers.present) {
            check(registers.octets, 8U * registers.count);
        }
    }

private:
    const unsigned char *m_first;
    const unsigned char *m_end;
};

void decodeRegisters(const _ast_item_registers_t &registers)
{
    for (unsigned i = 0; registers.present && i < registers.count; ++i) {
        const unsigned char *mb = registers.octets + 8U * i;
        ast_bds_10_decode(mb);
        require(ast_bds_17_decode(mb).count <= 27, "more registers than bits");
        ast_bds_20_decode(mb);
        ast_bds_30_decode(mb);
        ast_bds_40_decode(mb);
        const double track = ast_bds_50_decode(mb).trueTrack;
        const double heading = ast_bds_60_decode(mb).magneticHeading;
        require(track >= 0 && track < 360 && heading >= 0 && heading < 360, "angle is beyond a turn");
    }
}

int disassembleRadar(const _ast_datarecord_t &record, const Within &within)
{
    _ast_datarecord_001_t cat001;
    _ast_datarecord_002_t cat002;
    _ast_datarecord_034_t cat034;
    _ast_datarecord_048_t cat048;
    ast_datarecord_001_disassemble(&cat001, record);
    ast_datarecord_002_disassemble(&cat002, record);
    ast_datarecord_034_disassemble(&cat034, record);
    ast_datarecord_048_disassemble(&cat048, record);
    within.check(cat048.i250);
    decodeRegisters(cat048.i250);
    return cat001.valid + cat002.valid + cat034.valid + cat048.valid;
}

int disassembleTargets(const _ast_datarecord_t &record, const Within &within)
{
    _ast_datarecord_010_t cat010;
    _ast_datarecord_020_t cat020;
    _ast_datarecord_062_t cat062;
    ast_datarecord_010_disassemble(&cat010, record);
    ast_datarecord_020_disassemble(&cat020, record);
    ast_datarecord_062_disassemble(&cat062, record);
    for (const _ast_item_registers_t &registers : {cat010.i250, cat020.i250}) {
        within.check(registers);
        decodeRegisters(registers);
    }
    if (cat020.i260.present) {
        within.check(cat020.i260.octets, 7);
    }
    return cat010.valid + cat020.valid + cat062.valid;
}

int disassembleProcessed(const _ast_datarecord_t &record)
{
    _ast_datarecord_004_t cat004;
    _ast_datarecord_008_t cat008;
    ast_datarecord_004_disassemble(&cat004, record);
    ast_datarecord_008_disassemble(&cat008, record);
    require(cat004.i060.count <= std::size(cat004.i060.entries), "more functions than there are");
    for (unsigned i = 0; i < cat004.i060.count; ++i) {
        require(*ast_snet_message_type_get_id(cat004.i060.entries[i].type) != 'U', "function without a name");
    }
    _ast_weather_segment_t segment;
    const unsigned segments = ast_weather_segment_count(cat008);
    for (unsigned i = 0; i < segments; ++i) {
        require(ast_weather_segment_get(&segment, cat008, i, cat008.i100.scalingFactor), "segment is missing");
    }
    require(!ast_weather_segment_get(&segment, cat008, segments, 0), "segment too many");
    return cat004.valid + cat008.valid;
}

int disassembleVideo(const _ast_datarecord_t &record, const Within &within)
{
    _ast_datarecord_240_t cat240;
    ast_datarecord_240_disassemble(&cat240, record);
    for (const _ast_item_video_block_t &block : {cat240.i050, cat240.i051, cat240.i052}) {
        if (block.present) {
            within.check(block.octets, block.size);
        }
    }
    if (cat240.i030.present) {
        within.check(cat240.i030.text, cat240.i030.length);
    }
    require(ast_datarecord_240_get_sacsic(record).present == cat240.i010.present, "sources differ");
    _ast_video_vector_t vector;
    std::vector<unsigned> cells;
    int error = ast_datarecord_240_get_vector(&vector, nullptr, 0, record);
    if (error == AST_VIDEO_BUFFER_TOO_SMALL) {
        cells.resize(vector.cellCount); // exact: one cell less and a sanitizer speaks up
        error = ast_datarecord_240_get_vector(&vector, cells.data(), cells.size(), record);
    }
    require(error != AST_VIDEO_BUFFER_TOO_SMALL, "buffer of the size asked for is too small");
    require(cat240.valid == (error != AST_VIDEO_NOT_VIDEO), "video and record disagree");
    return cat240.valid;
}

void readReportValues(const _ast_datarecord_t &record)
{
    ast_datarecord_get_sacsic(record);
    require(ast_datarecord_get_icaoaddr(record).address < 1U << 24, "address of more than 24 bits");
    require(ast_datarecord_021_get_squawk(record).code < 4096, "Mode 3/A code of more than 12 bits");
    const _ast_heading_t heading = ast_datarecord_get_heading(record);
    require(heading.heading >= 0 && heading.heading <= 360, "heading is beyond a turn");
    require(heading.present == (heading.trackAngleAvailable || heading.magneticHeadingAvailable), "no heading at all");
    ast_datarecord_get_callsign(record);
    ast_datarecord_get_wgs84coord(record);
    ast_datarecord_get_speed(record);
    ast_datarecord_get_flightlevel(record);
    ast_datarecord_021_get_selaltitude(record);
    ast_datarecord_get_vrate(record);
}

void disassemble(const _ast_datarecord_t &record)
{
    const Within within(record);
    const int categories = disassembleRadar(record, within) + disassembleTargets(record, within)
        + disassembleProcessed(record) + disassembleVideo(record, within);
    require(categories <= 1, "record of two categories");
    readReportValues(record);
}

std::string print(const _ast_datablock_t &block, Expansion expansion)
{
    TextBuffer text;
    for (const _ast_datarecord_t &record : block.records) {
        appendRecordJson(text, record, {.block = 1}, expansion);
    }
    return std::string(text.text());
}

// What was printed encodes, and what was encoded prints the same again: the line's place in the block aside, since the
// encoder's wire form may be shorter.
class Encoding {
public:
    // edition: of CAT021, as the profile has it.
    Encoding(const _ast_uap_t *profile, const char *edition) : m_profile(profile)
    {
        require(m_encoder.select(21, edition), "edition is missing");
    }

    const _ast_uap_t *profile() const { return m_profile; }

    void repeat(const _ast_datarecord_t &record)
    {
        m_line.clear();
        appendRecordJson(m_line, record, {.block = 1});
        if (!m_encoder.addLine(m_line.text())) {
            return; // a record with too much in it for the wire form
        }
        m_encoder.finish();
        require(itemsOf(m_again) == itemsOf(m_line.text()), "encoded record differs");
    }

private:
    static std::string_view itemsOf(std::string_view line) { return line.substr(line.find("\"items\"")); }

    void decodeAgain(std::span<const unsigned char> octets)
    {
        require(ast_datablock_decode(&m_block, octets.data(), octets.size(), m_profile), "encoded block is not whole");
        require(m_block.valid && m_block.records.size() == 1, "encoded block does not decode");
        m_again = print(m_block, Expansion::AsHexText);
    }

    const _ast_uap_t *m_profile;
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
    print(block, Expansion::AsObject);
    // Kept: making an encoder costs more than everything else here.
    static Encoding encodings[] = {{AST_UAP_STANDARD, "2.7"}, {AST_UAP_CAT021_VER023, "0.23"},
        {AST_UAP_CAT021_VER026, "0.26"}, {AST_UAP_CAT021_VER21, "2.1"}};
    for (Encoding &encoding : encodings) {
        if (encoding.profile() != uap || (block.category != 21 && uap != AST_UAP_STANDARD)) {
            continue;
        }
        for (const _ast_datarecord_t &record : block.records) {
            encoding.repeat(record);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const _ast_uap_t *const profiles[] = {nullptr, AST_UAP_STANDARD, AST_UAP_CAT001_PLOT, AST_UAP_ASR10SS,
        AST_UAP_CAT021_VER023, AST_UAP_CAT021_VER026, AST_UAP_CAT021_VER21, AST_UAP_CAT021_VER27, AST_UAP_THALES};
    for (const _ast_uap_t *profile : profiles) {
        decode(data, size, profile);
    }
    return 0;
}
