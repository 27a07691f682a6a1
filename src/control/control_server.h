#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QLocalServer>
#include <QObject>
#include <QString>

#include <functional>
#include <list>
#include <memory>

class ControlConnection;

// Listens on a local socket that only its owner may use, and answers lines with lines. No client can hold anything up:
// lines and what waits to be read are bounded, requests are taken one a turn of the event loop, and when there are too
// many clients the one that has been silent for longest goes.
class ControlServer final : public QObject {
    Q_OBJECT

public:
    static constexpr int LargestLine = 1024 * 1024; // octets
    static constexpr int MostClients = 16;

    // Called with a line, without its end; what it returns is sent back.
    using Answer = std::function<QJsonObject(const QByteArray &request)>;

    explicit ControlServer(Answer answer, QObject *parent = nullptr);
    // Closes the connections and removes the socket.
    ~ControlServer() override;

    // Takes the place of a socket whose program has gone, and of nothing else. Empty on success, otherwise a sentence.
    // Waits a moment for an answer where there is a socket.
    QString listen(const QString &path);

private:
    static QString obstacle(const QString &path);
    void take();
    std::list<std::unique_ptr<ControlConnection>>::iterator placeOf(const ControlConnection *connection);
    void noteActivity(const ControlConnection *connection);
    void forget(const ControlConnection *connection);

    const Answer m_answer;
    QLocalServer m_server;
    std::list<std::unique_ptr<ControlConnection>> m_connections; // the one that was silent for longest first
};
