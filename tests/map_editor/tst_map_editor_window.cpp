#include "map_editor_fixture.h"

#include "map_editor/map_editor_element_pane.h"
#include "map_editor/map_editor_point_pane.h"
#include "map_editor/map_editor_style_pane.h"
#include "map_editor/map_editor_tree_pane.h"
#include "test_program.h"

#include <QLineEdit>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>

class TestMapEditorWindow : public QObject, private MapEditorFixture {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void init() { setUp(); }
    void cleanup() { tearDown(); }

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
    void toolButtonsKeepTheirPlaces();
};

namespace {

bool near(const GeoCoordinate &one, const GeoCoordinate &other)
{
    return one.distanceTo(other) < 1.0;
}

} // namespace

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
