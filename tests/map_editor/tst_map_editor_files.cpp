#include "busy_workers.h"
#include "map_editor_fixture.h"

#include "test_program.h"

#include <QFile>
#include <QStandardPaths>
#include <QToolButton>

// What becomes of maps that are read and written beside everything else, and of the operator's changes meanwhile.
class TestMapEditorFiles : public QObject, private MapEditorFixture {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void closingWithChangesAsks_data();
    void closingWithChangesAsks();
    void closingWaitsForWhatIsBeingSaved();
    void changesMadeWhileAMapIsReadAreAskedAbout();
    void cancelledFileWorkChangesNothing();
    void failuresNameFileAndReason();
};

void TestMapEditorFiles::closingWithChangesAsks_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("button");
    QTest::addColumn<bool>("closes");
    QTest::addColumn<int>("saved"); // points in the file
    QTest::newRow("save") << QMessageBox::Save << true << 2;
    QTest::newRow("discard") << QMessageBox::Discard << true << 3;
    QTest::newRow("cancel") << QMessageBox::Cancel << false << 3;
}

void TestMapEditorFiles::closingWithChangesAsks()
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
void TestMapEditorFiles::closingWaitsForWhatIsBeingSaved()
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

void TestMapEditorFiles::changesMadeWhileAMapIsReadAreAskedAbout()
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

void TestMapEditorFiles::cancelledFileWorkChangesNothing()
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

void TestMapEditorFiles::failuresNameFileAndReason()
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

VYX_TEST(TestMapEditorFiles)
#include "tst_map_editor_files.moc"
