#include "map_windows/static_maps_window.h"

#include "app/app_identity.h"
#include "app/app_paths.h"
#include "app/map_places.h"
#include "busy_workers.h"
#include "map_import/map_import.h"
#include "map_windows/map_conversion.h"
#include "map_windows/map_import_window.h"
#include "map_windows/static_maps_model.h"
#include "maps/map_library.h"
#include "test_files.h"
#include "test_program.h"
#include "widgets/file_edit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

using Column = StaticMapsModel::Column;

// The list of static maps, over files of its own.
class TestStaticMapsWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void editsInPlace();
    void reordersAndRemoves();
    void drags();
    void saysWhatFailed();
    void addsFiles();
    void asksBeforeChangesAreLost();
    void goesToAMap();
    void installedIndexIsCopied();
    void convertsForeignFiles();
    void nobodyWaitsForAConversion();
    void importsAsEntered();

private:
    QString path(const QString &name) const { return m_directory->filePath(name); }
    void write(const QString &name, const QByteArray &contents) const;
    void writeMap(const QString &name, const QByteArray &points) const;
    QString order() const;
    QTableView *table() const { return m_window->findChild<QTableView *>(); }
    QPushButton *button(const char *name) const { return m_window->findChild<QPushButton *>(name); }
    StaticMapsModel *model() const { return m_window->findChild<StaticMapsModel *>(); }
    QModelIndex cell(int row, int column) const { return model()->index(row, column); }

    std::unique_ptr<QTemporaryDir> m_directory;
    std::unique_ptr<MapLibrary> m_library;
    std::unique_ptr<StaticMapsWindow> m_window;
};

void TestStaticMapsWindow::initTestCase()
{
    setApplicationIdentity();
}

// Maps a, b and c.
void TestStaticMapsWindow::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    qputenv("XDG_CONFIG_HOME", path("home").toUtf8());
    qputenv("XDG_DATA_HOME", path("home").toUtf8());
    for (const char *name : {"a.xml", "b.xml", "c.xml"}) {
        writeMap(name, "<coordinate>480000N0160000E</coordinate>");
    }
    write("map.idx", "<index><file maxzoom='50'>a.xml</file><file>b.xml</file><file>c.xml</file></index>");
    m_library = std::make_unique<MapLibrary>();
    m_library->openIndex(path("map.idx"));
    QTRY_VERIFY(!m_library->loading());
    m_window = std::make_unique<StaticMapsWindow>(m_library.get());
    m_window->setUnsavedQuestion([] { return QMessageBox::Discard; });
    m_window->show();
}

void TestStaticMapsWindow::cleanup()
{
    m_window.reset();
    m_library.reset();
}

void TestStaticMapsWindow::write(const QString &name, const QByteArray &contents) const
{
    writtenTo(path(name), contents);
}

void TestStaticMapsWindow::writeMap(const QString &name, const QByteArray &points) const
{
    write(name, "<map><data><group class='c'><polyline>" + points + "</polyline></group></data></map>");
}

QString TestStaticMapsWindow::order() const
{
    QString names;
    for (const MapLibrary::Map &map : m_library->maps()) {
        names += QFileInfo(map.path).completeBaseName();
    }
    return names;
}

