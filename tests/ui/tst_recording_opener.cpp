#include "recognition/input_proposal.h"
#include "settings/sensor_site_window.h"
#include "test_program.h"
#include "ui/recording_opener.h"
#include "ui/replay_window.h"
#include "widgets/coordinate_edit.h"
#include "widgets/scope_notice.h"
#include "window_fixture.h"
#include "written_capture.h"

#include <QDoubleSpinBox>
#include <QPushButton>
#include <QSignalSpy>

// A recording is opened as what it holds, whatever the terminal is set to.
class TestRecordingOpener final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_window = WindowFixture::makeWindow(); }
    void cleanup() { QVERIFY(WindowFixture::close(*m_window)); }

    // An ADS-B recording in a terminal that is set to a radar.
    void positionsOfItsOwnNeedNoAnswers()
    {
        const Config live = m_window->config();
        refuseQuestions();
        playToItsEnd(capture("adsb with a strange ending.xyz", adsbReport()));
        QCOMPARE(m_window->config().sensorType, AdsbSensor);
        QCOMPARE(m_window->newestSnapshot()->tracks.size(), 1);
        QVERIFY2(log().contains("CAT021"), qPrintable(log()));

        m_window->findChild<ReplayWindow *>()->findChild<QPushButton *>("liveInput")->click();
        QTRY_VERIFY(m_window->inputOpen());
        QVERIFY(!Config::changedGroups(live, m_window->config()));
        Config saved;
        saved.load(AppPaths::configFile());
        QVERIFY(!Config::changedGroups(live, saved));
    }

    void siteOfTheConfiguredRadarIsNotAskedFor()
    {
        refuseQuestions();
        playToItsEnd(capture("configured.pcap", radarPlot(1, 2)));
        QCOMPARE(m_window->config().sensorLocation, GeoCoordinate(48.0, 16.0));
        QCOMPARE(m_window->config().sensorName, QString("TEST"));
        QCOMPARE(m_window->newestSnapshot()->tracks.size(), 1);
    }

    void missingSiteIsAskedForOnce()
    {
        int questions = 0;
        m_window->recordingOpener()->setSiteQuestion([&questions](InputProposal *proposal) {
            ++questions;
            proposal->setSite(GeoCoordinate(47.0, 11.0));
            return true;
        });
        const QString file = capture("foreign.pcap", radarPlot(7, 9));
        playToItsEnd(file);
        playToItsEnd(file);
        QCOMPARE(questions, 1);
        QCOMPARE(m_window->config().sensorLocation, GeoCoordinate(47.0, 11.0));
        QCOMPARE(m_window->newestSnapshot()->tracks.size(), 1);
        QCOMPARE(qRound(m_window->newestSnapshot()->tracks.constFirst().geoCoordinate.latitude()), 47);
    }

    void noAnswerOpensNothing()
    {
        QVERIFY(m_fixture.openInput(*m_window));
        const Config live = m_window->config();
        bool asked = false;
        m_window->recordingOpener()->setSiteQuestion([&asked](InputProposal *) {
            asked = true;
            return false;
        });
        m_window->playRecording(capture("foreign.pcap", radarPlot(7, 9)));
        QTRY_VERIFY(asked);
        QTest::qWait(50);
        QVERIFY(m_window->inputOpen());
        QVERIFY(!Config::changedGroups(live, m_window->config()));
    }

    void withoutAnOperatorAPlaceIsTaken()
    {
        m_window->recordingOpener()->setSiteQuestion({});
        playToItsEnd(capture("foreign.pcap", radarPlot(7, 9)));
        QCOMPARE(m_window->newestSnapshot()->tracks.size(), 1);
        QCOMPARE(m_window->config().sensorLocation, GeoCoordinate(48.0, 16.0));
        QVERIFY2(log().contains("does not tell where"), qPrintable(log()));
    }

    // As the command line does.
    void namedSensorIsKept()
    {
        refuseQuestions();
        m_window->recordingOpener()->setNamed([](Config &config) {
            config.sensorType = RadarSensor;
            config.sensorName = "NAMED";
            config.sensorLocation = GeoCoordinate(10.0, 20.0);
        });
        playToItsEnd(capture("foreign.pcap", radarPlot(7, 9)));
        QCOMPARE(m_window->config().sensorName, QString("NAMED"));
        QCOMPARE(m_window->config().sensorLocation, GeoCoordinate(10.0, 20.0));
    }

    void unplayableFileSaysWhy()
    {
        QVERIFY(m_fixture.openInput(*m_window));
        const Config live = m_window->config();
        QSignalSpy failed(m_window.get(), &MainWindow::inputFailed);
        QFile notes(m_directory.filePath("notes.pcap"));
        QVERIFY(notes.open(QFile::WriteOnly));
        notes.write(QByteArray("Buy milk, and bread for the week.\n").repeated(40));
        notes.close();
        m_window->playRecording(notes.fileName());
        QTRY_COMPARE(failed.size(), 1);
        const QString reason = failed[0][0].toString();
        QVERIFY2(reason.startsWith("notes.pcap cannot be played. ") && reason.size() > 40, qPrintable(reason));
        QVERIFY(log().contains(reason));
        QCOMPARE(m_window->findChild<ScopeNotice *>()->text(), reason);
        QVERIFY(m_window->inputOpen());
        QVERIFY(!Config::changedGroups(live, m_window->config()));
    }

    void questionTakesNoBadPlace()
    {
        SensorSiteWindow window("Radar 7/9", true);
        window.findChild<CoordinateEdit *>("site")->setText("nowhere");
        window.findChild<QDoubleSpinBox *>("period")->setValue(5.5);
        window.accept();
        QCOMPARE(window.result(), int(QDialog::Rejected));
        window.findChild<CoordinateEdit *>("site")->setText("471530N0111530E");
        window.accept();
        QCOMPARE(window.result(), int(QDialog::Accepted));
        QCOMPARE(window.site().toATCString(), QString("471530N0111530E"));
        QCOMPARE(window.name(), QString("Radar 7/9"));
        QCOMPARE(window.rotationPeriod(), 5.5);
    }

