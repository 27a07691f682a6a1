#include "window_fixture.h"

#include "busy_workers.h"
#include "map_editor/map_editor_window.h"
#include "map_windows/layout_save_window.h"
#include "map_windows/static_maps_window.h"
#include "maps/map_library.h"
#include "plan_view/geo_widget.h"
#include "sensors/radar_sensor_info.h"
#include "settings/config_window.h"
#include "settings/sensor_manager_window.h"
#include "test_files.h"
#include "test_program.h"
#include "ui/actions.h"
#include "widgets/file_edit.h"

#include <QAction>
#include <QCheckBox>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QSettings>
#include <QSignalSpy>

// Layouts of the view and static maps, as the main window keeps them from run to run.
class TestMapLayouts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<WindowFixture>(); }
    void nameIsLookedAt();
    void currentLayoutComesBack();
    void menuFollowsTheLayouts();
    void mapsAreLoadedAndToggled();
    void otherFilesAreTaken();
    void exitGoesOnWhenTheMapIsSaved();

private:
    static QMenu *menu(const MainWindow &window) { return action(window, ActionId::LoadLayout)->menu(); }
    // The names in the menu, the current one in brackets.
    static QString names(const MainWindow &window);
    static void choose(const MainWindow &window, const QString &name);
    static void saveLayout(MainWindow &window, const QString &name, bool makeCurrent = true);

    std::unique_ptr<WindowFixture> m_fixture;
};

QString TestMapLayouts::names(const MainWindow &window)
{
    QStringList list;
    for (const QAction *entry : menu(window)->actions()) {
        if (entry->isCheckable()) {
            const QString name = entry->data().toString();
            list.append(entry->isChecked() ? '[' + name + ']' : name);
        }
    }
    return list.join(' ');
}

void TestMapLayouts::choose(const MainWindow &window, const QString &name)
{
    for (QAction *entry : menu(window)->actions()) {
        if (entry->isCheckable() && entry->data().toString() == name) {
            entry->trigger();
            return;
        }
    }
    QFAIL("there is no such layout");
}

void TestMapLayouts::saveLayout(MainWindow &window, const QString &name, bool makeCurrent)
{
    window.showLayoutSaveWindow();
    auto *dialog = window.findChild<LayoutSaveWindow *>();
    dialog->setReplaceQuestion([](const QString &) { return true; });
    dialog->setName(name);
    dialog->findChild<QCheckBox *>("makeCurrent")->setChecked(makeCurrent);
    dialog->accept();
    QTest::qWait(0); // it is deleted
}

void TestMapLayouts::nameIsLookedAt()
{
    using Entry = std::tuple<QString, bool, QString>; // typed, an old one is to be replaced, saved (empty: refused)
    for (const auto &[typed, replace, saved] : {Entry{"", true, ""}, Entry{"  ", true, ""}, Entry{"default", true, ""},
             Entry{" Default", true, "Default"}, Entry{"old", false, ""}, Entry{"old ", true, "old"}}) {
        LayoutSaveWindow window({"old"});
        window.setReplaceQuestion([yes = replace](const QString &) { return yes; });
        const QSignalSpy named(&window, &LayoutSaveWindow::layoutNamed);
        window.show();
        window.findChild<QLineEdit *>("layoutName")->setText(typed);
        window.accept();
        QCOMPARE(named.value(0).value(0).toString(), saved);
        QCOMPARE(window.isVisible(), saved.isEmpty());
    }
}

void TestMapLayouts::currentLayoutComesBack()
{
    const auto run = [](const std::function<void(MainWindow &)> &work) {
        const auto window = WindowFixture::makeWindow();
        work(*window);
        QVERIFY(WindowFixture::close(*window));
    };
    run([](MainWindow &window) {
        window.geoWidget()->setView(1e6, 5e6, 250.0);
        window.geoWidget()->rotate(30.0);
        saveLayout(window, "north");
        window.geoWidget()->setView(0.0, 0.0, 1000.0);
    });
    run([](MainWindow &window) {
        QCOMPARE(names(window), "default [north]");
        QVERIFY(std::abs(window.geoWidget()->currentZoom() - 250.0) < 0.01);
        QVERIFY(std::abs(window.geoWidget()->currentRotation() - 30.0) < 0.01);
        choose(window, "default");
        QCOMPARE(names(window), "[default] north");
        QVERIFY(std::abs(window.geoWidget()->currentZoom() - 330.873) < 0.01);
        window.geoWidget()->setView(2e6, 3e6, 77.0);
    });
    run([](MainWindow &window) {
        QCOMPARE(names(window), "[default] north");
        QVERIFY2(std::abs(window.geoWidget()->currentZoom() - 77.0) < 0.01, "the view begins where it was left");
    });
}

