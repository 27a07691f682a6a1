#include "tile_server.h"

#include "tile_server_identity.h"

#include <QBuffer>
#include <QImage>
#include <QRegularExpression>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QTcpSocket>
#include <QTimer>

#include <algorithm>

namespace {

QSslCertificate certificate()
{
    return QSslCertificate(TileServerCertificate);
}

std::unique_ptr<QTcpServer> makeTlsServer()
{
    QSslConfiguration identity = QSslConfiguration::defaultConfiguration();
    identity.setLocalCertificate(certificate());
    identity.setPrivateKey(QSslKey(TileServerKey, QSsl::Ec));
    auto server = std::make_unique<QSslServer>();
    server->setSslConfiguration(identity);
    return server;
}

} // namespace

bool TileServer::hasTls()
{
    return QSslSocket::supportsSsl();
}

void TileServer::setTrusted(bool trusted)
{
    static const QList<QSslCertificate> Known = QSslConfiguration::defaultConfiguration().caCertificates();
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setCaCertificates(trusted ? Known + QList{certificate()} : Known);
    QSslConfiguration::setDefaultConfiguration(configuration);
}

TileServer::TileServer(Transport transport)
    : m_server(transport == Transport::Tls ? makeTlsServer() : std::make_unique<QTcpServer>())
{
    m_server->listen(QHostAddress::LocalHost);
    QTcpServer *server = m_server.get();
    QObject::connect(server, &QTcpServer::pendingConnectionAvailable, server, [this, server] {
        while (QTcpSocket *socket = server->nextPendingConnection()) {
            QObject::connect(socket, &QTcpSocket::readyRead, server, [this, socket] { read(socket); });
            QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        }
    });
}

QString TileServer::address() const
{
    const bool secure = qobject_cast<QSslServer *>(m_server.get());
    return QStringLiteral("%1://127.0.0.1:%2").arg(secure ? "https" : "http").arg(m_server->serverPort());
}

void TileServer::read(QTcpSocket *socket)
{
    QByteArray buffered = socket->property("buffered").toByteArray() + socket->readAll();
    qsizetype end = buffered.indexOf("\r\n\r\n");
    while (end >= 0) {
        serve(socket, buffered.first(end));
        buffered.remove(0, end + 4);
        end = buffered.indexOf("\r\n\r\n");
    }
    socket->setProperty("buffered", buffered);
}

void TileServer::serve(QTcpSocket *socket, const QByteArray &head)
{
    const QList<QByteArray> lines = head.split('\n');
    Request request{lines.first().split(' ').value(1), {}};
    for (const QByteArray &line : lines.sliced(1)) {
        const qsizetype colon = line.indexOf(':');
        request.headers.insert(line.first(colon).toLower(), line.sliced(colon + 1).trimmed());
    }
    m_requests.append(request);
    m_duplicates += m_underWay[request.target]++ > 0 ? 1 : 0;
    m_mostConcurrent = std::max(m_mostConcurrent, ++m_waiting);
    QTimer::singleShot(m_latency, socket, [this, socket, target = request.target, answer = answerTo(request.target)] {
        --m_waiting;
        --m_underWay[target];
        write(socket, answer);
    });
}

ServerAnswer TileServer::answerTo(const QByteArray &target) const
{
    if (m_misbehave) {
        if (const std::optional<ServerAnswer> answer = m_misbehave(target)) {
            return *answer;
        }
    }
    const std::optional<TileIndex> index = indexOf(target);
    return index ? content(tile(*index, m_side)) : status(404);
}

QByteArray TileServer::head(const ServerAnswer &answer)
{
    QByteArray octets =
        "HTTP/1.1 " + QByteArray::number(answer.status) + " Status\r\nContent-Type: " + answer.contentType + "\r\n";
    octets += answer.chunked ? QByteArray("Transfer-Encoding: chunked\r\n")
                             : "Content-Length: " + QByteArray::number(answer.body.size()) + "\r\n";
    for (const auto &[name, value] : answer.headers) {
        octets += name + ": " + value + "\r\n";
    }
    return octets + "\r\n";
}

void TileServer::write(QTcpSocket *socket, const ServerAnswer &answer)
{
    if (answer.silent) {
        return;
    }
    socket->write(head(answer));
    const QByteArray body = answer.cutOff ? answer.body.first(answer.body.size() / 2) : answer.body;
    if (answer.chunked) {
        const qsizetype piece = body.size() / 3 + 1;
        for (qsizetype from = 0; from < body.size(); from += piece) {
            const QByteArray part = body.mid(from, piece);
            socket->write(QByteArray::number(part.size(), 16) + "\r\n" + part + "\r\n");
            socket->flush();
        }
        socket->write(answer.cutOff ? "" : "0\r\n\r\n");
    } else {
        socket->write(body);
    }
    if (answer.cutOff) {
        socket->disconnectFromHost();
    }
}

qsizetype TileServer::count(const QByteArray &target) const
{
    return std::ranges::count(m_requests, target, &Request::target);
}

void TileServer::forgetRequests()
{
    m_requests.clear();
    m_mostConcurrent = 0;
    m_duplicates = 0;
}

QColor TileServer::colorOf(const TileIndex &index)
{
    return QColor(index.x * 37 % 256, index.y * 59 % 256, index.level * 11 % 256);
}

QByteArray TileServer::tile(const TileIndex &index, int side)
{
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(colorOf(index));
    QByteArray octets;
    QBuffer buffer(&octets);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return octets;
}

std::optional<TileIndex> TileServer::indexOf(const QByteArray &target)
{
    static const QRegularExpression Form(QStringLiteral("/(\\d+)/(\\d+)/(\\d+)(\\.\\w+)?(\\?.*)?$"));
    const QRegularExpressionMatch match = Form.match(QString::fromLatin1(target));
    if (!match.hasMatch()) {
        return {};
    }
    return TileIndex{
        match.captured(2).toInt(), match.captured(3).toInt(), static_cast<quint8>(match.captured(1).toInt())};
}

ServerAnswer TileServer::status(int code, const QByteArray &retryAfter)
{
    ServerAnswer answer;
    answer.status = code;
    answer.contentType = "text/plain";
    answer.body = code == 204 ? "" : "no";
    if (!retryAfter.isEmpty()) {
        answer.headers.append({"Retry-After", retryAfter});
    }
    return answer;
}

ServerAnswer TileServer::redirect(const QString &target)
{
    ServerAnswer answer = status(302);
    answer.headers.append({"Location", target.toLatin1()});
    return answer;
}

ServerAnswer TileServer::content(const QByteArray &body, const QByteArray &contentType)
{
    ServerAnswer answer;
    answer.body = body;
    answer.contentType = contentType;
    return answer;
}

QByteArray TileServer::bomb(int side)
{
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(0);
    QByteArray octets;
    QBuffer buffer(&octets);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG");
    const qsizetype frame = octets.indexOf("\xff\xc0"); // then length, precision, height and width
    for (const qsizetype at : {frame + 5, frame + 7}) {
        octets[at] = static_cast<char>(side >> 8 & 0xff);
        octets[at + 1] = static_cast<char>(side & 0xff);
    }
    return octets;
}
