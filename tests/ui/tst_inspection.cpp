#include "asterix/encoder.h"
#include "display/geo_map_display.h"
#include "display/geo_track_display.h"
#include "display/track_label_lines.h"
#include "engine/data_engine.h"
#include "engine/engine_host.h"
#include "inspection/absence_window.h"
#include "inspection/inspection_pane.h"
#include "inspection/report_table.h"
#include "plan_view/geo_widget.h"
#include "radar_painting/geo_video_map.h"
#include "radar_painting/geo_weather_map.h"
#include "test_program.h"
#include "ui/actions.h"
#include "window_fixture.h"

#include <QAction>
#include <QDockWidget>
#include <QLabel>
#include <QMenu>
#include <QPushButton>

#include <array>

// From datagrams to what the operator is told of them, in a whole window.
class TestInspection : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_window.reset(); }

    void explainsSelectedTrack();
    void passesOverAnswersToOlderQuestions();
    void explainsWeatherAtItsPlace();
    void explainsRadarVideoAtItsPlace();
    void explainsPlotOfTrack();
    void saysWhereTheMissedAre();
    void curesByTheButton();

private:
    QAction *action(ActionId id) const { return ::action(*m_window, id); }
    void send(const char *hex);
    void send(int category, const std::function<void(korvane::asterix::BlockEncoder &)> &fill);
    // Of the sensor's place, by miles east.
    QPointF placeEast(double miles) const;
    bool chooseAt(const QPointF &place, const QString &text) const;
    void sendRadial();
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

void TestInspection::send(int category, const std::function<void(korvane::asterix::BlockEncoder &)> &fill)
{
    korvane::asterix::BlockEncoder encoder(category);
    encoder.beginBlock();
    encoder.beginRecord();
    encoder.set("010/SAC", 1);
    encoder.set("010/SIC", 2);
    fill(encoder);
    encoder.endRecord();
    const auto block = encoder.block();
    QUdpSocket().writeDatagram(reinterpret_cast<const char *>(block.data()), static_cast<qint64>(block.size()),
        QHostAddress::LocalHost, m_fixture.port);
}

QPointF TestInspection::placeEast(double miles) const
{
    const GeoCoordinate place = GeoCoordinate(48.0, 16.0).atDistanceAndAzimuth(miles * 1852.0, 90.0);
    return m_window->engineHost().shared().projector.toCartesian(place.latitude(), place.longitude());
}

// False where the menu of the place has no such entry, or it is switched off.
bool TestInspection::chooseAt(const QPointF &place, const QString &text) const
{
    GeoWidget *plan = m_window->geoWidget();
    Q_EMIT plan->placeMenuRequested(place, plan->mapToGlobal(QPoint(10, 10)));
    bool chosen = false;
    for (QMenu *menu : plan->findChildren<QMenu *>()) {
        for (QAction *entry : menu->actions()) {
            if (!chosen && entry->text() == text && entry->isEnabled()) {
                entry->trigger();
                chosen = true;
            }
        }
        delete menu;
    }
    return chosen;
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

void TestInspection::explainsWeatherAtItsPlace()
{
    action(ActionId::ToggleWeatherMap)->trigger();
    QVERIFY(!chooseAt(placeEast(20.0), "Explain Weather"));
    send(8, [](auto &e) {
        e.set("000", 254);
        e.set("090", 43200.0);
        e.set("100/F", 7);
    });
    send(8, [](auto &e) {
        e.set("000", 1);
        e.set("020/I", 4);
        e.addRepetition("034");
        e.set("034/STR", 10);
        e.set("034/ENDR", 30);
        e.set("034/AZ", 90.0);
    });
    send(8, [](auto &e) { e.set("000", 255); });
    QTRY_VERIFY(m_window->geoWidget()->mapDisplay()->weatherMap()->vectorAt(placeEast(20.0)));
    QVERIFY(chooseAt(placeEast(20.0), "Explain Weather"));
    QTRY_COMPARE(value("To range", 1), QString("30.00 NM"));
    QCOMPARE(value("To range", 2), QString("I008/034[1]/ENDR"));
    QVERIFY2(value("To range", 4).contains("F = 7"), qPrintable(value("To range", 4)));
    QCOMPARE(m_window->findChild<ReportTable *>("keptReports")->rowCount(), 3);
}

void TestInspection::sendRadial()
{
    send(240, [](auto &e) {
        e.set("000", 2);
        e.set("041/STARTAZ", 89.0);
        e.set("041/ENDAZ", 91.0);
        e.set("041/STARTRG", 100);
        e.set("041/CELLDUR", 1e9); // 150 m
        e.set("048/RES", 4);
        std::array<unsigned char, 64> cells;
        cells.fill(200);
        e.set("049/NBCELLS", static_cast<double>(cells.size()));
        e.setExplicit("051", cells);
    });
}

// The record comes with the next turn of the antenna; until then there is what is drawn.
void TestInspection::explainsRadarVideoAtItsPlace()
{
    action(ActionId::ToggleVideoMap)->trigger();
    const double miles = 130.5 * 149.9 / 1852.0; // the middle of a cell
    sendRadial();
    QTRY_VERIFY(m_window->geoWidget()->mapDisplay()->videoMap()->echoAt(placeEast(miles), 100.0));
    QVERIFY(chooseAt(placeEast(miles), "Explain Radar Video"));
    QTRY_COMPARE(value("Amplitude", 1), QString("200 of 255"));
    QCOMPARE(value("Amplitude", 2), QString());
    QVERIFY2(value("Amplitude", 4).contains("waited for"), qPrintable(value("Amplitude", 4)));
    sendRadial();
    QTRY_VERIFY(value("Amplitude", 2).startsWith("I240/051, octet "));
    QCOMPARE(value("Azimuth", 2), QString("I240/041/STARTAZ, ENDAZ"));
}

void TestInspection::explainsPlotOfTrack()
{
    if (!action(ActionId::TogglePlots)->isChecked()) {
        action(ActionId::TogglePlots)->trigger();
    }
    const TrackSnapshot track = m_window->newestSnapshot()->tracks.first();
    QTRY_VERIFY(chooseAt(track.carCoordinate, "Explain Plot"));
    QTRY_COMPARE(value("Track", 1), trackName(track));
    QCOMPARE(value("Position", 2), QString("I048/040/RHO, THETA"));
    m_tracks->setSelected(track.incarnationId);
    QTRY_COMPARE(value("Track", 1), QString()); // the track itself
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
