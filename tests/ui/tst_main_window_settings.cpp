#include "window_fixture.h"

#include "lists/list_view.h"
#include "plan_view/geo_widget.h"
#include "sensors/radar_sensor_info.h"
#include "settings/config_page.h"
#include "settings/config_window.h"
#include "settings/sensor_manager_window.h"
#include "test_program.h"
#include "ui/actions.h"
#include "ui/log_pane.h"
#include "widgets/color_button.h"
#include "widgets/widget_style.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLineF>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStyle>
#include <QStyleFactory>

// What the main window does with the settings window.
class TestMainWindowSettings : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void inputRunsOnWhileSettingsChange();
    void aSensorIsShownWhereItStands();
    void sensorsAreLookedAfterWhileTheInputRuns();
    void styleAppliesAtOnce();
    void textGrowsAtOnce();
    void saysThatNothingIsSaved();
    void anotherLanguageComesWithARestart();
};

namespace {

ConfigWindow *opened(MainWindow &window)
{
    action(window, ActionId::Settings)->trigger();
    return window.findChild<ConfigWindow *>();
}

bool locked(const ConfigWindow &settings)
{
    return settings.pages().at(1)->hasLockedRows();
}

} // namespace

void TestMainWindowSettings::inputRunsOnWhileSettingsChange()
{
    WindowFixture fixture;
    const auto window = fixture.makeWindow();
    QVERIFY(fixture.openInput(*window));
    ConfigWindow *settings = opened(*window);
    QVERIFY(settings && locked(*settings));
    settings->findChild<ColorButton *>("mapBackgroundColor")->setColor(QColor(1, 2, 3));
    QVERIFY(settings->apply());
    QCOMPARE(window->config().mapBackgroundColor, QColor(1, 2, 3));
    QVERIFY(window->inputOpen());
    window->closeInput();
    QTRY_VERIFY(!locked(*settings));
    QVERIFY(WindowFixture::close(*window));
}

void TestMainWindowSettings::aSensorIsShownWhereItStands()
{
    WindowFixture fixture;
    const auto window = fixture.makeWindow();
    const GeoWidget *plan = window->geoWidget();
    const auto apply = [&window](const std::function<void(Config &)> &change) {
        Config edited = window->config();
        change(edited);
        Q_EMIT opened(*window)->configApplied(edited);
    };
    const QTransform before = plan->screenTransform();
    apply([](Config &config) { config.sensorSac = 77; }); // it is still the same
    QCOMPARE(plan->screenTransform(), before);
    apply([](Config &config) {
        config.sensorName = "FAR";
        config.sensorLocation = GeoCoordinate(10.0, 20.0);
    });
    const QPointF place = window->engineHost().shared().projector.toCartesian(GeoCoordinate(10.0, 20.0));
    const QPointF pixel = plan->screenTransform().map(place);
    QVERIFY2(QLineF(pixel, QRectF(plan->rect()).center()).length() < 2.0, "the view is there");
    QVERIFY(WindowFixture::close(*window));
}

void TestMainWindowSettings::sensorsAreLookedAfterWhileTheInputRuns()
{
    WindowFixture fixture;
    const auto window = fixture.makeWindow();
    QVERIFY(fixture.openInput(*window));
    action(*window, ActionId::SensorManager)->trigger();
    auto *manager = window->findChild<SensorManagerWindow *>();
    const auto sensor = QSharedPointer<RadarSensorInfo>::create();
    sensor->setName("NEW");
    manager->putSensor(sensor);
    const auto *use = manager->findChild<QPushButton *>("useButton");
    QVERIFY(!use->isEnabled() && window->inputOpen());
    window->closeInput();
    QTRY_VERIFY(use->isEnabled());
    QVERIFY(WindowFixture::close(*window));
}

void TestMainWindowSettings::styleAppliesAtOnce()
{
    const QString before = widgetStyleName();
    const QStringList styles = QStyleFactory::keys();
    WindowFixture fixture;
    const auto window = fixture.makeWindow();
    ConfigWindow *settings = opened(*window);
    for (const QString &style : styles) {
        settings->findChild<QComboBox *>("displayStyle")->setCurrentText(style);
        QVERIFY(settings->apply());
        QCOMPARE(widgetStyleName().toLower(), style.toLower());
    }
    applyWidgetStyle(before);
    QVERIFY(WindowFixture::close(*window));
}

void TestMainWindowSettings::textGrowsAtOnce()
{
    WindowFixture fixture;
    const auto window = fixture.makeWindow();
    const auto *log = window->findChild<LogPane *>(); // has a face of its own
    const auto *list = window->findChild<ListView *>();
    const double size = log->font().pointSizeF();
    const int row = list->verticalHeader()->defaultSectionSize();
    for (const int percent : {200, 100}) {
        ConfigWindow *settings = opened(*window);
        settings->findChild<QSpinBox *>("displayFontScale")->setValue(percent);
        settings->accept();
        QCOMPARE(log->font().pointSizeF(), size * percent / 100.0);
        const auto rowIs = [&](double times) { return list->verticalHeader()->defaultSectionSize() >= times * row; };
        QTRY_COMPARE(rowIs(1.7), percent == 200); // the toolkit tells the other widgets a little later
        QTRY_VERIFY(!window->findChild<ConfigWindow *>());
    }
    QVERIFY(WindowFixture::close(*window));
}

void TestMainWindowSettings::saysThatNothingIsSaved()
{
    WindowFixture fixture;
    const auto window = fixture.makeWindow();
    QVERIFY(QFile::remove(AppPaths::configFile()) && QDir().mkpath(AppPaths::configFile())); // no place for a file
    ConfigWindow *settings = opened(*window);
    settings->findChild<ColorButton *>("mapBackgroundColor")->setColor(QColor(1, 2, 3));
    settings->accept();
    QVERIFY(settings->isVisible());
    const QString text = settings->findChild<QLabel *>("saveProblem")->text();
    QVERIFY2(text.contains(QFileInfo(AppPaths::configFile()).fileName()), qPrintable(text));
    const QString log = logText(*window);
    QVERIFY2(log.contains("[WARNING ]") && log.contains("Cannot write the settings file"), qPrintable(log));
    QCOMPARE(window->config().mapBackgroundColor, QColor(1, 2, 3)); // for this run
    QVERIFY(WindowFixture::close(*window));
}

void TestMainWindowSettings::anotherLanguageComesWithARestart()
{
    for (const bool running : {true, false}) {
        WindowFixture fixture;
        const auto window = fixture.makeWindow();
        QVERIFY(!running || fixture.openInput(*window));
        QSignalSpy ended(window.get(), &MainWindow::shutdownComplete);
        ConfigWindow *settings = opened(*window);
        auto *language = settings->findChild<QComboBox *>("displayLanguage");
        auto *now = settings->findChild<QPushButton *>("restartNow");
        QVERIFY(!now->isVisible());
        language->setCurrentIndex(language->findData(QString())); // the system's
        QVERIFY(now->isVisible());
        now->click();
        QTRY_COMPARE(ended.size(), 1);
        QVERIFY(window->afterwards() == (running ? Shutdown::Afterwards::StartWithInput : Shutdown::Afterwards::Start));
        Config stored;
        stored.load(AppPaths::configFile());
        QCOMPARE(stored.displayLanguage, QString());
    }
}

VYX_TEST(TestMainWindowSettings)
#include "tst_main_window_settings.moc"
