#include "app/log_file.h"
#include "test_files.h"
#include "test_program.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/resource.h>

#include <csignal>

namespace {

constexpr qint64 Begin = 1700000000123; // 2023-11-14T22:13:20.123Z

QDateTime at(qint64 ms)
{
    return QDateTime::fromMSecsSinceEpoch(Begin + ms, Qt::UTC);
}

} // namespace

class TestLogFile final : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_root;
    QString m_directory;
    int m_number = 0;

    QString text(int age = 0) const
    {
        const QString number = age > 0 ? QString(".%1").arg(age) : QString();
        return QString::fromUtf8(contentsOf(m_directory + "/vyxdisplay.log" + number));
    }

private Q_SLOTS:
    void init() { m_directory = m_root.filePath(QString("logs%1").arg(++m_number)); }

    void linesTellTimeLevelAndText()
    {
        LogFile log(m_directory);
        QCOMPARE(log.append(LogLevel::Info, at(0), "before the settings are read"), QString());
        QVERIFY(!QDir(m_directory).exists());
        log.setLimits(1000, 2);
        QCOMPARE(log.append(LogLevel::Warning, at(0), "the sensor\n\tis \u00e4lter"), QString());
        QCOMPARE(log.append(LogLevel::Panic, at(1), "twice"), QString());
        QCOMPARE(text(),
            QString("2023-11-14T22:13:20.123Z [WARNING ] the sensor  is \u00e4lter\n"
                    "2023-11-14T22:13:20.124Z [PANIC   ] twice\n"));
    }

    void filesRotate_data()
    {
        QTest::addColumn<int>("count");
        QTest::newRow("one") << 1;
        QTest::newRow("three") << 3;
    }

    void filesRotate()
    {
        QFETCH(const int, count);
        for (const int number : {0, 100}) { // a later run goes on with the same files
            LogFile log(m_directory);
            log.setLimits(2 * 40, count); // two lines of 39 octets
            for (int line = number; line < number + 100; ++line) {
                QCOMPARE(log.append(LogLevel::Info, at(line), QString("%1").arg(line, 3, 10, QChar('0'))), QString());
            }
        }
        QVERIFY(text().endsWith(" 199\n"));
        for (int age = 0; age < count; ++age) {
            QCOMPARE(text(age).count('\n'), 2);
            QVERIFY2(text(age).contains(QString(" %1\n").arg(198 - 2 * age)), qPrintable(text(age)));
        }
        QCOMPARE(QDir(m_directory).entryList({"vyxdisplay.log*"}, QDir::Files).filter("lock").size(), 0);
        QCOMPARE(QDir(m_directory).entryList(QDir::Files).size(), count);

        LogFile log(m_directory); // fewer are to be kept
        log.setLimits(80, 1);
        QCOMPARE(log.append(LogLevel::Info, at(0), "new"), QString());
        QCOMPARE(QDir(m_directory).entryList({"vyxdisplay.log", "vyxdisplay.log.?"}, QDir::Files).size(), 1);
    }

    // As a full disk does it, the limit of the process cuts the second line short.
    void aFullDiskIsToldOnceAndLeavesNoHalfLine()
    {
        LogFile log(m_directory);
        log.setLimits(1000000, 2);
        QCOMPARE(log.append(LogLevel::Info, at(0), "first"), QString());
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit before{};
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit full{50, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
        const QString told = log.append(LogLevel::Info, at(10), "second");
        QString again;
        for (int line = 0; line < 100; ++line) {
            again += log.append(LogLevel::Info, at(20 + line * 200), "third");
        }
        setrlimit(RLIMIT_FSIZE, &before);
        QVERIFY2(told.contains("vyxdisplay.log cannot be written: "), qPrintable(told));
        QCOMPARE(again, QString());
        QCOMPARE(text().count('\n'), 1);
        QCOMPARE(log.append(LogLevel::Info, at(30000), "last"), QString());
        QStringList lines = text().split('\n');
        QCOMPARE(lines.size(), 4);
        QVERIFY(lines[1].endsWith(" 101 lines are missing here.") && lines[2].endsWith(" last"));
    }

    void aDirectoryThatIsGoneIsMadeAgain()
    {
        LogFile log(m_directory);
        log.setLimits(1000, 2);
        QCOMPARE(log.append(LogLevel::Info, at(0), "first"), QString());
        QVERIFY(QDir(m_directory).removeRecursively());
        QCOMPARE(log.append(LogLevel::Info, at(0), "second"), QString());
        QVERIFY(text().endsWith("second\n"));
        QVERIFY(QDir(m_directory).removeRecursively());
        QFile obstacle(m_directory);
        QVERIFY(obstacle.open(QFile::WriteOnly));
        QVERIFY(log.append(LogLevel::Info, at(0), "third").contains(m_directory));
        QCOMPARE(log.append(LogLevel::Info, at(6000), "fourth"), QString()); // told
        QVERIFY(obstacle.remove());
        QCOMPARE(log.append(LogLevel::Info, at(12000), "fifth"), QString());
        QVERIFY(text().endsWith("fifth\n"));
    }

    void theFirstProcessWrites()
    {
        auto first = std::make_unique<LogFile>(m_directory);
        LogFile second(m_directory);
        first->setLimits(1000, 2);
        second.setLimits(1000, 2);
        QCOMPARE(first->append(LogLevel::Info, at(0), "first"), QString());
        QVERIFY(second.append(LogLevel::Info, at(0), "second").contains("Another run"));
        first.reset();
        QCOMPARE(second.append(LogLevel::Info, at(6000), "second again"), QString());
        QCOMPARE(text().count('\n'), 3);
    }
};

VYX_TEST(TestLogFile)
#include "tst_log_file.moc"
