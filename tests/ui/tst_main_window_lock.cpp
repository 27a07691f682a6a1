#include "window_fixture.h"

#include "app/settings_lock.h"
#include "app/ui_state.h"
#include "settings/config_window.h"
#include "settings/password_window.h"
#include "settings/sensor_manager_window.h"
#include "settings/unlock_window.h"
#include "test_program.h"
#include "ui/actions.h"
#include "ui/theme_menu.h"

#include <QAction>
#include <QDockWidget>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

// What a position does whose settings are locked.
class TestMainWindowLock : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theScopeIsWorkedWithAndNothingIsKept();
    void thePasswordOpensTheSettings();
    void settingsWithANewPasswordLockWhenClosed();
};

namespace {

void lockWith(const QString &password)
{
    Config config;
    config.load(AppPaths::configFile());
    config.settingsLock = SettingsLock::stored(password);
    config.save(AppPaths::configFile());
}

Config onDisk()
{
    Config config;
    config.load(AppPaths::configFile());
    return config;
}

bool asked(const MainWindow &window)
{
    return window.findChild<UnlockWindow *>();
}

// False unless the password is right.
bool answer(const MainWindow &window, const QString &password)
{
    auto *question = window.findChild<UnlockWindow *>();
    auto *field = question->findChild<QLineEdit *>("password");
    field->clear();
    QTest::keyClicks(field, password);
    QTest::keyClick(question, Qt::Key_Return);
    return !question->isVisible();
}

} // namespace

void TestMainWindowLock::theScopeIsWorkedWithAndNothingIsKept()
{
    WindowFixture fixture;
    lockWith("open");
    const QString theme = onDisk().displayTheme;
    const auto window = fixture.makeWindow();
    for (const ActionId id : {ActionId::Settings, ActionId::SensorManager, ActionId::TrackLabelFormat,
             ActionId::SaveLayout, ActionId::StaticMaps, ActionId::StaticMapEditor, ActionId::TileDownloader}) {
        const qsizetype before = window->findChildren<QDialog *>().size();
        action(*window, id)->trigger();
        QVERIFY2(asked(*window), qPrintable(action(*window, id)->text()));
        QCOMPARE(window->findChildren<QDialog *>().size(), before + 1);
        delete window->findChild<UnlockWindow *>();
    }
    window->themes()->choose("Night");
    QVERIFY(asked(*window) && window->config().displayTheme == theme);
    delete window->findChild<UnlockWindow *>();

    const QByteArray arrangement = UiState::value("mainWindow", "windowState");
    window->findChild<QDockWidget *>("messagesDock")->hide();
    action(*window, ActionId::ToggleWeatherMap)->trigger();
    QVERIFY(!asked(*window) && window->config().mapWeatherVisible);
    QVERIFY2(fixture.openInput(*window), "starting and stopping is work with the scope");
    QVERIFY(WindowFixture::close(*window));
    QVERIFY(!onDisk().mapWeatherVisible);
    QCOMPARE(UiState::value("mainWindow", "windowState"), arrangement);
}

void TestMainWindowLock::thePasswordOpensTheSettings()
{
    WindowFixture fixture;
    lockWith("open");
    const auto window = fixture.makeWindow();
    QCOMPARE(action(*window, ActionId::LockSettings)->text(), "Unlock Settings...");
    action(*window, ActionId::Settings)->trigger();
    QVERIFY(!answer(*window, "shut") && !window->findChild<ConfigWindow *>());
    QVERIFY(answer(*window, "open"));
    auto *settings = window->findChild<ConfigWindow *>();
    QVERIFY(settings && settings->isVisible());
    settings->findChild<QSpinBox *>("mapRangeRingNumber")->setValue(9);
    settings->accept();
    QCOMPARE(onDisk().mapRangeRingNumber, 9);
    QTRY_VERIFY(!window->findChild<ConfigWindow *>());
    QTRY_VERIFY(!asked(*window));

    action(*window, ActionId::SensorManager)->trigger();
    QVERIFY2(window->findChild<SensorManagerWindow *>(), "open until it is locked again");
    window->findChild<SensorManagerWindow *>()->close();
    QCOMPARE(action(*window, ActionId::LockSettings)->text(), "Lock Settings");
    action(*window, ActionId::LockSettings)->trigger();
    action(*window, ActionId::Settings)->trigger();
    QVERIFY(asked(*window) && !window->findChild<ConfigWindow *>());
    QVERIFY(WindowFixture::close(*window));
}

void TestMainWindowLock::settingsWithANewPasswordLockWhenClosed()
{
    WindowFixture fixture;
    const auto window = fixture.makeWindow();
    action(*window, ActionId::LockSettings)->trigger();
    auto *dialog = window->findChild<PasswordWindow *>();
    QVERIFY2(dialog && !dialog->findChild<QPushButton *>("removePassword"), "none to be removed");
    dialog->close();
    action(*window, ActionId::Settings)->trigger();
    auto *settings = window->findChild<ConfigWindow *>();
    settings->findChild<QPushButton *>("settingsLock")->setProperty("stored", SettingsLock::stored("open"));
    QVERIFY(settings->apply());
    settings->findChild<QSpinBox *>("mapRangeRingNumber")->setValue(9);
    QVERIFY2(settings->apply() && window->config().mapRangeRingNumber == 9, "not while the window is open");
    settings->reject();
    QCOMPARE(action(*window, ActionId::LockSettings)->text(), "Unlock Settings...");
    QVERIFY(WindowFixture::close(*window));
    QVERIFY(SettingsLock::opens("open", onDisk().settingsLock));
}

VYX_TEST(TestMainWindowLock)
#include "tst_main_window_lock.moc"
