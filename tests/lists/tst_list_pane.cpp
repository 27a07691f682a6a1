#include "list_tracks.h"
#include "lists/column_choice.h"
#include "lists/list_export.h"
#include "lists/list_order.h"
#include "lists/list_pane.h"
#include "lists/list_view.h"
#include "lists/track_list_model.h"
#include "test_files.h"
#include "test_program.h"

#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

// A list in its pane, as a person uses it.
class TestListPane : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_pane.reset(); }

    void selectionStaysWithItsTrack();
    void rowsStandStillWhileInUse();
    void filters_data();
    void filters();
    void filterLeavesTheSelection();
    void columnsAreChosenAndKept();
    void copiesAndExports();
    void firstColumnsAreWhole();

private:
    void show(const QList<TrackSnapshot> &tracks)
    {
        m_pane->takeChange([this, &tracks] { m_model->setSnapshot(listPicture(tracks)); });
    }
    // As they stand on the screen, from above.
    QString callsigns() const
    {
        QStringList texts;
        for (int row = 0; row < m_list->model()->rowCount(); ++row) {
            texts.append(m_list->model()->index(row, TrackListModel::Callsign).data().toString());
        }
        return texts.join(' ');
    }
    void type(const QString &filter)
    {
        m_filter->clear();
        QTest::keyClicks(m_filter, filter);
    }

    std::unique_ptr<TrackListModel> m_model;
    std::unique_ptr<ListPane> m_pane;
    ListView *m_list = nullptr;
    QLineEdit *m_filter = nullptr;
};

void TestListPane::init()
{
    m_pane.reset();
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight()); // off the list
    m_model = std::make_unique<TrackListModel>();
    m_pane = std::make_unique<ListPane>(m_model.get(), "trackList");
    m_pane->resize(500, 400);
    m_list = m_pane->list();
    m_list->sortByColumn(TrackListModel::Level, Qt::AscendingOrder);
    m_filter = m_pane->findChild<QLineEdit *>("trackListFilter");
    m_pane->show();
    m_pane->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_pane.get()));
    show({listTrack(1, "A", 1000), listTrack(2, "B", 2000), listTrack(3, "C", 3000)});
}

void TestListPane::selectionStaysWithItsTrack()
{
    m_list->selectRow(*m_model->rowOf(2));
    show({listTrack(3, "C", 3000), listTrack(2, "B", 9000)}); // its neighbour goes, it climbs past the other
    QCOMPARE(m_model->trackId(m_list->selectedRow()), 2u);
    QCOMPARE(callsigns(), "C B");
    show({listTrack(4, "D", 500)});
    QCOMPARE(m_list->selectedRow(), -1);
}

void TestListPane::rowsStandStillWhileInUse()
{
    const QPoint second = m_list->visualRect(m_list->model()->index(1, 0)).center();
    QTest::mouseMove(m_list->viewport(), second);
    QCoreApplication::processEvents();
    // A ends, C comes down past B, D comes lowest of all: nothing moves under the pointer.
    show({listTrack(2, "B", 2000), listTrack(3, "C", 500), listTrack(4, "D", 100)});
    QCOMPARE(callsigns(), " B C D");
    QTest::mouseClick(m_list->viewport(), Qt::LeftButton, {}, second);
    QCOMPARE(m_model->trackId(m_list->selectedRow()), 2u);
    show({listTrack(4, "D", 100)});
    QCOMPARE(callsigns(), "   D");
    QCOMPARE(m_list->selectedRow(), -1); // not an empty line
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(m_list->viewport(), &leave);
    show({listTrack(4, "D", 100), listTrack(3, "C", 50)});
    QCOMPARE(callsigns(), "C D");
    // The keyboard holds it too, as long as a row is selected.
    m_list->setFocus();
    m_list->selectRow(*m_model->rowOf(3));
    QTest::keyClick(m_list, Qt::Key_Down);
    show({listTrack(4, "D", 10), listTrack(3, "C", 5000)});
    QCOMPARE(callsigns(), "C D");
}

