#include "maps/map_library.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using State = MapLibrary::State;

namespace {

MapIndexEntry entryOf(const QString &file, std::optional<int> maxZoom = {})
{
    MapIndexEntry entry;
    entry.file = file;
    entry.maxZoom = maxZoom;
    return entry;
}

} // namespace

// Maps and style sheet as their files come, change and go.
class TestMapLibrary : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aMapThatFailsHidesNoOther();
    void zoomRangeIncludesItsEnds();
    void changesOfEntries();
    void movesAndRemoves();
    void savesWhereItIsTold();
    void followsMapFiles();
    void followsTheIndex();
    void cancelledLoads();
    void styleSheet();

private:
    QString path(const QString &name) const { return m_directory->filePath(name); }
    // In one step, as programs do that replace files.
    void write(const QString &name, const QByteArray &contents) const;
    void writeMap(const QString &name, const QByteArray &title) const;
    void writeIndex(const QByteArray &files) const;
    static bool settled(const MapLibrary &library);
    static QStringList titles(const MapLibrary &library);

    std::unique_ptr<QTemporaryDir> m_directory;
};

void TestMapLibrary::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
}

void TestMapLibrary::write(const QString &name, const QByteArray &contents) const
{
    QSaveFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(contents);
    QVERIFY(file.commit());
}

void TestMapLibrary::writeMap(const QString &name, const QByteArray &title) const
{
    write(name,
        "<map><meta><title>" + title
            + "</title></meta><data><group name='g' class='c'><symbol name='s'><type>dot</type>"
              "<coordinate>480000N0160000E</coordinate></symbol></group></data></map>");
}

void TestMapLibrary::writeIndex(const QByteArray &files) const
{
    write("map.idx", "<index>" + files + "</index>");
}

bool TestMapLibrary::settled(const MapLibrary &library)
{
    return QTest::qWaitFor([&library] { return !library.loading(); }, 5000);
}

// Of the maps that have data.
QStringList TestMapLibrary::titles(const MapLibrary &library)
{
    QStringList list;
    for (const MapLibrary::Map &map : library.maps()) {
        list.append(map.data ? map.data->title : QStringLiteral("-"));
    }
    return list;
}

void TestMapLibrary::aMapThatFailsHidesNoOther()
{
    writeMap("a.xml", "A");
    writeMap("sub", "B"); // the format is stated
    write("broken.xml", "<map><data><group");
    write("what.txt", "?");
    writeIndex("<file>broken.xml</file><file>a.xml</file><file>gone.map</file><file>what.txt</file>"
               "<file format='xml' visible='false'>sub</file>");
    MapLibrary library;
    const QSignalSpy messages(&library, &MapLibrary::message);
    library.openIndex(path("map.idx"));
    QCOMPARE(library.maps().size(), 5);
    QVERIFY(settled(library));
    QCOMPARE(titles(library), QStringList({"-", "A", "-", "-", "B"}));
    for (const MapLibrary::Map &map : library.maps()) {
        QCOMPARE(map.state, map.data ? State::Loaded : State::Failed);
        QCOMPARE(map.error.isEmpty(), !map.data.isNull());
    }
    QCOMPARE(messages.size(), 3);
    QVERIFY(!library.maps().last().visible() && library.maps().first().visible());
}

void TestMapLibrary::zoomRangeIncludesItsEnds()
{
    MapLibrary::Map map;
    QVERIFY(map.inZoomRange(0.3) && map.inZoomRange(14000.0));
    map.entry.minZoom = 10;
    map.entry.maxZoom = 100;
    QVERIFY(map.inZoomRange(10.0) && map.inZoomRange(100.0));
    QVERIFY(!map.inZoomRange(9.99) && !map.inZoomRange(100.01));
}

void TestMapLibrary::changesOfEntries()
{
    writeMap("a.xml", "A");
    writeMap("b.xml", "B");
    writeIndex("<file>a.xml</file>");
    MapLibrary library;
    library.openIndex(path("map.idx"));
    QVERIFY(settled(library));
    const quint64 id = library.maps().first().id;
    const quint64 revision = library.map(id)->revision;

    MapIndexEntry entry = library.map(id)->entry;
    entry.visible = false;
    library.setEntry(id, entry);
    QVERIFY(library.modified() && !library.loading());
    QCOMPARE(library.map(id)->revision, revision);
    entry.visible.reset();
    library.setEntry(id, entry);
    QVERIFY2(!library.modified(), "it is as in the file again");

    entry.file = "b.xml";
    library.setEntry(id, entry);
    QVERIFY2(!library.map(id)->data, "the old map is not shown under the new name");
    QVERIFY(settled(library));
    QCOMPARE(titles(library), QStringList("B"));
    QVERIFY(library.map(id)->revision > revision);
    library.revertIndex();
    QVERIFY(!library.modified() && settled(library));
    QCOMPARE(titles(library), QStringList("A"));
}

void TestMapLibrary::movesAndRemoves()
{
    for (const char *name : {"A", "B", "C"}) {
        writeMap(QString(name) + ".xml", name);
    }
    writeIndex("<file>A.xml</file><file>B.xml</file><file>C.xml</file>");
    MapLibrary library;
    library.openIndex(path("map.idx"));
    QVERIFY(settled(library));
    const quint64 a = library.maps().first().id;
    library.moveTo(a, 99);
    QCOMPARE(titles(library), QStringList({"B", "C", "A"}));
    library.moveTo(a, -1);
    library.remove(library.maps().at(1).id);
    QCOMPARE(titles(library), QStringList({"A", "C"}));
    library.remove(a);
    library.moveTo(a, 0);
    library.setEntry(a, MapIndexEntry());
    library.reload(a);
    QCOMPARE(titles(library), QStringList("C"));
    QVERIFY(library.add(entryOf("A.xml")) != a);
}

