#include "vyx-modes/decode_command.h"

#include "modes/adsb_tracker.h"
#include "modes/mode_s_decoder.h"
#include "vyx-modes/message_json.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <map>
#include <unistd.h>

namespace {

using namespace korvane::modes;

constexpr std::size_t ChunkSize = 1U << 18;

const char *textOf(ModeSMessage::Fault fault)
{
    switch (fault) {
    case ModeSMessage::Fault::NotModeS:
        return "Mode A/C replies";
    case ModeSMessage::Fault::Length:
        return "of the wrong length";
    case ModeSMessage::Fault::DownlinkFormat:
        return "of a downlink format that is not decoded";
    case ModeSMessage::Fault::Parity:
        return "with wrong parity";
    case ModeSMessage::Fault::UnknownAddress:
        return "of an address not heard before";
    default:
        return "not decoded";
    }
}

// Decodes a stream as it arrives.
class StreamPrinter {
public:
    StreamPrinter(const CommandLine &command, const TextSink &out) : m_format(command.format), m_out(out)
    {
        m_decoder.setErrorCorrection(command.isCorrecting);
        m_decoder.setAddressCheck(command.isCheckingAddress);
        if (command.reference) {
            m_tracker.setReferencePosition(command.reference->latitude, command.reference->longitude);
        }
    }

    // False when the output is closed.
    bool add(std::string_view chunk)
    {
        if (!m_format && !chunk.empty()) {
            m_format = std::strchr("*@<", chunk.front()) ? ModeSEncapsulation::Avr : ModeSEncapsulation::DefaultFormat;
        }
        m_buffer.append(chunk);
        m_buffer.erase(0, ModeSEncapsulation::extractAll(m_buffer, *m_format, m_frames));
        m_text.clear();
        for (const ModeSFrame &frame : m_frames) {
            print(frame);
        }
        return m_out(m_text);
    }

    void report(const std::string &fileName, const LineSink &err) const
    {
        for (const auto &[fault, count] : m_faults) {
            err(fileName + ": " + std::to_string(count) + " frames " + textOf(fault));
        }
    }

private:
    void print(const ModeSFrame &frame)
    {
        m_decoder.decode(ModeSMessage::AnyDownlink, frame, m_message);
        if (!m_message.valid()) {
            ++m_faults[m_message.fault()];
            return;
        }
        const std::shared_ptr<ADSBTarget> target = m_tracker.procModeSMsg(m_message);
        appendMessageJson(m_text, m_message, target.get());
    }

    std::optional<ModeSEncapsulation::Format> m_format;
    const TextSink &m_out;
    ModeSDecoder m_decoder;
    ADSBTracker m_tracker;
    ModeSMessage m_message;
    std::string m_buffer;
    std::string m_text;
    std::vector<ModeSFrame> m_frames;
    std::map<ModeSMessage::Fault, std::uint64_t> m_faults;
};

// False where reading failed.
bool readStream(int descriptor, StreamPrinter &printer, bool &isOpen)
{
    std::string chunk(ChunkSize, '\0');
    while (isOpen) {
        const ssize_t got = ::read(descriptor, chunk.data(), chunk.size());
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got <= 0) {
            return got == 0;
        }
        isOpen = printer.add(std::string_view(chunk).substr(0, static_cast<std::size_t>(got)));
    }
    return true;
}

} // namespace

int runDecode(const CommandLine &command, const TextSink &out, const LineSink &err)
{
    const bool isStandardInput = command.fileName == "-";
    const int descriptor =
        isStandardInput ? ::dup(STDIN_FILENO) : ::open(command.fileName.c_str(), O_RDONLY | O_CLOEXEC);
    StreamPrinter printer(command, out);
    bool isOpen = true;
    const bool isRead = descriptor >= 0 && readStream(descriptor, printer, isOpen);
    if (!isRead) {
        err(command.fileName + ": " + std::strerror(errno));
    }
    if (descriptor >= 0) {
        ::close(descriptor);
    }
    printer.report(command.fileName, err);
    return isRead && isOpen ? 0 : 1;
}