private:
    QString log() const { return logText(*m_window); }

    void refuseQuestions()
    {
        m_window->recordingOpener()->setSiteQuestion([](InputProposal *) {
            qWarning("a question was asked");
            return false;
        });
    }

    void playToItsEnd(const QString &file)
    {
        QSignalSpy closed(m_window.get(), &MainWindow::inputClosed);
        m_window->playRecording(file);
        QTRY_COMPARE(closed.size(), 1);
        m_window->pullSlots();
        QVERIFY(m_window->newestSnapshot());
    }

    // Range 50 NM, azimuth 90 degrees, track number 7.
    static QByteArray radarPlot(quint8 sac, quint8 sic)
    {
        QByteArray plot = QByteArray::fromHex("30000d9110"
                                              "0000"
                                              "32004000"
                                              "0007");
        plot[5] = static_cast<char>(sac);
        plot[6] = static_cast<char>(sic);
        return plot;
    }

    // Track number, position 45 N 9 E in I021/130, address.
    static QByteArray adsbReport()
    {
        return QByteArray::fromHex("150013"
                                   "e510"
                                   "1901"
                                   "00"
                                   "0007"
                                   "200000"
                                   "066666"
                                   "4ca123");
    }

    QString capture(const QString &name, const QByteArray &message)
    {
        return writtenCapture(
            m_directory.filePath(name), {{0, message}, {20, message}, {40, message}, {60, message}, {80, message}});
    }

    WindowFixture m_fixture;
    QTemporaryDir m_directory;
    std::unique_ptr<MainWindow> m_window;
};

VYX_TEST(TestRecordingOpener)
#include "tst_recording_opener.moc"
