#include "control/control_client.h"
#include "control/control_commands.h"
#include "control/control_server.h"
#include "control/control_target.h"
#include "test_files.h"
#include "test_program.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocalSocket>
#include <QTemporaryDir>
#include <QTest>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <vector>

namespace {

// With double quotation marks for single ones.
QByteArray quoted(QByteArray text)
{
    return text.replace('\'', '"');
}

class FakeTarget final : public ControlTarget {
public:
    QJsonObject status() const override { return {{"lamp", "green"}}; }
    QJsonObject snapshot() const override { return {{"tracks", QJsonArray{}}}; }
    QString start() override { return "The input is open already."; }
    QString stop() override
    {
        ++stops;
        return {};
    }
    QString saveScreenshot(const QString &path) override { return "refused " + path; }
    QJsonObject view() const override { return shown; }
    QString setView(const QJsonObject &view) override
    {
        for (auto value = view.begin(); value != view.end(); ++value) {
            shown.insert(value.key(), value.value());
        }
        return {};
    }

    int stops = 0;
    QJsonObject shown{{"rotation", 0.0}};
};

} // namespace

// Real sockets and clients.
class TestControlServer final : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_directory;
    QString m_path;
    FakeTarget m_target;
    int m_answers = 0;
    ControlCommands m_commands{&m_target};
    std::unique_ptr<ControlServer> m_server;

    std::unique_ptr<ControlServer> makeServer()
    {
        return std::make_unique<ControlServer>([this](const QByteArray &line) {
            ++m_answers;
            return m_commands.answer(line);
        });
    }

    std::unique_ptr<QLocalSocket> connected() const
    {
        auto socket = std::make_unique<QLocalSocket>();
        socket->connectToServer(m_path);
        socket->waitForConnected(1000);
        return socket;
    }

    static QJsonObject answered(QLocalSocket &client)
    {
        const bool came = QTest::qWaitFor([&client] { return client.canReadLine(); }, 3000);
        return came ? QJsonDocument::fromJson(client.readLine()).object() : QJsonObject();
    }

    static QJsonObject asked(QLocalSocket &client, const QByteArray &line)
    {
        client.write(line + '\n');
        return answered(client);
    }

