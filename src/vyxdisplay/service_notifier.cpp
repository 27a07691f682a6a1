#include "vyxdisplay/service_notifier.h"

#include <QtGlobal>

#ifdef Q_OS_LINUX
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>

ServiceNotifier::ServiceNotifier()
{
    const QByteArray name = qgetenv("NOTIFY_SOCKET");
    sockaddr_un address = {};
    if (name.size() < 2 || static_cast<std::size_t>(name.size()) >= sizeof address.sun_path) {
        return;
    }
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, name.constData(), static_cast<std::size_t>(name.size()));
    if (name[0] == '@') { // an abstract name
        address.sun_path[0] = '\0';
    }
    m_socket = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + static_cast<std::size_t>(name.size()));
    if (connect(m_socket, reinterpret_cast<const sockaddr *>(&address), size) != 0) {
        close(m_socket);
        m_socket = -1;
    }
}

ServiceNotifier::~ServiceNotifier()
{
    if (m_socket >= 0) {
        close(m_socket);
    }
}

void ServiceNotifier::notify(const QByteArray &state) const
{
    if (m_socket >= 0) {
        send(m_socket, state.constData(), static_cast<std::size_t>(state.size()), MSG_NOSIGNAL);
    }
}
#else
ServiceNotifier::ServiceNotifier() = default;
ServiceNotifier::~ServiceNotifier() = default;
void ServiceNotifier::notify(const QByteArray &) const { }
#endif

std::optional<std::chrono::milliseconds> ServiceNotifier::watchdogInterval()
{
    const qint64 microseconds = qgetenv("WATCHDOG_USEC").toLongLong();
    return microseconds > 0 ? std::optional(std::chrono::milliseconds(microseconds / 2000)) : std::nullopt;
}
