#include "control/control_server.h"

#include "control/control_connection.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>

#include <algorithm>
#include <utility>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

constexpr int LifeSignMs = 1000;

#ifdef Q_OS_UNIX
bool isSocket(const QString &path)
{
    struct stat status = {};
    return lstat(QFile::encodeName(path).constData(), &status) == 0 && S_ISSOCK(status.st_mode);
}
#endif

} // namespace

ControlServer::ControlServer(Answer answer, QObject *parent) : QObject(parent), m_answer(std::move(answer))
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &ControlServer::take);
}

ControlServer::~ControlServer() = default;

QString ControlServer::listen(const QString &path)
{
    const QString name = QFileInfo(path).absoluteFilePath();
    const QString problem = obstacle(name);
    if (!problem.isEmpty()) {
        return problem;
    }
    return m_server.listen(name) ? QString()
                                 : tr("The control socket %1 cannot be made: %2.").arg(name, m_server.errorString());
}

QString ControlServer::obstacle([[maybe_unused]] const QString &path)
{
#ifdef Q_OS_UNIX
    if (!isSocket(path)) {
        const QFileInfo file(path);
        if (file.exists() || file.isSymLink()) {
            return tr("%1 is there already, and is no control socket.").arg(path);
        }
        return file.dir().exists() ? QString() : tr("The folder of the control socket %1 is not there.").arg(path);
    }
    QLocalSocket probe;
    probe.connectToServer(path);
    // One that nobody accepts in time may belong to a program that is busy.
    if (probe.waitForConnected(LifeSignMs) || probe.error() != QLocalSocket::ConnectionRefusedError) {
        return tr("Another program listens on the control socket %1.").arg(path);
    }
    QFile::remove(path);
#endif
    return {};
}

void ControlServer::take()
{
    while (QLocalSocket *socket = m_server.nextPendingConnection()) {
        if (m_connections.size() >= MostClients) {
            m_connections.pop_front();
        }
        auto *connection = m_connections.emplace_back(std::make_unique<ControlConnection>(socket, m_answer)).get();
        connect(connection, &ControlConnection::active, this, [this, connection] { noteActivity(connection); });
        connect(connection, &ControlConnection::closed, this, [this, connection] { forget(connection); });
    }
}

std::list<std::unique_ptr<ControlConnection>>::iterator ControlServer::placeOf(const ControlConnection *connection)
{
    return std::find_if(m_connections.begin(), m_connections.end(),
        [connection](const auto &candidate) { return candidate.get() == connection; });
}

void ControlServer::noteActivity(const ControlConnection *connection)
{
    m_connections.splice(m_connections.end(), m_connections, placeOf(connection));
}

void ControlServer::forget(const ControlConnection *connection)
{
    const auto place = placeOf(connection);
    place->release()->deleteLater(); // it is the one that says so
    m_connections.erase(place);
}
