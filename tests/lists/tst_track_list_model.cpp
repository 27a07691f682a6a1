#include "airdb/lib_air_db.h"
#include "display/track_label_lines.h"
#include "list_tracks.h"
#include "lists/list_order.h"
#include "lists/track_list_model.h"
#include "test_program.h"
#include "tracking/track.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

namespace {

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
    void keepsRowsOfTracks();
    void survivesRandomRefreshes();
    void sorts();
};

void TestTrackListModel::showsValues()
{
    using M = TrackListModel;
    TrackSnapshot known = listTrack(1, "VYX12", 5950);
    known.modeAString = "7500G";
    known.verticalTrend = Track::TrendDescending;
    known.groundSpeed = 51.6;
    known.heading = 0.2;
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
    known.icaoAddrValid = known.selectedAltitudeValid = known.geoCoordinateValid = true;
    known.selectedAltitude = 12049;
    known.sensorTrackNumber = 77;
    known.geoCoordinate = GeoCoordinate(49.0, 16.0);
    known.lastUpdate = QDateTime(QDate(2024, 5, 1), QTime(11, 59, 48), Qt::UTC);
    korvane::airdb::LibAirDB database;
    QVERIFY2(database.loadFromDataFile(QFileInfo(AIRDB_FILE)), qPrintable(database.lastError()));
    TrackListModel model;
    model.setAddresses(database.getICAOAddrDict());
    model.setSensorPlace(GeoCoordinate(48.0, 16.0));
    model.setSnapshot(listPicture({known, unknown}));
    const QList<std::pair<int, QString>> texts{{M::Callsign, "VYX12"}, {M::Squawk, "7500G"},
        {M::Level, QString("059") + QChar(0x2193)}, {M::GroundSpeed, "052"}, {M::Heading, "000"},
        {M::VerticalRate, "+1250"}, {M::SelectedAltitude, "120"}, {M::Type, "Mode S+PSR"}, {M::Country, "CZ"},
        {M::IcaoAddr, "49F123"}, {M::SensorNumber, "77"}, {M::Distance, "60.0"}, {M::Bearing, "360"}, {M::Age, "12"}};
    for (const auto &[column, text] : texts) {
        if (column == M::SensorNumber || column == M::Distance || column == M::Bearing || column == M::Age
            || column == M::SelectedAltitude) {
            QCOMPARE(shown(model, column).constFirst(), text);
        } else {
            QCOMPARE(shown(model, column), QStringList({text, ""}));
        }
    }
    QCOMPARE(model.index(0, M::Country).data(Qt::ToolTipRole).toString(), QString("Czech Republic"));

    // The label of the scope says the same.
    TrackLabelFields fields;
    fields.heading = fields.selectedAltitude = true;
    const TrackLabelLines label = trackLabelLines(known, fields);
    for (const int column : {M::Level, M::SelectedAltitude, M::GroundSpeed}) {
        QVERIFY(label.text[TrackLabelLines::Level].contains(shown(model, column).constFirst()));
    }
    QVERIFY(label.text[TrackLabelLines::Rate].contains(shown(model, M::Heading).constFirst()));
}

void TestTrackListModel::keepsRowsOfTracks()
{
    TrackListModel model;
    model.setSnapshot(
        listPicture({listTrack(1, "A", 100), listTrack(2, "B", 100), listTrack(3, "C", 100), listTrack(4, "D", 100)}));
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    // 1 and 2 end, 3 climbs, 5 comes.
    model.setSnapshot(listPicture({listTrack(5, "E", 100), listTrack(4, "D", 100), listTrack(3, "C", 900)}));
    QCOMPARE(removed.size(), 1);
    QCOMPARE(inserted.size(), 1);
    QCOMPARE(changed.size(), 1); // one for all of them, however many
    QCOMPARE(reset.size(), 0);
    QCOMPARE(shown(model, TrackListModel::Callsign), QStringList({"C", "D", "E"}));
    QCOMPARE(model.rowOf(5), std::optional(2));
    QCOMPARE(model.rowOf(1), std::nullopt);
    model.clear();
    QCOMPARE(model.rowCount(), 0);
}

void TestTrackListModel::survivesRandomRefreshes()
{
    TrackListModel model;
    const QAbstractItemModelTester modelTester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    ListOrder order(&model);
    const QAbstractItemModelTester orderTester(&order, QAbstractItemModelTester::FailureReportingMode::QtTest);
    order.sort(TrackListModel::Level, Qt::DescendingOrder);
    quint32 state = 12345;
    const auto next = [&state](quint32 limit) { return (state = state * 1664525u + 1013904223u) / 65536u % limit; };
    for (int round = 0; round < 120; ++round) {
        QList<TrackSnapshot> tracks;
        for (quint64 id = 1; id <= 20; ++id) {
            if (next(3) != 0) {
                tracks.append(listTrack(id, QString("T%1").arg(id), static_cast<int>(next(5)) * 1000));
            }
        }
        const bool held = round / 10 % 2 == 1;
        order.setHeld(held);
        order.setFilter(ListFilter::parse(round % 40 < 20 ? "" : "fl>=10", model), {});
        model.setSnapshot(listPicture(tracks));
        if (!held) {
            order.arrange();
        }
        QCOMPARE(model.rowCount(), tracks.size());
        for (const TrackSnapshot &expected : tracks) {
            const std::optional<int> row = model.rowOf(expected.incarnationId);
            QVERIFY(row);
            QCOMPARE(model.record(*row).track->level, expected.level);
            const QModelIndex place = order.mapFromSource(model.index(*row, 0));
            QCOMPARE(order.mapToSource(place).row(), place.isValid() ? *row : -1);
        }
        const QStringList levels = shown(order, TrackListModel::Level);
        QVERIFY(held || (std::is_sorted(levels.rbegin(), levels.rend()) && !levels.mid(0, 1).contains("")));
    }
}

void TestTrackListModel::sorts()
{
    TrackListModel model;
    model.setSnapshot(listPicture({listTrack(1, "AAL2", 9000), listTrack(2, "", 35000), listTrack(3, "AAL1", 0)}));
    ListOrder order(&model);
    const auto numbers = [&order](int column, Qt::SortOrder direction) {
        order.sort(column, direction);
        return shown(order, TrackListModel::TrackNumber).join(' ');
    };
    QCOMPARE(numbers(TrackListModel::Level, Qt::AscendingOrder), "101 102 103");
    QCOMPARE(numbers(TrackListModel::Level, Qt::DescendingOrder), "102 101 103"); // the unknown one stays last
    QCOMPARE(numbers(TrackListModel::Callsign, Qt::AscendingOrder), "103 101 102");
    QCOMPARE(numbers(TrackListModel::Callsign, Qt::DescendingOrder), "101 103 102");
}

VYX_TEST(TestTrackListModel)
#include "tst_track_list_model.moc"
