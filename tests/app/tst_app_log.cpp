#include "app/app_log.h"

#include <QTest>

class tst_AppLog : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void formatsLines_data();
    void formatsLines();
};

void tst_AppLog::formatsLines_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QString>("expected");
    QTest::newRow("none") << 0 << "[NONE    ][2026-03-04 05:06:07] %1 of 100%";
    QTest::newRow("debug") << 1 << "[DEBUG   ][2026-03-04 05:06:07] %1 of 100%";
    QTest::newRow("info") << 2 << "[INFO    ][2026-03-04 05:06:07] %1 of 100%";
    QTest::newRow("warning") << 3 << "[WARNING ][2026-03-04 05:06:07] %1 of 100%";
    QTest::newRow("critical") << 4 << "[CRITICAL][2026-03-04 05:06:07] %1 of 100%";
    QTest::newRow("panic") << 5 << "[PANIC   ][2026-03-04 05:06:07] %1 of 100%";
    QTest::newRow("beyond") << 9 << "[UNKNOWN ][2026-03-04 05:06:07] %1 of 100%";
}

void tst_AppLog::formatsLines()
{
    QFETCH(const int, level);
    QFETCH(const QString, expected);
    const QDateTime time(QDate(2026, 3, 4), QTime(5, 6, 7));
    QCOMPARE(formatLogLine(static_cast<LogLevel>(level), time, QStringLiteral("%1 of 100%")), expected);
}

QTEST_GUILESS_MAIN(tst_AppLog)
#include "tst_app_log.moc"
