#include "ui/theme_menu.h"

#include "app/setting.h"
#include "app/ui_state.h"
#include "display/geo_track_display.h"
#include "plan_view/geo_widget.h"
#include "settings/config_window.h"
#include "test_program.h"
#include "ui/actions.h"
#include "ui/log_pane.h"
#include "widgets/color_button.h"
#include "window_fixture.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QMenu>

class TestThemeMenu : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void choiceIsOneStepThatCanBeUndone();
    void settingsWindowFillsInTheThemeOfItsChoice();
    void themeOfTheRunIsNotStored();
    void firstThemeIsStoredUnlessOneWasChosen();
    void ownThemeIsSavedAndChosen();
    void sizeOfTheRunIsNotStored();
};

namespace {

GeoTrackDisplay *tracksOf(const MainWindow &window)
{
    return window.geoWidget()->trackDisplay();
}

Config stored()
{
    Config config;
    config.load(AppPaths::configFile());
    return config;
}

bool sameLook(const Config &a, const Config &b)
{
    const auto settings = Setting::all();
    return std::all_of(settings.begin(), settings.end(),
        [&](const Setting &setting) { return !setting.themed() || setting.same(a, b); });
}

Config classicWith(const QColor &labels)
{
    Config config = stored();
    config.trackLabelColor = labels;
    config.save(AppPaths::configFile());
    return config;
}

QAction *entry(const MainWindow &window, const QString &text)
{
    QMenu *menu = action(window, ActionId::Theme)->menu();
    Q_EMIT menu->aboutToShow();
    const QList<QAction *> actions = menu->actions();
    const auto found = std::find_if(
        actions.begin(), actions.end(), [&text](const QAction *action) { return action->text().remove('&') == text; });
    return found == actions.end() ? nullptr : *found;
}

// Widgets hear of it as long as the application's own loop runs, which it does not here.
QColor windowColor()
{
    return QApplication::palette().color(QPalette::Window);
}

QString logOf(const MainWindow &window)
{
    return window.findChild<LogPane *>()->toPlainText();
}

} // namespace

void TestThemeMenu::cleanup()
{
    QApplication::setPalette(QPalette());
}

void TestThemeMenu::choiceIsOneStepThatCanBeUndone()
{
    WindowFixture fixture;
    const Config own = classicWith(Qt::magenta);
    const auto window = fixture.makeWindow();
    GeoTrackDisplay *tracks = tracksOf(*window);
    tracks->showHeading(true);
    const QColor ground = windowColor();
    QVERIFY(entry(*window, "Classic")->isChecked() && !entry(*window, "Undo Theme")->isEnabled());
    entry(*window, "Night")->trigger();
    QVERIFY(entry(*window, "Night")->isChecked());
    QCOMPARE(window->config().displayTheme, "Night");
    QCOMPARE(tracks->labelColor(), window->config().trackLabelColor);
    QVERIFY(window->config().trackLabelColor != own.trackLabelColor);
    QCOMPARE(tracks->symbolSize(), 12);
    QVERIFY2(tracks->headingVisible(), "what a label tells is the operator's choice");
    QVERIFY(windowColor().lightness() < 64 && ground.lightness() > 128);

    entry(*window, "Undo Theme")->trigger();
    QVERIFY(sameLook(window->config(), own));
    QCOMPARE(tracks->symbolSize(), GeoTrackDisplay().symbolSize());
    QCOMPARE(tracks->labelFont(), GeoTrackDisplay().labelFont());
    QCOMPARE(windowColor(), ground);
    QVERIFY(!entry(*window, "Undo Theme")->isEnabled());
    QVERIFY(fixture.close(*window));
    QVERIFY(sameLook(stored(), own));
}

void TestThemeMenu::settingsWindowFillsInTheThemeOfItsChoice()
{
    WindowFixture fixture;
    const Config own = classicWith(Qt::magenta);
    const auto window = fixture.makeWindow();
    action(*window, ActionId::Settings)->trigger();
    auto *settings = window->findChild<ConfigWindow *>();
    auto *theme = settings->findChild<QComboBox *>("displayTheme");
    theme->setCurrentText("Day");
    Q_EMIT theme->activated(theme->currentIndex());
    Config day;
    ThemeLibrary().find("Day")->applyTo(day);
    QCOMPARE(settings->findChild<ColorButton *>("trackSymbolColor")->color(), day.trackSymbolColor);
    QVERIFY2(sameLook(window->config(), own), "not before it is applied");
    settings->findChild<ColorButton *>("trackSymbolColor")->setColor(QColor(1, 2, 3));
    QVERIFY(settings->apply());
    day.trackSymbolColor = QColor(1, 2, 3);
    QVERIFY(sameLook(window->config(), day));
    QCOMPARE(tracksOf(*window)->symbolSize(), 12);
    QCOMPARE(windowColor(), ThemeLibrary().find("Day")->palette()->color(QPalette::Window));
    window->themes()->undo();
    QVERIFY(sameLook(window->config(), own));
}

