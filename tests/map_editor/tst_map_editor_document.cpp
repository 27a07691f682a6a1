#include "busy_workers.h"
#include "geo/mercator_projector.h"
#include "map_editor/map_editor_document.h"
#include "map_editor/map_editor_geometry.h"
#include "map_editor/map_editor_point_model.h"
#include "map_editor/map_editor_tree_model.h"
#include "test_files.h"
#include "test_program.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

class TestMapEditorDocument : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void undoesAndRedoesAnything_data();
    void undoesAndRedoesAnything();
    void dragIsOneStep();
    void movedPointKeepsItsAltitude();
    void linesGoOnBeyondTheDateLine();
    void keepsOrderWhenMovingToAGroup();
    void modifiedFollowsUndoAndSaving();
    void savesWithBackup_data();
    void savesWithBackup();
    void failuresLoseNothing();
    void legacyIsSavedAsAnotherFormat();
    void namesTheFilesOfImages();
    void savesTheMapAsItWas();
    void aDocumentThatGoesIsWrittenToItsEnd();
    void savesStylesWithBackup();
};

namespace {

constexpr MapElementRef FirstLine{0, MapElementKind::Polyline, 0};

MapData sampleMap()
{
    MapElementGroup routes;
    routes.name = QStringLiteral("Routes");
    routes.className = QStringLiteral("route");
    routes.polylines = {{QStringLiteral("A1"), {{48.0, 16.0}, {49.0, 17.0}, {50.0, 16.5}}}, {QStringLiteral("A2"), {}}};
    routes.polygons = {{QStringLiteral("TMA"), {{47.0, 15.0}, {47.0, 16.0}, {48.0, 16.0}}}};
    MapElementGroup fixes;
    fixes.className = QStringLiteral("fix");
    fixes.labels = {{QStringLiteral("L"), QStringLiteral("two\nlines"), {48.5, 16.5}}};
    fixes.symbols = {{QStringLiteral("FIX"), QStringLiteral("waypoint"), {48.25, 16.25}}};
    QPixmap picture(3, 2);
    picture.fill(Qt::red);
    fixes.images = {{QStringLiteral("I"), QStringLiteral("i.png"), picture, {49.0, 15.0}, {48.0, 16.0}}};
    MapData map;
    map.name = QStringLiteral("Sample");
    map.groups = {routes, fixes};
    return map;
}

bool idle(const MapEditorDocument &document)
{
    return QTest::qWaitFor([&] { return document.fileWork() == MapEditorDocument::FileWork::None; });
}

bool opens(MapEditorDocument &document, const QString &path, QString *error = nullptr)
{
    bool good = false;
    const MapFile::Format format = MapFile::formatFromFileName(path);
    document.load(path, format, [&](const MapLoad &loaded) {
        good = !loaded.data.isNull();
        if (good) {
            document.take(*loaded.data, path, format);
        } else if (error) {
            *error = loaded.error;
        }
    });
    return idle(document) && good;
}

bool saves(MapEditorDocument &document, const QString &path, MapFile::Format format, QString *error = nullptr)
{
    bool good = false;
    document.saveAs(path, format, [&](bool saved, const QString &reason) {
        good = saved;
        if (error) {
            *error = reason;
        }
    });
    return idle(document) && good;
}

// Makes one change after another at random places.
class RandomHand {
public:
    RandomHand(MapEditorDocument &document, quint32 seed) : m_document(document), m_random(seed) { }

    void change()
    {
        const MapElementRef ref = element();
        switch (below(14)) {
        case 0:
            return m_document.setMeta(meta());
        case 1:
            m_document.addGroup(text(), text());
            return;
        case 2:
            return m_document.setGroupName(group(), text());
        case 3:
            return m_document.setGroupClass(group(), text());
        case 4:
            return m_document.moveGroup(group(), group());
        case 5:
            m_document.duplicate({{}, {ref, element()}});
            return;
        case 6:
            return m_document.remove(removable());
        case 7:
            return m_document.moveToGroup({ref, element(), element()}, group());
        case 8:
            return m_document.setName(ref, text());
        case 9:
            return m_document.putStyle(defaultStyleClass(text()));
        default:
            return changePoints(ref);
        }
    }

private:
    void changePoints(const MapElementRef &ref)
    {
        const int count = static_cast<int>(m_document.store().pointCount(ref));
        switch (below(4)) {
        case 0:
            return m_document.insertPoints(ref, below(count + 1), {coordinate(), coordinate(), {}});
        case 1:
            return count > 2 ? m_document.removePoints(ref, {count - 1, 0, count - 2}) : void();
        case 2:
            return m_document.reversePoints(ref);
        default:
            return count > 0 ? m_document.movePoint(ref, below(count), coordinate()) : void();
        }
    }