void TestMapLibrary::savesWhereItIsTold()
{
    writeMap("a.xml", "A");
    writeIndex("<file priority='3'>a.xml</file>");
    MapLibrary library;
    library.openIndex(path("map.idx"));
    QVERIFY(settled(library));
    library.remove(library.maps().first().id);
    library.add(entryOf("a.xml", 7));
    QVERIFY(library.saveIndex(nullptr) && !library.modified());
    QCOMPARE(readMapIndex(path("map.idx"), nullptr), QList({entryOf("a.xml", 7)}));

    QString error;
    QVERIFY2(library.saveIndexAs(path("new/folder/own.idx"), &error), qPrintable(error));
    QCOMPARE(library.indexFile(), path("new/folder/own.idx"));
    QCOMPARE(readMapIndex(library.indexFile(), nullptr).value(0).file, path("a.xml"));
    QVERIFY(!library.modified());
    QVERIFY(!library.saveIndexAs(path("a.xml/is/no/folder"), &error) && !error.isEmpty());
}

void TestMapLibrary::followsMapFiles()
{
    writeMap("a.xml", "one");
    writeIndex("<file>a.xml</file>");
    MapLibrary library;
    library.openIndex(path("map.idx"));
    QVERIFY(settled(library));
    const auto follows = [&library](const QString &title, State state) {
        return QTest::qWaitFor(
            [&] { return titles(library).first() == title && library.maps().first().state == state; }, 5000);
    };
    // Each replaces the file, which ends a watch on the one before.
    for (const char *title : {"second", "third one"}) {
        writeMap("a.xml", title);
        QVERIFY2(follows(title, State::Loaded), title);
    }
    QVERIFY(QFile::remove(path("a.xml")));
    QVERIFY2(follows("third one", State::Failed), "what was loaded stays");
    writeMap("a.xml", "fourth");
    QVERIFY(follows("fourth", State::Loaded) && library.maps().first().error.isEmpty());
}

void TestMapLibrary::followsTheIndex()
{
    writeMap("a.xml", "A");
    writeMap("b.xml", "B");
    MapLibrary library;
    library.openIndex(path("map.idx"));
    QVERIFY2(library.maps().isEmpty(), "there is no index yet");
    writeIndex("<file>a.xml</file>");
    QTRY_COMPARE(titles(library), QStringList("A"));
    const quint64 a = library.maps().first().id;
    const quint64 revision = library.maps().first().revision;

    writeIndex("<file>b.xml</file><file visible='false'>a.xml</file>");
    QTRY_COMPARE(titles(library), QStringList({"B", "A"}));
    QVERIFY(library.map(a) && !library.map(a)->visible());
    QCOMPARE(library.map(a)->revision, revision);

    write("map.idx", "<index><file");
    QTest::qWait(400);
    QCOMPARE(titles(library), QStringList({"B", "A"}));

    library.remove(a);
    writeIndex("<file>a.xml</file>");
    QTest::qWait(400);
    QCOMPARE(titles(library), QStringList("B")); // the operator's changes are not lost
    QVERIFY(library.modified());
}

void TestMapLibrary::cancelledLoads()
{
    writeMap("a.xml", "A");
    writeIndex("<file>a.xml</file>");
    MapLibrary library;
    library.openIndex(path("map.idx"));
    const quint64 id = library.maps().first().id;
    library.cancel(id); // whatever the loading has come to, nothing of it has been delivered yet
    QCOMPARE(library.map(id)->state, State::Failed);
    QTest::qWait(50);
    QVERIFY(!library.map(id)->data && !library.loading());
    library.reload(id);
    QVERIFY(settled(library));
    QVERIFY(library.map(id)->data && library.map(id)->error.isEmpty());
    library.reload(id); // goes under way with the library
}

void TestMapLibrary::styleSheet()
{
    const QByteArray red = "<map><style><class name='land'><color>#ff0000</color></class></style></map>";
    MapLibrary library;
    const QSignalSpy messages(&library, &MapLibrary::message);
    const auto text = [&messages](int index) { return messages.value(index).value(1).toString(); };
    library.openStyleSheet(path("style.mss"));
    QCOMPARE(text(0), "Loading stylesheet: NOT FOUND");
    QVERIFY(text(1).startsWith("Failed to load style sheet:"));
    QVERIFY(!library.styleSheet().isValid());

    write("style.mss", red);
    QTRY_VERIFY(library.styleSheet().isValid());
    QCOMPARE(text(2), "Loading stylesheet: " + QDir::toNativeSeparators(path("style.mss")));
    QCOMPARE(library.styleSheet().style("land").color, QColor(Qt::red));
    write("style.mss", "<map><style><class");
    QTRY_VERIFY(text(4).startsWith("Failed to load style sheet:"));
    QVERIFY2(library.styleSheet().contains("land"), "the last good one stays");
}

QTEST_MAIN(TestMapLibrary)
#include "tst_map_library.moc"
