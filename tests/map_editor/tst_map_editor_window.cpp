#include "busy_workers.h"
#include "display/geo_map_display.h"
#include "geo/mercator_projector.h"
#include "map_editor/map_editor_element_pane.h"
#include "map_editor/map_editor_point_pane.h"
#include "map_editor/map_editor_style_pane.h"
#include "map_editor/map_editor_tree_pane.h"
#include "map_editor/map_editor_window.h"
#include "plan_view/geo_widget.h"
#include "test_program.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>

class TestMapEditorWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void dragsAPoint();
    void escapeBringsADraggedPointBack();
    void doubleClickInsertsAPoint();
    void drawsPoints_data();
    void drawsPoints();
    void placesASymbol();
    void leavesThePlanViewWhenClosed();
    void fieldsTakeEffectWhenSaving();
    void typedCoordinatesAreChecked();
    void pastesAllOrNothing();
    void filterNarrowsTheTree();
    void changesWhatIsSelected();
    void previewsStyles();
    void stepsOfABoxAreUndoneTogether();
    void closingWithChangesAsks_data();
    void closingWithChangesAsks();
    void closingWaitsForWhatIsBeingSaved();
    void changesMadeWhileAMapIsReadAreAskedAbout();
    void cancelledFileWorkChangesNothing();
    void failuresNameFileAndReason();
    void toolButtonsKeepTheirPlaces();

private:
    void answer(QMessageBox::StandardButton button);
    bool saved(const QString &path);
    MapData written() const;
    void mouse(QEvent::Type type, const QPointF &place, Qt::MouseButtons held = Qt::NoButton);
    void click(const QPointF &place);
    QPointF pixelOf(qsizetype point) const;
    GeoCoordinate placeOf(const QPointF &pixel) const;
    MapEditorStore &store() { return m_window->document().store(); }
    const QList<GeoCoordinate> &linePoints() { return store().map().groups[0].polylines[0].points; }
    template <typename Widget>
    Widget *find(const char *name) const
    {
        return m_window->findChild<Widget *>(QString::fromLatin1(name));
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    MercatorProjector m_projector;
    std::unique_ptr<GeoMapDisplay> m_map;
    std::unique_ptr<GeoWidget> m_plan;
    std::unique_ptr<MapEditorWindow> m_window;
    QString m_asked; // texts of the last message box
};

namespace {

constexpr MapElementRef ChosenLine{0, MapElementKind::Polyline, 0};
constexpr MapElementRef FixSymbol{0, MapElementKind::Symbol, 0};

bool near(const GeoCoordinate &one, const GeoCoordinate &other)
{
    return one.distanceTo(other) < 1.0;
}

} // namespace

void TestMapEditorWindow::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
}

// A line and a fix in a plan view of 400 by 300 pixels, and the line chosen.
void TestMapEditorWindow::init()
{
    m_asked.clear();
    m_dir = std::make_unique<QTemporaryDir>();
    m_map = std::make_unique<GeoMapDisplay>(&m_projector);
    m_plan = std::make_unique<GeoWidget>();
    m_plan->resize(400, 300);
    m_plan->setMapDisplay(m_map.get());
    double x = 0.0;
    double y = 0.0;
    m_projector.toCartesian(&x, &y, 48.5, 16.5);
    m_plan->setView(x, y, 1000.0);
    m_window = std::make_unique<MapEditorWindow>();
    MapElementGroup group;
    group.name = group.className = QStringLiteral("route");
    group.polylines = {{QStringLiteral("A1"), {{48.5, 16.0}, {48.5, 16.5}, {48.5, 17.0}}}};
    group.symbols = {{QStringLiteral("FIX"), QStringLiteral("waypoint"), {48.0, 16.0}}};
    MapData map;
    map.groups = {group};
    m_window->document().store().reset(map);
    QVERIFY(saved(m_dir->filePath("m.xml")));
    m_window->setGeoWidget(m_plan.get(), &m_projector);
    m_window->show();
    m_window->select(ChosenLine);
}