void TestMapLayouts::menuFollowsTheLayouts()
{
    const auto window = WindowFixture::makeWindow();
    saveLayout(*window, "b");
    saveLayout(*window, "a & c", false);
    QCOMPARE(names(*window), "default a & c [b]");
    choose(*window, "a & c");
    QCOMPARE(names(*window), "default [a & c] b");
    const QMenu *removal = menu(*window)->findChild<QMenu *>();
    QCOMPARE(removal->actions().size(), 2);
    removal->actions().first()->trigger();
    QCOMPARE(names(*window), "[default] b");
    const QSettings file(AppPaths::configFile("layout"), QSettings::IniFormat);
    QCOMPARE(file.value("defaultLayout").toString(), "default");
    QCOMPARE(file.value("layouts/size").toInt(), 1);

    choose(*window, "b");
    window->launchSensorManager();
    Q_EMIT window->findChild<SensorManagerWindow *>()->sensorChosen(QSharedPointer<RadarSensorInfo>::create());
    QCOMPARE(names(*window), "[default] b"); // which was made for the place of the one before
}

void TestMapLayouts::mapsAreLoadedAndToggled()
{
    const QTemporaryDir maps;
    const auto write = [&maps](
                           const char *name, const QByteArray &contents) { writtenTo(maps.filePath(name), contents); };
    write("good.xml", "<map><data><group class='land'/></data></map>");
    write("bad.xml", "<map><data");
    write("map.idx", "<index><file>bad.xml</file><file>good.xml</file></index>");
    write("style.mss", "<map><style><class name='land'/></style></map>");
    Config config;
    config.load(AppPaths::configFile());
    config.mapIndex = maps.filePath("map.idx");
    config.mapStyleSheet = maps.filePath("style.mss");
    config.save(AppPaths::configFile());

    const auto window = WindowFixture::makeWindow();
    const auto *library = window->findChild<MapLibrary *>();
    QTRY_VERIFY(!library->loading());
    QVERIFY(!library->maps().at(0).data && library->maps().at(1).data);
    QVERIFY(library->styleSheet().contains("land"));
    const QString log = logText(*window);
    QVERIFY(log.contains("bad.xml") && !log.contains("good.xml"));
    QVERIFY(log.contains("Loading stylesheet: " + maps.filePath("style.mss")));

    QAction *toggle = action(*window, ActionId::ToggleStaticMaps);
    toggle->trigger();
    QVERIFY(!window->config().mapStaticVisible);

    window->showMapWindow();
    auto *list = window->findChild<StaticMapsWindow *>();
    list->addFiles({maps.filePath("new.xml")});
    list->setUnsavedQuestion([] { return QMessageBox::Cancel; });
    const QSignalSpy begun(window.get(), &MainWindow::shutdownBegun);
    window->close();
    QVERIFY2(begun.isEmpty() && list->isVisible(), "unsaved changes are not lost");
}

// A style sheet that was saved in the editor, and an index that was chosen in the settings.
void TestMapLayouts::otherFilesAreTaken()
{
    const auto window = WindowFixture::makeWindow();
    const auto *library = window->findChild<MapLibrary *>();
    const QString installed = library->indexFile();
    window->launchStaticMapEditor({}, MapFile::Unknown);
    auto *editor = window->findChild<MapEditorWindow *>();
    MapStyleClass style;
    style.name = "added";
    editor->document().putStyle(style);
    editor->save();
    const QString own = AppPaths::appDataDir() + "/style.mss";
    QVERIFY2(library->styleSheetFile() == own && library->styleSheet().contains("added"), "not the installed sheet");
    QVERIFY(editor->saveStyleSheet(AppPaths::appDataDir() + "/night.mss"));
    QVERIFY(library->styleSheetFile().endsWith("/night.mss") && !editor->isWindowModified());

    window->showMapWindow();
    auto *list = window->findChild<StaticMapsWindow *>();
    QMessageBox::StandardButton answer = QMessageBox::Cancel;
    list->setUnsavedQuestion([&answer] { return answer; });
    window->showConfigWindow();
    auto *settings = window->findChild<ConfigWindow *>();
    settings->findChild<FileEdit *>("mapIndex")->setPath(AppPaths::appDataDir() + "/other.idx");
    list->addFiles({"new.xml"});
    QVERIFY2(!settings->apply() && library->indexFile() == installed && library->modified(), "nothing was applied");
    answer = QMessageBox::Discard;
    QVERIFY(settings->apply() && library->indexFile().endsWith("/other.idx"));
    Config saved;
    saved.load(AppPaths::configFile());
    QVERIFY(saved.mapStyleSheet.endsWith("night.mss") && saved.mapIndex.endsWith("other.idx"));
    QVERIFY(WindowFixture::close(*window));
}

void TestMapLayouts::exitGoesOnWhenTheMapIsSaved()
{
    const auto window = WindowFixture::makeWindow();
    window->showMapWindow();
    window->findChild<StaticMapsWindow *>()->setUnsavedQuestion([] { return QMessageBox::Discard; });
    window->launchStaticMapEditor({}, MapFile::Unknown);
    auto *editor = window->findChild<MapEditorWindow *>();
    editor->document().addGroup("g", "land");
    const QTemporaryDir maps;
    const QString path = maps.filePath("edited.map");
    {
        BusyWorkers busy;
        editor->saveFile(path);
        window->close();
        QTest::qWait(20);
        QVERIFY(window->isVisible() && editor->isVisible() && !busy.waitedFor());
    }
    QVERIFY(QTest::qWaitFor([&window] { return !window->isVisible(); }, 8000));
    QVERIFY(QFile::exists(path));
}

VYX_TEST(TestMapLayouts)
#include "tst_map_layouts.moc"