    MapElementRef element()
    {
        MapEditorStore &store = m_document.store();
        const int at = group();
        if (store.elementCount(at) == 0) {
            return m_document.addElement(at, MapSymbolElement{text(), text(), coordinate()});
        }
        return store.refAt(at, below(store.elementCount(at)));
    }

    MapEditorSelection removable()
    {
        MapEditorSelection chosen{{}, {element(), element(), element()}};
        if (m_document.store().groupCount() > 2) {
            chosen.groups.append(group());
        }
        return chosen;
    }

    MapData meta()
    {
        MapData data;
        data.title = text();
        return data;
    }

    int below(int end) { return static_cast<int>(m_random.bounded(end)); }
    int group() { return below(m_document.store().groupCount()); }
    QString text() { return QString::number(below(20)); }
    GeoCoordinate coordinate() { return GeoCoordinate(below(80), below(170)); }

    MapEditorDocument &m_document;
    QRandomGenerator m_random;
};

} // namespace

void TestMapEditorDocument::undoesAndRedoesAnything_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 8; ++seed) {
        QTest::addRow("seed %u", seed) << seed;
    }
}

void TestMapEditorDocument::undoesAndRedoesAnything()
{
    QFETCH(quint32, seed);
    MapEditorDocument document;
    document.store().reset(sampleMap());
    MapEditorTreeModel tree(&document);
    MapEditorPointModel points(&document);
    points.setElement(FirstLine);
    const QAbstractItemModelTester treeTester(&tree, QAbstractItemModelTester::FailureReportingMode::QtTest);
    const QAbstractItemModelTester pointTester(&points, QAbstractItemModelTester::FailureReportingMode::QtTest);
    MercatorProjector projector;
    const MapEditorGeometry followed(&document.store(), &projector);

    RandomHand hand(document, seed);
    for (int i = 0; i < 150; ++i) {
        hand.change();
    }
    QUndoStack &undo = document.undoStack();
    QList<MapData> states;
    for (; undo.canUndo(); undo.undo()) {
        states.append(document.store().map());
    }
    QCOMPARE(document.store().map(), sampleMap());
    QVERIFY(document.styles().sheet().isEmpty());
    QVERIFY(!document.isModified() && !document.styles().isModified());
    for (; undo.canRedo(); states.removeLast()) {
        undo.redo();
        QVERIFY(document.store().map() == states.constLast());
    }
    const MapEditorGeometry fresh(&document.store(), &projector);
    for (int group = 0; group < document.store().groupCount(); ++group) {
        for (int row = 0; row < document.store().elementCount(group); ++row) {
            const MapElementRef ref = document.store().refAt(group, row);
            QCOMPARE(followed.shape(ref).points.size(), fresh.shape(ref).points.size());
            QCOMPARE(tree.refOf(tree.indexOf(ref)), ref);
        }
    }
}

void TestMapEditorDocument::dragIsOneStep()
{
    MapEditorDocument document;
    document.store().reset(sampleMap());
    const GeoCoordinate start = document.store().point(FirstLine, 1);
    const auto drag = [&document](quint64 number, const QList<GeoCoordinate> &places) {
        for (const GeoCoordinate &place : places) {
            document.movePoint(FirstLine, 1, place, number);
        }
    };
    drag(1, {{49.1, 17.1}, {49.2, 17.2}, {49.3, 17.3}});
    drag(2, {{49.4, 17.4}, {49.5, 17.5}});
    QCOMPARE(document.undoStack().count(), 2);
    document.undoStack().undo();
    QCOMPARE(document.store().point(FirstLine, 1), GeoCoordinate(49.3, 17.3));
    document.undoStack().undo();
    QCOMPARE(document.store().point(FirstLine, 1), start);
    drag(3, {{49.1, 17.1}, start});
    QCOMPARE(document.undoStack().count(), 0);
    QVERIFY(!document.isModified());
}

void TestMapEditorDocument::movedPointKeepsItsAltitude()
{
    MapEditorDocument document;
    document.store().reset(sampleMap());
    document.movePoint(FirstLine, 0, GeoCoordinate(48.1, 16.1, 250.0));
    document.movePoint(FirstLine, 0, GeoCoordinate(48.2, 16.2));
    QCOMPARE(document.store().point(FirstLine, 0), GeoCoordinate(48.2, 16.2, 250.0));
}

