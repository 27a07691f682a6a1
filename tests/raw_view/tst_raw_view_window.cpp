#include "encoded_report.h"
#include "engine/data_engine.h"
#include "engine/engine_host.h"
#include "raw_view/diagnosis_window.h"
#include "raw_view/raw_view_window.h"
#include "raw_view/standing_diagnosis.h"
#include "sensors/radar_sensor_info.h"
#include "test_program.h"

#include "inspection/octet_view.h"
#include "raw_view/record_tree.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTextBrowser>

namespace {

// An engine on the test's thread, with an input to which messages are given by hand.
class OpenHost {
public:
    OpenHost()
    {
        qputenv("VYXDISPLAY_NO_DATA_THREAD", "1");
        m_host = std::make_unique<EngineHost>();
        m_host->start();
        config.inputUdpMulticast1 = false;
        config.inputUdpPort1 = 0; // any
        config.sensorType = RadarSensor;
        const auto sensor = QSharedPointer<RadarSensorInfo>::create();
        sensor->setLocation({50.0, 14.0});
        m_host->openInput(config, sensor, {}, 1);
        QCoreApplication::processEvents();
    }
    ~OpenHost() { qunsetenv("VYXDISPLAY_NO_DATA_THREAD"); }

    void receive(const QByteArray &message)
    {
        m_host->engine()->procMessage(message);
        m_host->engine()->publishSnapshot();
    }

    EngineHost *get() { return m_host.get(); }

    Config config;

private:
    std::unique_ptr<EngineHost> m_host;
};

const char Report[] = "161/TRN=7 040/RHO=50.5 040/THETA=90 220=0x3c6444 240=DLH4AB 070/MODE3A=07421";

} // namespace

class TestRawViewWindow final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theWorstOfTheStreamIsSaidFirst()
    {
        using Level = DiagnosisRemark::Level;
        Diagnosis remarks;
        for (const auto &[level, sentence] : {std::pair(Level::Fine, "It holds plots."), std::pair(Level::Note, "Odd."),
                 std::pair(Level::Wrong, "Mixed."), std::pair(Level::Note, "Long.")}) {
            DiagnosisRemark remark;
            remark.level = level;
            remark.sentence = sentence;
            remarks += remark;
        }
        QCOMPARE(StandingDiagnosis::sentencesOf(remarks), QStringList({"Mixed.", "Odd.", "Long."}));
    }

    void listensWhileItIsSeen()
    {
        OpenHost host;
        RawViewWindow window(host.get());
        host.receive(encodedReport(48, Report));
        window.show();
        QCoreApplication::processEvents(); // the tap is opened
        host.receive(encodedReport(48, Report) + encodedReport(48, "040/RHO=5"));
        window.pull();
        QCOMPARE(window.model().rowCount(), 2);
        window.setPaused(true);
        QCoreApplication::processEvents();
        host.receive(encodedReport(48, Report));
        window.pull();
        QCOMPARE(window.model().rowCount(), 2);
        QVERIFY(window.findChild<QLabel *>("state")->text().startsWith("Paused"));
        window.setPaused(false);
        QCoreApplication::processEvents();
        host.receive(encodedReport(48, Report));
        window.hide(); // takes what has come
        QCOMPARE(window.model().rowCount(), 3);
        window.clear();
        QCOMPARE(window.model().rowCount(), 0);
    }

    void takesTheChosenRecordApart()
    {
        OpenHost host;
        RawViewWindow window(host.get());
        window.show();
        QCoreApplication::processEvents();
        host.receive(encodedReport(48, Report) + encodedReport(48, "040/RHO=5"));
        window.pull();
        auto *list = window.findChild<QTableView *>("records");
        auto *tree = window.findChild<RecordTree *>("recordTree");
        auto *octets = window.findChild<OctetView *>();
        QCOMPARE(tree->topLevelItemCount(), 0);
        list->setCurrentIndex(list->model()->index(0, 0));
        QVERIFY(!window.findChild<QPushButton *>("follow")->isChecked());
        QVERIFY(window.findChild<QLabel *>("title")->text().contains("DLH4AB 7421 3C6444"));
        QStringList items;
        for (int i = 0; i < tree->topLevelItemCount(); ++i) {
            items += tree->topLevelItem(i)->text(0);
        }
        QCOMPARE(items, QStringList({"I048/010", "I048/040", "I048/070", "I048/220", "I048/240", "I048/161"}));
        const QTreeWidgetItem *position = tree->topLevelItem(1);
        QCOMPARE(position->child(0)->text(0) + ' ' + position->child(0)->text(1), QStringLiteral("RHO 50.5 NM"));

        // The line marks its bits, and a bit finds its line.
        tree->setCurrentItem(tree->topLevelItem(1));
        QCOMPARE(octets->marks().size(), 1);
        const BitRange bits = octets->marks().first();
        QCOMPARE(bits.count, 32);
        Q_EMIT octets->bitHovered(bits.first + 20);
        QCOMPARE(tree->currentItem()->text(0), QStringLiteral("THETA"));
        QCOMPARE(octets->marks().first(), (BitRange{bits.first + 16, 16}));
    }

    void findsATextAmongTheValues()
    {
        OpenHost host;
        RawViewWindow window(host.get());
        window.show();
        QCoreApplication::processEvents();
        for (int i = 0; i < 20; ++i) {
            host.receive(encodedReport(48, i == 13 ? Report : "161/TRN=8 040/RHO=5"));
            window.pull();
        }
        auto *list = window.findChild<QTableView *>("records");
        window.findChild<QLineEdit *>("searchText")->setText("dlh4ab");
        window.findChild<QPushButton *>("findNext")->click();
        QTRY_COMPARE(list->currentIndex().row(), 13);
        window.findChild<QPushButton *>("findNext")->click();
        QTRY_VERIFY(window.findChild<QLabel *>("state")->text().endsWith("Not found"));
        list->setCurrentIndex(list->model()->index(19, 0));
        window.findChild<QPushButton *>("findPrevious")->click();
        QTRY_COMPARE(list->currentIndex().row(), 13);
    }

    void diagnosesWhatArrives()
    {
        OpenHost host;
        const Config *settings = nullptr;
        DiagnosisWindow window(host.get(), [&settings] { return settings; });
        window.show();
        QVERIFY(window.findChild<QLabel *>("state")->text().startsWith("No input is open"));
        settings = &host.config;
        window.look();
        QCoreApplication::processEvents();
        for (int i = 0; i < 5; ++i) {
            host.receive(QByteArray::fromHex("0103") + encodedReport(48, Report) + QByteArray::fromHex("1234"));
        }
        const QString expected = "Wrong: The processor is set to ASTERIX, but what arrives is ASTERIX in HDLC Frame.";
        QTRY_VERIFY2(window.plainText().contains(expected), qPrintable(window.plainText()));
        QVERIFY(window.findChild<QTextBrowser *>("remarks")->toPlainText().contains("HDLC Frame"));
    }
};

VYX_TEST(TestRawViewWindow)
#include "tst_raw_view_window.moc"
