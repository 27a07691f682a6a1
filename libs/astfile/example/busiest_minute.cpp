#include "example/busiest_minute.h"

#include "astfile/file_reader.h"

#include <QMap>

using namespace korvane::astfile;

QString busiestMinute(const QString &fileName)
{
    const RecFile::Format format = RecFile::formatFromFileName(fileName); // "day.pcap", "day.ff.gz"
    const auto reader = FileReader::create(format);
    if (!reader || !reader->open(fileName, format)) {
        return reader ? reader->lastError() : QStringLiteral("no recording");
    }
    QMap<QString, int> messages;
    DataPacket packet; // keep one and reuse it: it holds on to its memory
    for (reader->read(&packet); packet.kind == DataPacket::Data; reader->read(&packet)) {
        ++messages[packet.timeStamp.toString(QStringLiteral("hh:mm"))];
    }
    if (packet.kind == DataPacket::Error) {
        return QStringLiteral("octet %1: %2").arg(packet.offset).arg(packet.error);
    }
    const auto busiest = std::max_element(messages.cbegin(), messages.cend());
    return busiest == messages.cend() ? QStringLiteral("empty")
                                      : QStringLiteral("%1: %2 messages").arg(busiest.key()).arg(*busiest);
}
