#include "window_fixture.h"

#include "help/changelog_window.h"
#include "help/help_window.h"
#include "plan_view/gestures.h"
#include "settings/config_window.h"
#include "test_program.h"
#include "ui/actions.h"
#include "ui/rotation_window.h"

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QListWidget>
#include <QMap>
#include <QPushButton>
#include <QTreeWidget>

// The manual and its like as the main window opens them.
class TestMainWindowHelp : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aDialogOpensItsPage();
    void aDialogHasAHelpButton();
    void contentsAreOpenedBesideTheWindow();
    void noKeyDoesTwoThings();
};

namespace {

HelpWindow *helpWindow()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (auto *help = qobject_cast<HelpWindow *>(window)) {
            return help;
        }
    }
    return nullptr;
}

} // namespace

void TestMainWindowHelp::aDialogOpensItsPage()
{
    WindowFixture fixture;
    const auto window = fixture.makeWindow();
    action(*window, ActionId::Rotate)->trigger();
    auto *dialog = window->findChild<RotationWindow *>();
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    QTest::keyClick(dialog->focusWidget(), Qt::Key_F1);
    QVERIFY(helpWindow() && helpWindow()->isVisible());
    QCOMPARE(helpWindow()->place(), "scope.md#rotating");
    // The window behind waits for the dialog, the manual does not.
    QVERIFY(QTest::qWaitForWindowActive(helpWindow()));
    QTest::keyClick(helpWindow(), Qt::Key_Home, Qt::AltModifier);
    QCOMPARE(helpWindow()->place(), "index.md");
    dialog->reject();

    action(*window, ActionId::Settings)->trigger();
    auto *settings = window->findChild<ConfigWindow *>();
    QTest::keyClick(settings->findChild<QWidget *>("inputUdpPort1"), Qt::Key_F1);
    QCOMPARE(helpWindow()->place(), "inputs.md");
    settings->reject();
    QVERIFY(WindowFixture::close(*window));
    QVERIFY(!helpWindow());
}

void TestMainWindowHelp::aDialogHasAHelpButton()
{
    WindowFixture fixture;
    const auto window = fixture.makeWindow();
    for (const int time : {1, 2}) {
        action(*window, ActionId::Rotate)->trigger();
        auto *dialog = window->findChild<RotationWindow *>();
        auto *button = dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Help);
        QVERIFY2(button && !button->isDefault(), qPrintable(QString::number(time)));
        button->click();
        QCOMPARE(helpWindow()->place(), "scope.md#rotating");
        delete dialog;
    }
    QVERIFY(WindowFixture::close(*window));
}

void TestMainWindowHelp::contentsAreOpenedBesideTheWindow()
{
    WindowFixture fixture;
    const auto window = fixture.makeWindow();
    QCOMPARE(action(*window, ActionId::Contents)->shortcut(), QKeySequence("Shift+F1"));
    action(*window, ActionId::Contents)->trigger();
    QVERIFY(helpWindow());
    QCOMPARE(helpWindow()->place(), "index.md");
    QVERIFY(!helpWindow()->isModal());
    helpWindow()->showPlace("settings-reference.md");
    const QString settings = helpWindow()->manual().page("settings-reference.md")->markdown;
    QVERIFY(settings.contains("| Port | 50000 |"));
    QVERIFY(settings.count("\n| ") > 100);
    helpWindow()->showPlace("glossary.md");
    action(*window, ActionId::Contents)->trigger(); // comes to the front as it was
    QCOMPARE(helpWindow()->place(), "glossary.md");
    helpWindow()->close();
    QVERIFY(window->isVisible());
    // In the main window F1 is a command of its own.
    QTest::keyClick(window->centralWidget(), Qt::Key_F1);
    QVERIFY(!helpWindow()->isVisible());

    window->showChangesAfterUpdate();
    QVERIFY(!window->findChild<ChangelogWindow *>());
    QCoreApplication::setApplicationVersion("99.1");
    window->showChangesAfterUpdate();
    setApplicationIdentity();
    const auto *changes = window->findChild<ChangelogWindow *>();
    QVERIFY(changes && changes->isVisible() && !changes->isModal());
    QVERIFY(WindowFixture::close(*window));
}

void TestMainWindowHelp::noKeyDoesTwoThings()
{
    WindowFixture fixture;
    const auto window = fixture.makeWindow();
    QMap<QString, QStringList> uses;
    for (const QAction *command : window->findChildren<QAction *>()) {
        const auto context = command->shortcutContext();
        if (context != Qt::WindowShortcut && context != Qt::ApplicationShortcut) {
            continue;
        }
        for (const QKeySequence &key : command->shortcuts()) {
            uses[key.toString()].append(command->text());
        }
    }
    QVERIFY(uses.size() > 15);
    for (const Gestures::KeyRow &row : Gestures::keys()) {
        uses[QKeySequence(row.key).toString()].append(row.effect);
    }
    for (auto use = uses.cbegin(); use != uses.cend(); ++use) {
        QVERIFY2(use.key().isEmpty() || use->size() == 1, qPrintable(use.key() + ": " + use->join(", ")));
    }
    QVERIFY(WindowFixture::close(*window));
}

VYX_TEST(TestMainWindowHelp)
#include "tst_main_window_help.moc"
