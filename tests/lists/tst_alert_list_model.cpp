#include "lists/alert_list_model.h"
#include "lists/list_sort_model.h"
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

} // namespace

class TestAlertListModel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsAlerts();
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
    model.setAlerts({conflict(1, 7, 8), area});

    const auto row = [&model](int number) {
        QStringList texts;
        for (int column = 0; column < AlertListModel::ColumnCount; ++column) {
            texts.append(model.index(number, column).data().toString());
        }
        return texts;
    };
    QCOMPARE(row(0), QStringList({"STCA", "VYX1", "VYX2", "", "Active", "23:59:51", ""}));
    QCOMPARE(row(1), QStringList({"APW", "VYX1", "", "LO-R 16", "Active", "23:59:52", "23:59:57"}));

    model.setAlerts({area, conflict(20, 0, 8)}); // the latter starts after midnight
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.trackId(0), 7u);
    QCOMPARE(model.trackId(1), 8u);
    ListSortModel sorted(&model);
    sorted.sort(AlertListModel::Start, Qt::DescendingOrder);
    QCOMPARE(sorted.index(0, AlertListModel::Start).data().toString(), "00:00:10");
}

VYX_TEST(TestAlertListModel)
#include "tst_alert_list_model.moc"
