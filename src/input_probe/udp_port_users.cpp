#include "input_probe/udp_port_users.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#ifdef Q_OS_UNIX
#include <pwd.h>

#include <array>
#endif

namespace {

constexpr auto SocketPrefix = "socket:[";

// "0100007F:1F90": the address in the octet order of the machine, a word of four octets at a time.
bool isUnicast(const QByteArray &address)
{
    // An IPv4 address stands at the end of one of IPv6 that is mapped from it.
    const bool mapped = address.size() == 32 && address.startsWith("0000000000000000FFFF0000");
    if (address.size() == 32 && !mapped) {
        return !address.startsWith("FF") && address.mid(6, 2) != "FF"; // ff00::/8 in either octet order
    }
    const QByteArray word = address.right(8);
    const quint32 value = word.toUInt(nullptr, 16);
#if Q_BYTE_ORDER == Q_LITTLE_ENDIAN
    const quint32 first = value & 0xFF;
#else
    const quint32 first = value >> 24;
#endif
    return first < 224 || first > 239;
}

quint64 inodeOf(const QString &link)
{
    const qsizetype start = link.indexOf(QLatin1String(SocketPrefix));
    return start < 0 ? 0 : link.mid(start + qstrlen(SocketPrefix)).chopped(1).toULongLong();
}

// The files that a process has open, as far as we may look.
QSet<quint64> socketsOf(const QString &process)
{
    QSet<quint64> inodes;
    const QDir files(QStringLiteral("/proc/%1/fd").arg(process));
    const QStringList names = files.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    for (const QString &name : names) {
        if (const quint64 inode = inodeOf(QFile::symLinkTarget(files.filePath(name)))) {
            inodes.insert(inode);
        }
    }
    return inodes;
}

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString userName(unsigned int uid)
{
#ifdef Q_OS_UNIX
    std::array<char, 4096> buffer{};
    passwd entry{};
    passwd *found = nullptr;
    if (getpwuid_r(uid, &entry, buffer.data(), buffer.size(), &found) == 0 && found) {
        return QString::fromLocal8Bit(found->pw_name);
    }
#endif
    return QString::number(uid);
}

void nameProgram(const QString &process, QList<UdpPortUser> &users)
{
    const QSet<quint64> sockets = socketsOf(process);
    for (UdpPortUser &user : users) {
        if (user.pid == 0 && sockets.contains(user.inode)) {
            user.pid = process.toLongLong();
            user.program = QString::fromLocal8Bit(contentsOf(QStringLiteral("/proc/%1/comm").arg(process))).trimmed();
        }
    }
}

void namePrograms(QList<UdpPortUser> &users)
{
    const QStringList names = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &name : names) {
        if (name.front().isDigit()) {
            nameProgram(name, users);
        }
    }
}

QString portText(const char *source)
{
    return QCoreApplication::translate("UdpPortUsers", source);
}

} // namespace

QList<UdpPortUser> UdpPortUsers::inTable(
    const QByteArray &table, const QSet<quint16> &ports, const QSet<quint64> &ownInodes)
{
    enum Column { LocalAddress = 1, Uid = 7, Inode = 9, ColumnsNeeded };
    QList<UdpPortUser> users;
    const QList<QByteArray> lines = table.split('\n');
    for (const QByteArray &line : lines) {
        const QList<QByteArray> columns = line.simplified().split(' ');
        if (columns.size() < ColumnsNeeded) {
            continue;
        }
        const qsizetype colon = columns[LocalAddress].indexOf(':');
        UdpPortUser user;
        user.port = static_cast<quint16>(columns[LocalAddress].mid(colon + 1).toUShort(nullptr, 16));
        user.uid = columns[Uid].toUInt();
        user.inode = columns[Inode].toULongLong();
        const bool takes = colon > 0 && isUnicast(columns[LocalAddress].left(colon));
        if (takes && user.inode != 0 && ports.contains(user.port) && !ownInodes.contains(user.inode)) {
            users.append(user);
        }
    }
    return users;
}

QList<UdpPortUser> UdpPortUsers::find(const QSet<quint16> &ports, const QSet<quint64> &ownInodes)
{
    QList<UdpPortUser> users;
    for (const char *table : {"/proc/net/udp", "/proc/net/udp6"}) {
        users += inTable(contentsOf(QLatin1String(table)), ports, ownInodes);
    }
    if (users.isEmpty()) {
        return users;
    }
    namePrograms(users);
    for (UdpPortUser &user : users) {
        user.user = userName(user.uid);
    }
    return users;
}

QSet<quint64> UdpPortUsers::ownSockets()
{
    return socketsOf(QStringLiteral("self"));
}

QString UdpPortUsers::describe(const UdpPortUser &user)
{
    if (user.program.isEmpty()) {
        return portText(QT_TRANSLATE_NOOP("UdpPortUsers", "a program of the user %1")).arg(user.user);
    }
    return portText(QT_TRANSLATE_NOOP("UdpPortUsers", "\"%1\" (process %2, user %3)"))
        .arg(user.program, QString::number(user.pid), user.user);
}
