#pragma once

#include <QByteArray>

#include <chrono>
#include <optional>

// Tells the service manager that started this program how it does: datagrams to the socket that $NOTIFY_SOCKET names
// (sd_notify(3)). Without one everything is a no-op.
class ServiceNotifier final {
public:
    ServiceNotifier();
    ~ServiceNotifier();
    ServiceNotifier(const ServiceNotifier &) = delete;
    ServiceNotifier &operator=(const ServiceNotifier &) = delete;

    // Lines of assignments, such as "READY=1" or "STATUS=text".
    void notify(const QByteArray &state) const;

    // How often "WATCHDOG=1" is to be told, half of what $WATCHDOG_USEC allows; nothing where nobody watches.
    static std::optional<std::chrono::milliseconds> watchdogInterval();

private:
    int m_socket = -1;
};
