#include "vyx-asterix/input_file.h"

#include "astfile/file_reader.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace {

using korvane::astfile::DataPacket;
using korvane::astfile::FileReader;
using korvane::astfile::RecFile;

// Reads a descriptor up to its end, beginning with what contents holds already.
bool readToEnd(int descriptor, std::string &contents)
{
    std::size_t size = 0;
    for (;;) {
        contents.resize(std::max<std::size_t>(size * 2, 1U << 20));
        const ssize_t got = ::read(descriptor, contents.data() + size, contents.size() - size);
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got <= 0) {
            contents.resize(size);
            return got == 0;
        }
        size += static_cast<std::size_t>(got);
    }
}

// The magic numbers of network captures: micro- and nanoseconds in both octet orders, and the next generation's.
RecFile::Format captureFormat(const std::string &contents)
{
    constexpr const char *magics[] = {"\xA1\xB2\xC3\xD4", "\xD4\xC3\xB2\xA1", "\xA1\xB2\x3C\x4D", "\x4D\x3C\xB2\xA1"};
    for (const char *magic : magics) {
        if (contents.compare(0, 4, magic) == 0) {
            return RecFile::Pcap;
        }
    }
    return contents.compare(0, 4, "\x0A\x0D\x0D\x0A") == 0 ? RecFile::PcapNg : RecFile::Unknown;
}

// Captures are known by their contents, other recordings by their names. Unknown: a file of blocks.
RecFile::Format recordingFormat(const std::string &fileName, const std::string &contents)
{
    const RecFile::Format byContents = captureFormat(contents);
    if (byContents != RecFile::Unknown) {
        return byContents;
    }
    const RecFile::Format byName = RecFile::formatFromFileName(QString::fromStdString(fileName));
    const bool isPacked = contents.compare(0, 2, "\x1F\x8B") == 0;
    return byName == RecFile::FinalFormat || byName == RecFile::Gps || isPacked ? byName : RecFile::Unknown;
}

bool readRecording(const std::string &fileName, RecFile::Format format,
    const std::function<bool(const InputMessage &)> &handler, std::string &error)
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
        message.data = reinterpret_cast<const unsigned char *>(packet.data.constData());
        message.size = static_cast<std::size_t>(packet.data.size());
        ++message.number;
        message.hasTime = packet.timeStamp.isValid();
        message.timeMilliseconds = message.hasTime ? packet.timeStamp.toMSecsSinceEpoch() : 0;
        if (!handler(message)) {
            return true;
        }
    }
    if (packet.kind == DataPacket::Error) {
        error = fileName + ": octet " + std::to_string(packet.offset) + ": " + packet.error.toStdString();
    }
    return packet.kind == DataPacket::End;
}

} // namespace

bool readWholeFile(const std::string &fileName, std::string &contents, std::string &error)
{
    const int descriptor = fileName == "-" ? ::dup(STDIN_FILENO) : ::open(fileName.c_str(), O_RDONLY | O_CLOEXEC);
    const bool isRead = descriptor >= 0 && readToEnd(descriptor, contents);
    if (!isRead) {
        error = fileName + ": " + std::strerror(errno);
    }
    if (descriptor >= 0) {
        ::close(descriptor);
    }
    return isRead;
}

bool readInputFile(
    const std::string &fileName, const std::function<bool(const InputMessage &)> &handler, std::string &error)
{
    std::string contents;
    if (!readWholeFile(fileName, contents, error)) {
        return false;
    }
    const RecFile::Format format = recordingFormat(fileName, contents);
    if (format == RecFile::RawAsterix) {
        contents.clear();
        const auto append = [&contents](const InputMessage &block) {
            contents.append(reinterpret_cast<const char *>(block.data), block.size);
            return true;
        };
        if (!readRecording(fileName, format, append, error)) {
            return false;
        }
    } else if (format != RecFile::Unknown) {
        contents = {};
        return readRecording(fileName, format, handler, error);
    }
    InputMessage message;
    message.data = reinterpret_cast<const unsigned char *>(contents.data());
    message.size = contents.size();
    handler(message);
    return true;
}
