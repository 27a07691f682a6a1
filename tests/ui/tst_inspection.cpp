#include "display/geo_track_display.h"
#include "engine/data_engine.h"
#include "inspection/absence_window.h"
#include "inspection/inspection_pane.h"
#include "inspection/report_table.h"
#include "plan_view/geo_widget.h"
#include "test_program.h"
#include "ui/actions.h"
#include "window_fixture.h"

#include <QAction>
#include <QDockWidget>
#include <QLabel>
#include <QPushButton>

// From datagrams to what the operator is told of them, in a whole window.
class TestInspection : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_window.reset(); }

    void explainsSelectedTrack();
    void passesOverAnswersToOlderQuestions();
    void saysWhereTheMissedAre();
    void curesByTheButton();

private:
    QAction *action(ActionId id) const { return (*m_window->findChild<Actions *>())[id]; }
    void send(const char *hex);
    QString value(const QString &name, int column) const;
    QString sentenceFor(const QString &text) const;

    WindowFixture m_fixture;
    std::unique_ptr<MainWindow> m_window;
    GeoTrackDisplay *m_tracks = nullptr;
};

void TestInspection::init()
{
    m_window = m_fixture.makeWindow();
    m_tracks = m_window->geoWidget()->trackDisplay();
    QVERIFY(m_fixture.openInput(*m_window));
    // CAT048 track 0x65 at 10 NM, east; then a code at a place, without number or address.
    send("30000d91100102 0a00 4000 0065");
    send("30000c 98 0102 0a00 8000 0e40");
    QTRY_VERIFY(m_window->newestSnapshot() && m_window->newestSnapshot()->tracks.size() == 1);
    QTRY_VERIFY(m_tracks->hasTrack(m_window->newestSnapshot()->tracks.first().incarnationId));
}

void TestInspection::send(const char *hex)
{
    QUdpSocket().writeDatagram(QByteArray::fromHex(hex), QHostAddress::LocalHost, m_fixture.port);
}

QString TestInspection::value(const QString &name, int column) const
{
    auto *values = m_window->findChild<ReportTable *>("explainedValues");
    const auto rows = values->findItems(name, Qt::MatchExactly);
    return rows.isEmpty() ? QString() : values->item(rows.first()->row(), column)->text();
}

// Once the window has been answered for the text.
QString TestInspection::sentenceFor(const QString &text) const
{
    auto *window = m_window->findChild<AbsenceWindow *>();
    window->showFindings({}, {});
    window->setText({}); // the same text again is a new question
    window->setText(text);
    QString sentence;
    const auto found = [&] {
        for (const QLabel *label : window->findChildren<QLabel *>("absenceSentence")) {
            if (label->isVisible()) {
                sentence = label->text();
                return true;
            }
        }
        return false;
    };
    return QTest::qWaitFor(found, 3000) ? sentence : QString();
}

void TestInspection::explainsSelectedTrack()
{
    auto *dock = m_window->findChild<QDockWidget *>("inspectionDock");
    QVERIFY(!dock->isVisible());
    action(ActionId::ExplainTrack)->trigger();
    QVERIFY(dock->isVisible());
    auto *hint = m_window->findChild<QLabel *>("inspectionHint");
    QTRY_VERIFY(hint->isVisible()); // none is selected

    m_tracks->setSelected(m_window->newestSnapshot()->tracks.first().incarnationId);
    QTRY_COMPARE(value("Position", 2), QString("I048/040/RHO, THETA"));
    QCOMPARE(value("Sensor's track number", 1), QString("101"));
    auto *reports = m_window->findChild<ReportTable *>("keptReports");
    QCOMPARE(reports->rowCount(), 1);
    send("30000d91100102 0a00 4001 0065");
    QTRY_COMPARE(reports->rowCount(), 2); // it follows the track
}

void TestInspection::passesOverAnswersToOlderQuestions()
{
    action(ActionId::ExplainTrack)->trigger();
    const quint64 id = m_window->newestSnapshot()->tracks.first().incarnationId;
    m_tracks->setSelected(id);
    auto *reports = m_window->findChild<ReportTable *>("keptReports");
    QTRY_COMPARE(reports->rowCount(), 1);
    Q_EMIT m_window->engineHost().engine()->reportsAnswered({{1000000, ReportQuestion::About::Track, 0, id}, true, {}});
    QTest::qWait(20);
    QCOMPARE(reports->rowCount(), 1);
}

void TestInspection::saysWhereTheMissedAre()
{
    action(ActionId::WhyNotShown)->trigger();
    QCOMPARE(sentenceFor("VYX404"), QString("It has not been received: no report has named it."));
    const QString number = QString::number(m_window->newestSnapshot()->tracks.first().trackNumber);
    QVERIFY2(sentenceFor('#' + number).contains("It is "), qPrintable(sentenceFor('#' + number)));
    QVERIFY2(sentenceFor("7100").contains("carry neither track number nor address"), qPrintable(sentenceFor("7100")));
}

void TestInspection::curesByTheButton()
{
    action(ActionId::WhyNotShown)->trigger();
    if (action(ActionId::TogglePlots)->isChecked()) {
        action(ActionId::TogglePlots)->trigger();
    }
    QVERIFY(sentenceFor("7100").contains("switched off"));
    m_window->findChild<AbsenceWindow *>()->findChild<QPushButton *>("absenceCure")->click();
    QVERIFY(action(ActionId::TogglePlots)->isChecked());
}

VYX_TEST(TestInspection)
#include "tst_inspection.moc"
