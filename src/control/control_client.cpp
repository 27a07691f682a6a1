#include "control/control_client.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QJsonDocument>
#include <QLocalSocket>

QByteArray ControlClient::ask(const QString &path, const QJsonObject &request, QString *error)
{
    const QDeadlineTimer deadline(WaitMs);
    const auto left = [&deadline] { return static_cast<int>(deadline.remainingTime()); };
    QLocalSocket socket;
    socket.connectToServer(QFileInfo(path).absoluteFilePath());
    if (!socket.waitForConnected(left())) {
        *error = socket.error() == QLocalSocket::SocketAccessError
            ? tr("There is no right to speak to %1: only its owner may.").arg(path)
            : tr("Nobody listens on %1.").arg(path);
        return {};
    }
    socket.write(QJsonDocument(request).toJson(QJsonDocument::Compact) + '\n');
    while (!socket.canReadLine()) {
        if (!socket.waitForReadyRead(left())) {
            *error = tr("The terminal on %1 does not answer: %2").arg(path, socket.errorString());
            return {};
        }
    }
    return socket.readLine().trimmed();
}
