#include "vyx-asterix/encode_command.h"

#include "asterix/json_encoder.h"
#include "vyx-asterix/octet_stream.h"

namespace {

// The longest line that is taken: a record fills at most one data block of 65,535 octets, and few of its octets make
// more than some tens of characters.
constexpr std::size_t MaxLineSize = 1U << 22;

// Hands over the lines of a file, without their ends. A line that is too long comes as one, empty and marked.
class LineReader {
public:
    using Handler = std::function<void(std::string_view line, bool isTooLong)>;

    explicit LineReader(Handler handler) : m_stream(MaxLineSize), m_handler(std::move(handler)) { }

    // False, with error() set, when the file cannot be read to its end.
    bool read(const std::string &fileName)
    {
        if (!m_stream.open(fileName)) {
            return false;
        }
        while (m_stream.fill()) {
            takeLines();
            if (m_stream.isFull()) {
                skipPending();
            }
        }
        if (m_stream.error().empty() && (m_isSkipping || !pending().empty())) {
            take(pending());
        }
        return m_stream.error().empty();
    }

    const std::string &error() const { return m_stream.error(); }

private:
    std::string_view pending() const
    {
        const auto octets = m_stream.pending();
        return {reinterpret_cast<const char *>(octets.data()), octets.size()};
    }

    void takeLines()
    {
        for (std::size_t end = pending().find('\n'); end != std::string_view::npos; end = pending().find('\n')) {
            take(pending().substr(0, end));
            m_stream.consume(end + 1);
        }
    }

    void take(std::string_view line)
    {
        m_handler(m_isSkipping ? std::string_view() : line, m_isSkipping);
        m_isSkipping = false;
    }

    void skipPending()
    {
        m_isSkipping = true;
        m_stream.consume(pending().size());
    }

    OctetStream m_stream;
    Handler m_handler;
    bool m_isSkipping = false; // up to the next end of a line
};

} // namespace

int runEncode(const CommandLine &command, const TextSink &out, const LineSink &err)
{
    bool isGood = true;
    korvane::asterix::JsonEncoder encoder([&](std::span<const unsigned char> block) {
        isGood = out({reinterpret_cast<const char *>(block.data()), block.size()}) && isGood;
    });
    for (const auto &[category, edition] : command.editions) {
        encoder.select(category, edition);
    }
    std::size_t number = 0;
    LineReader reader([&](std::string_view line, bool isTooLong) {
        ++number;
        const bool isBlank = !isTooLong && line.find_first_not_of(" \t\r") == std::string_view::npos;
        if (isTooLong || (!isBlank && !encoder.addLine(line))) {
            isGood = false;
            err(command.fileName + ": line " + std::to_string(number) + ": "
                + (isTooLong ? "the line is too long for a record" : encoder.lastError()));
        }
    });
    const bool isRead = reader.read(command.fileName);
    if (!isRead) {
        err(reader.error());
    }
    encoder.finish();
    return isRead && isGood ? 0 : 1;
}
