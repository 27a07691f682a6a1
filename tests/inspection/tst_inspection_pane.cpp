#include "asterix/encoder.h"
#include "inspection/inspection_pane.h"
#include "inspection/octet_view.h"
#include "inspection/report_table.h"
#include "test_program.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QTest>
#include <QToolButton>

namespace {

const QDateTime PaneNow = QDateTime::fromMSecsSinceEpoch(1700000010000, Qt::UTC);

KeptReport paneReport(double secondsAgo, double level, const char *callsign)
{
    korvane::asterix::BlockEncoder encoder(48);
    encoder.beginBlock();
    encoder.beginRecord();
    encoder.set("090/FL", level);
    if (callsign) {
        encoder.setText("240", callsign);
    }
    encoder.endRecord();
    _ast_datablock_t block;
    ast_datablock_smart_decode(&block, encoder.block().data(), encoder.block().size());
    const _ast_datarecord_t &record = block.records.front();
    return {TakenReport::Form::Asterix, PaneNow.toMSecsSinceEpoch() - static_cast<qint64>(secondsAgo * 1000.0),
        record.uap, QByteArray(reinterpret_cast<const char *>(record.data), record.length)};
}

// A pane that explains a track by reports.
struct PaneRig {
    InspectionPane pane;
    ReportTable *values = pane.findChild<ReportTable *>("explainedValues");
    ReportTable *reports = pane.findChild<ReportTable *>("keptReports");
    ReportTable *fields = pane.findChild<ReportTable *>("reportFields");
    OctetView *octets = pane.findChild<OctetView *>();

    PaneRig()
    {
        pane.resize(1100, 400);
        pane.show();
    }

    void explain(const QList<KeptReport> &kept)
    {
        TrackSnapshot track;
        track.callsign = "VYX1";
        track.callsignValid = true;
        track.level = 35000;
        track.levelValid = true;
        QList<ReportView> views;
        for (const KeptReport &report : kept) {
            views.append(viewReport(report));
        }
        pane.explain("VYX1", explainTrack(track, views, PaneNow), kept, views, PaneNow);
    }

    int rowOf(ReportTable *table, const QString &text) const
    {
        const auto found = table->findItems(text, Qt::MatchExactly);
        return found.isEmpty() ? -1 : found.first()->row();
    }

    void choose(const QString &entry)
    {
        for (QAction *action : pane.findChild<QToolButton *>("copyExplanation")->menu()->actions()) {
            if (action->text() == entry) {
                action->trigger();
            }
        }
    }
};

bool isLit(ReportTable *table, int row)
{
    return table->item(row, 0)->background().style() != Qt::NoBrush;
}

} // namespace

class TestInspectionPane : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void marksBitsOfPointedValue();
    void marksValueOfPointedBit();
    void keepsChosenReport();
    void copies_data();
    void copies();
    void saysWhatToDo();
};

void TestInspectionPane::marksBitsOfPointedValue()
{
    PaneRig rig;
    rig.explain({paneReport(1, 350, nullptr), paneReport(5, 340, "VYX1")});
    Q_EMIT rig.values->rowPointed(rig.rowOf(rig.values, "Level"));
    QCOMPARE(rig.octets->marks(), QList<BitRange>({{10, 14}}));
    QVERIFY(isLit(rig.fields, rig.rowOf(rig.fields, "I048/090/FL")));
    const auto *rule = rig.pane.findChild<QLabel *>("rule");
    Q_EMIT rig.values->rowPointed(rig.rowOf(rig.values, "State"));
    QCOMPARE(rule->text(), rig.values->item(rig.rowOf(rig.values, "State"), 4)->text());
    QVERIFY(!rule->text().isEmpty());

    // The call sign is the older report's: that one is shown while it is pointed at.
    Q_EMIT rig.values->rowPointed(rig.rowOf(rig.values, "Callsign"));
    QVERIFY(rig.rowOf(rig.fields, "I048/240") >= 0);
    QCOMPARE(rig.octets->marks(), QList<BitRange>({{32, 48}}));
    Q_EMIT rig.values->rowPointed(-1);
    QVERIFY(rig.octets->marks().isEmpty());
    QCOMPARE(rig.rowOf(rig.fields, "I048/240"), -1);

    // The same with the keys.
    QVERIFY(QTest::qWaitForWindowActive(&rig.pane));
    rig.values->setFocus(Qt::TabFocusReason);
    while (rig.values->currentRow() < rig.rowOf(rig.values, "Level")) {
        QTest::keyClick(rig.values, Qt::Key_Down);
    }
    QCOMPARE(rig.octets->marks(), QList<BitRange>({{10, 14}}));
    rig.reports->setFocus();
    QVERIFY2(rig.octets->marks().isEmpty(), "nothing is pointed at any more");
}