void TestMapEditorWindow::cleanup()
{
    m_window.reset();
    m_plan.reset();
    m_map.reset();
}

// Presses the button of the message box that comes up next.
void TestMapEditorWindow::answer(QMessageBox::StandardButton button)
{
    QTimer::singleShot(5, this, [this, button] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box) {
            answer(button);
            return;
        }
        m_asked = box->text() + u'\n' + box->informativeText();
        box->button(button)->click();
    });
}

bool TestMapEditorWindow::saved(const QString &path)
{
    QSignalSpy spy(m_window.get(), &MapEditorWindow::saved);
    m_window->saveFile(path);
    return spy.wait();
}

// What is in the file.
MapData TestMapEditorWindow::written() const
{
    const MapLoad loaded = loadMap(m_dir->filePath("m.xml"), MapFile::Xml, {});
    return loaded.data ? *loaded.data : MapData();
}

void TestMapEditorWindow::mouse(QEvent::Type type, const QPointF &place, Qt::MouseButtons held)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, place, place, button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(m_plan.get(), &event);
}

void TestMapEditorWindow::click(const QPointF &place)
{
    mouse(QEvent::MouseButtonPress, place, Qt::LeftButton);
    mouse(QEvent::MouseButtonRelease, place);
}

QPointF TestMapEditorWindow::pixelOf(qsizetype point) const
{
    const GeoCoordinate place = m_window->document().store().point(ChosenLine, point);
    double x = 0.0;
    double y = 0.0;
    MercatorProjector().toCartesian(&x, &y, place.latitude(), place.longitude());
    return m_plan->screenTransform().map(QPointF(x, y));
}

GeoCoordinate TestMapEditorWindow::placeOf(const QPointF &pixel) const
{
    const QPointF point = m_plan->screenTransform().inverted().map(pixel);
    double latitude = 0.0;
    double longitude = 0.0;
    MercatorProjector().toWgs84(&latitude, &longitude, point.x(), point.y());
    return GeoCoordinate(latitude, longitude);
}