void TestMapEditorDocument::linesGoOnBeyondTheDateLine()
{
    MapEditorDocument document;
    document.store().reset(sampleMap());
    MercatorProjector projector;
    const MapEditorGeometry geometry(&document.store(), &projector);
    document.removePoints(FirstLine, {0, 1, 2});
    document.insertPoints(FirstLine, 0, {{0.0, 179.0}, {0.0, -179.0}, {0.0, -178.0}});
    const QPolygonF points = geometry.shape(FirstLine).points;
    for (int i = 1; i < 3; ++i) {
        QVERIFY(points[i].x() > points[i - 1].x() && points[i].x() - points[i - 1].x() < 250e3);
        QVERIFY(geometry.unproject(points[i]).distanceTo(document.store().point(FirstLine, i)) < 1.0);
    }
}

void TestMapEditorDocument::keepsOrderWhenMovingToAGroup()
{
    MapEditorDocument document;
    MapData map = sampleMap();
    for (const char *name : {"S0", "S1", "S2", "S3"}) {
        map.groups[0].symbols.append({QString::fromLatin1(name), {}, {}});
    }
    document.store().reset(map);
    const auto symbol = [](int index) { return MapElementRef{0, MapElementKind::Symbol, index}; };
    document.moveToGroup({symbol(3), symbol(0), symbol(2)}, 1);
    QStringList names;
    for (const MapSymbolElement &moved : document.store().map().groups[1].symbols) {
        names.append(moved.name);
    }
    QCOMPARE(names, QStringList({"FIX", "S0", "S2", "S3"}));
    QCOMPARE(document.store().map().groups[0].symbols.size(), 1);
}

void TestMapEditorDocument::modifiedFollowsUndoAndSaving()
{
    const QTemporaryDir dir;
    MapEditorDocument document;
    document.addGroup(QStringLiteral("one"), QStringLiteral("nil"));
    QVERIFY(saves(document, dir.filePath("m.xml"), MapFile::Xml));
    QVERIFY(!document.isModified());
    document.putStyle(defaultStyleClass(QStringLiteral("nil")));
    QVERIFY(!document.isModified() && document.styles().isModified());
    document.setGroupName(0, QStringLiteral("two"));
    document.undoStack().undo();
    QVERIFY(!document.isModified());
    document.undoStack().undo();
    QVERIFY(!document.styles().isModified());
    document.undoStack().undo();
    QVERIFY(document.isModified());
    // Another change from here never leads to what was saved.
    document.addGroup(QStringLiteral("one"), QStringLiteral("nil"));
    QVERIFY(document.isModified());
}

void TestMapEditorDocument::savesWithBackup_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<MapFile::Format>("format");
    QTest::newRow("XML") << "m.xml" << MapFile::Xml;
    QTest::newRow("binary") << "m.map" << MapFile::Map;
}

void TestMapEditorDocument::savesWithBackup()
{
    QFETCH(QString, name);
    QFETCH(MapFile::Format, format);
    const QTemporaryDir dir;
    const QString path = dir.filePath(name);
    MapEditorDocument document;
    document.store().reset(sampleMap());
    QVERIFY(saves(document, path, format));
    QVERIFY(!QFile::exists(path + ".bak"));
    for (const char *title : {"second", "third"}) {
        const QByteArray former = contentsOf(path);
        MapData meta;
        meta.title = QString::fromLatin1(title);
        document.setMeta(meta);
        QVERIFY(saves(document, path, format));
        QCOMPARE(contentsOf(path + ".bak"), former);
        QVERIFY(contentsOf(path) != former);
    }
    MapEditorDocument again;
    QString error;
    QVERIFY2(opens(again, path, &error), qPrintable(error));
    QCOMPARE(again.store().map().title, QStringLiteral("third"));
    QCOMPARE(again.store().map().groups, document.store().map().groups);
    QVERIFY(again.canSave() && !again.isModified());
}

void TestMapEditorDocument::failuresLoseNothing()
{
    const QTemporaryDir dir;
    const QString path = dir.filePath("m.map");
    MapEditorDocument document;
    document.store().reset(sampleMap());
    QVERIFY(saves(document, path, MapFile::Map));
    document.setGroupName(0, QStringLiteral("changed"));
    const QByteArray onDisk = contentsOf(path);
    // No backup can take the place of a folder that is not empty.
    QVERIFY(QDir(dir.path()).mkpath("m.map.bak/full"));
    QString error;
    QVERIFY(!saves(document, path, MapFile::Map, &error));
    QCOMPARE(error, QStringLiteral("Cannot write backup file \"%1.bak\".").arg(path));
    QVERIFY(!saves(document, dir.filePath("none/m.map"), MapFile::Map, &error));
    QVERIFY(error.contains("none/m.map"));
    QVERIFY(!saves(document, dir.filePath("m.mapx"), MapFile::Legacy, &error));
    writtenTo(dir.filePath("bad.xml"), "<map><data><group");
    for (const char *name : {"bad.xml", "none.map", "m.txt"}) {
        error.clear();
        QVERIFY(!opens(document, dir.filePath(name), &error));
        QVERIFY(!error.isEmpty());
    }
    QCOMPARE(contentsOf(path), onDisk);
    QVERIFY(document.isModified() && document.undoStack().canUndo());
    QCOMPARE(document.path(), path);
    QCOMPARE(document.store().map().groups[0].name, QStringLiteral("changed"));
}