void TestStaticMapsWindow::editsInPlace()
{
    using Change = std::function<void(MapIndexEntry &)>;
    struct Edit {
        int column;
        QVariant value;
        Change change; // none: refused
    };
    const QList<Edit> edits{{Column::Priority, " -5 ", [](auto &entry) { entry.priority = -5; }},
        {Column::Priority, "high", {}}, {Column::MinZoom, "50", [](auto &entry) { entry.minZoom = 50; }},
        {Column::MinZoom, "51", {}}, // the map ends at 50
        {Column::MinZoom, "-1", {}}, {Column::MinZoom, "99999999999", {}},
        {Column::MaxZoom, "", [](auto &entry) { entry.maxZoom.reset(); }},
        {Column::Format, MapFile::Xml, [](auto &entry) { entry.format = MapFile::Xml; }}};
    const auto details = [this] { return m_window->findChild<QLabel *>("details")->text(); };
    const MapIndexEntry before = m_library->maps().first().entry;
    for (const Edit &edit : edits) {
        m_library->revertIndex();
        const QString unrefused = details();
        MapIndexEntry expected = before;
        QCOMPARE(model()->setData(cell(0, edit.column), edit.value, Qt::EditRole), bool(edit.change));
        if (edit.change) {
            edit.change(expected);
        }
        QCOMPARE(m_library->maps().first().entry, expected);
        QCOMPARE(button("saveButton")->isEnabled(), bool(edit.change));
        QCOMPARE(details() == unrefused, bool(edit.change));
    }
}

void TestStaticMapsWindow::reordersAndRemoves()
{
    QVERIFY(model()->setData(cell(1, Column::Title), Qt::Unchecked, Qt::CheckStateRole));
    QVERIFY(!m_library->maps().at(1).visible() && !button("upButton")->isEnabled());
    button("downButton")->click();
    button("downButton")->click();
    QVERIFY2(order() == "bca" && !button("downButton")->isEnabled(), "the moved map stays selected");
    button("upButton")->click();
    QCOMPARE(order(), "bac");
    button("removeButton")->click();
    QCOMPARE(order(), "bc");
    button("removeButton")->click();
    QCOMPARE(order(), "b"); // c came next
    button("removeButton")->click();
    QVERIFY(order().isEmpty() && !button("removeButton")->isEnabled() && !button("editButton")->isEnabled());
}

void TestStaticMapsWindow::drags()
{
    using Drag = std::tuple<int, int, QString>; // from row, to before row (-1: on the empty ground below), order
    for (const auto &[from, to, after] :
        {Drag{0, 2, "bac"}, Drag{2, 0, "cba"}, Drag{0, -1, "bac"}, Drag{1, 1, "bac"}, Drag{1, 2, "bac"}}) {
        const std::unique_ptr<QMimeData> data(model()->mimeData({cell(from, 0)}));
        QVERIFY(model()->dropMimeData(data.get(), Qt::MoveAction, to, 0, {}));
        QCOMPARE(order(), after);
    }
}

void TestStaticMapsWindow::saysWhatFailed()
{
    write("c.xml", "<map><da");
    m_library->reload(m_library->maps().at(2).id);
    m_window->selectMap(m_library->maps().at(2).id);
    QCOMPARE(button("reloadButton")->text().remove('&'), "Cancel Loading");
    QTRY_VERIFY(!m_library->loading());
    QCOMPARE(button("reloadButton")->text().remove('&'), "Reload");
    const QString error = m_library->maps().at(2).error;
    QVERIFY(!error.isEmpty() && m_window->findChild<QLabel *>("details")->text().contains(error.toHtmlEscaped()));
    QVERIFY(cell(2, Column::State).data(Qt::ToolTipRole).toString().contains(error));
    m_window->selectMap(m_library->maps().at(0).id);
    QVERIFY(!m_window->findChild<QLabel *>("details")->text().contains(error.toHtmlEscaped()));
}

void TestStaticMapsWindow::addsFiles()
{
    const QTemporaryDir elsewhere;
    QVERIFY(QFile::copy(path("a.xml"), elsewhere.filePath("e.xml")) && QDir(path(".")).mkdir("sub"));
    writeMap("sub/d.xml", "");
    m_window->addFiles({path("sub/d.xml"), elsewhere.filePath("e.xml"), path("sub/../b.xml")});
    QCOMPARE(order(), "abcde");
    QCOMPARE(m_library->maps().at(3).entry.file, "sub/d.xml");
    QCOMPARE(m_library->maps().at(4).entry.file, elsewhere.filePath("e.xml"));
    QCOMPARE(m_window->selectedMap(), m_library->maps().at(1).id); // it was there already
    QVERIFY(m_window->save() && !button("saveButton")->isEnabled());
}

