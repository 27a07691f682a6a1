// Reads its input as a recording from end to end, twice, makes an index of it and seeks by that. The first octet
// chooses the format; the next two are left out, since the mutator mends block lengths there.

#include "astfile/file_reader.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

namespace {

using namespace korvane::astfile;

constexpr std::size_t PrefixSize = 3;
constexpr int Formats = 6;
constexpr qint64 MaxData = 65535;

void require(bool condition, const char *what)
{
    if (condition) {
        return;
    }
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

// A file without a place on disk.
class MemoryFile {
public:
    MemoryFile(const unsigned char *data, std::size_t size) : m_descriptor(::memfd_create("recording", 0))
    {
        require(m_descriptor >= 0 && ::write(m_descriptor, data, size) == static_cast<ssize_t>(size), "no memory file");
    }
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;
    ~MemoryFile() { ::close(m_descriptor); }

    QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(m_descriptor); }

private:
    int m_descriptor;
};

struct Contents {
    qint64 packets = 0;
    qint64 octets = 0;
    qint64 lastOffset = 0;
    bool operator==(const Contents &) const = default;
};

Contents readAll(FileReader &reader)
{
    Contents contents;
    DataPacket packet;
    for (reader.read(&packet); packet.kind == DataPacket::Data; reader.read(&packet)) {
        require(packet.data.size() <= MaxData, "packet larger than any record");
        require(packet.offset >= contents.lastOffset, "offsets go back");
        ++contents.packets;
        contents.octets += packet.data.size();
        contents.lastOffset = packet.offset;
    }
    if (packet.kind == DataPacket::Error) {
        require(!packet.error.isEmpty(), "fault without reason");
        reader.read(&packet);
    }
    require(packet.kind == DataPacket::End && reader.atEnd(), "no end");
    return contents;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    if (size < PrefixSize) {
        return 0;
    }
    const auto format = static_cast<RecFile::Format>(1 + data[0] % Formats);
    const MemoryFile file(data + PrefixSize, size - PrefixSize);
    const auto reader = FileReader::create(format);
    if (!reader->open(file.path(), format)) {
        return 0;
    }
    const Contents contents = readAll(*reader);
    require(reader->reset() && readAll(*reader) == contents, "second reading differs");
    const RecordingIndex index = RecordingIndex::build(file.path(), format);
    require(index.packetCount() == contents.packets && reader->setIndex(index), "index differs");
    if (index.first().isValid() && reader->seek(index.last())) {
        const DataPacket packet = reader->read();
        require(packet.kind == DataPacket::Data && packet.timeStamp >= index.last(), "sought the wrong packet");
    }
    return 0;
}
