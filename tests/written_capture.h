#pragma once

#include "astfile/pcap_writer.h"

#include <QDateTime>
#include <QList>
#include <QString>

#include <utility>

// When captures of tests begin.
inline QDateTime captureBegin()
{
    return QDateTime({2024, 5, 1}, {12, 0}, Qt::UTC);
}

// A network capture of messages, each with its milliseconds after the beginning. The path, or nothing when it could
// not be written.
inline QString writtenCapture(const QString &path, const QList<std::pair<qint64, QByteArray>> &messages)
{
    korvane::astfile::PcapWriter writer;
    bool written = writer.open(path);
    for (const auto &[time, message] : messages) {
        written = written && writer.write(captureBegin().addMSecs(time), {}, {}, message);
    }
    return written && writer.close() ? path : QString();
}
