#include "app/theme_library.h"
#include "app/ui_state.h"
#include "lists/list_view.h"
#include "plan_view/geo_widget.h"
#include "test_program.h"
#include "ui/actions.h"
#include "ui/theme_menu.h"
#include "window_fixture.h"

#include <QAction>
#include <QDockWidget>
#include <QHeaderView>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

// How much of the window is the scope's, and what the buttons round it say.
class TestScopeRoom : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void scopeHasMostOfASmallWindow();
    void fullScreenGivesEverythingBack();
    void buttonsSayWhatIsChosen();

private:
    static bool shown(const MainWindow &window, const char *dock)
    {
        return window.findChild<QDockWidget *>(dock)->toggleViewAction()->isChecked();
    }
};

void TestScopeRoom::scopeHasMostOfASmallWindow()
{
    const WindowFixture fixture;
    const auto window = std::make_unique<MainWindow>();
    window->show();
    window->loadUi({1280, 720});
    for (const QString &theme : ThemeLibrary().names()) {
        window->themes()->choose(theme);
        QTest::qWait(20);
        const QSize scope = window->geoWidget()->size();
        const double share = double(scope.width()) * scope.height() / (window->width() * window->height());
        QVERIFY2(share >= 0.6, qPrintable(QString("%1: %2").arg(theme).arg(share)));
        // The lists are there all the same, with columns that are not cut.
        QVERIFY(shown(*window, "messagesDock"));
        for (const char *name : {"trackList", "alertList"}) {
            const auto *list = window->findChild<ListView *>(name);
            QVERIFY(list->isVisible());
            for (const int column : list->shownColumns()) {
                const int left = list->columnViewportPosition(column);
                const int right = left + list->columnWidth(column);
                QVERIFY2(left >= list->viewport()->width() || right <= list->viewport()->width(), qPrintable(theme));
            }
        }
    }
}

// After leaving it, and after a crash in it.
void TestScopeRoom::fullScreenGivesEverythingBack()
{
    WindowFixture fixture;
    QByteArray whileFullScreen;
    {
        const auto window = fixture.makeWindow();
        window->findChild<QDockWidget *>("messagesDock")->hide();
        action(*window, ActionId::ToggleAlertList)->trigger();
        action(*window, ActionId::FullScreen)->trigger();
        QTRY_COMPARE(window->geoWidget()->size(), window->size());
        QVERIFY(!window->menuBar()->isVisible() && !window->statusBar()->isVisible());
        QVERIFY(!shown(*window, "trackListDock"));
        QVERIFY(window->findChild<QWidget *>("alertIndicator")->isVisible());
        whileFullScreen = UiState::value("mainWindow", "windowState"); // all that a crash would leave
        QTest::keyClick(window->geoWidget(), Qt::Key_Escape);
        QTRY_VERIFY(!window->isFullScreen());
        QVERIFY(shown(*window, "trackListDock") && !shown(*window, "alertListDock"));
        QVERIFY(!shown(*window, "messagesDock") && window->menuBar()->isVisible() && window->statusBar()->isVisible());
        QVERIFY(!window->findChild<QWidget *>("alertIndicator")->isVisible());
        QVERIFY(action(*window, ActionId::ToggleTrackList)->isChecked());
        action(*window, ActionId::FullScreen)->trigger();
        QVERIFY(fixture.close(*window)); // the end in full screen
    }
    for (const bool crashed : {false, true}) {
        if (crashed) {
            UiState::saveValue("mainWindow", "windowState", whileFullScreen);
            UiState::saveGeometry("mainWindow", {});
        }
        const auto window = fixture.makeWindow();
        if (window->isFullScreen()) {
            window->toggleFullScreen();
        }
        QTRY_VERIFY(window->menuBar()->isVisible());
        QVERIFY(shown(*window, "trackListDock") && !shown(*window, "alertListDock"));
        QVERIFY(!shown(*window, "messagesDock") && window->findChild<QToolBar *>("viewToolBar")->isVisible());
        QVERIFY(fixture.close(*window));
    }
}

void TestScopeRoom::buttonsSayWhatIsChosen()
{
    const WindowFixture fixture;
    const auto window = fixture.makeWindow();
    QVERIFY(action(*window, ActionId::Theme)->toolTip().contains(window->config().displayTheme));
    window->themes()->choose("Day");
    QVERIFY(action(*window, ActionId::Theme)->iconText().endsWith("Day"));
    window->setReplaySpeed(ReplaySpeed::values().constLast());
    const QString speed = ReplaySpeed::name(ReplaySpeed::values().constLast());
    QVERIFY(action(*window, ActionId::ReplaySpeed)->toolTip().endsWith(speed));
}

VYX_TEST(TestScopeRoom)
#include "tst_scope_room.moc"
