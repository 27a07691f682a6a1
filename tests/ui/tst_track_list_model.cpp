#include "tracking/track.h"
#include "ui/list_sort_model.h"
#include "ui/list_view.h"
#include "ui/track_list_model.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

#include <initializer_list>

namespace {

TrackSnapshot track(quint64 id, const QString &callsign, int level)
{
    TrackSnapshot snapshot;
    snapshot.incarnationId = id;
    snapshot.trackNumber = static_cast<unsigned int>(id) + 100;
    snapshot.callsign = callsign;
    snapshot.callsignValid = !callsign.isEmpty();
    snapshot.level = level;
    snapshot.levelValid = level != 0;
    return snapshot;
}

QStringList shown(const QAbstractItemModel &model, int column)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        texts.append(model.index(row, column).data().toString());
    }
    return texts;
}

} // namespace

class TestTrackListModel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsValues_data();
    void showsValues();
    void changesOnlyWhatChanged();
    void survivesRandomRefreshes();
    void sorts_data();
    void sorts();
    void selectionStaysWithItsTrack();
    void listKeepsItsKeys_data();
    void listKeepsItsKeys();
};

void TestTrackListModel::showsValues_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<TrackSnapshot>("snapshot");
    QTest::addColumn<QString>("text");

    TrackSnapshot known;
    known.callsign = "VYX12";
    known.callsignValid = true;
    known.modeAString = "7500G";
    known.modeACodeValid = true;
    known.level = 5950;
    known.levelValid = true;
    known.verticalTrend = Track::TrendDescending;
    known.groundSpeed = 451.6;
    known.groundSpeedValid = true;
    known.heading = 359.7;
    known.headingValid = true;
    known.verticalRate = 1250;
    known.verticalRateValid = true;
    known.type = Track::ModeSPsr;
    known.state = Track::Coasting;
    const auto row = [](const char *name, int column, const TrackSnapshot &snapshot, const QString &text) {
        QTest::newRow(name) << column << snapshot << text;
    };
    row("callsign", TrackListModel::Callsign, known, "VYX12");
    row("squawk with its quality", TrackListModel::Squawk, known, "7500G");
    row("level descending", TrackListModel::Level, known, QString("059") + QChar(0x2193));
    row("speed rounded", TrackListModel::GroundSpeed, known, "452");
    row("north is 360", TrackListModel::Heading, known, "360");
    row("climb with its sign", TrackListModel::VerticalRate, known, "+1250");
    row("type", TrackListModel::Type, known, "Mode S+PSR");
    row("state", TrackListModel::State, known, "Coasting");

    TrackSnapshot unknown = known;
    unknown.callsignValid = unknown.modeACodeValid = unknown.levelValid = false;
    unknown.groundSpeedValid = unknown.headingValid = unknown.verticalRateValid = false;
    unknown.type = 99;
    for (const int column :
        {TrackListModel::Callsign, TrackListModel::Squawk, TrackListModel::IcaoAddr, TrackListModel::Level,
            TrackListModel::GroundSpeed, TrackListModel::Heading, TrackListModel::VerticalRate, TrackListModel::Type}) {
        QTest::addRow("nothing known in column %d", column) << column << unknown << QString();
    }
}

void TestTrackListModel::showsValues()
{
    QFETCH(int, column);
    QFETCH(TrackSnapshot, snapshot);
    QFETCH(QString, text);

    TrackListModel model;
    model.setTracks({snapshot});
    QCOMPARE(model.index(0, column).data().toString(), text);
}

void TestTrackListModel::changesOnlyWhatChanged()
{
    TrackListModel model;
    model.setTracks({track(1, "A", 100), track(2, "B", 100), track(3, "C", 100), track(4, "D", 100)});
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);

    // The same tracks in another order, and moved by less than the list shows.
    TrackSnapshot second = track(2, "B", 140);
    second.carCoordinate = {100, 100};
    model.setTracks({track(4, "D", 100), second, track(1, "A", 100), track(3, "C", 100)});
    QCOMPARE(inserted.size() + removed.size() + changed.size(), 0);

    // 1 and 2 end, 3 climbs, 5 comes.
    model.setTracks({track(5, "E", 100), track(4, "D", 100), track(3, "C", 900)});
    QCOMPARE(removed.size(), 1);
    QCOMPARE(inserted.size(), 1);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed[0][0].toModelIndex().row(), 0);
    QCOMPARE(changed[0][1].toModelIndex().row(), 0);
    QCOMPARE(reset.size(), 0);
    QCOMPARE(shown(model, TrackListModel::Callsign), QStringList({"C", "D", "E"}));
    QCOMPARE(model.rowOf(5), std::optional(2));
    QCOMPARE(model.rowOf(1), std::nullopt);
}

