#pragma once

#include <QCoreApplication>
#include <QString>

#include <cstdint>
#include <optional>

// Where datagrams go: "udp:HOST:PORT", or "udp:GROUP:PORT@INTERFACE" for a multicast group on a certain interface.
// IPv6 addresses stand in brackets.
struct UdpDestination {
    Q_DECLARE_TR_FUNCTIONS(UdpDestination)

public:
    QString host;
    std::uint16_t port = 0;
    QString interfaceName; // empty: the system chooses

    // Nothing, and why, where the text is of another form.
    static std::optional<UdpDestination> parse(const QString &text, QString &error);
};
