#include "control/control_connection.h"

#include <QJsonDocument>
#include <QLocalSocket>

#include <utility>

ControlConnection::ControlConnection(QLocalSocket *socket, ControlServer::Answer answer)
    : m_socket(socket), m_answer(std::move(answer))
{
    socket->setParent(this);
    socket->setReadBufferSize(ControlServer::LargestLine);
    connect(socket, &QLocalSocket::readyRead, this, &ControlConnection::proceed);
    connect(socket, &QLocalSocket::bytesWritten, this, &ControlConnection::proceed);
    // Later: this object goes with it.
    connect(socket, &QLocalSocket::disconnected, this, &ControlConnection::closed, Qt::QueuedConnection);
    continueLater(); // what came before
}

// A client that does not read its answers gets no further ones.
void ControlConnection::proceed()
{
    const bool reads = m_socket->bytesToWrite() < ControlServer::LargestLine;
    if (!m_continues && reads && m_socket->state() == QLocalSocket::ConnectedState && takeLine()) {
        continueLater();
    }
}

// Others have their turn between two lines.
void ControlConnection::continueLater()
{
    m_continues = true;
    const auto next = [this] {
        m_continues = false;
        proceed();
    };
    QMetaObject::invokeMethod(this, next, Qt::QueuedConnection);
}

bool ControlConnection::takeLine()
{
    if (m_socket->canReadLine()) {
        const QByteArray line = m_socket->readLine().trimmed();
        Q_EMIT active();
        if (!std::exchange(m_skipping, false) && !line.isEmpty()) {
            send(m_answer(line));
        }
        return true;
    }
    if (m_socket->bytesAvailable() < ControlServer::LargestLine) {
        return false;
    }
    m_socket->readAll();
    if (!std::exchange(m_skipping, true)) {
        send({{"id", QJsonValue()}, {"ok", false},
            {"error", tr("A request has at most %1 octets.").arg(ControlServer::LargestLine)}});
    }
    return true;
}

void ControlConnection::send(const QJsonObject &object)
{
    m_socket->write(QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n');
}