void TestListPane::filters_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("complaint"); // a part of it
    QTest::newRow("a word, any case") << "vyx1"
                                      << "VYX1 VYX12"
                                      << "";
    QTest::newRow("all words") << "vyx1 adsb"
                               << "VYX12"
                               << "";
    QTest::newRow("words in any shown column") << "ads-b 31"
                                               << "VYX12"
                                               << "";
    QTest::newRow("a hidden column is not looked at") << "103"
                                                      << ""
                                                      << "";
    QTest::newRow("but can be named") << "number=103"
                                      << "KVN7"
                                      << "";
    QTest::newRow("more than") << "fl>300"
                               << "VYX12 KVN7"
                               << "";
    QTest::newRow("at least, by the title") << "Level>=310"
                                            << "VYX12 KVN7"
                                            << "";
    QTest::newRow("less than, with a word") << "fl<305 vyx"
                                            << "VYX1"
                                            << "";
    QTest::newRow("quotes") << "\"Mode S\""
                            << "VYX1"
                            << "";
    QTest::newRow("no such column") << "height>3"
                                    << "VYX1 VYX12 KVN7"
                                    << "There is no column \"height\"";
    QTest::newRow("not a number") << "fl>high"
                                  << "VYX1 VYX12 KVN7"
                                  << "wants a number";
    QTest::newRow("not a column of numbers") << "type>3"
                                             << "VYX1 VYX12 KVN7"
                                             << "no numbers";
}

void TestListPane::filters()
{
    QFETCH(QString, filter);
    QFETCH(QString, rows);
    QFETCH(QString, complaint);
    QList<TrackSnapshot> tracks{listTrack(1, "VYX1", 9000), listTrack(2, "VYX12", 31000), listTrack(3, "KVN7", 32000)};
    tracks[0].type = Track::ModeS;
    tracks[1].type = Track::Adsb;
    show(tracks);
    type(filter);
    QCOMPARE(callsigns(), rows);
    bool complains = false;
    for (const QLabel *label : m_pane->findChildren<QLabel *>()) {
        complains = complains || (label->isVisible() && label->text().contains("All rows are shown"));
        QVERIFY(
            !label->isVisible() || !label->text().contains("All rows are shown") || label->text().contains(complaint));
    }
    QCOMPARE(complains, !complaint.isEmpty());
    QTest::keyClick(m_filter, Qt::Key_Escape);
    QCOMPARE(callsigns(), "VYX1 VYX12 KVN7");
}

void TestListPane::filterLeavesTheSelection()
{
    int changes = 0;
    m_list->selectRow(*m_model->rowOf(2));
    connect(m_list, &ListView::selectedRowChanged, m_list, [&changes] { ++changes; });
    type("C");
    show({listTrack(1, "A", 1000), listTrack(2, "B", 2000), listTrack(3, "C", 3000)});
    QCOMPARE(callsigns(), "C");
    QCOMPARE(changes, 0); // the scope keeps what is selected there
    show({listTrack(1, "AC", 1000), listTrack(2, "B", 2000), listTrack(5, "XC", 3000)});
    QCOMPARE(callsigns(), "AC XC");
}

