#include "ui/library_log.h"

#include "app/log_gate.h"
#include "test_program.h"

#include <QTest>
#include <QThread>

class TestLibraryLog : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whatNobodyReadsDoesNotCross();
};

// A receiver that shows everything that it is sent.
void TestLibraryLog::whatNobodyReadsDoesNotCross()
{
    LogGate::setShownLevel(LogLevel::Info);
    QObject receiver;
    QStringList lines;
    LibraryLog::setSink(&receiver, [&lines](LogLevel, const QString &text) { lines += text; });
    const std::unique_ptr<QThread> decoder(QThread::create([] {
        for (int i = 0; i < 10; ++i) {
            LibraryLog::logAsterix(0, "detail");
            LibraryLog::logAsterix(2, "trouble");
        }
    }));
    decoder->start();
    QVERIFY(decoder->wait());
    QCoreApplication::processEvents();
    QCOMPARE(lines, QStringList(LogGate::PassedInFull, "trouble"));
    LibraryLog::sumUp();
    QCoreApplication::processEvents();
    QCOMPARE(lines.size(), LogGate::PassedInFull + 1);
    QVERIFY2(lines.last().startsWith("trouble") && lines.last().contains('7'), qPrintable(lines.last()));
    LibraryLog::setSink(nullptr, {});
}

VYX_TEST(TestLibraryLog)
#include "tst_library_log.moc"
