#include "inspection/absence_window.h"
#include "test_program.h"

#include <QDateTime>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

namespace {

AbsenceFinding missed(const QString &sentence, Cure cure)
{
    AbsenceFinding finding;
    finding.who = "VYX1";
    finding.seenMs = 34200000;
    finding.sentence = sentence;
    finding.cure = cure;
    return finding;
}

int visibleSentences(const AbsenceWindow &window)
{
    int count = 0;
    for (const QLabel *label : window.findChildren<QLabel *>("absenceSentence")) {
        count += label->isVisible() ? 1 : 0;
    }
    return count;
}

} // namespace

class TestAbsenceWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); } // the window remembers its place
    void asksForWhatIsTyped();
    void showsFindingsWithTheirCures();
};

void TestAbsenceWindow::asksForWhatIsTyped()
{
    AbsenceWindow window;
    QSignalSpy asked(&window, &AbsenceWindow::asked);
    window.show();
    QTest::keyClicks(window.findChild<QLineEdit *>("absenceText"), " 7000");
    QCOMPARE(asked.last().first().toString(), QString("7000"));
    QTest::keyClick(&window, Qt::Key_Return); // does not close it
    QVERIFY(window.isVisible());
}

void TestAbsenceWindow::showsFindingsWithTheirCures()
{
    AbsenceWindow window;
    window.show();
    const auto now = QDateTime::fromMSecsSinceEpoch(34207000, Qt::UTC);
    window.showFindings({missed("Here.", Cure::Select), missed("Nowhere.", Cure::None)}, now);
    QCOMPARE(visibleSentences(window), 2);
    const auto buttons = window.findChildren<QPushButton *>("absenceCure");
    QVERIFY(buttons[0]->isVisible());
    QVERIFY(!buttons[1]->isVisible());
    QStringList texts;
    for (const QLabel *label : window.findChildren<QLabel *>()) {
        texts.append(label->text());
    }
    QVERIFY(texts.contains("VYX1   last received 09:30:00 UTC, 7 s ago"));

    QStringList chosen;
    connect(&window, &AbsenceWindow::cureChosen, this,
        [&chosen](const AbsenceFinding &finding) { chosen.append(finding.sentence); });
    buttons[0]->click();
    QCOMPARE(chosen, QStringList{"Here."});

    window.showFindings({missed("Elsewhere.", Cure::Centre)}, now);
    QCOMPARE(visibleSentences(window), 1);
    window.showFindings(QList<AbsenceFinding>(100, missed("Many.", Cure::None)), now);
    QCOMPARE(visibleSentences(window), int(AbsenceWindow::MaximumFindings));
    window.showFindings({}, now);
    QCOMPARE(visibleSentences(window), 0);
}

VYX_TEST(TestAbsenceWindow)
#include "tst_absence_window.moc"
