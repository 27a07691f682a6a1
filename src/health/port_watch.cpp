#include "health/port_watch.h"

namespace {
constexpr int PortIntervalMs = 5000;
}

PortWatch::PortWatch()
{
    m_timer.setInterval(PortIntervalMs);
    connect(&m_timer, &QTimer::timeout, this, &PortWatch::look);
}

void PortWatch::setPorts(const QSet<quint16> &ports)
{
    if (ports == m_ports) {
        return;
    }
    m_ports = ports;
    m_pass.cancel();
    if (ports.isEmpty()) {
        m_timer.stop();
        take({});
        return;
    }
    m_timer.start();
    look();
}

void PortWatch::look()
{
    if (m_pass.running()) {
        return;
    }
    m_pass.start([ports = m_ports](
                     const BackgroundPass::Token &) { return UdpPortUsers::find(ports, UdpPortUsers::ownSockets()); },
        [this](const QList<UdpPortUser> &others) { take(others); });
}

void PortWatch::take(const QList<UdpPortUser> &others)
{
    if (others != m_others) {
        m_others = others;
        Q_EMIT changed();
    }
}
