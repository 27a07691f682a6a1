#include "test_program.h"
#include "ui/status_line.h"

#include <QStatusBar>
#include <QTest>

class TestStatusLine : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void progressWipesNothingThatMustBeRead();
};

void TestStatusLine::progressWipesNothingThatMustBeRead()
{
    QStatusBar bar;
    StatusLine line(&bar);
    line.showLine(LogLevel::Info, "a line");
    line.showProgress("10 %");
    QCOMPARE(bar.currentMessage(), "10 %");
    line.clearProgress();
    QVERIFY(bar.currentMessage().isEmpty());

    line.showProgress("20 %");
    line.showLine(LogLevel::Warning, "a warning");
    line.showProgress("30 %");
    line.clearProgress();
    QCOMPARE(bar.currentMessage(), "a warning");
    bar.clearMessage(); // its time is over
    line.showProgress("40 %");
    QCOMPARE(bar.currentMessage(), "40 %");
    line.showLine(LogLevel::Info, "a line");
    line.clearProgress();
    QCOMPARE(bar.currentMessage(), "a line");
}

VYX_TEST(TestStatusLine)
#include "tst_status_line.moc"