void TestStaticMapsWindow::asksBeforeChangesAreLost()
{
    int asked = 0;
    QMessageBox::StandardButton answer = QMessageBox::Cancel;
    m_window->setUnsavedQuestion([&] {
        ++asked;
        return answer;
    });
    button("downButton")->click();
    QVERIFY(!m_window->close());
    answer = QMessageBox::Discard;
    QVERIFY(m_window->close());
    QCOMPARE(order(), "abc");
    answer = QMessageBox::Save;
    m_window->show();
    button("downButton")->click();
    QVERIFY(m_window->close());
    QCOMPARE(readMapIndex(path("map.idx"), nullptr).first().file, "b.xml");
    m_window->show();
    QVERIFY(m_window->close());
    QCOMPARE(asked, 3);
}

void TestStaticMapsWindow::goesToAMap()
{
    writeMap("b.xml",
        "<coordinate>100000N1780000E</coordinate><coordinate>200000N1760000W</coordinate>"
        "<coordinate>nowhere</coordinate>");
    writeMap("c.xml", "<coordinate>nowhere</coordinate>");
    QTRY_VERIFY(m_library->maps().at(1).revision == 2 && m_library->maps().at(2).revision == 2);
    const QSignalSpy center(m_window.get(), &StaticMapsWindow::centerRequested);
    Q_EMIT table()->doubleClicked(cell(1, Column::File));
    Q_EMIT table()->doubleClicked(cell(2, Column::File));
    QCOMPARE(center.size(), 1);
    QCOMPARE(center.first().first().value<GeoCoordinate>().toATCString(), "150000N1790000W");
}

void TestStaticMapsWindow::installedIndexIsCopied()
{
    const QString installed = MapPlaces::installedDir() + "/map.idx";
    QCOMPARE(MapPlaces::resolve("map.idx"), installed);
    QCOMPARE(MapPlaces::resolve("none.idx"), AppPaths::appDataDir() + "/none.idx");
    const QList<MapIndexEntry> before = readMapIndex(installed, nullptr);
    m_library->openIndex(installed);
    m_window->addFiles({path("a.xml")});
    const QSignalSpy moved(m_window.get(), &StaticMapsWindow::indexFileChanged);
    QVERIFY(m_window->save());
    QCOMPARE(readMapIndex(installed, nullptr), before);
    QCOMPARE(MapPlaces::resolve("map.idx"), m_library->indexFile());
    const QList<MapIndexEntry> own = readMapIndex(m_library->indexFile(), nullptr);
    QCOMPARE(own.size(), before.size() + 1);
    QCOMPARE(own.first().file, MapPlaces::installedDir() + '/' + before.first().file);
    QVERIFY(m_window->save() && moved.size() == 1);
}

void TestStaticMapsWindow::convertsForeignFiles()
{
    write("fix.geojson", R"({"type": "Feature", "geometry": {"type": "Point", "coordinates": [16.0, 48.0]}})");
    write("bad.geojson", "{");
    using Files = std::pair<QString, QString>;
    for (const auto &[source, target] : {Files("fix.geojson", "fix.map"), Files("bad.geojson", "bad.map"),
             Files("fix.geojson", "no/folder/fix.map"), Files("fix.geojson", "fix.png")}) {
        MapConversion conversion;
        const QSignalSpy finished(&conversion, &MapConversion::finished);
        conversion.start(path(source), path(target), {});
        QTRY_COMPARE(finished.size(), 1);
        const bool converts = target == "fix.map" && MapImport::available();
        QCOMPARE(finished.first().at(1).toString().isEmpty(), converts);
        QCOMPARE(QFile::exists(path(target)), converts);
    }
}

