#include "astfile/rec_file.h"
#include "framing.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <bitset>
#include <vector>

namespace korvane::astfile {

namespace {

// Enough for several of the longest data blocks.
constexpr std::size_t OctetsToTry = 512 * 1024;

// What framings are tried for; the first of those that account for equally much is preferred.
constexpr std::array FramedFormats = {RecFile::FinalFormat, RecFile::RawAsterix, RecFile::Gps, RecFile::ModeS};
// How often what the named format accounts for is counted: up to a fault in a short file another one may by chance
// account for a little more.
constexpr qint64 NameCounts = 2;

using Octets = std::span<const unsigned char>;

class MemorySource final : public OctetSource {
public:
    explicit MemorySource(Octets octets) : m_octets(octets) { }

    qint64 read(std::span<unsigned char> room) override
    {
        const std::size_t size = std::min(room.size(), m_octets.size() - m_position);
        std::copy_n(m_octets.begin() + static_cast<std::ptrdiff_t>(m_position), size, room.begin());
        m_position += size;
        return static_cast<qint64>(size);
    }

    bool seek(qint64 offset) override
    {
        m_position = std::min(static_cast<std::size_t>(offset), m_octets.size());
        return true;
    }

private:
    Octets m_octets;
    std::size_t m_position = 0;
};

struct Text {
    Q_DECLARE_TR_FUNCTIONS(RecFile)
};

// The magic numbers of network captures: micro- and nanoseconds in both octet orders, and the next generation's.
RecFile::Format captureFormat(Octets octets)
{
    using Magic = std::array<unsigned char, 4>;
    constexpr Magic SectionHeader = {0x0a, 0x0d, 0x0d, 0x0a};
    constexpr std::array Magics = {Magic{0xa1, 0xb2, 0xc3, 0xd4}, Magic{0xd4, 0xc3, 0xb2, 0xa1},
        Magic{0xa1, 0xb2, 0x3c, 0x4d}, Magic{0x4d, 0x3c, 0xb2, 0xa1}};
    const auto beginsWith = [octets](const Magic &magic) {
        return octets.size() >= magic.size() && std::equal(magic.begin(), magic.end(), octets.begin());
    };
    if (std::any_of(Magics.begin(), Magics.end(), beginsWith)) {
        return RecFile::Pcap;
    }
    return beginsWith(SectionHeader) ? RecFile::PcapNg : RecFile::Unknown;
}

// The categories for which a document was ever published, and those of national use that occur in recordings. Lengths
// alone would make blocks of much that is none.
bool isCategory(unsigned char octet)
{
    static const std::bitset<256> categories = [] {
        std::bitset<256> made;
        for (const unsigned category : {1, 2, 3, 4, 7, 8, 9, 10, 11, 48, 62, 63, 65, 150, 205, 238, 240, 247, 252}) {
            made.set(category);
        }
        for (unsigned category = 15; category <= 34; ++category) {
            made.set(category);
        }
        return made;
    }();
    return categories[octet];
}

bool isPlausible(RecFile::Format format, Octets data)
{
    constexpr std::size_t LeastBlock = 5; // header, FSPEC and an octet of an item
    return format == RecFile::ModeS || (data.size() >= LeastBlock && isCategory(data[0]) && data[3] != 0);
}

// Octets that the format accounts for, up to where the file is none of it; 0 where that may be by chance.
qint64 octetsExplained(RecFile::Format format, BufferedInput &input, const QDateTime &modified)
{
    const auto framing = Framing::create(format);
    framing->begin(input, modified);
    qint64 explained = input.position();
    int records = 0;
    Framing::Record record;
    for (;;) {
        const qint64 before = input.position();
        framing->next(input, &record);
        if (record.kind != DataPacket::Data || !isPlausible(format, record.data)) {
            break;
        }
        explained += input.position() - std::max(record.offset, before);
        ++records;
    }
    const bool whole = record.kind == DataPacket::End && explained == input.position();
    return records > 1 || (records == 1 && whole) ? explained : 0;
}

RecFile::Format framedFormat(Octets beginning, const QDateTime &modified, RecFile::Format named)
{
    RecFile::Format best = RecFile::Unknown;
    qint64 most = 0;
    for (const RecFile::Format format : FramedFormats) {
        BufferedInput input(std::make_unique<MemorySource>(beginning));
        const qint64 explained = octetsExplained(format, input, modified) * (format == named ? NameCounts : 1);
        if (explained > most) {
            best = format;
            most = explained;
        }
    }
    return best;
}

// False when reading failed.
bool readBeginning(OctetSource &source, std::vector<unsigned char> &octets)
{
    octets.resize(OctetsToTry);
    std::size_t size = 0;
    qint64 got = 1;
    while (got > 0 && size < octets.size()) {
        got = source.read(std::span(octets).subspan(size));
        size += static_cast<std::size_t>(std::max<qint64>(got, 0));
    }
    octets.resize(size);
    return got >= 0;
}

RecFile::Format formatOf(OctetSource &source, RecFile::Format named, QString *reason)
{
    std::vector<unsigned char> beginning;
    if (!readBeginning(source, beginning)) {
        *reason = source.error();
        return RecFile::Unknown;
    }
    const RecFile::Format capture = captureFormat(beginning);
    const RecFile::Format format =
        capture != RecFile::Unknown ? capture : framedFormat(beginning, source.modified(), named);
    if (format == RecFile::Unknown) {
        *reason = beginning.empty() ? Text::tr("The file is empty.")
                                    : Text::tr("Its contents are none of the known recording formats.");
    }
    return format;
}

} // namespace

RecFile::Format RecFile::formatOfFile(const QString &fileName, QString *error, const std::function<bool()> &cancel)
{
    QString reason;
    Format format = Unknown;
    if (QFileInfo::exists(fileName) && !QFileInfo(fileName).isFile()) {
        reason = Text::tr("It is no regular file."); // a pipe would keep whoever opens it waiting
    } else if (const auto source = OctetSource::open(fileName, cancel, &reason)) {
        format = formatOf(*source, formatFromFileName(fileName), &reason);
    }
    if (error) {
        *error = reason;
    }
    return format;
}

} // namespace korvane::astfile
