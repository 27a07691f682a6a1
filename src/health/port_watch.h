#pragma once

#include "app/background_pass.h"
#include "input_probe/udp_port_users.h"

#include <QList>
#include <QObject>
#include <QSet>
#include <QTimer>

// Looks now and then, on a worker, for programs that listen on the ports of the input. GUI thread.
class PortWatch final : public QObject {
    Q_OBJECT

public:
    PortWatch();

    // Those that take datagrams which are no multicast; empty: none is open. Looks at once when they are others.
    void setPorts(const QSet<quint16> &ports);

    // As last found.
    const QList<UdpPortUser> &others() const { return m_others; }

Q_SIGNALS:
    void changed();

private:
    void look();
    void take(const QList<UdpPortUser> &others);

    QSet<quint16> m_ports;
    QList<UdpPortUser> m_others;
    QTimer m_timer;
    BackgroundPass m_pass;
};
