#include "app/app_identity.h"
#include "help/about_window.h"
#include "help/changelog_window.h"
#include "help/cheat_sheet_window.h"
#include "help/help_window.h"
#include "test_files.h"
#include "test_program.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextTable>
#include <QTreeWidget>

// The windows of the Help menu.
class TestHelpWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void showsAPlaceAndComesBack();
    void everyHeadingCanBeReached();
    void saysThatAPageIsNotTranslated();
    void searchesAndMarks();
    void showsPicturesAsWideAsThePage();
    void tablesFollowThePalette();
    void keepsTheSizeOfItsText();
    void cheatSheetShowsWhatTheMenusHave();
    void cheatSheetIsPrinted();
    void aboutNamesTheLibraries();
    void changesAreShownOnceAfterAnUpdate();

private:
    std::unique_ptr<QTemporaryDir> m_home;
};

namespace {

// Has three commands.
class MenuFixture {
public:
    MenuFixture()
    {
        QMenu *menu = m_window.menuBar()->addMenu("&View");
        menu->addAction("&Zoom In...")->setShortcuts({QKeySequence("="), QKeySequence("Ctrl+U")});
        menu->addAction("&Nothing");
        m_window.menuBar()->addMenu("文件(&F)")->addAction("退出(&X)")->setShortcut(QKeySequence("Ctrl+Q"));
    }

    const QMenuBar &menus() { return *m_window.menuBar(); }

private:
    QMainWindow m_window;
};

QTextBrowser *textOf(const QWidget &window)
{
    return window.findChild<QTextBrowser *>();
}

} // namespace

void TestHelpWindow::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    qputenv("XDG_CONFIG_HOME", m_home->path().toUtf8());
    setApplicationIdentity();
}