void TestTrackListModel::survivesRandomRefreshes()
{
    TrackListModel model;
    const QAbstractItemModelTester modelTester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    ListSortModel sorted(&model);
    const QAbstractItemModelTester sortTester(&sorted, QAbstractItemModelTester::FailureReportingMode::QtTest);
    sorted.sort(TrackListModel::Level, Qt::DescendingOrder);
    quint32 state = 12345;
    const auto next = [&state](quint32 limit) { return (state = state * 1664525u + 1013904223u) / 65536u % limit; };
    for (int round = 0; round < 60; ++round) {
        QList<TrackSnapshot> tracks;
        for (quint64 id = 1; id <= 20; ++id) {
            if (next(3) != 0) {
                tracks.append(track(id, QString("T%1").arg(id), static_cast<int>(next(5)) * 1000));
            }
        }
        model.setTracks(tracks);
        QCOMPARE(model.rowCount(), tracks.size());
        for (const TrackSnapshot &expected : tracks) {
            const std::optional<int> row = model.rowOf(expected.incarnationId);
            QVERIFY(row);
            QCOMPARE(model.trackId(*row), expected.incarnationId);
            QCOMPARE(model.record(*row).level.value_or(0), expected.level / 100);
        }
    }
}

void TestTrackListModel::sorts_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<Qt::SortOrder>("order");
    QTest::addColumn<QStringList>("numbers");

    // Numbers: 101 AAL2 FL 90, 102 without callsign FL 350, 103 AAL1 without level.
    QTest::newRow("levels as numbers") << int(TrackListModel::Level) << Qt::AscendingOrder
                                       << QStringList({"101", "102", "103"});
    QTest::newRow("unknown level last, downwards too")
        << int(TrackListModel::Level) << Qt::DescendingOrder << QStringList({"102", "101", "103"});
    QTest::newRow("callsigns") << int(TrackListModel::Callsign) << Qt::AscendingOrder
                               << QStringList({"103", "101", "102"});
    QTest::newRow("no callsign last, downwards too")
        << int(TrackListModel::Callsign) << Qt::DescendingOrder << QStringList({"101", "103", "102"});
    QTest::newRow("track numbers") << int(TrackListModel::TrackNumber) << Qt::DescendingOrder
                                   << QStringList({"103", "102", "101"});
}

void TestTrackListModel::sorts()
{
    QFETCH(int, column);
    QFETCH(Qt::SortOrder, order);
    QFETCH(QStringList, numbers);

    TrackListModel model;
    model.setTracks({track(1, "AAL2", 9000), track(2, "", 35000), track(3, "AAL1", 0)});
    ListSortModel sorted(&model);
    sorted.sort(column, order);
    QCOMPARE(shown(sorted, TrackListModel::TrackNumber), numbers);
}

void TestTrackListModel::selectionStaysWithItsTrack()
{
    TrackListModel model;
    ListView view(&model, TrackListModel::widestTexts());
    view.sortByColumn(TrackListModel::Level, Qt::AscendingOrder);
    model.setTracks({track(1, "A", 1000), track(2, "B", 2000), track(3, "C", 3000)});
    view.selectRow(*model.rowOf(2));

    model.setTracks({track(3, "C", 3000), track(2, "B", 9000)}); // its neighbour goes, it climbs past the other
    QCOMPARE(model.trackId(view.selectedRow()), 2u);
    model.setTracks({track(4, "D", 500), track(2, "B", 100)});
    QCOMPARE(model.trackId(view.selectedRow()), 2u);
    model.setTracks({track(4, "D", 500)});
    QCOMPARE(view.selectedRow(), -1);
}

void TestTrackListModel::listKeepsItsKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<bool>("kept");

    QTest::newRow("down moves in the list") << int(Qt::Key_Down) << int(Qt::NoModifier) << true;
    QTest::newRow("left scrolls the list") << int(Qt::Key_Left) << int(Qt::NoModifier) << true;
    QTest::newRow("zoom goes to the map") << int(Qt::Key_Equal) << int(Qt::NoModifier) << false;
    QTest::newRow("rotation goes to the map") << int(Qt::Key_BracketLeft) << int(Qt::NoModifier) << false;
    QTest::newRow("function keys are the window's") << int(Qt::Key_F10) << int(Qt::NoModifier) << false;
}

void TestTrackListModel::listKeepsItsKeys()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(bool, kept);

    TrackListModel model;
    ListView view(&model, TrackListModel::widestTexts());
    QKeyEvent event(QEvent::ShortcutOverride, key, Qt::KeyboardModifiers(modifiers));
    event.ignore();
    QCoreApplication::sendEvent(&view, &event);
    QCOMPARE(event.isAccepted(), kept);
}

QTEST_MAIN(TestTrackListModel)
#include "tst_track_list_model.moc"
