#include "engine/data_engine.h"

#include <QUdpSocket>

using korvane::astfile::PcapWriter;

void DataEngine::startRecording(const QString &fileName)
{
    if (!m_inputOpen || m_config.inputComm == Config::InputComm::File) {
        Q_EMIT logMessage(LogLevel::Warning, tr("There is no live input to record."));
        Q_EMIT recordingStopped();
        return;
    }
    m_recorder.start(fileName);
}

void DataEngine::stopRecording()
{
    m_recorder.stop();
}

void DataEngine::connectRecorder()
{
    connect(&m_recorder, &InputRecorder::started, this, [this](const QString &fileName) {
        Q_EMIT logMessage(LogLevel::Info, tr("Recording input to %1").arg(fileName));
        Q_EMIT recordingStarted(fileName);
    });
    connect(&m_recorder, &InputRecorder::stopped, this,
        [this](const QString &fileName, quint64 messages, const QString &reason) {
            if (reason.isEmpty()) {
                Q_EMIT logMessage(
                    LogLevel::Info, tr("Recording %1 finished, %2 messages.").arg(fileName).arg(messages));
            } else {
                Q_EMIT logMessage(LogLevel::Warning,
                    tr("Recording %1 stopped after %2 messages: %3").arg(fileName).arg(messages).arg(reason));
            }
            Q_EMIT recordingStopped();
        });
}

void DataEngine::recordDatagram(
    const QByteArray &data, const QUdpSocket *socket, const QHostAddress &sender, quint16 senderPort)
{
    const UdpInput input = socket == m_udpSocket1 ? udpInput1() : udpInput2();
    const QHostAddress receiver = input.multicast ? input.group : QHostAddress(QHostAddress::LocalHost);
    m_recorder.record(data, InputRecorder::endpoint(sender, senderPort), InputRecorder::endpoint(receiver, input.port));
}

void DataEngine::recordSerialData(const QByteArray &data)
{
    const PcapWriter::Endpoint line = InputRecorder::endpoint(QHostAddress(QHostAddress::LocalHost), 0);
    m_recorder.record(data, line, line);
}
