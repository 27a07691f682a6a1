#include "engine/input_recorder.h"

#include <QDateTime>
#include <QFileInfo>
#include <QHostAddress>

#include <utility>

using korvane::astfile::PcapWriter;

namespace {
constexpr int CheckIntervalMs = 1000;
}

InputRecorder::InputRecorder(QObject *parent) : QObject(parent)
{
    connect(&m_checkTimer, &QTimer::timeout, this, &InputRecorder::checkFile);
}

void InputRecorder::start(const QString &fileName)
{
    stop();
    m_messages = 0;
    if (!m_writer.open(fileName)) {
        Q_EMIT stopped(fileName, 0, m_writer.lastError());
        return;
    }
    m_fileName = fileName;
    m_checkTimer.start(CheckIntervalMs);
    Q_EMIT started(fileName);
}

void InputRecorder::stop()
{
    if (active()) {
        end({});
    }
}

void InputRecorder::record(
    const QByteArray &data, const PcapWriter::Endpoint &source, const PcapWriter::Endpoint &destination)
{
    if (!active()) {
        return;
    }
    if (!m_writer.write(QDateTime::currentDateTimeUtc(), source, destination, data)) {
        end(m_writer.lastError());
        return;
    }
    ++m_messages;
}

PcapWriter::Endpoint InputRecorder::endpoint(const QHostAddress &address, quint16 port)
{
    return {address.toIPv4Address(), port};
}

void InputRecorder::checkFile()
{
    if (!m_writer.flush()) {
        end(m_writer.lastError());
    } else if (!QFileInfo::exists(m_fileName)) {
        // Writing into a file that has been removed succeeds, and what was written is lost.
        end(tr("the file has been removed"));
    }
}

void InputRecorder::end(const QString &reason)
{
    m_checkTimer.stop();
    const QString fileName = std::exchange(m_fileName, QString());
    const bool closed = m_writer.close();
    Q_EMIT stopped(fileName, m_messages, reason.isEmpty() && !closed ? m_writer.lastError() : reason);
}
