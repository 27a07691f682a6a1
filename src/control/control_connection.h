#pragma once

#include "control/control_server.h"

#include <QObject>

class QLocalSocket;

// One client of the control channel.
class ControlConnection final : public QObject {
    Q_OBJECT

public:
    // Takes the socket over.
    ControlConnection(QLocalSocket *socket, ControlServer::Answer answer);

Q_SIGNALS:
    // A line has come.
    void active();
    void closed();

private:
    void proceed();
    void continueLater();
    bool takeLine();
    void send(const QJsonObject &object);

    QLocalSocket *m_socket; // a child
    const ControlServer::Answer m_answer;
    bool m_continues = false; // on the next turn of the event loop
    bool m_skipping = false; // the rest of a line that is too long
};
