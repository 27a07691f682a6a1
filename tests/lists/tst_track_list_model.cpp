#include "airdb/lib_air_db.h"
#include "lists/list_sort_model.h"
#include "lists/list_view.h"
#include "lists/track_list_model.h"
#include "test_program.h"
#include "tracking/track.h"

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
    void showsValues();
    void changesOnlyWhatChanged();
    void survivesRandomRefreshes();
    void sorts();
    void selectionStaysWithItsTrack();
};

void TestTrackListModel::showsValues()
{
    using M = TrackListModel;
    TrackSnapshot known = track(1, "VYX12", 5950);
    known.modeAString = "7500G";
    known.verticalTrend = Track::TrendDescending;
    known.groundSpeed = 451.6;
    known.heading = 359.7;
    known.verticalRate = 1250;
    known.modeACodeValid = known.groundSpeedValid = known.headingValid = known.verticalRateValid = true;
    known.type = Track::ModeSPsr;
    known.state = Track::Coasting;
    TrackSnapshot unknown = known;
    unknown.incarnationId = 2;
    unknown.callsignValid = unknown.modeACodeValid = unknown.levelValid = false;
    unknown.groundSpeedValid = unknown.headingValid = unknown.verticalRateValid = false;
    unknown.type = Track::Unknown;
    known.icaoAddr = 0x49F123;
    known.icaoAddrString = "49F123";
    known.icaoAddrValid = true;
    korvane::airdb::LibAirDB database;
    QVERIFY2(database.loadFromDataFile(QFileInfo(AIRDB_FILE)), qPrintable(database.lastError()));
    TrackListModel model;
    model.setAddresses(database.getICAOAddrDict());
    model.setTracks({known, unknown});
    const QList<std::pair<int, QString>> texts{{M::Callsign, "VYX12"}, {M::Squawk, "7500G"},
        {M::Level, QString("059") + QChar(0x2193)}, {M::GroundSpeed, "452"}, {M::Heading, "360"},
        {M::VerticalRate, "+1250"}, {M::Type, "Mode S+PSR"}, {M::Country, "CZ"}, {M::IcaoAddr, "49F123"}};
    for (const auto &[column, text] : texts) {
        QCOMPARE(shown(model, column), QStringList({text, ""}));
    }
    QCOMPARE(model.index(0, M::Country).data(Qt::ToolTipRole).toString(), QString("Czech Republic"));
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

void TestTrackListModel::sorts()
{
    TrackListModel model;
    model.setTracks({track(1, "AAL2", 9000), track(2, "", 35000), track(3, "AAL1", 0)});
    ListSortModel sorted(&model);
    const auto numbers = [&sorted](int column, Qt::SortOrder order) {
        sorted.sort(column, order);
        return shown(sorted, TrackListModel::TrackNumber).join(' ');
    };
    QCOMPARE(numbers(TrackListModel::Level, Qt::AscendingOrder), "101 102 103");
    QCOMPARE(numbers(TrackListModel::Level, Qt::DescendingOrder), "102 101 103"); // the unknown one stays last
    QCOMPARE(numbers(TrackListModel::Callsign, Qt::AscendingOrder), "103 101 102");
    QCOMPARE(numbers(TrackListModel::Callsign, Qt::DescendingOrder), "101 103 102");
}

void TestTrackListModel::selectionStaysWithItsTrack()
{
    TrackListModel model;
    ListView view(&model, model.columns());
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

VYX_TEST(TestTrackListModel)
#include "tst_track_list_model.moc"