void TestMapEditorDocument::legacyIsSavedAsAnotherFormat()
{
    const QTemporaryDir dir;
    const QByteArray legacy = R"(<airport><line class="route"><point lat="48" lon="16"/></line></airport>)";
    writtenTo(dir.filePath("old.mapx"), legacy);
    MapEditorDocument document;
    QVERIFY(opens(document, dir.filePath("old.mapx")));
    QString error;
    QVERIFY(!document.canSave());
    QVERIFY(!saves(document, dir.filePath("old.mapx"), MapFile::Legacy, &error) && !error.isEmpty());
    QVERIFY(saves(document, dir.filePath("new.xml"), MapFile::Xml, &error));
    QVERIFY(document.canSave());
    QCOMPARE(contentsOf(dir.filePath("old.mapx")), legacy);
}

void TestMapEditorDocument::namesTheFilesOfImages()
{
    const QTemporaryDir dir;
    writtenTo(dir.filePath("m-1.png"), "taken");
    MapData map = sampleMap();
    map.groups[1].images[0].file.clear();
    MapEditorDocument document;
    document.store().reset(map);
    for (int i = 0; i < 2; ++i) {
        QVERIFY(saves(document, dir.filePath("m.xml"), MapFile::Xml));
    }
    QCOMPARE(document.store().map().groups[1].images[0].file, QStringLiteral("m-2.png"));
    QCOMPARE(QDir(dir.path()).entryList({"*.png"}, QDir::Files), QStringList({"m-1.png", "m-2.png"}));
    QCOMPARE(contentsOf(dir.filePath("m-1.png")), QByteArray("taken"));
}

// Not as it is when a worker gets to it.
void TestMapEditorDocument::savesTheMapAsItWas()
{
    const QTemporaryDir dir;
    MapEditorDocument document;
    document.store().reset(sampleMap());
    document.setGroupName(0, QStringLiteral("saved"));
    {
        const BusyWorkers busy;
        document.saveAs(dir.filePath("m.map"), MapFile::Map, [](bool, const QString &) {});
        document.setGroupName(0, QStringLiteral("later"));
    }
    QVERIFY(idle(document) && document.isModified());
    document.undoStack().undo();
    QVERIFY(!document.isModified());
    MapEditorDocument again;
    QVERIFY(opens(again, dir.filePath("m.map")));
    QCOMPARE(again.store().map().groups[0].name, QStringLiteral("saved"));
}

void TestMapEditorDocument::aDocumentThatGoesIsWrittenToItsEnd()
{
    const QTemporaryDir dir;
    {
        const BusyWorkers busy;
        MapEditorDocument document;
        document.store().reset(sampleMap());
        document.saveAs(dir.filePath("m.map"), MapFile::Map, [](bool, const QString &) {});
    }
    QTRY_VERIFY(loadMap(dir.filePath("m.map"), MapFile::Map, {}).data);
}

void TestMapEditorDocument::savesStylesWithBackup()
{
    const QTemporaryDir dir;
    const QString path = dir.filePath("s.mss");
    MapEditorDocument document;
    QString error;
    document.putStyle(defaultStyleClass(QStringLiteral("route")));
    QVERIFY(!document.styles().save(QString(), &error) && !error.isEmpty());
    QVERIFY(document.styles().save(path, &error));
    const QByteArray former = contentsOf(path);
    MapStyleClass style = document.styles().sheet().style(QStringLiteral("route"));
    style.pen.setWidth(3);
    document.putStyle(style);
    QVERIFY(document.styles().isModified());
    QVERIFY(document.styles().save(path, &error));
    QCOMPARE(contentsOf(path + ".bak"), former);
    MapStyleSheet read;
    QVERIFY(read.load(path, &error));
    QCOMPARE(read.style(QStringLiteral("route")).pen.width(), 3);
}

VYX_TEST(TestMapEditorDocument)
#include "tst_map_editor_document.moc"
