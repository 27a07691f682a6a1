// Reading recordings from the page cache, format by format, and seeking in them.

#include "astfile/file_reader.h"
#include "astfile/file_writer.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <zlib.h>

using namespace korvane::astfile;

namespace {

constexpr qint64 FileSize = 256 << 20; // larger than any processor's cache

// CAT048 blocks of about the size of those that radars send: header, FSPEC, source, time of day, then contents.
QByteArray block(int size, qint64 timeMs)
{
    QByteArray octets(size, '\x2d');
    const auto ticks = static_cast<quint32>(timeMs % 86400000 * 128 / 1000);
    const char head[] = {0x30, static_cast<char>(size >> 8), static_cast<char>(size), '\xc0', 0x19, 0x01,
        static_cast<char>(ticks >> 16), static_cast<char>(ticks >> 8), static_cast<char>(ticks)};
    octets.replace(0, sizeof head, QByteArray(head, sizeof head));
    return octets;
}

QByteArray gpsTrailer(qint64 timeMs)
{
    return QByteArray(6, '\0') + block(9, timeMs).right(3) + '\xcd';
}

QByteArray beastFrame(qint64 timeMs)
{
    const qint64 ticks = timeMs % 86400000 * 12000;
    QByteArray octets("\x1a\x33");
    for (int shift = 40; shift >= 0; shift -= 8) {
        const char octet = static_cast<char>(ticks >> shift);
        octets += octet == '\x1a' ? QByteArray("\x1a\x1a") : QByteArray(1, octet);
    }
    return octets + QByteArray::fromHex("80 8d4840d6202cc371c32ce0576098");
}

// Files are made once, at first use.
class Recordings {
public:
    QString path(RecFile::Format format, int size)
    {
        const char *const suffixes[] = {"", "pcap", "pcapng", "ast", "ff", "gps", "beast"};
        const QString name = m_dir.filePath(QStringLiteral("%1.%2").arg(size).arg(QLatin1String(suffixes[format])));
        if (!QFile::exists(name)) {
            make(name, format, size);
        }
        return name;
    }

    QString packedPath(int size)
    {
        const QString plain = path(RecFile::Pcap, size);
        if (!QFile::exists(plain + ".gz")) {
            QFile in(plain);
            const gzFile out = gzopen(qPrintable(plain + ".gz"), "wb1");
            in.open(QIODevice::ReadOnly);
            for (QByteArray piece = in.read(1 << 20); !piece.isEmpty(); piece = in.read(1 << 20)) {
                gzwrite(out, piece.constData(), static_cast<unsigned>(piece.size()));
            }
            gzclose(out);
        }
        return plain + ".gz";
    }

private:
    void make(const QString &name, RecFile::Format format, int size)
    {
        qint64 timeMs = 1700000000000;
        if (const auto writer = FileWriter::create(format)) {
            writer->open(name);
            for (; writer->octetsWritten() < FileSize; ++timeMs) {
                writer->write(QDateTime::fromMSecsSinceEpoch(timeMs, Qt::UTC), {0x0a000001, 4000}, {0x0a000002, 4001},
                    block(size, timeMs));
            }
            return;
        }
        QFile file(name);
        file.open(QIODevice::WriteOnly);
        file.write(QByteArray(format == RecFile::Gps ? 2200 : 0, '\xcd'));
        for (; file.pos() < FileSize; ++timeMs) {
            file.write(format == RecFile::Gps ? block(size, timeMs) + gpsTrailer(timeMs) : beastFrame(timeMs));
        }
    }

    QTemporaryDir m_dir;
};

Recordings recordings;

void readAll(benchmark::State &state, const QString &path, RecFile::Format format)
{
    qint64 packets = 0;
    qint64 octets = 0;
    DataPacket packet;
    for (auto _ : state) {
        const auto reader = FileReader::create(format);
        if (!reader->open(path, format)) {
            state.SkipWithError(qPrintable(reader->lastError()));
            return;
        }
        for (reader->read(&packet); packet.kind == DataPacket::Data; reader->read(&packet)) {
            ++packets;
            octets = packet.offset;
        }
    }
    state.SetBytesProcessed(octets * state.iterations());
    state.SetItemsProcessed(packets);
}

void read(benchmark::State &state)
{
    const auto format = static_cast<RecFile::Format>(state.range(0));
    state.SetLabel(RecFile::formatName(format).toStdString());
    readAll(state, recordings.path(format, static_cast<int>(state.range(1))), format);
}
BENCHMARK(read)
    ->Unit(benchmark::kMillisecond)
    ->ArgNames({"format", "octets"})
    ->Args({RecFile::Pcap, 60})
    ->Args({RecFile::Pcap, 300})
    ->Args({RecFile::Pcap, 1400})
    ->Args({RecFile::RawAsterix, 300})
    ->Args({RecFile::FinalFormat, 300})
    ->Args({RecFile::Gps, 300})
    ->Args({RecFile::ModeS, 0});

void readPacked(benchmark::State &state)
{
    readAll(state, recordings.packedPath(300), RecFile::Pcap);
}
BENCHMARK(readPacked)->Unit(benchmark::kMillisecond);

// Argument: whether the file is packed.
void seekWithIndex(benchmark::State &state)
{
    const QString path = state.range(0) ? recordings.packedPath(300) : recordings.path(RecFile::Pcap, 300);
    const RecordingIndex index = RecordingIndex::build(path, RecFile::Pcap);
    const auto reader = FileReader::create(RecFile::Pcap);
    if (!reader->open(path, RecFile::Pcap) || !reader->setIndex(index)) {
        state.SkipWithError("not opened");
        return;
    }
    const qint64 span = index.first().msecsTo(index.last());
    qint64 place = 0;
    for (auto _ : state) {
        place = (place + span * 5 / 8 + 17) % span;
        benchmark::DoNotOptimize(reader->seek(index.first().addMSecs(place)));
    }
}
BENCHMARK(seekWithIndex)->Unit(benchmark::kMillisecond)->ArgName("packed")->Arg(0)->Arg(1);

} // namespace

BENCHMARK_MAIN();
