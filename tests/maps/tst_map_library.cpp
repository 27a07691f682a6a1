#include "busy_workers.h"
#include "maps/map_library.h"
#include "test_program.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using State = MapLibrary::State;

// Maps and style sheet as their files come, change and go.
class TestMapLibrary : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aMapThatFailsHidesNoOther();
    void changesOfEntries();
    void movesAndRemoves();
    void savesWhereItIsTold();
    void followsMapFiles();
    void followsTheIndex();
    void cancelledLoads();
    void aLoadThatHangsHoldsUpNobody();
    void styleSheet();

private:
    QString path(const QString &name) const { return m_directory->filePath(name); }
    // In one step, as programs do that replace files.
    void write(const QString &name, const QByteArray &contents) const;
    void writeMap(const QString &name, const QByteArray &title) const;
    void writeIndex(const QByteArray &files) const;
    bool open(const QByteArray &files) const;
    bool settled() const;
    QStringList titles() const;

    std::unique_ptr<QTemporaryDir> m_directory;
    std::unique_ptr<MapLibrary> m_library; // goes before its files
};

void TestMapLibrary::init()
{
    m_library = std::make_unique<MapLibrary>();
    m_directory = std::make_unique<QTemporaryDir>();
    for (const char *name : {"A", "B", "C"}) {
        writeMap(QString(name) + ".xml", name);
    }
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

bool TestMapLibrary::settled() const
{
    return QTest::qWaitFor([this] { return !m_library->loading(); }, 5000);
}

bool TestMapLibrary::open(const QByteArray &files) const
{
    writeIndex(files);
    m_library->openIndex(path("map.idx"));
    return settled();
}

// Of the maps that have data.
QStringList TestMapLibrary::titles() const
{
    QStringList list;
    for (const MapLibrary::Map &map : m_library->maps()) {
        list.append(map.data ? map.data->title : QStringLiteral("-"));
    }
    return list;
}

void TestMapLibrary::aMapThatFailsHidesNoOther()
{
    writeMap("sub", "B"); // the format is stated
    write("broken.xml", "<map><data><group");
    write("what.txt", "?");
    const QSignalSpy messages(m_library.get(), &MapLibrary::message);
    QVERIFY(open("<file>broken.xml</file><file>A.xml</file><file>gone.map</file><file>what.txt</file>"
                 "<file format='xml' visible='false'>sub</file>"));
    QCOMPARE(titles(), QStringList({"-", "A", "-", "-", "B"}));
    for (const MapLibrary::Map &map : m_library->maps()) {
        QCOMPARE(map.state, map.data ? State::Loaded : State::Failed);
        QCOMPARE(map.error.isEmpty(), !map.data.isNull());
    }
    QCOMPARE(messages.size(), 3);
    QVERIFY(!m_library->maps().last().visible() && m_library->maps().first().visible());
}

void TestMapLibrary::changesOfEntries()
{
    QVERIFY(open("<file>A.xml</file>"));
    const quint64 id = m_library->maps().first().id;
    const quint64 revision = m_library->map(id)->revision;
    MapIndexEntry entry = m_library->map(id)->entry;
    entry.visible = false;
    m_library->setEntry(id, entry);
    QVERIFY(m_library->modified() && !m_library->loading());
    QCOMPARE(m_library->map(id)->revision, revision);
    entry.visible.reset();
    m_library->setEntry(id, entry);
    QVERIFY2(!m_library->modified(), "it is as in the file again");

    entry.file = "B.xml";
    m_library->setEntry(id, entry);
    QVERIFY2(!m_library->map(id)->data, "the old map is not shown under the new name");
    QVERIFY(settled());
    QCOMPARE(titles(), QStringList("B"));
    QVERIFY(m_library->map(id)->revision > revision);
    m_library->revertIndex();
    QVERIFY(!m_library->modified() && settled());
    QCOMPARE(titles(), QStringList("A"));
}

void TestMapLibrary::movesAndRemoves()
{
    QVERIFY(open("<file>A.xml</file><file>B.xml</file><file>C.xml</file>"));
    const quint64 a = m_library->maps().first().id;
    m_library->moveTo(a, 99);
    QCOMPARE(titles(), QStringList({"B", "C", "A"}));
    m_library->moveTo(a, -1);
    m_library->remove(m_library->maps().at(1).id);
    QCOMPARE(titles(), QStringList({"A", "C"}));
    m_library->remove(a);
    m_library->moveTo(a, 0);
    m_library->setEntry(a, MapIndexEntry());
    m_library->reload(a);
    QCOMPARE(titles(), QStringList("C"));
    QVERIFY(m_library->add(MapIndexEntry()) != a);
}

void TestMapLibrary::savesWhereItIsTold()
{
    QVERIFY(open("<file priority='3'>A.xml</file>"));
    MapIndexEntry entry = m_library->maps().first().entry;
    entry.maxZoom = 7;
    m_library->setEntry(m_library->maps().first().id, entry);
    QVERIFY(m_library->saveIndexAs(path("map.idx"), nullptr) && !m_library->modified());
    QCOMPARE(readMapIndex(path("map.idx"), nullptr), QList({entry}));
    QString error;
    QVERIFY2(m_library->saveIndexAs(path("new/folder/own.idx"), &error), qPrintable(error));
    QCOMPARE(readMapIndex(m_library->indexFile(), nullptr).value(0).file, path("A.xml"));
    QVERIFY(!m_library->modified() && m_library->saveIndexAs(path("back.idx"), &error));
    QCOMPARE(readMapIndex(path("back.idx"), nullptr).value(0).file, "A.xml");
    QVERIFY(!m_library->saveIndexAs(path("A.xml/is/no/folder"), &error) && !error.isEmpty());
}

void TestMapLibrary::followsMapFiles()
{
    QVERIFY(open("<file>A.xml</file>"));
    const auto follows = [this](const QString &title, State state) {
        return QTest::qWaitFor(
            [&] { return titles().first() == title && m_library->maps().first().state == state; }, 5000);
    };
    // Each replaces the file, which ends a watch on the one before.
    for (const char *title : {"second", "third one"}) {
        writeMap("A.xml", title);
        QVERIFY2(follows(title, State::Loaded), title);
    }
    QVERIFY(QFile::remove(path("A.xml")));
    QVERIFY2(follows("third one", State::Failed), "what was loaded stays");
    writeMap("A.xml", "fourth");
    QVERIFY(follows("fourth", State::Loaded) && m_library->maps().first().error.isEmpty());
}

void TestMapLibrary::followsTheIndex()
{
    m_library->openIndex(path("map.idx"));
    QVERIFY2(m_library->maps().isEmpty(), "there is no index yet");
    writeIndex("<file>A.xml</file>");
    QTRY_COMPARE(titles(), QStringList("A"));
    const quint64 a = m_library->maps().first().id;
    const quint64 revision = m_library->maps().first().revision;

    writeIndex("<file>B.xml</file><file visible='false'>A.xml</file>");
    QTRY_COMPARE(titles(), QStringList({"B", "A"}));
    QVERIFY(m_library->map(a) && !m_library->map(a)->visible());
    QCOMPARE(m_library->map(a)->revision, revision);

    write("map.idx", "<index><file");
    QTest::qWait(300);
    QCOMPARE(titles(), QStringList({"B", "A"}));
    m_library->remove(a);
    writeIndex("<file>A.xml</file>");
    QTest::qWait(300);
    QCOMPARE(titles(), QStringList("B")); // the operator's changes are not lost
}

void TestMapLibrary::cancelledLoads()
{
    writeIndex("<file>A.xml</file>");
    m_library->openIndex(path("map.idx"));
    const quint64 id = m_library->maps().first().id;
    m_library->cancel(id); // whatever the loading has come to, nothing of it has been delivered yet
    QCOMPARE(m_library->map(id)->state, State::Failed);
    QTest::qWait(50);
    QVERIFY(!m_library->map(id)->data && !m_library->loading());
    m_library->reload(id);
    QVERIFY(settled());
    QVERIFY(m_library->map(id)->data && m_library->map(id)->error.isEmpty());
    m_library->reload(id); // goes under way with the library
}

void TestMapLibrary::aLoadThatHangsHoldsUpNobody()
{
    writeIndex("<file>A.xml</file><file>B.xml</file><file>C.xml</file>");
    BusyWorkers busy;
    m_library->openIndex(path("map.idx"));
    m_library->cancel(m_library->maps().first().id);
    m_library->remove(m_library->maps().at(1).id);
    m_library = std::make_unique<MapLibrary>();
    m_library->openIndex(path("map.idx"));
    busy.letGo();
    QVERIFY(!busy.waitedFor());
    QVERIFY(settled());
    QCOMPARE(titles(), QStringList({"A", "B", "C"}));
}

void TestMapLibrary::styleSheet()
{
    const QByteArray red = "<map><style><class name='land'><color>#ff0000</color></class></style></map>";
    const QSignalSpy messages(m_library.get(), &MapLibrary::message);
    const auto text = [&messages](int index) { return messages.value(index).value(1).toString(); };
    m_library->openStyleSheet(path("style.mss"));
    QCOMPARE(text(0), "Loading stylesheet: NOT FOUND");
    QVERIFY(text(1).startsWith("Failed to load style sheet:"));
    QVERIFY(!m_library->styleSheet().isValid());

    write("style.mss", red);
    QTRY_VERIFY(m_library->styleSheet().isValid());
    QCOMPARE(text(2), "Loading stylesheet: " + QDir::toNativeSeparators(path("style.mss")));
    QCOMPARE(m_library->styleSheet().style("land").color, QColor(Qt::red));
    write("style.mss", "<map><style><class");
    QTRY_VERIFY(text(4).startsWith("Failed to load style sheet:"));
    QVERIFY2(m_library->styleSheet().contains("land"), "the last good one stays");
}

VYX_TEST(TestMapLibrary)
#include "tst_map_library.moc"
