#include "app/app_identity.h"
#include "app/crash_log_writer.h"
#include "test_files.h"
#include "test_program.h"

#include <QDateTime>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

namespace {

QString textOf(const QString &fileName)
{
    return QString::fromUtf8(contentsOf(fileName));
}

// Patterns are those of whole lines. A line at a time: an expression checks its whole subject anew for every match.
QStringList linesLike(const QString &text, const QString &pattern)
{
    return text.split('\n').filter(QRegularExpression(QRegularExpression::anchoredPattern(pattern)));
}

qsizetype count(const QString &text, const QString &pattern)
{
    return linesLike(text, pattern).size();
}

// The hexadecimal number in parentheses in the pattern, of the first line like it.
quint64 number(const QString &text, const QString &pattern)
{
    const auto line = linesLike(text, pattern).value(0);
    return QRegularExpression(pattern).match(line).captured(1).toULongLong(nullptr, 16);
}

} // namespace

class TestCrashHandler : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void writesNumbersAndTimes()
    {
        const std::tuple<qint64, quint64, const char *> rows[]{{0, 0, "1970-01-01 00:00:00|0|0"},
            {951868799, 0xabc0, "2000-02-29 23:59:59|abc0|43968"},
            {1798761599, 0xffffffff, "2026-12-31 23:59:59|ffffffff|4294967295"},
            {4107542400, 0x7fffdeadbeef1234, "2100-03-01 00:00:00|7fffdeadbeef1234|3203338804"}};
        for (const auto &[seconds, value, expected] : rows) {
            const auto fileName = path(expected);
            {
                CrashLogWriter writer(QFile::encodeName(fileName).constData());
                writer.dateTime(seconds).text("|").hex(value).text("|").decimal(static_cast<unsigned int>(value));
            }
            QCOMPARE(textOf(fileName), QString(expected));
        }
    }

    void writesMoreThanItsBuffer()
    {
        QString expected;
        {
            CrashLogWriter writer(QFile::encodeName(path("long")).constData());
            for (int line = 0; line < 3000; ++line) {
                writer.text("line ").decimal(static_cast<unsigned int>(line), 7).text("\n");
                expected += QStringLiteral("line %1\n").arg(line, 7, 10, QLatin1Char('0'));
            }
        }
        QCOMPARE(textOf(path("long")), expected);
    }

    void reportsACrash_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<QString>("access"); // the end of the header line
        QTest::newRow("null-write") << SIGSEGV << " access=1 data=0x0";
        QTest::newRow("low-read") << SIGSEGV << " access=0 data=0x10";
        QTest::newRow("null-call") << SIGSEGV << " access=8 data=0x0";
        QTest::newRow("abort") << SIGABRT << "";
        QTest::newRow("signal") << SIGSEGV << "";
        QTest::newRow("stack") << SIGSEGV << " access=1 data=0x[0-9a-f]+";
        QTest::newRow("thread-stack") << SIGSEGV << " access=1 data=0x[0-9a-f]+";
    }

    void reportsACrash()
    {
        QFETCH(const int, signal);
        QFETCH(const QString, access);
        const auto before = QDateTime::currentDateTime().addSecs(-1); // the log has whole seconds
        const auto logFile = path(qPrintable(QString("new directory/%1.log").arg(QTest::currentDataTag())));
        QCOMPARE(crash(QTest::currentDataTag(), logFile), signal);

        setApplicationIdentity();
        const auto log = textOf(logFile);
        const auto header = log.section('\n', 0, 0);
        const auto expected =
            QStringLiteral("\\S+ \\S+ version=%1 git=%2 exception=0x%3 rip=0x[0-9a-f]+ base=0x[0-9a-f]+%4")
                .arg(QCoreApplication::applicationVersion(), buildRevision(), QString::number(signal, 16), access);
        QVERIFY2(count(header, expected) == 1, qPrintable(header));
        const auto time = QDateTime::fromString(header.left(19), "yyyy-MM-dd hh:mm:ss");
        QVERIFY(time >= before && time <= QDateTime::currentDateTime());

        const auto frames = count(log, "  0x[0-9a-f]+");
        QVERIFY(frames > 1 && frames <= 64);
        QCOMPARE(
            count(log, "  rsp=0x\\w+ rbp=0x\\w+ rax=0x\\w+ rbx=0x\\w+ rcx=0x\\w+ rdx=0x\\w+ rsi=0x\\w+ rdi=0x\\w+"), 1);
        QVERIFY(count(log, "  stack 0x[0-9a-f]+") > 1);
        QVERIFY(count(log, "  mod 0x[0-9a-f]+ size=0x[0-9a-f]+ /\\S+\\.so\\S*") > 1);

        const auto base = number(header, ".* base=0x([0-9a-f]+).*");
        const auto program = QStringLiteral("  mod 0x%1 size=0x([0-9a-f]+) .*/app_child").arg(base, 0, 16);
        QCOMPARE(count(log, program), 1);
        const auto end = base + number(log, program);
        const auto stackWord = number(log, "  stack 0x([0-9a-f]+)");
        QVERIFY(stackWord > base && stackWord < end);
    }

    void appendsToEarlierReports()
    {
        const auto logFile = path("appended.log");
        crash("abort", logFile);
        const auto first = textOf(logFile);
        crash("null-write", logFile);
        const auto both = textOf(logFile);
        QVERIFY(!first.isEmpty());
        QVERIFY(both.startsWith(first));
        QCOMPARE(count(both, ".* exception=0x.*"), 2);
        QCOMPARE(crash("null-write", "/proc/no such directory/crash.log"), SIGSEGV); // dies alike without a log
    }

private:
    QString path(const char *name) const { return m_directory.filePath(QLatin1String(name)); }
    // Runs the child until it crashes; the number of the signal that ended it, 0 when none did.
    int crash(const QString &kind, const QString &logFile) const
    {
        QProcess child;
        child.start(QCoreApplication::applicationDirPath() + "/app_child", {"crash", kind, logFile});
        child.waitForFinished();
        return child.exitStatus() == QProcess::CrashExit ? child.exitCode() : 0;
    }

    QTemporaryDir m_directory;
};

VYX_TEST(TestCrashHandler)
#include "tst_crash_handler.moc"
