#include "engine/data_engine.h"
#include "test_program.h"
#include "ui/replay_window.h"
#include "ui/status_read_outs.h"
#include "window_fixture.h"
#include "written_capture.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>

// A recording on its way through the window: opened, played, moved about in, left again.
class TestMainWindowReplay final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_window = WindowFixture::makeWindow(); }
    void cleanup() { QVERIFY(WindowFixture::close(*m_window)); }

    void aDroppedRecordingIsPlayedToItsEnd()
    {
        QSignalSpy closed(m_window.get(), &MainWindow::inputClosed);
        const QString file = recording("dropped.pcap", {0, 20, 40});
        QVERIFY(QFile::exists(file));
        QVERIFY(drop(file));
        QTRY_COMPARE(closed.size(), 1);
        m_window->pullSlots();
        QCOMPARE(m_window->newestSnapshot()->tracks.size(), 3);
        QVERIFY(log().contains("Reach end of recording file."));
        QVERIFY(!drop("notes.txt"));
        m_window->playRecording("gone.pcap");
        QVERIFY(log().contains("Failed to open recording file: gone.pcap"));
        QCOMPARE(m_window->config().inputFileName.fileName(), QString("dropped.pcap"));
    }

    // An hour between the packets, so that nothing moves on by itself.
    void theWindowShowsAndMovesThePosition()
    {
        play(recording("hours.pcap", {0, 3600000, 7200000, 10800000}));
        QTRY_COMPARE(text("lastTime"), QString("2024-05-01 15:00:00"));
        QCOMPARE(text("firstTime"), QString("2024-05-01 12:00:00"));
        QTRY_COMPARE(text("positionTime"), QString("2024-05-01 12:00:00"));
        QCOMPARE(child<QPushButton>("start")->text(), QString("&Pause"));
        QTRY_VERIFY2(clock().startsWith("REC UTC 12:00:"), qPrintable(clock()));

        auto *time = child<QDateTimeEdit>("jumpTime");
        time->setDateTime(captureBegin().addSecs(5400)); // between two packets
        child<QPushButton>("jump")->click();
        QTRY_COMPARE(text("positionTime"), QString("2024-05-01 14:00:00"));
        QVERIFY(text("elapsed").startsWith("2:00:00") || text("elapsed").startsWith("02:00:00"));
        QVERIFY(m_window->inputOpen());
        QTRY_VERIFY2(clock().startsWith("REC UTC 14:00:"), qPrintable(clock()));

        auto *slider = child<QSlider>("position");
        slider->setSliderDown(true);
        slider->setValue(slider->maximum() / 3 - 1);
        slider->setSliderDown(false);
        QTRY_COMPARE(text("positionTime"), QString("2024-05-01 13:00:00"));
        child<QPushButton>("stop")->click();
        QTRY_VERIFY(!m_window->inputOpen());
        QCOMPARE(child<QPushButton>("start")->text(), QString("&Start"));
        QVERIFY(clock().startsWith("UTC"));
    }

    // The stop of the jump's own closing is on its way then.
    void stopDuringAJumpStops()
    {
        QSignalSpy closed(m_window.get(), &MainWindow::inputClosed);
        m_window->setStopQuestion([] { return false; }); // a recording stops without a question
        for (const bool byWindow : {true, false}) {
            play(recording("stopped.pcap", {0, 3600000, 7200000}));
            child<QDateTimeEdit>("jumpTime")->setDateTime(captureBegin().addSecs(5400));
            QTRY_COMPARE(text("lastTime"), QString("2024-05-01 14:00:00"));
            child<QPushButton>("jump")->click();
            byWindow ? child<QPushButton>("stop")->click() : action(ActionId::Stop)->trigger();
            QTRY_COMPARE(closed.size(), byWindow ? 1 : 2);
            QVERIFY(!m_window->inputOpen());
        }
    }

    void speedsOfMenuAndWindowAgree()
    {
        play(recording("speed.pcap", {0, 3600000}));
        auto *speed = child<QComboBox>("speed");
        for (QAction *choice : action(ActionId::ReplaySpeed)->menu()->actions()) {
            choice->trigger();
            QCOMPARE(speed->currentText(), choice->text());
        }
        speed->setCurrentIndex(0);
        Q_EMIT speed->activated(0);
        QCOMPARE(action(ActionId::ReplaySpeed)->menu()->actions().constFirst()->isChecked(), true);
    }

    void autoRewindHoldsForThePlaybackThatRuns()
    {
        QSignalSpy closed(m_window.get(), &MainWindow::inputClosed);
        play(recording("again.pcap", {0, 200}));
        child<QCheckBox>("autoRewind")->click();
        QTRY_VERIFY(log().contains("restarting replay"));
        QCOMPARE(closed.size(), 0);
        child<QCheckBox>("autoRewind")->click();
        QTRY_COMPARE(closed.size(), 1);
    }

    // The live input comes back, and what was played is never saved as the input of the next run.
    void liveInputComesBack()
    {
        const Config::InputComm live = m_window->config().inputComm;
        play(recording("aside.pcap", {0, 3600000}));
        QVERIFY(child<QPushButton>("liveInput")->isEnabled());
        child<QPushButton>("liveInput")->click();
        QTRY_VERIFY(m_window->inputOpen() && m_window->config().inputComm == live);
        QTRY_VERIFY(!child<QPushButton>("liveInput")->isEnabled());
        Config saved;
        saved.load(AppPaths::configFile());
        QCOMPARE(saved.inputComm, live);
    }

    void recordingIsOfferedForLiveInputAlone()
    {
        QVERIFY(!action(ActionId::Record)->isEnabled());
        play(recording("replayed.pcap", {0, 3600000}));
        QVERIFY(!action(ActionId::Record)->isEnabled());
        child<QPushButton>("liveInput")->click();
        QTRY_VERIFY(m_window->inputOpen() && action(ActionId::Record)->isEnabled());
    }

private:
    template <typename Child>
    Child *child(const QString &name) const
    {
        return m_window->findChild<ReplayWindow *>()->findChild<Child *>(name);
    }

    QString text(const QString &name) const { return child<QLabel>(name)->text(); }
    QString clock()
    {
        m_window->updateClock();
        return m_window->findChild<StatusReadOuts *>()->utcClock()->text();
    }
    QString log() const { return logText(*m_window); }

    QAction *action(ActionId id) const { return ::action(*m_window, id); }

    // Plots of as many aircraft, a packet each, milliseconds after the beginning.
    QString recording(const QString &name, const QList<int> &times)
    {
        QList<std::pair<qint64, QByteArray>> plots;
        quint8 number = 0;
        for (const int time : times) {
            QByteArray plot = QByteArray::fromHex("30000d9110"
                                                  "0102"
                                                  "0a00"
                                                  "0000"
                                                  "00")
                + static_cast<char>(++number);
            plot[9] = static_cast<char>(number * 20);
            plots.append({time, plot});
        }
        return writtenCapture(m_directory.filePath(name), plots);
    }

    bool drop(const QString &path)
    {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(path)});
        QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window.get(), &enter);
        QDropEvent event({10.0, 10.0}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        event.ignore();
        QCoreApplication::sendEvent(m_window.get(), &event);
        return event.isAccepted();
    }

    void play(const QString &path)
    {
        action(ActionId::PlaybackWindow)->trigger();
        m_window->playRecording(path);
        QTRY_VERIFY(m_window->inputOpen());
    }

    WindowFixture m_fixture;
    QTemporaryDir m_directory;
    std::unique_ptr<MainWindow> m_window;
};

VYX_TEST(TestMainWindowReplay)
#include "tst_main_window_replay.moc"
