#include "engine/display_snapshot.h"
#include "test_program.h"
#include "ui/empty_scope.h"

#include <QRegularExpression>
#include <QTest>

class TestEmptyScope : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void saysWhy_data();
    void saysWhy();
};

namespace {

const QString NoNotice;
const QString Silence = "Nothing arrives on UDP port 1";
const QString NoTargets = "There are no targets in what UDP port 1 brings";

// Second by second, one letter each: "." nothing, "m" a message without targets, "t" tracks, "p" a plot, "w" weather.
QString noticeAfter(const QString &seconds, bool recorded)
{
    EmptyScope scope;
    DisplaySnapshot snapshot;
    snapshot.plots.run = 1;
    snapshot.recordedTime = recorded;
    for (int second = 0; second <= seconds.size(); ++second) {
        const QChar what = second == 0 ? QChar(u'.') : seconds[second - 1];
        snapshot.time = QDateTime::fromSecsSinceEpoch(1000 + second, Qt::UTC);
        snapshot.messages += what != u'.';
        snapshot.tracks = QList<TrackSnapshot>(what == u't' ? 1 : 0);
        if (what == u'p') {
            const auto batch = QSharedPointer<PlotBatch>::create();
            batch->plots.push_back({{}, snapshot.time.toMSecsSinceEpoch(), Track::Psr});
            snapshot.plots.batches = {batch};
        }
        if (what == u'w') {
            scope.noteRadarPicture();
        }
        scope.look(snapshot);
    }
    return scope.notice("UDP port 1");
}

} // namespace

void TestEmptyScope::saysWhy_data()
{
    QTest::addColumn<QString>("seconds");
    QTest::addColumn<QString>("live");
    QTest::addColumn<QString>("recorded");
    QTest::newRow("early") << "........." << NoNotice << NoNotice;
    QTest::newRow("never anything") << ".........." << Silence << NoNotice;
    QTest::newRow("silent after a while") << "mmmttt.........." << Silence << NoTargets;
    QTest::newRow("tracks have just gone") << "mmmttt........." << NoNotice << NoNotice;
    QTest::newRow("north markers alone") << "m....m....m" << NoTargets << NoTargets;
    QTest::newRow("markers at first") << "m....m...." << NoNotice << NoNotice;
    QTest::newRow("plots") << "mmmmmpmmmmmmmmm" << NoNotice << NoNotice;
    QTest::newRow("no more plots") << "mmmmmpmmmmmmmmmm" << NoTargets << NoTargets;
    QTest::newRow("weather alone") << "mwmmmmmmmmmmm" << NoNotice << NoNotice;
}

void TestEmptyScope::saysWhy()
{
    QFETCH(QString, seconds);
    QTEST(noticeAfter(seconds, false).section(QRegularExpression("[:;]"), 0, 0), "live");
    QTEST(noticeAfter(seconds, true).section(QRegularExpression("[:;]"), 0, 0), "recorded");
}

VYX_TEST(TestEmptyScope)
#include "tst_empty_scope.moc"