void TestMapEditorWindow::dragsAPoint()
{
    const QSignalSpy cursor(m_plan.get(), &GeoWidget::cursorMoved);
    const QPointF handle = pixelOf(1);
    mouse(QEvent::MouseButtonPress, handle + QPointF(2, 1), Qt::LeftButton);
    for (const QPointF &step : {QPointF(12, 11), QPointF(22, 31), QPointF(32, 41)}) {
        mouse(QEvent::MouseMove, handle + step, Qt::LeftButton);
    }
    mouse(QEvent::MouseButtonRelease, handle + QPointF(32, 41));
    // The point keeps its distance from where it was gripped.
    QVERIFY(near(linePoints()[1], placeOf(handle + QPointF(30, 40))));
    QCOMPARE(linePoints()[0], GeoCoordinate(48.5, 16.0));
    QCOMPARE(cursor.size(), 3);
    QCOMPARE(m_window->document().undoStack().count(), 1);
    QCOMPARE(find<QTableView>("pointTable")->currentIndex().row(), 1);
    mouse(QEvent::MouseMove, handle);
    QCOMPARE(m_window->document().undoStack().count(), 1);
    QTest::keyClick(m_plan.get(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(linePoints()[1], GeoCoordinate(48.5, 16.5));
    // Where no handle is, the button does what it always did.
    const QSignalSpy clicks(m_plan.get(), &GeoWidget::geoPointerClickEvent);
    click(QPointF(20, 20));
    QCOMPARE(clicks.size(), 1);
    QTest::keyClick(m_plan.get(), Qt::Key_Delete);
    QCOMPARE(linePoints(), QList<GeoCoordinate>({{48.5, 16.0}, {48.5, 17.0}}));
}

void TestMapEditorWindow::escapeBringsADraggedPointBack()
{
    const QPointF handle = pixelOf(2);
    mouse(QEvent::MouseButtonPress, handle, Qt::LeftButton);
    mouse(QEvent::MouseMove, handle + QPointF(0, 50), Qt::LeftButton);
    QTest::keyClick(m_plan.get(), Qt::Key_Escape);
    mouse(QEvent::MouseMove, handle + QPointF(0, 60), Qt::LeftButton);
    QCOMPARE(linePoints()[2], GeoCoordinate(48.5, 17.0));
    QVERIFY(!m_window->isWindowModified());
}

void TestMapEditorWindow::doubleClickInsertsAPoint()
{
    const QPointF between = (pixelOf(1) + pixelOf(2)) / 2.0;
    click(between);
    mouse(QEvent::MouseButtonDblClick, between, Qt::LeftButton);
    QCOMPARE(linePoints().size(), 4);
    QVERIFY(near(linePoints()[2], placeOf(between)));
    QCOMPARE(find<QTableView>("pointTable")->currentIndex().row(), 2);
}

void TestMapEditorWindow::drawsPoints_data()
{
    QTest::addColumn<int>("after"); // the current point; -1: none
    QTest::addColumn<Qt::Key>("ends"); // none: a double-click
    QTest::addColumn<QList<int>>("drawn"); // where the new points stand
    QTest::newRow("at the end, by Enter") << -1 << Qt::Key_Return << QList<int>{3, 4};
    QTest::newRow("behind the current point, by a double-click") << 0 << Qt::Key_unknown << QList<int>{1, 2};
    QTest::newRow("Escape cancels") << -1 << Qt::Key_Escape << QList<int>{};
}

void TestMapEditorWindow::drawsPoints()
{
    QFETCH(int, after);
    QFETCH(Qt::Key, ends);
    QFETCH(QList<int>, drawn);
    if (after >= 0) {
        m_window->findChild<MapEditorPointPane *>()->setCurrentPoint(after);
    }
    const QList<GeoCoordinate> former = linePoints();
    m_window->draw(true);
    QCOMPARE(m_plan->cursor().shape(), Qt::CrossCursor);
    const QList<QPointF> clicks = {{50, 60}, {350, 250}};
    for (const QPointF &place : clicks) {
        click(place);
    }
    QCOMPARE(linePoints(), former); // nothing of it counts before the end
    if (ends == Qt::Key_unknown) {
        mouse(QEvent::MouseButtonDblClick, clicks.last(), Qt::LeftButton);
    } else {
        QTest::keyClick(m_plan.get(), ends);
    }
    QCOMPARE(linePoints().size(), 3 + drawn.size());
    for (qsizetype i = 0; i < drawn.size(); ++i) {
        QVERIFY(near(linePoints()[drawn[i]], placeOf(clicks[i])));
    }
    QCOMPARE(m_window->document().undoStack().count(), drawn.isEmpty() ? 0 : 1);
    QCOMPARE(m_plan->cursor().shape(), Qt::ArrowCursor);
}

void TestMapEditorWindow::placesASymbol()
{
    m_window->addElement(MapElementKind::Symbol);
    click(QPointF(70, 80));
    QCOMPARE(store().map().groups[0].symbols.size(), 2);
    QVERIFY(near(store().map().groups[0].symbols[1].coordinate, placeOf(QPointF(70, 80))));
    click(QPointF(300, 200)); // one place was enough
    QVERIFY(near(store().map().groups[0].symbols[1].coordinate, placeOf(QPointF(70, 80))));
}

void TestMapEditorWindow::leavesThePlanViewWhenClosed()
{
    const QImage edited = m_plan->grab().toImage();
    m_window->close();
    QVERIFY(!m_plan->pointerTool());
    QVERIFY(m_plan->grab().toImage() != edited);
}

// Ctrl+S leaves the field in which the operator has just typed.
void TestMapEditorWindow::fieldsTakeEffectWhenSaving()
{
    m_window->select(FixSymbol);
    find<QLineEdit>("elementName")->setText(QStringLiteral("BIXIT"));
    find<QLineEdit>("coordinate")->setText(QStringLiteral("48.25, 16.75"));
    const QSignalSpy saved(m_window.get(), &MapEditorWindow::saved);
    m_window->save();
    QTRY_COMPARE(saved.size(), 1);
    QVERIFY(!m_window->isWindowModified());
    const MapSymbolElement fix = written().groups.value(0).symbols.value(0);
    QCOMPARE(fix.name, QStringLiteral("BIXIT"));
    QVERIFY(near(fix.coordinate, GeoCoordinate(48.25, 16.75)));
}

void TestMapEditorWindow::typedCoordinatesAreChecked()
{
    m_window->select(FixSymbol);
    find<QLineEdit>("coordinate")->setText(QStringLiteral("486100N0160000E"));
    m_window->select(ChosenLine);
    QCOMPARE(store().point(FixSymbol, 0), GeoCoordinate(48.0, 16.0));
    QAbstractItemModel *points = find<QTableView>("pointTable")->model();
    QVERIFY(!points->setData(points->index(0, 0), QStringLiteral("nonsense")));
    QVERIFY(points->setData(points->index(0, 0), points->index(0, 0).data()));
    QVERIFY(!m_window->document().undoStack().canUndo());
    QVERIFY(points->setData(points->index(0, 1), QStringLiteral("483000s 0170000w")));
    QCOMPARE(linePoints()[0], GeoCoordinate(-48.5, -17.0));
}

void TestMapEditorWindow::pastesAllOrNothing()
{
    auto *pane = m_window->findChild<MapEditorPointPane *>();
    const QSignalSpy refusals(pane, &MapEditorPointPane::refused);
    pane->pasteText(QStringLiteral("480000N0160000E\nhere\n"));
    QCOMPARE(linePoints().size(), 3);
    QVERIFY(refusals.last().first().toString().contains(QStringLiteral("\"here\"")));
    pane->setCurrentPoint(0);
    pane->pasteText(QStringLiteral("480000N0160000E\n47.5 16.25\n"));
    QCOMPARE(linePoints().mid(1, 2), QList<GeoCoordinate>({{48.0, 16.0}, {47.5, 16.25}}));
    QCOMPARE(m_window->document().undoStack().count(), 1);
}

void TestMapEditorWindow::filterNarrowsTheTree()
{
    const QAbstractItemModel *tree = find<QTreeView>("mapTree")->model();
    const auto rows = [tree] { return tree->rowCount() == 0 ? 0 : tree->rowCount(tree->index(0, 0)); };
    QCOMPARE(rows(), 2);
    find<QLineEdit>("treeFilter")->setText(QStringLiteral("fix"));
    QCOMPARE(rows(), 1);
    m_window->select(ChosenLine); // hidden until now
    QCOMPARE(rows(), 2);
}

void TestMapEditorWindow::changesWhatIsSelected()
{
    const auto counts = [this] {
        const MapElementGroup &group = store().map().groups[0];
        return QList<qsizetype>{group.polylines.size(), group.symbols.size()};
    };
    find<QTreeView>("mapTree")->selectAll();
    m_window->select(FixSymbol);
    m_window->duplicateSelected();
    QCOMPARE(counts(), QList<qsizetype>({1, 2}));
    m_window->removeSelected(); // the copy, which is now chosen
    m_window->select(ChosenLine);
    m_window->removeSelected();
    QCOMPARE(counts(), QList<qsizetype>({0, 1}));
    QUndoStack &undo = m_window->document().undoStack();
    while (undo.canUndo()) {
        undo.undo();
    }
    QCOMPARE(counts(), QList<qsizetype>({1, 1}));
    QVERIFY(!m_window->isWindowModified());
}

void TestMapEditorWindow::previewsStyles()
{
    QSignalSpy previews(m_window.get(), &MapEditorWindow::stylePreview);
    const auto shown = [&previews] { return previews.last().first().value<MapStyleSheet>(); };
    auto *pane = m_window->findChild<MapEditorStylePane *>();
    QVERIFY(pane->addClass(QStringLiteral("route")) && !pane->addClass(QStringLiteral("route")));
    QVERIFY(m_window->saveStyleSheet(m_dir->filePath("s.mss")));
    find<QSpinBox>("lineWidth")->setValue(7);
    QCOMPARE(shown().style(QStringLiteral("route")).pen.width(), 7);
    m_window->document().undoStack().undo();
    QCOMPARE(shown().style(QStringLiteral("route")).pen.width(), 1);
    QCOMPARE(find<QSpinBox>("lineWidth")->value(), 1);
    find<QSpinBox>("lineWidth")->setValue(5);
    answer(QMessageBox::Discard);
    m_window->close();
    QVERIFY(m_asked.contains(QStringLiteral("styles")));
    QCOMPARE(shown().style(QStringLiteral("route")).pen.width(), 1);
}

void TestMapEditorWindow::stepsOfABoxAreUndoneTogether()
{
    auto *pane = m_window->findChild<MapEditorStylePane *>();
    QVERIFY(pane->addClass(QStringLiteral("a")) && pane->addClass(QStringLiteral("b")));
    QUndoStack &undo = m_window->document().undoStack();
    auto *width = find<QSpinBox>("lineWidth");
    const auto step = [width](const QList<int> &values) {
        for (const int value : values) {
            width->setValue(value);
        }
    };
    const int before = undo.count();
    step({2, 3, 4});
    Q_EMIT width->editingFinished();
    step({5, 6});
    pane->selectClass(QStringLiteral("a"));
    step({2, 3});
    QCOMPARE(undo.count(), before + 3);
    step({2, 1}); // back to where it was
    QCOMPARE(undo.count(), before + 2);
    undo.undo();
    QCOMPARE(m_window->document().styles().sheet().style(QStringLiteral("b")).pen.width(), 4);
    undo.undo();
    QCOMPARE(m_window->document().styles().sheet().style(QStringLiteral("b")).pen.width(), 1);
}

void TestMapEditorWindow::closingWithChangesAsks_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("button");
    QTest::addColumn<bool>("closes");
    QTest::addColumn<int>("saved"); // points in the file
    QTest::newRow("save") << QMessageBox::Save << true << 2;
    QTest::newRow("discard") << QMessageBox::Discard << true << 3;
    QTest::newRow("cancel") << QMessageBox::Cancel << false << 3;
}

void TestMapEditorWindow::closingWithChangesAsks()
{
    QFETCH(QMessageBox::StandardButton, button);
    m_window->document().removePoints(ChosenLine, {0});
    answer(button);
    m_window->close();
    QVERIFY(m_asked.contains(QStringLiteral("map")));
    QTRY_VERIFY(m_window->document().fileWork() == MapEditorDocument::FileWork::None);
    QTEST(!m_window->isVisible(), "closes");
    QTEST(static_cast<int>(written().groups.value(0).polylines.value(0).points.size()), "saved");
}

// Nobody stands still for it, and what was changed meanwhile is not lost either.
void TestMapEditorWindow::closingWaitsForWhatIsBeingSaved()
{
    bool closed = false;
    m_window->document().removePoints(ChosenLine, {0});
    {
        BusyWorkers busy;
        m_window->save();
        QVERIFY(!m_window->closeThen([&closed] { closed = true; }));
        m_window->document().removePoints(ChosenLine, {0});
        answer(QMessageBox::Save);
        QVERIFY(m_window->isVisible() && !busy.waitedFor());
    }
    QTRY_VERIFY(closed);
    QVERIFY(!m_window->isVisible());
    QCOMPARE(written().groups.value(0).polylines.value(0).points.size(), 1);

    // A failure keeps the window, and what is in it.
    m_window->show();
    m_window->document().addGroup(QStringLiteral("kept"), QStringLiteral("nil"));
    closed = false;
    m_window->saveFile(m_dir->filePath("none/m.map"));
    QVERIFY(!m_window->closeThen([&closed] { closed = true; }));
    answer(QMessageBox::Ok);
    QTRY_VERIFY(m_asked.contains(QStringLiteral("none/m.map")));
    QVERIFY(m_window->isVisible() && m_window->isWindowModified() && !closed);
}

void TestMapEditorWindow::changesMadeWhileAMapIsReadAreAskedAbout()
{
    QVERIFY(QFile::copy(m_dir->filePath("m.xml"), m_dir->filePath("other.xml")));
    const QString other = m_dir->filePath("other.xml");
    for (const QMessageBox::StandardButton button : {QMessageBox::Cancel, QMessageBox::Save}) {
        m_asked.clear();
        {
            const BusyWorkers busy;
            m_window->openFile(other);
            m_window->document().setGroupName(0, QStringLiteral("changed %1").arg(button));
        }
        answer(button);
        QTRY_VERIFY(!m_asked.isEmpty());
        if (button == QMessageBox::Cancel) { // else the other map may be there at once
            QCOMPARE(m_window->document().path(), m_dir->filePath("m.xml"));
            m_window->document().undoStack().undo();
        }
    }
    QTRY_COMPARE(m_window->document().path(), other);
    QCOMPARE(written().groups.value(0).name, QStringLiteral("changed %1").arg(QMessageBox::Save));
}

void TestMapEditorWindow::cancelledFileWorkChangesNothing()
{
    const MapData before = written();
    m_window->document().removePoints(ChosenLine, {0});
    {
        const BusyWorkers busy;
        m_window->save();
        find<QToolButton>("cancelFileWork")->click();
    }
    QTRY_VERIFY(m_window->document().fileWork() == MapEditorDocument::FileWork::None);
    QCOMPARE(written(), before);
    QVERIFY(m_window->isWindowModified() && m_window->isVisible());
    m_window->document().undoStack().undo();
    {
        const BusyWorkers busy;
        m_window->openFile(m_dir->filePath("none.xml"));
        find<QToolButton>("cancelFileWork")->click();
    }
    QTest::qWait(20);
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(m_window->document().path(), m_dir->filePath("m.xml"));
}

void TestMapEditorWindow::failuresNameFileAndReason()
{
    const auto explained = [this](const char *file, auto access) {
        m_asked.clear();
        const QString path = m_dir->filePath(QString::fromLatin1(file));
        access(*m_window, path);
        answer(QMessageBox::Ok);
        return QTest::qWaitFor([&] { return m_asked.contains(path); });
    };
    QVERIFY(explained("none.xml", [](MapEditorWindow &window, const QString &path) { window.openFile(path); }));
    QVERIFY(explained("m.txt", [](MapEditorWindow &window, const QString &path) { window.openFile(path); }));
    QVERIFY(explained("none/m.map", [](MapEditorWindow &window, const QString &path) { window.saveFile(path); }));
    QVERIFY(explained("none.mss", [](MapEditorWindow &window, const QString &path) { window.openStyleSheet(path); }));
    QVERIFY(
        explained("m.xml/s.mss", [](MapEditorWindow &window, const QString &path) { window.saveStyleSheet(path); }));
    QCOMPARE(linePoints().size(), 3);
    QCOMPARE(m_window->document().path(), m_dir->filePath("m.xml"));
}

void TestMapEditorWindow::toolButtonsKeepTheirPlaces()
{
    const auto places = [this] {
        QList<QRect> rects;
        for (const QToolButton *button : find<QToolBar>("editToolBar")->findChildren<QToolButton *>()) {
            rects.append(button->geometry());
        }
        return rects;
    };
    const QList<QRect> before = places();
    m_window->document().movePoint(ChosenLine, 0, {48.1, 16.1});
    m_window->document().undoStack().undo();
    QTest::qWait(20);
    QCOMPARE(places(), before);
}

VYX_TEST(TestMapEditorWindow)
#include "tst_map_editor_window.moc"
