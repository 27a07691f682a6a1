#include "vyx-asterix/input_file.h"

#include "astfile/file_reader.h"
#include "vyx-asterix/octet_stream.h"

#include <algorithm>

namespace {

using korvane::astfile::DataPacket;
using korvane::astfile::FileReader;
using korvane::astfile::RecFile;
using Octets = std::span<const unsigned char>;
using MessageHandler = std::function<bool(const InputMessage &)>;

constexpr std::size_t BlockHeaderSize = 3;
constexpr std::size_t StreamRoom = 1U << 19; // several of the largest blocks
constexpr std::size_t MagicSize = 4;

bool startsWith(Octets octets, std::string_view magic)
{
    const auto isEqual = [](unsigned char octet, char wanted) { return octet == static_cast<unsigned char>(wanted); };
    return octets.size() >= magic.size()
        && std::equal(
            octets.begin(), octets.begin() + static_cast<std::ptrdiff_t>(magic.size()), magic.begin(), isEqual);
}

// The magic numbers of network captures: micro- and nanoseconds in both octet orders, and the next generation's.
RecFile::Format captureFormat(Octets beginning)
{
    for (const char *magic : {"\xA1\xB2\xC3\xD4", "\xD4\xC3\xB2\xA1", "\xA1\xB2\x3C\x4D", "\x4D\x3C\xB2\xA1"}) {
        if (startsWith(beginning, magic)) {
            return RecFile::Pcap;
        }
    }
    return startsWith(beginning, "\x0A\x0D\x0D\x0A") ? RecFile::PcapNg : RecFile::Unknown;
}

// Captures are known by their contents, other recordings by their names. Unknown: a file of blocks.
RecFile::Format recordingFormat(const std::string &fileName, Octets beginning)
{
    const RecFile::Format byContents = captureFormat(beginning);
    if (byContents != RecFile::Unknown) {
        return byContents;
    }
    const RecFile::Format byName = RecFile::formatFromFileName(QString::fromStdString(fileName));
    const bool isPacked = startsWith(beginning, "\x1F\x8B");
    return byName == RecFile::FinalFormat || byName == RecFile::Gps || isPacked ? byName : RecFile::Unknown;
}

void setMessage(InputMessage &message, const DataPacket &packet, bool isFileOfBlocks)
{
    message.offset += isFileOfBlocks ? message.size : 0;
    message.data = reinterpret_cast<const unsigned char *>(packet.data.constData());
    message.size = static_cast<std::size_t>(packet.data.size());
    if (!isFileOfBlocks) {
        ++message.number;
        message.hasTime = packet.timeStamp.isValid();
        message.timeMilliseconds = message.hasTime ? packet.timeStamp.toMSecsSinceEpoch() : 0;
    }
}

bool readRecording(
    const std::string &fileName, RecFile::Format format, const MessageHandler &handler, std::string &error)
{
    QString reason;
    const std::unique_ptr<FileReader> reader = FileReader::create(format, &reason);
    if (!reader || !reader->open(QString::fromStdString(fileName), format)) {
        error = fileName + ": " + (reader ? reader->lastError() : reason).toStdString();
        return false;
    }
    DataPacket packet;
    InputMessage message;
    for (reader->read(&packet); packet.kind == DataPacket::Data; reader->read(&packet)) {
        setMessage(message, packet, format == RecFile::RawAsterix);
        if (!handler(message)) {
            return true;
        }
    }
    if (packet.kind == DataPacket::Error) {
        error = fileName + ": octet " + std::to_string(packet.offset) + ": " + packet.error.toStdString();
    }
    return packet.kind == DataPacket::End;
}

struct WholeBlocks {
    std::size_t size = 0; // octets
    bool isBroken = false; // behind them is a length field that cannot be right: there is no way on
};

WholeBlocks wholeBlocks(Octets octets)
{
    WholeBlocks blocks;
    while (octets.size() - blocks.size >= BlockHeaderSize) {
        const unsigned char *const header = octets.data() + blocks.size;
        const std::size_t length = static_cast<std::size_t>(header[1] << 8 | header[2]);
        blocks.isBroken = length < BlockHeaderSize;
        if (blocks.isBroken || length > octets.size() - blocks.size) {
            break;
        }
        blocks.size += length;
    }
    return blocks;
}

bool readBlocks(OctetStream &stream, const MessageHandler &handler)
{
    for (bool isLast = false; !isLast;) {
        const WholeBlocks blocks = wholeBlocks(stream.pending());
        if (blocks.size == 0 && !blocks.isBroken && stream.fill()) {
            continue;
        }
        if (!stream.error().empty()) {
            return false;
        }
        isLast = blocks.size == 0 || blocks.isBroken;
        InputMessage message;
        message.data = stream.pending().data();
        message.size = isLast ? stream.pending().size() : blocks.size;
        message.offset = stream.offset();
        if (!handler(message)) {
            return true;
        }
        stream.consume(message.size);
    }
    return true;
}

} // namespace

bool readInputFile(const std::string &fileName, const MessageHandler &handler, std::string &error)
{
    OctetStream stream(StreamRoom);
    if (!stream.open(fileName)) {
        error = stream.error();
        return false;
    }
    while (stream.pending().size() < MagicSize && stream.fill()) { }
    const RecFile::Format format = recordingFormat(fileName, stream.pending());
    if (format != RecFile::Unknown) {
        return readRecording(fileName, format, handler, error);
    }
    const bool isRead = readBlocks(stream, handler);
    error = stream.error();
    return isRead;
}
