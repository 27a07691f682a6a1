#pragma once

#include "tiles/tile_index.h"

#include <QByteArray>
#include <QColor>
#include <QHash>
#include <QList>
#include <QPair>
#include <QString>
#include <QTcpServer>

#include <functional>
#include <memory>
#include <optional>

class QTcpSocket;

// What the server sends for one request.
struct ServerAnswer {
    int status = 200;
    QByteArray body;
    QByteArray contentType = "image/png";
    QList<QPair<QByteArray, QByteArray>> headers;
    bool chunked = false; // in pieces, without saying how long it is
    bool cutOff = false; // half of the body, then the connection is closed
    bool silent = false; // never answered
};

// A tile service on this machine that serves a tile of a colour of its own for every index, and misbehaves on demand.
// Addresses end with "/{z}/{x}/{y}" and whatever ending. Lives in the thread of the test.
class TileServer {
public:
    enum class Transport { Plain, Tls };

    struct Request {
        QByteArray target; // path and query
        QHash<QByteArray, QByteArray> headers; // lower-case names
    };

    explicit TileServer(Transport transport = Transport::Plain);

    QString address() const; // "http://127.0.0.1:<port>", or https
    // The template of the custom service.
    QString tileTemplate() const { return address() + QStringLiteral("/{z}/{x}/{y}.png"); }

    // Milliseconds before each answer.
    void setLatency(int milliseconds) { m_latency = milliseconds; }
    // Pixels a side of the tiles served.
    void setTileSide(int pixels) { m_side = pixels; }
    // Instead of tiles from now on; nothing: tiles again.
    void setAnswer(const ServerAnswer &answer)
    {
        m_misbehave = [answer](const QByteArray &) { return answer; };
    }
    // An answer of its own for some targets; none: the tile.
    void setAnswers(std::function<std::optional<ServerAnswer>(const QByteArray &target)> answers)
    {
        m_misbehave = std::move(answers);
    }
    void behave() { m_misbehave = nullptr; }

    const QList<Request> &requests() const { return m_requests; }
    qsizetype count() const { return m_requests.size(); }
    qsizetype count(const QByteArray &target) const;
    // Of requests that waited for their answer at the same time.
    int mostConcurrent() const { return m_mostConcurrent; }
    // Requests for what was under way already.
    int duplicatesInFlight() const { return m_duplicates; }
    void forgetRequests();

    // Whether this machine can serve over TLS.
    static bool hasTls();
    // Trusted by all requests of the process from now on, or no longer.
    static void setTrusted(bool trusted);

    static QColor colorOf(const TileIndex &index);
    static QByteArray tile(const TileIndex &index, int side = 256);
    static std::optional<TileIndex> indexOf(const QByteArray &target);

    static ServerAnswer status(int code, const QByteArray &retryAfter = {});
    static ServerAnswer redirect(const QString &target);
    static ServerAnswer content(const QByteArray &body, const QByteArray &contentType = "image/png");
    // A JPEG of few octets that claims this many pixels a side.
    static QByteArray bomb(int side = 30'000);

private:
    void read(QTcpSocket *socket);
    void serve(QTcpSocket *socket, const QByteArray &head);
    ServerAnswer answerTo(const QByteArray &target) const;
    static QByteArray head(const ServerAnswer &answer);
    static void write(QTcpSocket *socket, const ServerAnswer &answer);

    std::unique_ptr<QTcpServer> m_server;
    std::function<std::optional<ServerAnswer>(const QByteArray &)> m_misbehave;
    QList<Request> m_requests;
    QHash<QByteArray, int> m_underWay;
    int m_latency = 0;
    int m_side = 256;
    int m_waiting = 0;
    int m_mostConcurrent = 0;
    int m_duplicates = 0;
};