void TestThemeMenu::themeOfTheRunIsNotStored()
{
    WindowFixture fixture;
    const Config own = stored();
    for (const bool again : {false, true}) { // without and with a format of tracks that an earlier run has stored
        const QByteArray format = UiState::value("mainWindow", "trackDisplayFormat");
        QCOMPARE(format.isEmpty(), !again);
        auto window = std::make_unique<MainWindow>();
        window->themes()->useForThisRun(*ThemeLibrary().find("Dusk"));
        window->loadUi();
        window->show();
        QCOMPARE(window->config().displayTheme, "Dusk");
        QCOMPARE(tracksOf(*window)->symbolSize(), 12);
        QVERIFY(fixture.close(*window));
        QVERIFY(sameLook(stored(), own));
        QCOMPARE(UiState::value("mainWindow", "trackDisplayFormat"), format);
        QVERIFY(fixture.close(*fixture.makeWindow()));
    }
}

void TestThemeMenu::firstThemeIsStoredUnlessOneWasChosen()
{
    WindowFixture fixture;
    for (const bool chosen : {true, false}) {
        if (!chosen) {
            QVERIFY(QFile::remove(AppPaths::configFile()));
        }
        auto window = std::make_unique<MainWindow>();
        window->themes()->beginWith(*ThemeLibrary().find("Night"));
        window->loadUi();
        window->show();
        QCOMPARE(window->config().displayTheme, chosen ? Theme::Classic : "Night");
        QCOMPARE(tracksOf(*window)->symbolSize() == 12, !chosen);
        action(*window, ActionId::ToggleRangeRings)->trigger();
        QVERIFY(fixture.close(*window));
        QCOMPARE(stored().displayTheme, chosen ? Theme::Classic : "Night");
    }
}

void TestThemeMenu::ownThemeIsSavedAndChosen()
{
    WindowFixture fixture;
    QVERIFY(QDir().mkpath(ThemeLibrary::userFolder()));
    QFile broken(ThemeLibrary::userFolder() + "/broken.json");
    QVERIFY(broken.open(QFile::WriteOnly) && broken.write("{") == 1);
    broken.close();
    const auto window = fixture.makeWindow();
    QVERIFY2(logOf(*window).contains("broken.json"), qPrintable(logOf(*window)));
    window->themes()->choose("night");
    tracksOf(*window)->setSymbolSize(31);
    QVERIFY(!window->themes()->saveAs("  ") && !window->themes()->saveAs("Day"));
    QVERIFY(window->themes()->saveAs(" Approach & Tower "));
    QCOMPARE(window->config().displayTheme, "Approach & Tower");
    QVERIFY(entry(*window, "Approach  Tower")->isChecked()); // without the mark of a mnemonic
    window->themes()->choose("Classic");
    QVERIFY(tracksOf(*window)->symbolSize() != 31);
    window->themes()->choose("Approach & Tower");
    QCOMPARE(tracksOf(*window)->symbolSize(), 31);
    QVERIFY(windowColor().lightness() < 64);
}

void TestThemeMenu::sizeOfTheRunIsNotStored()
{
    WindowFixture fixture;
    QVERIFY(fixture.close(*fixture.makeWindow()));
    const QByteArray geometry = UiState::geometry("mainWindow");
    for (const bool resized : {false, true}) {
        auto window = std::make_unique<MainWindow>();
        window->show();
        window->loadUi({1024, 768});
        QCOMPARE(window->size(), QSize(1024, 768));
        if (resized) {
            window->resize(900, 700); // by the operator
        }
        QVERIFY(fixture.close(*window));
        QCOMPARE(UiState::geometry("mainWindow") == geometry, !resized);
    }
}

VYX_TEST(TestThemeMenu)
#include "tst_theme_menu.moc"
