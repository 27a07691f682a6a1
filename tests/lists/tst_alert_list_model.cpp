#include "lists/alert_list_model.h"
#include "lists/list_order.h"
#include "test_program.h"

#include <QAbstractItemModelTester>
#include <QTest>

namespace {

AlertSnapshot conflict(unsigned int id, quint64 firstTrack, quint64 secondTrack)
{
    AlertSnapshot alert;
    alert.id = id;
    alert.type = Alert::STCA;
    alert.state = Alert::Active;
    alert.stateString = "Active";
    alert.startTime = QDateTime(QDate(2024, 5, 1), QTime(23, 59, 50), Qt::UTC).addSecs(id);
    alert.track1.incarnationId = firstTrack;
    alert.track1.text = "VYX1";
    alert.track2Applicable = true;
    alert.track2.incarnationId = secondTrack;
    alert.track2.text = "VYX2";
    return alert;
}

QSharedPointer<const DisplaySnapshot> picture(const QList<AlertSnapshot> &alerts)
{
    auto snapshot = QSharedPointer<DisplaySnapshot>::create();
    snapshot->alerts = alerts;
    snapshot->time = QDateTime(QDate(2024, 5, 2), QTime(0, 1, 0), Qt::UTC);
    TrackSnapshot track;
    track.incarnationId = 8;
    track.level = 9900;
    track.levelValid = true;
    snapshot->tracks.append(track);
    return snapshot;
}

} // namespace

class TestAlertListModel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsAlerts();
    void tellsWhatWasAcknowledged();
};

void TestAlertListModel::showsAlerts()
{
    AlertListModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    AlertSnapshot area = conflict(2, 7, 0);
    area.type = Alert::APW;
    area.objectName = "LO-R 16";
    area.track2Applicable = false;
    area.endTime = area.startTime.addSecs(5);
    area.state = Alert::End;
    area.stateString = "End";
    area.endedUnheard = true;
    model.setSnapshot(picture({conflict(1, 7, 8), area}));

    const auto row = [&model](int number) {
        QStringList texts;
        for (int column = 0; column <= AlertListModel::Level2; ++column) {
            texts.append(model.index(number, column).data().toString());
        }
        return texts;
    };
    QCOMPARE(row(0), QStringList({"STCA", "VYX1", "VYX2", "Active", "23:59:51", "", "", "1:09", "", "099"}));
    QCOMPARE(
        row(1), QStringList({"APW", "VYX1", "", "End, no data", "23:59:52", "LO-R 16", "23:59:57", "0:05", "", ""}));

    model.setSnapshot(picture({area, conflict(20, 0, 8)})); // the latter starts after midnight
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.trackId(0), 7u);
    QCOMPARE(model.trackId(1), 8u);
    ListOrder sorted(&model);
    sorted.sort(AlertListModel::Start, Qt::DescendingOrder);
    QCOMPARE(sorted.index(0, AlertListModel::Start).data().toString(), "00:00:10");
}

// Beside the alerts stand tracks with an emergency, and with the special pulse, which asks for nothing.
void TestAlertListModel::tellsWhatWasAcknowledged()
{
    DisplaySnapshot picture;
    picture.alerts = {conflict(1, 7, 8)};
    picture.time = QDateTime(QDate(2024, 5, 1), QTime(12, 0, 1), Qt::UTC);
    TrackSnapshot track;
    track.incarnationId = 9;
    track.trackNumber = 42;
    track.emergency = Track::RadioFailure;
    picture.tracks = {track};
    picture.tracks.append(track);
    picture.tracks[1].incarnationId = 10;
    picture.tracks[1].emergency = Track::NoEmergency;
    picture.tracks[1].spi = true;
    AlertBoard board;
    board.take(&picture);
    AlertListModel model;
    const auto shown = [&](int row) {
        model.setSnapshot(QSharedPointer<DisplaySnapshot>::create(picture), board);
        const bool filled = model.index(row, 0).data(Qt::BackgroundRole).isValid();
        return model.index(row, AlertListModel::Type).data().toString() + ' '
            + model.index(row, AlertListModel::State).data().toString() + (filled ? " filled" : "");
    };
    QCOMPARE(shown(0), "STCA Active filled");
    QCOMPARE(shown(1), "RDO Active filled");
    QCOMPARE(shown(2), "SPI Active");
    QCOMPARE(model.rowCount(), 3);
    QCOMPARE(model.trackId(1), 9u);
    QCOMPARE(model.index(1, AlertListModel::Track1).data().toString(), "#0042");
    QCOMPARE(model.index(1, AlertListModel::Start).data().toString(), "12:00:01");
    board.acknowledge(model.key(1));
    QCOMPARE(shown(0), "STCA Active filled");
    QCOMPARE(shown(1), "RDO Acknowledged");
}

VYX_TEST(TestAlertListModel)
#include "tst_alert_list_model.moc"