void TestInspectionPane::marksValueOfPointedBit()
{
    PaneRig rig;
    rig.explain({paneReport(1, 350, "VYX1")});
    Q_EMIT rig.octets->bitHovered(20);
    QCOMPARE(rig.octets->marks(), QList<BitRange>({{18, 14}}));
    QVERIFY(isLit(rig.values, rig.rowOf(rig.values, "Level")));
    QVERIFY(!isLit(rig.values, rig.rowOf(rig.values, "Callsign")));

    // A newer report comes while the pointer rests: what is marked is its value.
    rig.explain({paneReport(0, 351, nullptr), paneReport(1, 350, "VYX1")});
    QCOMPARE(rig.octets->marks(), QList<BitRange>({{10, 14}}));
    Q_EMIT rig.octets->bitHovered(-1);
    QVERIFY(!isLit(rig.values, rig.rowOf(rig.values, "Level")));
}

void TestInspectionPane::keepsChosenReport()
{
    PaneRig rig;
    const auto older = paneReport(5, 340, "VYX1");
    const auto newer = paneReport(1, 350, nullptr);
    rig.explain({newer, older});
    QCOMPARE(rig.pane.shownReport(), 0);
    rig.reports->setCurrentCell(1, 0);
    QCOMPARE(rig.pane.shownReport(), 1);
    rig.explain({paneReport(0, 360, nullptr), newer, older});
    QCOMPARE(rig.pane.shownReport(), 2);
    QCOMPARE(rig.reports->currentRow(), 2);
    rig.explain({paneReport(0, 360, nullptr), newer}); // it made room
    QCOMPARE(rig.pane.shownReport(), 0);
}

void TestInspectionPane::copies_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("text"); // that the clipboard then begins with
    QTest::newRow("values") << "Values"
                            << "Callsign\tVYX1\tI048/240\t5.0 s\t";
    QTest::newRow("hexadecimal") << "Report as Hexadecimal"
                                 << "04 05 78";
    QTest::newRow("text") << "Report as Text"
                          << "2023-11-14 22:13:29.000  CAT048";
    QTest::newRow("JSON") << "Report as NDJSON"
                          << "{\"cat\":48,\"block\":1,\"offset\":0,\"length\":3,";
    QTest::newRow("all, the oldest first") << "All Reports as NDJSON"
                                           << "{\"cat\":48,\"block\":1,\"offset\":0,\"length\":10,";
}

void TestInspectionPane::copies()
{
    QFETCH(QString, entry);
    QFETCH(QString, text);
    PaneRig rig;
    rig.explain({paneReport(1, 350, nullptr), paneReport(5, 340, "VYX1")});
    rig.choose(entry);
    const QString copied = QGuiApplication::clipboard()->text();
    QVERIFY2(copied.startsWith(text), qPrintable(copied));
    QCOMPARE(copied.count("\"cat\""), entry.startsWith("All") ? 2 : entry.endsWith("JSON") ? 1 : 0);
}

void TestInspectionPane::saysWhatToDo()
{
    PaneRig rig;
    rig.explain({paneReport(1, 350, nullptr)});
    rig.pane.showHint("Select a track.");
    auto *hint = rig.pane.findChild<QLabel *>("inspectionHint");
    QVERIFY(hint->isVisible());
    QCOMPARE(hint->text(), QString("Select a track."));
    QCOMPARE(rig.pane.shownReport(), -1);
    Q_EMIT rig.values->rowPointed(0); // nothing is there any more
    rig.choose("Report as Text");
    rig.explain({paneReport(1, 350, nullptr)});
    QVERIFY(!hint->isVisible());
}

VYX_TEST(TestInspectionPane)
#include "tst_inspection_pane.moc"
