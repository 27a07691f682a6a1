#pragma once

#include "astfile/file_reader.h"

#include <QFile>
#include <QTemporaryDir>
#include <zlib.h>

#include <memory>

// Recordings made and read octet by octet.
class RecordingFiles {
public:
    // The file's path; last modified at noon on 2 May 2023 UTC, like every file here.
    QString write(const QString &name, const QByteArray &octets)
    {
        const QString path = m_dir.filePath(name);
        QFile file(path);
        const bool written = file.open(QIODevice::WriteOnly) && file.write(octets) == octets.size() && file.flush()
            && file.setFileTime(QDateTime({2023, 5, 2}, {12, 0}, Qt::UTC), QFileDevice::FileModificationTime);
        return written ? path : QString();
    }

    static QByteArray gzip(const QByteArray &octets)
    {
        z_stream stream = {};
        deflateInit2(&stream, Z_BEST_SPEED, Z_DEFLATED, 15 + 16, 8, Z_DEFAULT_STRATEGY);
        QByteArray packed(static_cast<qsizetype>(deflateBound(&stream, static_cast<uLong>(octets.size()))), '\0');
        QByteArray input = octets;
        stream.next_in = reinterpret_cast<Bytef *>(input.data());
        stream.avail_in = static_cast<uInt>(input.size());
        stream.next_out = reinterpret_cast<Bytef *>(packed.data());
        stream.avail_out = static_cast<uInt>(packed.size());
        deflate(&stream, Z_FINISH);
        packed.chop(static_cast<qsizetype>(stream.avail_out));
        deflateEnd(&stream);
        return packed;
    }

    static std::unique_ptr<korvane::astfile::FileReader> open(const QString &path)
    {
        const auto format = korvane::astfile::RecFile::formatFromFileName(path);
        auto reader = korvane::astfile::FileReader::create(format);
        return reader && reader->open(path, format) ? std::move(reader) : nullptr;
    }

    // "day hour:minute:second.millisecond data" a packet, "-" for no time, "error@offset", up to the end.
    static QStringList steps(korvane::astfile::FileReader &reader)
    {
        using korvane::astfile::DataPacket;
        QStringList result;
        DataPacket packet;
        for (reader.read(&packet); packet.kind != DataPacket::End; reader.read(&packet)) {
            const QString time = packet.timeStamp.isValid() ? packet.timeStamp.toString("d hh:mm:ss.zzz") : "-";
            result += packet.kind == DataPacket::Data ? time + ' ' + packet.data.toHex()
                                                      : QStringLiteral("error@%1").arg(packet.offset);
        }
        return result;
    }

private:
    QTemporaryDir m_dir;
};