private Q_SLOTS:
    void init()
    {
        m_path = m_directory.filePath("control");
        m_server = makeServer();
        QCOMPARE(m_server->listen(m_path), QString());
    }

    void cleanup() { m_server.reset(); }

    void requestsAreAnswered_data()
    {
        QTest::addColumn<QByteArray>("request");
        QTest::addColumn<QByteArray>("answer"); // without what is different each time, a part of it
        const auto row = [](const char *request, const char *answer) {
            QTest::newRow(request) << quoted(request) << quoted(answer);
        };
        row("{'command':'status','id':7}", "{'id':7,'ok':true,'result':{'lamp':'green'}}");
        row(" {'id':[1,{'a':null}],'command':'snapshot'} ", "'id':[1,{'a':null}],'ok':true,'result':{'tracks':[]}");
        row("{'command':'start'}", "{'error':'The input is open already.','id':null,'ok':false}");
        row("{'command':'stop'}", "'ok':true");
        row("{'command':'view','rotation':12.5}", "'result':{'rotation':12.5}");
        row("{'command':'view','rotation':'north'}", "has to be a number");
        row("{'command':'screenshot','path':'/x.png'}", "'error':'refused /x.png'");
        row("{'command':'screenshot'}", "absolute path");
        row("{'command':'snapshot','path':'x.json'}", "absolute path");
        row("{'command':'snapshot','path':'/no/such/directory/x.json'}", "cannot be written");
        row("{'command':'status','path':'/x'}", "The command status takes no");
        row("{'command':'reboot','id':'a'}", "There is no command");
        row("{'command':7}", "The request has no");
        row("[]", "is a JSON object");
        row("{", "at octet");
        row("\xff\xfe", "at octet");
    }

    void requestsAreAnswered()
    {
        QFETCH(const QByteArray, request);
        QFETCH(const QByteArray, answer);
        const auto client = connected();
        const QJsonObject object = asked(*client, request);
        const QByteArray line = QJsonDocument(object).toJson(QJsonDocument::Compact);
        QVERIFY2(line.contains(answer), line.constData());
        QCOMPARE(object["error"].toString().isEmpty(), object["ok"].toBool());
        QCOMPARE(m_target.stops, request.contains("stop") ? 1 : 0);
        m_target.stops = 0;
    }

    void filesAndSocketBelongToTheOwner()
    {
        QCOMPARE(
            QFile::permissions(m_path) & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
            QFile::Permissions());
        const QString file = m_directory.filePath("picture.json");
        const auto client = connected();
        QVERIFY(asked(*client, quoted("{'command':'snapshot','path':'" + file.toUtf8() + "'}"))["ok"].toBool());
        QVERIFY(QJsonDocument::fromJson(contentsOf(file)).object()["tracks"].isArray());
    }

    void onlyADeadSocketIsReplaced()
    {
        QVERIFY(makeServer()->listen(m_path).contains("Another program listens"));
        const auto client = connected();
        QVERIFY(asked(*client, quoted("{'command':'status'}"))["ok"].toBool()); // unharmed
        m_server.reset();
        QVERIFY(!QFile::exists(m_path));

        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        std::strcpy(address.sun_path, qPrintable(m_path));
        const int dead = socket(AF_UNIX, SOCK_STREAM, 0);
        QCOMPARE(bind(dead, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
        ::close(dead);
        m_server = makeServer();
        QCOMPARE(m_server->listen(m_path), QString());
        const auto next = connected();
        QVERIFY(asked(*next, quoted("{'command':'status'}"))["ok"].toBool());

        const QString precious = m_directory.filePath("precious");
        QFile file(precious);
        QVERIFY(file.open(QFile::WriteOnly));
        QVERIFY(makeServer()->listen(precious).contains("no control socket"));
        QVERIFY(QFile::exists(precious));
        QVERIFY(makeServer()->listen("/no/such/directory/control").contains("folder"));
        QVERIFY(makeServer()->listen(m_directory.filePath(QString(120, 'x'))).contains("cannot be made"));
    }

    void linesAreBounded()
    {
        const auto client = connected();
        client->write(QByteArray(3 * ControlServer::LargestLine, ' '));
        QVERIFY(answered(*client)["error"].toString().contains("1048576"));
        const QByteArray request = quoted("{'command':'status','id':1}");
        QVERIFY(asked(*client, '\n' + request)["ok"].toBool());
        const auto other = connected();
        QVERIFY(
            asked(*other, request + QByteArray(ControlServer::LargestLine - request.size() - 1, ' '))["ok"].toBool());
    }

    // One sends without end and never reads, one says half a word; another is answered all the same.
    void nobodyIsHeldUp()
    {
        const auto greedy = connected();
        const auto silent = connected();
        silent->write("{\"comm");
        const QByteArray request = quoted("{'command':'view','id':'" + QByteArray(1000, 'x') + "'}\n");
        for (int count = 0; count < 20000; ++count) {
            greedy->write(request);
        }
        greedy->setReadBufferSize(1);
        const auto third = connected();
        for (int count = 0; count < 10; ++count) {
            QVERIFY(asked(*third, quoted("{'command':'status'}"))["ok"].toBool());
        }
        QTest::qWait(100);
        QVERIFY2(m_answers < 5000, qPrintable(QString::number(m_answers))); // a megabyte waits, and what is on the way
        QCOMPARE(asked(*silent, "and\":1}")["ok"].toBool(true), false);
    }

    void theSilentGoWhenThereAreTooMany()
    {
        std::vector<std::unique_ptr<QLocalSocket>> clients;
        for (int count = 0; count < ControlServer::MostClients; ++count) {
            clients.push_back(connected());
        }
        QVERIFY(asked(*clients.front(), quoted("{'command':'status'}"))["ok"].toBool()); // not silent
        clients.push_back(connected());
        QTRY_COMPARE(clients[1]->state(), QLocalSocket::UnconnectedState);
        for (const std::size_t kept : {std::size_t(0), std::size_t(2), clients.size() - 1}) {
            QVERIFY(asked(*clients[kept], quoted("{'command':'status'}"))["ok"].toBool());
        }
        clients.erase(clients.begin() + 3); // goes by itself, in the midst of a word
        clients[3]->write("{");
        clients[3]->flush();
        clients.erase(clients.begin() + 3);
        const auto last = connected();
        QVERIFY(asked(*last, quoted("{'command':'status'}"))["ok"].toBool());
    }

    void theClientSaysWhyThereIsNoAnswer()
    {
        QString error;
        QCOMPARE(ControlClient::ask(m_directory.filePath("nobody"), {{"command", "status"}}, &error), QByteArray());
        QVERIFY2(error.contains("Nobody listens on"), qPrintable(error));
        const QString closed = m_directory.filePath("closed");
        QVERIFY(QDir().mkdir(closed) && QFile::setPermissions(closed, {}));
        constexpr uid_t AnotherUser = 65534;
        const bool almighty = geteuid() == 0; // whom no permission stops
        QVERIFY(!almighty || seteuid(AnotherUser) == 0);
        ControlClient::ask(closed + "/control", {{"command", "status"}}, &error);
        QVERIFY(!almighty || seteuid(0) == 0);
        QVERIFY2(error.contains("only its owner may"), qPrintable(error));
    }
};

VYX_TEST(TestControlServer)
#include "tst_control_server.moc"
