#include "vyx-asterix/decode_command.h"

#include "asterix/json_writer.h"
#include "vyx-asterix/block_reader.h"

namespace {

using korvane::asterix::appendRecordJson;
using korvane::asterix::Expansion;
using korvane::asterix::RecordPlace;
using korvane::asterix::TextBuffer;

constexpr std::size_t FlushSize = 1U << 18;

// Writes the records of each block and passes the text on in large pieces.
class RecordPrinter {
public:
    RecordPrinter(const TextSink &out, Expansion expansion) : m_out(out), m_expansion(expansion) { }

    bool isOpen() const { return m_isOpen; }

    void print(const BlockReader::Block &block)
    {
        RecordPlace place;
        place.block = block.number;
        place.hasTime = block.message.hasTime && block.message.timeMilliseconds >= 0;
        place.timeMilliseconds = block.message.timeMilliseconds;
        for (const _ast_datarecord_t &record : block.decoded.records) {
            place.offset = block.message.offset + static_cast<std::uint64_t>(record.data - block.message.data);
            appendRecordJson(m_text, record, place, m_expansion);
            if (m_text.size() >= FlushSize) {
                flush();
            }
        }
    }

    void flush()
    {
        m_isOpen = m_isOpen && m_out(m_text.text());
        m_text.clear();
    }

private:
    const TextSink &m_out;
    Expansion m_expansion;
    TextBuffer m_text;
    bool m_isOpen = true;
};

} // namespace

int runDecode(const CommandLine &command, const TextSink &out, const LineSink &err)
{
    RecordPrinter printer(out, command.isExpanding ? Expansion::AsObject : Expansion::AsHexText);
    BlockReader reader(
        command, [&](const BlockReader::Block &block) { printer.print(block); }, err);
    std::string error;
    const auto read = [&](const InputMessage &message) {
        reader.read(message);
        return printer.isOpen();
    };
    const bool isRead = readInputFile(command.fileName, read, error);
    printer.flush();
    if (!isRead) {
        err(error);
    }
    reader.reportAtEnd();
    return isRead && printer.isOpen() && reader.faults() == 0 ? 0 : 1;
}