void TestListPane::columnsAreChosenAndKept()
{
    using M = TrackListModel;
    QMenu menu;
    ColumnChoice::fillMenu(&menu, m_list);
    const QList<int> first = m_list->shownColumns();
    menu.actions().at(M::Age)->trigger();
    menu.actions().at(M::Callsign)->trigger();
    m_list->horizontalHeader()->moveSection(m_list->horizontalHeader()->visualIndex(M::Age), 0);
    m_list->horizontalHeader()->resizeSection(M::Level, 123);
    m_list->sortByColumn(M::GroundSpeed, Qt::DescendingOrder);
    QList<int> chosen = first;
    chosen.removeOne(M::Callsign);
    chosen.prepend(M::Age);
    QCOMPARE(m_list->shownColumns(), chosen);
    const QByteArray kept = ColumnChoice::toBytes(*m_list);

    ListView other(m_model.get());
    ColumnChoice::fromBytes(kept, other);
    QCOMPARE(other.shownColumns(), chosen);
    QCOMPARE(other.columnWidth(M::Level), 123);
    ListView larger(m_model.get()); // by now the titles need more: another language, or text size
    QFont font = larger.horizontalHeader()->font();
    font.setPointSizeF(font.pointSizeF() * 2.0);
    larger.horizontalHeader()->setFont(font);
    larger.showDefaultColumns();
    ColumnChoice::fromBytes(kept, larger);
    QVERIFY(larger.fittingWidth(M::Squawk) > other.columnWidth(M::Squawk));
    QCOMPARE(larger.columnWidth(M::Squawk), larger.fittingWidth(M::Squawk));
    QCOMPARE(other.horizontalHeader()->sortIndicatorSection(), int(M::GroundSpeed));
    QCOMPARE(other.horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
    for (const char *damaged : {"", "{", "{\"columns\":[{\"key\":\"nonsense\"},7]}"}) {
        ListView fresh(m_model.get());
        ColumnChoice::fromBytes(damaged, fresh);
        QCOMPARE(fresh.shownColumns(), first);
    }
    menu.actions().constLast()->trigger(); // Default Columns
    QCOMPARE(m_list->shownColumns(), first);
    // None can be taken away that leaves nothing.
    for (int column = 0; column < M::ColumnCount; ++column) {
        m_list->setColumnHidden(column, column != M::Squawk);
    }
    QMenu last;
    ColumnChoice::fillMenu(&last, m_list);
    QVERIFY(!last.actions().at(M::Squawk)->isEnabled() && last.actions().at(M::Age)->isEnabled());
}

void TestListPane::copiesAndExports()
{
    for (int column = 0; column < TrackListModel::ColumnCount; ++column) {
        m_list->setColumnHidden(column, column != TrackListModel::Callsign && column != TrackListModel::Level);
    }
    show({listTrack(1, "A,1", 1000), listTrack(2, "B\"2", 2000), listTrack(3, QString::fromUtf8("Ü"), 0)});
    m_list->setFocus();
    m_list->selectRow(*m_model->rowOf(1));
    QTest::keyClick(m_list, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), "A,1\t010\n");
    QCOMPARE(ListExport::listText(*m_list), QString::fromUtf8("Callsign\tLevel\nA,1\t010\nB\"2\t020\nÜ\t\n"));
    QTemporaryDir directory;
    const QString file = directory.filePath("list.csv");
    QCOMPARE(ListExport::saveCsv(*m_list, file), "");
    QCOMPARE(QString::fromUtf8(contentsOf(file)),
        QString::fromUtf8("Callsign,Level\r\n\"A,1\",010\r\n\"B\"\"2\",020\r\nÜ,\r\n"));
    QVERIFY(ListExport::saveCsv(*m_list, directory.filePath("no/such/list.csv")).contains("list.csv"));
}

// A pane of the width that it asks for clips no column.
void TestListPane::firstColumnsAreWhole()
{
    for (const int most : {100, 300, 400, 5000}) {
        m_pane->resize(m_list->widthOfWholeColumns(most), 300);
        QCoreApplication::processEvents();
        int right = 0;
        bool cut = false;
        for (const int column : m_list->shownColumns()) {
            const int left = m_list->columnViewportPosition(column);
            right = left + m_list->columnWidth(column);
            cut = cut || (left < m_list->viewport()->width() && right > m_list->viewport()->width());
        }
        QVERIFY2(!cut, qPrintable(QString::number(most)));
    }
    QVERIFY(m_list->widthOfWholeColumns(5000) < 700);
}

VYX_TEST(TestListPane)
#include "tst_list_pane.moc"
