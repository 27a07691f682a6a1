#include "astfile/recording_index.h"

#include "astfile/file_reader.h"
#include "octet_source.h"

#include <algorithm>
#include <limits>

namespace korvane::astfile {

namespace {

constexpr qint64 EntrySpacing = 256 * 1024; // octets: read through in less than a millisecond
constexpr qint64 Never = std::numeric_limits<qint64>::min();

QDateTime timeOf(qint64 timeMs)
{
    return timeMs == Never ? QDateTime() : QDateTime::fromMSecsSinceEpoch(timeMs, Qt::UTC);
}

} // namespace

struct RecordingIndex::Data {
    std::vector<Entry> entries; // by offset, and so by latestBeforeMs
    qint64 firstMs = Never;
    qint64 lastMs = Never;
    qint64 packets = 0;
    qint64 fileSize = 0;
    bool capture = false;
    std::shared_ptr<const SeekMarks> marks;
};

// One pass over a file.
class IndexBuilder {
public:
    explicit IndexBuilder(FileReader &reader) : m_reader(reader) { reader.source()->collectMarks(); }

    // Up to the end, or to the fault that error then names.
    void run(QString *error)
    {
        DataPacket packet;
        qint64 next = EntrySpacing;
        for (m_reader.read(&packet); packet.kind == DataPacket::Data; m_reader.read(&packet)) {
            if (packet.offset >= next) {
                addEntry(packet);
                next = packet.offset + EntrySpacing;
            }
            note(packet);
        }
        *error = packet.error;
    }

    RecordingIndex finish(bool capture)
    {
        m_data->fileSize = m_reader.octetsTotal();
        m_data->marks = m_reader.source()->marks();
        m_data->capture = capture;
        RecordingIndex index;
        index.m_data = std::move(m_data);
        return index;
    }

private:
    void addEntry(const DataPacket &packet)
    {
        const QByteArray *prologue = m_reader.prologueAt(packet.offset);
        if (prologue && packet.timeStamp.isValid()) {
            const qint64 timeMs = packet.timeStamp.toMSecsSinceEpoch();
            m_data->entries.push_back({m_data->lastMs, timeMs, packet.offset, *prologue});
        }
    }

    void note(const DataPacket &packet)
    {
        ++m_data->packets;
        if (!packet.timeStamp.isValid()) {
            return;
        }
        const qint64 timeMs = packet.timeStamp.toMSecsSinceEpoch();
        m_data->firstMs = m_data->firstMs == Never ? timeMs : std::min(m_data->firstMs, timeMs);
        m_data->lastMs = std::max(m_data->lastMs, timeMs);
    }

    FileReader &m_reader;
    std::shared_ptr<RecordingIndex::Data> m_data = std::make_shared<RecordingIndex::Data>();
};

RecordingIndex RecordingIndex::build(
    const QString &fileName, RecFile::Format format, const Progress &progress, QString *error)
{
    QString reason;
    RecordingIndex index;
    bool stopped = false;
    const auto reader = FileReader::create(format, &reason);
    if (reader && progress) {
        reader->setCancel([&] {
            stopped = stopped || !progress(reader->octetsRead(), reader->octetsTotal());
            return stopped;
        });
    }
    if (reader && !reader->open(fileName, format)) {
        reason = reader->lastError();
    } else if (reader) {
        IndexBuilder builder(*reader);
        builder.run(&reason);
        index = stopped ? RecordingIndex() : builder.finish(format == RecFile::Pcap || format == RecFile::PcapNg);
    }
    if (error) {
        *error = stopped ? QString() : reason;
    }
    return index;
}

QDateTime RecordingIndex::first() const
{
    return m_data ? timeOf(m_data->firstMs) : QDateTime();
}

QDateTime RecordingIndex::last() const
{
    return m_data ? timeOf(m_data->lastMs) : QDateTime();
}

qint64 RecordingIndex::packetCount() const
{
    return m_data ? m_data->packets : 0;
}

const RecordingIndex::Entry *RecordingIndex::entryBefore(qint64 timeMs) const
{
    if (!m_data) {
        return nullptr;
    }
    const auto &entries = m_data->entries;
    const auto after = std::partition_point(
        entries.begin(), entries.end(), [timeMs](const Entry &entry) { return entry.latestBeforeMs < timeMs; });
    // A capture is taken up one entry earlier, so that fragments before the last one of a datagram are not missed.
    const std::ptrdiff_t place = after - entries.begin() - (m_data->capture ? 2 : 1);
    return place < 0 ? nullptr : &entries[static_cast<std::size_t>(place)];
}

qint64 RecordingIndex::fileSize() const
{
    return m_data ? m_data->fileSize : 0;
}

std::shared_ptr<const SeekMarks> RecordingIndex::marks() const
{
    return m_data ? m_data->marks : nullptr;
}

} // namespace korvane::astfile
