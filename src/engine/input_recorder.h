#pragma once

#include "astfile/pcap_writer.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTimer>

class QHostAddress;

// Writes what an input receives to a network capture, octet for octet with the times of arrival, while it is being
// shown. What goes wrong with the file ends the recording and never the input. Lives on the thread that it is used on.
class InputRecorder final : public QObject {
    Q_OBJECT

public:
    explicit InputRecorder(QObject *parent = nullptr);

    // Replaces the file. Answers with started, or with stopped and the reason.
    void start(const QString &fileName);
    void stop();
    bool active() const { return !m_fileName.isEmpty(); }

    // Of a message that came without addresses, such as one of a serial line, both are 127.0.0.1 and port 0. Does
    // nothing while no recording is under way.
    void record(const QByteArray &data, const korvane::astfile::PcapWriter::Endpoint &source,
        const korvane::astfile::PcapWriter::Endpoint &destination);

    static korvane::astfile::PcapWriter::Endpoint endpoint(const QHostAddress &address, quint16 port);

Q_SIGNALS:
    void started(const QString &fileName);
    // The reason is empty when it was asked for.
    void stopped(const QString &fileName, quint64 messages, const QString &reason);

private:
    // What is written reaches the disk, and a full disk or a file that has gone is noticed, within a second.
    void checkFile();
    void end(const QString &reason);

    korvane::astfile::PcapWriter m_writer;
    QString m_fileName; // empty while nothing is being recorded
    quint64 m_messages = 0;
    QTimer m_checkTimer{this};
};
