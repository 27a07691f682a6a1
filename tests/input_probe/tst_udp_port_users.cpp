#include "input_probe/udp_port_users.h"
#include "test_program.h"

#include <QTest>
#include <QUdpSocket>

class TestUdpPortUsers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tables_data();
    void tables();
    void findsARealSocket();
    void describes();
};

namespace {

const QByteArray Title =
    "   sl  local_address rem_address   st tx_queue rx_queue tr tm->when retrnsmt   uid  timeout inode "
    "ref pointer drops             \n";

QByteArray row(const QByteArray &local, int uid, int inode)
{
    const QByteArray any(local.size() > 20 ? 32 : 8, '0');
    return "  100: " + local + " " + any + ":0000 07 00000000:00000000 00:00000000 00000000  " + QByteArray::number(uid)
        + "        0 " + QByteArray::number(inode) + " 2 0000000000000000 0         \n";
}

} // namespace

void TestUdpPortUsers::tables_data()
{
    QTest::addColumn<QByteArray>("table");
    QTest::addColumn<QList<int>>("inodes");
    const QByteArray any = "00000000:4E20"; // port 20000
    QTest::newRow("nothing") << Title << QList<int>{};
    QTest::newRow("every address") << Title + row(any, 1000, 77) << QList<int>{77};
    QTest::newRow("our own") << Title + row(any, 1000, 5) << QList<int>{};
    QTest::newRow("beside our own") << Title + row(any, 1000, 5) + row(any, 0, 77) << QList<int>{77};
    QTest::newRow("another port") << Title + row("00000000:4E21", 1000, 77) << QList<int>{};
    QTest::newRow("the second port") << Title + row("00000000:4E22", 1000, 77) << QList<int>{77};
    QTest::newRow("loopback") << Title + row("0100007F:4E20", 1000, 77) << QList<int>{77};
    QTest::newRow("multicast group") << Title + row("010000EF:4E20", 1000, 77) << QList<int>{};
    QTest::newRow("above the groups") << Title + row("010000F0:4E20", 1000, 77) << QList<int>{77};
    QTest::newRow("every address of IPv6")
        << Title + row("00000000000000000000000000000000:4E20", 1000, 77) << QList<int>{77};
    QTest::newRow("group of IPv6") << Title + row("000002FF0000000000000000FB000000:4E20", 1000, 77) << QList<int>{};
    QTest::newRow("group mapped into IPv6")
        << Title + row("0000000000000000FFFF0000010000EF:4E20", 1000, 77) << QList<int>{};
    QTest::newRow("no table") << QByteArray("\n\nx y z\n:4E20 a b c d e f g h i j\n") << QList<int>{};
    QTest::newRow("cut short") << Title + row(any, 1000, 77).left(70) << QList<int>{};
}

void TestUdpPortUsers::tables()
{
    QFETCH(QByteArray, table);
    QList<int> inodes;
    for (const UdpPortUser &user : UdpPortUsers::inTable(table, {20000, 20002}, {5})) {
        inodes += static_cast<int>(user.inode);
        QCOMPARE(user.uid, user.inode == 77 && table.contains("  0        0 77") ? 0u : 1000u);
    }
    QTEST(inodes, "inodes");
}

// This program's own socket, as another's.
void TestUdpPortUsers::findsARealSocket()
{
    QUdpSocket socket;
    QVERIFY(socket.bind(QHostAddress::AnyIPv4, 0));
    QVERIFY(UdpPortUsers::find({socket.localPort()}, UdpPortUsers::ownSockets()).isEmpty());
    const QList<UdpPortUser> users = UdpPortUsers::find({socket.localPort()}, {});
    if (!QFile::exists("/proc/net/udp")) {
        QVERIFY(users.isEmpty()); // such a system tells of nobody
        return;
    }
    QCOMPARE(users.size(), 1);
    QCOMPARE(users[0].port, socket.localPort());
    QCOMPARE(users[0].pid, QCoreApplication::applicationPid());
    QVERIFY(!users[0].program.isEmpty() && !users[0].user.isEmpty());
}

void TestUdpPortUsers::describes()
{
    QCOMPARE(
        UdpPortUsers::describe({20000, 1, 1000, "bob", 47, "python3"}), QString("\"python3\" (process 47, user bob)"));
    QCOMPARE(UdpPortUsers::describe({20000, 1, 1000, "bob", 0, {}}), QString("a program of the user bob"));
}

VYX_TEST(TestUdpPortUsers)
#include "tst_udp_port_users.moc"