void TestStaticMapsWindow::nobodyWaitsForAConversion()
{
    write("fix.geojson", R"({"type": "Feature", "geometry": {"type": "Point", "coordinates": [16.0, 48.0]}})");
    BusyWorkers busy;
    MapConversion conversion;
    const QSignalSpy finished(&conversion, &MapConversion::finished);
    conversion.start(path("fix.geojson"), path("cancelled.map"), {});
    conversion.cancel();
    QVERIFY(!conversion.running());
    {
        MapConversion closed;
        closed.start(path("fix.geojson"), path("closed.map"), {});
    }
    conversion.start(path("fix.geojson"), path("fix.map"), {});
    busy.letGo();
    QVERIFY(!busy.waitedFor());
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(finished.first().first(), path("fix.map"));
    QCOMPARE(QDir(path(".")).entryList({"*.map"}), MapImport::available() ? QStringList("fix.map") : QStringList());
}

void TestStaticMapsWindow::importsAsEntered()
{
    const MapImport::Options untouched;
    QStringList targets;
    MapImport::Options options;
    bool replace = false;
    const auto import = [&](const QString &target, const std::function<void(MapImportWindow &)> &enter) {
        MapImportWindow window(path("fix.geojson"), {path("."), {"ctr"}});
        connect(&window, &MapImportWindow::importRequested, this, [&](const QString &file, const auto &entered) {
            targets.append(file);
            options = entered;
        });
        window.setReplaceQuestion([&replace](const QString &) { return replace; });
        if (!target.isNull()) {
            window.findChild<FileEdit *>("target")->setPath(target);
        }
        enter(window);
        window.show();
        QTest::keyClick(&window, Qt::Key_Return);
        return !window.isVisible();
    };
    const auto nothing = [](const MapImportWindow &) {};
    for (const char *refused : {"", "fix.png", "fix.mapx", ".", "a.xml"}) {
        QVERIFY2(!import(refused, nothing), refused);
    }
    replace = true;
    QVERIFY(import("a.xml", nothing) && import("sub/fix", nothing) && import({}, nothing));
    QCOMPARE(targets, QStringList({path("a.xml"), path("sub/fix.map"), path("fix.map")}));
    QVERIFY(options.nameProperties == untouched.nameProperties && options.layers.isEmpty());
    QVERIFY(options.className.isEmpty() && options.symbolType.isEmpty() && options.epsg == 0);
    QVERIFY(options.captionProperties == untouched.captionProperties && options.tolerance == 0);
    QVERIFY(options.fillAreas && options.pointSymbols && options.pointLabels && options.airspaces);
    QVERIFY(import({}, [](MapImportWindow &window) {
        window.findChild<QComboBox *>("symbolType")->setCurrentText("vor");
        window.findChild<QLineEdit *>("layers")->setText(" a b,, c,");
        window.findChild<QLineEdit *>("nameProperties")->setText("id");
        window.findChild<QCheckBox *>("labels")->setChecked(false);
    }));
    QVERIFY(options.symbolType == "vor" && options.layers == QStringList({"a b", "c"}) && !options.pointLabels);
    QVERIFY(options.nameProperties == QStringList("id") && options.pointSymbols);

    write("fix.geojson", R"({"type": "Feature", "geometry": {"type": "Point", "coordinates": [16.0, 48.0]}})");
    m_window->addFiles({path("fix.geojson"), path("fix.geojson"), path("a.xml")});
    auto *window = m_window->findChild<MapImportWindow *>();
    QCOMPARE(window != nullptr, MapImport::available());
    if (window) {
        window->findChild<QComboBox *>("className")->setCurrentText("unknown");
        window->accept();
        QTRY_COMPARE(order(), "abcfix");
        QTRY_VERIFY(m_window->findChild<QLabel *>("details")->text().contains("unknown"));
        QVERIFY2(m_window->findChild<MapImportWindow *>(), "the next file has its turn");
    }
}

VYX_TEST(TestStaticMapsWindow)
#include "tst_static_maps_window.moc"
