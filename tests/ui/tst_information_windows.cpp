#include "app/app_identity.h"
#include "ui/about_window.h"
#include "ui/changelog_window.h"
#include "ui/cheat_sheet_window.h"

#include <QAction>
#include <QLabel>
#include <QStandardPaths>
#include <QTest>
#include <QTextBrowser>

// The windows that only tell: cheat sheet, about, change log.
class TestInformationWindows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cheatSheetListsWhatHasShortcuts();
    void aboutNamesTheBuild();
    void changelogIsFormatted();
};

namespace {

QStringList labelTexts(const QWidget &window)
{
    QStringList texts;
    const QList<QLabel *> labels = window.findChildren<QLabel *>();
    for (const QLabel *label : labels)
        texts.append(label->text());
    return texts;
}

} // namespace

void TestInformationWindows::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    setApplicationIdentity();
}

void TestInformationWindows::cheatSheetListsWhatHasShortcuts()
{
    QAction goTo(QStringLiteral("&Go To..."));
    goTo.setShortcuts({QKeySequence(QStringLiteral("Ctrl+G")), QKeySequence(QStringLiteral("F3"))});
    QAction replay(QStringLiteral("Replay Recording File  ..."));
    replay.setShortcut(QKeySequence(QStringLiteral("Ctrl+O")));
    QAction silent(QStringLiteral("Without a key"));
    const CheatSheetWindow window({&goTo, &silent, &replay});
    const QStringList texts = labelTexts(window);
    QVERIFY(texts.contains(QStringLiteral("Go To")));
    QVERIFY(texts.contains(QStringLiteral("Ctrl+G or F3")));
    QVERIFY(texts.contains(QStringLiteral("Replay Recording File")));
    QVERIFY(!texts.contains(QStringLiteral("Without a key")));
}

void TestInformationWindows::aboutNamesTheBuild()
{
    const QString text = labelTexts(AboutWindow()).join(u'\n');
    for (const QString &part : {QGuiApplication::applicationDisplayName(), QCoreApplication::applicationVersion(),
             buildRevision(), QString::fromLatin1(qVersion()), QStringLiteral("Korvane")})
        QVERIFY2(!part.isEmpty() && text.contains(part), qPrintable(part));
}

void TestInformationWindows::changelogIsFormatted()
{
    const ChangelogWindow window;
    const QString text = window.findChild<QTextBrowser *>()->toPlainText();
    QVERIFY(text.contains(QCoreApplication::applicationVersion()));
    QVERIFY(!text.contains(u'#'));
}

QTEST_MAIN(TestInformationWindows)
#include "tst_information_windows.moc"