void TestHelpWindow::showsAPlaceAndComesBack()
{
    HelpWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    window.showPlace("scope.md#rotating");
    const auto *contents = window.findChild<QTreeWidget *>("contents");
    QVERIFY(contents->currentItem());
    QCOMPARE(contents->currentItem()->text(0), "Rotating");
    QTRY_VERIFY(textOf(window)->verticalScrollBar()->value() > 0);
    window.showPlace("no-such-page.md");
    QCOMPARE(window.place(), "index.md");
    QTest::keyClick(&window, Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(window.place(), "scope.md#rotating");
    // The anchors are there again.
    textOf(window)->verticalScrollBar()->setValue(0);
    window.showPlace("scope.md#range-rings-and-compass-rose");
    QTRY_VERIFY(textOf(window)->verticalScrollBar()->value() > 0);
}

void TestHelpWindow::everyHeadingCanBeReached()
{
    HelpWindow window;
    for (const Manual::Page &page : window.manual().pages()) {
        window.showPlace(page.file);
        QStringList headings;
        for (QTextBlock block = textOf(window)->document()->begin(); block.isValid(); block = block.next()) {
            if (block.blockFormat().headingLevel() > 0) {
                headings.append(block.text().simplified());
            }
        }
        QStringList sections;
        for (const Manual::Section &section : page.sections) {
            sections.append(section.title);
        }
        QCOMPARE(headings, sections);
    }
}

void TestHelpWindow::saysThatAPageIsNotTranslated()
{
    const Manual::MadePages made{{"settings-reference.md", "# 设置\n"}};
    for (const bool translated : {false, true}) {
        HelpWindow window(made, translated ? "en" : "xx");
        const auto *note = window.findChild<QWidget *>("notTranslated");
        QCOMPARE(note->isHidden(), translated);
        window.showPlace("settings-reference.md");
        QVERIFY(note->isHidden());
        window.showPlace("scope.md");
        QCOMPARE(note->isHidden(), translated);
    }
}

void TestHelpWindow::searchesAndMarks()
{
    HelpWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    auto *search = window.findChild<QLineEdit *>("search");
    QTRY_VERIFY(search->hasFocus());
    QTest::keyClicks(search, "compass rose");
    QTest::keyClick(search, Qt::Key_Return);
    auto *hits = window.findChild<QListWidget *>("hits");
    QVERIFY(hits->isVisible() && hits->count() > 0);
    hits->setCurrentRow(0);
    QCOMPARE(window.place(), "scope.md#range-rings-and-compass-rose");
    QVERIFY(textOf(window)->extraSelections().size() >= 2);
    search->setText("xyzzy");
    QCOMPARE(hits->count(), 1);
    QVERIFY(!(hits->item(0)->flags() & Qt::ItemIsSelectable));
    search->clear();
    QVERIFY(window.findChild<QTreeWidget *>("contents")->isVisible());
    QVERIFY(textOf(window)->extraSelections().isEmpty());
}

void TestHelpWindow::showsPicturesAsWideAsThePage()
{
    HelpWindow window;
    window.show();
    window.resize(620, 500);
    window.showPlace("scope.md");
    QTRY_VERIFY(textOf(window)->document()->idealWidth() <= textOf(window)->viewport()->width());
    QVERIFY(textOf(window)->horizontalScrollBar()->maximum() == 0);
}

void TestHelpWindow::tablesFollowThePalette()
{
    HelpWindow window;
    window.show();
    window.showPlace("glossary.md");
    const auto headingGround = [&window] {
        for (QTextFrame *frame : textOf(window)->document()->rootFrame()->childFrames()) {
            if (auto *table = qobject_cast<QTextTable *>(frame)) {
                return table->cellAt(0, 0).format().background().color().lightness();
            }
        }
        return -1;
    };
    QPalette night(QColor(20, 20, 20));
    night.setColor(QPalette::Base, Qt::black);
    night.setColor(QPalette::Text, Qt::white);
    window.setPalette(night);
    QTRY_VERIFY(headingGround() >= 0 && headingGround() < 64);
}

void TestHelpWindow::keepsTheSizeOfItsText()
{
    double ordinary = 0.0;
    {
        HelpWindow window;
        ordinary = textOf(window)->font().pointSizeF();
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTest::keyClick(&window, Qt::Key_Plus, Qt::ControlModifier);
        QTest::keyClick(&window, Qt::Key_Plus, Qt::ControlModifier);
    }
    const HelpWindow again;
    QCOMPARE(textOf(again)->font().pointSizeF(), ordinary + 2);
}

void TestHelpWindow::cheatSheetShowsWhatTheMenusHave()
{
    MenuFixture fixture;
    CheatSheetWindow window(fixture.menus());
    window.show();
    const QString all = textOf(window)->toPlainText();
    for (const char *text :
        {"Menu View", "= or Ctrl+U", "Zoom In", "Menu 文件", "退出", "Right drag on a label", "F12"}) {
        QVERIFY2(all.contains(text), text);
    }
    QVERIFY(!all.contains("Nothing") && !all.contains("(X)"));
    QTest::keyClicks(window.findChild<QLineEdit *>("search"), "noth");
    QVERIFY(textOf(window)->toPlainText().contains("Nothing"));
    QVERIFY(!textOf(window)->toPlainText().contains("Zoom"));
    for (QPushButton *button : window.findChildren<QPushButton *>()) {
        if (button->text() == "C&opy") {
            button->click();
        }
    }
    QCOMPARE(QGuiApplication::clipboard()->text(), "Menu View\n  \tNothing\n\n");
}

void TestHelpWindow::cheatSheetIsPrinted()
{
    MenuFixture fixture;
    const CheatSheetWindow window(fixture.menus());
    QString error;
    const QString file = m_home->filePath("sheet.pdf");
    QVERIFY2(window.savePdf(file, &error), qPrintable(error));
    QVERIFY(contentsOf(file).startsWith("%PDF"));
    QVERIFY(!window.savePdf("/no/such/folder/sheet.pdf", &error));
    QVERIFY(error.contains("/no/such/folder"));
}

void TestHelpWindow::aboutNamesTheLibraries()
{
    const QString text = AboutWindow::versionText();
    for (const char *library : {"Qt", "SQLite", "zlib", "libpcap version", "ASTERIX library", "Mode S library"}) {
        QVERIFY2(QRegularExpression(QString(library) + " \\d").match(text).hasMatch(), library);
    }
}

void TestHelpWindow::changesAreShownOnceAfterAnUpdate()
{
    QVERIFY(!ChangelogWindow::noteVersion()); // the first start
    QVERIFY(!ChangelogWindow::noteVersion());
    const QString version = QCoreApplication::applicationVersion();
    QCoreApplication::setApplicationVersion("99.1");
    QVERIFY(ChangelogWindow::noteVersion());
    QVERIFY(!ChangelogWindow::noteVersion());
    QCoreApplication::setApplicationVersion(version);
    const ChangelogWindow window;
    QVERIFY(textOf(window)->toPlainText().contains(version));
}

VYX_TEST(TestHelpWindow)
#include "tst_help_window.moc"
