#include "raw_view/raw_export.h"

#include "asterix/asterix.h"
#include "astfile/pcap_writer.h"
#include "explanation/report_view.h"
#include "sirm/alenia_sir_m_radar_encoder.h"

#include <QDateTime>
#include <QSaveFile>

using korvane::astfile::PcapWriter;

namespace {

constexpr quint32 Loopback = 0x7F000001;
constexpr quint16 ExportPort = 8600;

// A message of SIR-M of which one record is kept, as if it had no other.
QByteArray messageOf(const QByteArray &octets)
{
    const auto *record =
        reinterpret_cast<const unsigned char *>(octets.constData()) + AleniaSirMRadarMessage::FixedSize;
    const auto size = static_cast<std::size_t>(octets.size()) - AleniaSirMRadarMessage::FixedSize;
    if (size == 0) {
        return octets;
    }
    AleniaSirMRadarDataMessage message;
    message.setFixedOctets(record - AleniaSirMRadarMessage::FixedSize);
    if (size == AleniaSirMRadarTrackRecord::Size) {
        message.addTrackRecord(AleniaSirMRadarTrackRecord::fromOctets(record));
    } else {
        message.addPlotRecord(AleniaSirMRadarPlotRecord::fromOctets(record));
    }
    const auto encoded = AleniaSirMRadarEncoder::encode(message);
    return QByteArray(reinterpret_cast<const char *>(encoded.data()), static_cast<qsizetype>(encoded.size()));
}

// A data block around a record; what was no record stands as it came.
QByteArray blockOf(const RawRecord &record)
{
    const StreamBatch::Record &facts = record.facts;
    const QByteArray octets = record.kept().octets;
    if (facts.form == TakenReport::Form::AleniaSirM && !facts.fault) {
        return messageOf(octets);
    }
    if (facts.form != TakenReport::Form::Asterix || !facts.uap) {
        return octets;
    }
    constexpr qsizetype Header = 3;
    const qsizetype length = octets.size() + Header;
    QByteArray block;
    block.append(static_cast<char>(facts.category));
    block.append(static_cast<char>(length >> 8)).append(static_cast<char>(length & 0xFF));
    return block + octets;
}

QString exportCapture(const std::vector<RawRecord> &records, const QString &fileName)
{
    PcapWriter writer;
    bool isWritten = writer.open(fileName);
    for (const RawRecord &record : records) {
        if (!isWritten) {
            break;
        }
        const auto time = QDateTime::fromMSecsSinceEpoch(record.facts.timeMs, Qt::UTC);
        isWritten = writer.write(time, {Loopback, ExportPort}, {Loopback, ExportPort}, blockOf(record));
    }
    return isWritten && writer.close() ? QString() : writer.lastError();
}

QByteArray hexLine(const RawRecord &record)
{
    const auto time = QDateTime::fromMSecsSinceEpoch(record.facts.timeMs, Qt::UTC);
    return QStringLiteral("%1 %2 %3 ")
               .arg(time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")), formText(record),
                   record.facts.identified ? sourceText(record) : QStringLiteral("-"))
               .toUtf8()
        + record.kept().octets.toHex(' ') + '\n';
}

QByteArray jsonLineOf(const RawRecord &record)
{
    const bool isReadable = record.facts.form != TakenReport::Form::Asterix || record.facts.uap;
    return isReadable ? reportJson(record.kept()) : QByteArray();
}

} // namespace

QString exportRecords(const std::vector<RawRecord> &records, const QString &fileName)
{
    if (fileName.endsWith(QStringLiteral(".pcap"), Qt::CaseInsensitive)) {
        return exportCapture(records, fileName);
    }
    const bool isJson = fileName.endsWith(QStringLiteral(".ndjson"), Qt::CaseInsensitive);
    QSaveFile file(fileName);
    bool isWritten = file.open(QIODevice::WriteOnly);
    for (const RawRecord &record : records) {
        isWritten = isWritten && file.write(isJson ? jsonLineOf(record) : hexLine(record)) >= 0;
    }
    return isWritten && file.commit() ? QString() : file.errorString();
}
