#include "tracking/sensor_manager.h"
#include "ui/field_form.h"
#include "ui/sensor_edit_window.h"
#include "ui/sensor_form.h"
#include "ui/sensor_manager_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLineEdit>
#include <QMessageBox>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

class TestSensorWindows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void editingKeepsEveryField_data();
    void editingKeepsEveryField();
    void refusesInWords_data();
    void refusesInWords();
    void changesTypeAndKeepsWhatWasEntered();
    void completesFromTheMakersKnown();
    void renamingReplacesTheRecord();
    void closingWithChangesAsks_data();
    void closingWithChangesAsks();
    void failuresNameFileAndReason_data();
    void failuresNameFileAndReason();
    void savedFileOpensAgain();
    void offersOnlyRadarsForInput();

private:
    void answer(QMessageBox::StandardButton button);

    QTemporaryDir m_dir;
    QString m_asked; // texts of the last message box
};

namespace {

QSharedPointer<SensorInfo> makeSensor(const QString &json)
{
    const QString common = QStringLiteral(R"("location": "395427.35S0062317.08W", "sac": 200, "sic": 7,
        "description": "On the hill", "manufacturer": "Korvane", "model": "K 2", "commission_year": 1998)");
    return SensorInfo::create(QJsonDocument::fromJson(QStringLiteral("{%1, %2}").arg(json, common).toUtf8()).object());
}

QSharedPointer<SensorInfo> makeRadar(const QString &name)
{
    return makeSensor(QStringLiteral(R"("type": "radar", "name": "%1", "ssr": true)").arg(name));
}

template <typename Field>
Field *field(const QWidget &window, const char *name)
{
    return window.findChild<Field *>(QString::fromLatin1(name));
}

} // namespace

void TestSensorWindows::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
}

void TestSensorWindows::init()
{
    m_asked.clear();
}

// Presses the button of the message box that comes up next.
void TestSensorWindows::answer(QMessageBox::StandardButton button)
{
    QTimer::singleShot(0, this, [this, button] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(box);
        m_asked = box->text() + u'\n' + box->informativeText();
        box->button(button)->click();
    });
}

void TestSensorWindows::editingKeepsEveryField_data()
{
    QTest::addColumn<QString>("json");
    QTest::newRow("radar") << R"("type": "radar", "name": "R", "antenna_altitude": -3, "rotation_period": 9.875,
        "psr": true, "ssr": true, "modes": false, "psr_coverage": 61, "ssr_coverage": 251)";
    QTest::newRow("radar without a period") << R"("type": "radar", "name": "R", "psr": true)";
    QTest::newRow("ADS-B") << R"("type": "adsb", "name": "A", "coverage": 190, "update_interval": 0.5,
        "versions": ["0", "2", "DO-260B"])";
    QTest::newRow("MLAT") << R"("type": "mlat", "name": "M", "coverage": 31)";
    QTest::newRow("SDPS") << R"("type": "sdps", "name": "S", "coverage": 900, "update_interval": 4.0)";
    QTest::newRow("SMR") << R"("type": "smr", "name": "G", "antenna_altitude": 45, "rotation_period": 0.985,
        "coverage": 2.75, "acp": 16384)";
}

void TestSensorWindows::editingKeepsEveryField()
{
    QFETCH(QString, json);
    const QSharedPointer<SensorInfo> sensor = makeSensor(json);
    SensorManager sensors;
    sensors.addSensor(sensor);
    SensorEditWindow window(sensor, &sensors);
    window.accept();
    QVERIFY(window.sensor());
    QVERIFY(window.sensor() != sensor);
    QCOMPARE(window.sensor()->jsonObject(), sensor->jsonObject());
}

void TestSensorWindows::refusesInWords_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("location");
    QTest::addColumn<QString>("words");
    const QString place = QStringLiteral("395427.35n1162317.08e"); // lower case is understood
    QTest::newRow("good") << "R2" << place << "";
    QTest::newRow("own name") << "Mine" << place << "";
    QTest::newRow("no name") << "  " << place << "A sensor needs a name.";
    QTest::newRow("name of another") << "R1" << place << "Another sensor is named \"R1\".";
    QTest::newRow("name of another between blanks") << " R1 " << place << "Another sensor is named \"R1\".";
    QTest::newRow("other case is another name") << "r1" << place << "";
    QTest::newRow("no place") << "R2"
                              << ""
                              << "INVALID COORDINATE";
    QTest::newRow("place in whole seconds") << "R2"
                                            << "395427N1162317E"
                                            << "INVALID COORDINATE";
}

void TestSensorWindows::refusesInWords()
{
    QFETCH(QString, name);
    QFETCH(QString, location);
    QFETCH(QString, words);
    SensorManager sensors;
    sensors.addSensor(makeRadar(QStringLiteral("R1")));
    sensors.addSensor(makeRadar(QStringLiteral("Mine")));
    SensorEditWindow window(sensors.findSensor(QStringLiteral("Mine")), &sensors);
    field<QLineEdit>(window, "sensorName")->setText(name);
    field<QLineEdit>(window, "sensorLocation")->setText(location);
    window.accept();
    QCOMPARE(window.sensor().isNull(), !words.isEmpty());
    auto *form = window.findChild<FieldForm *>();
    QCOMPARE(form->firstWithNote() ? form->note(form->firstWithNote()) : QString(), words);
}

void TestSensorWindows::changesTypeAndKeepsWhatWasEntered()
{
    SensorManager sensors;
    SensorEditWindow window(nullptr, &sensors);
    field<QLineEdit>(window, "sensorName")->setText(QStringLiteral("X"));
    field<QLineEdit>(window, "sensorLocation")->setText(QStringLiteral("395427.35N1162317.08E"));
    for (const char *flag : {"radarPrimary", "radarModeS", "radarSecondary"})
        field<QCheckBox>(window, flag)->setChecked(false);
    window.accept();
    QVERIFY2(!window.sensor(), "a radar that is neither primary nor secondary");
    field<QComboBox>(window, "sensorType")->setCurrentText(QStringLiteral("MLAT"));
    window.accept();
    QVERIFY(window.sensor());
    QCOMPARE(window.sensor()->type(), MlatSensor);
    QCOMPARE(window.sensor()->name(), QStringLiteral("X"));
}

void TestSensorWindows::completesFromTheMakersKnown()
{
    SensorManager sensors;
    sensors.addSensor(makeRadar(QStringLiteral("R1")));
    const SensorEditWindow window(nullptr, &sensors);
    field<QLineEdit>(window, "sensorManufacturer")->setText(QStringLiteral("Korvane"));
    QCompleter *models = field<QLineEdit>(window, "sensorModel")->completer();
    models->setCompletionPrefix(QStringLiteral("k"));
    QCOMPARE(models->currentCompletion(), QStringLiteral("K 2"));
    field<QLineEdit>(window, "sensorManufacturer")->setText(QStringLiteral("Nobody"));
    QCOMPARE(field<QLineEdit>(window, "sensorModel")->completer()->completionCount(), 0);
}

void TestSensorWindows::renamingReplacesTheRecord()
{
    SensorManager sensors;
    sensors.addSensor(makeRadar(QStringLiteral("R1")));
    SensorManagerWindow window(&sensors, QString());
    const QSignalSpy changes(&window, &SensorManagerWindow::sensorsChanged);
    window.putSensor(makeRadar(QStringLiteral("R9")), QStringLiteral("R1"));
    QCOMPARE(sensors.sensorNames(), QStringList{QStringLiteral("R9")});
    QCOMPARE(window.selectedName(), QStringLiteral("R9"));
    QCOMPARE(changes.size(), 1);
    QVERIFY(window.hasUnsavedChanges());
}

void TestSensorWindows::closingWithChangesAsks_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("button");
    QTest::addColumn<bool>("closes");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<int>("saved"); // records in the file
    QTest::newRow("save") << QMessageBox::Save << true << QStringList{"R1", "R2"} << 2;
    QTest::newRow("discard brings the old records back") << QMessageBox::Discard << true << QStringList{"R1"} << 1;
    QTest::newRow("cancel stays open") << QMessageBox::Cancel << false << QStringList{"R1", "R2"} << 1;
}

void TestSensorWindows::closingWithChangesAsks()
{
    QFETCH(QMessageBox::StandardButton, button);
    const QString file = m_dir.filePath(QStringLiteral("sensors.json"));
    SensorManager sensors;
    sensors.addSensor(makeRadar(QStringLiteral("R1")));
    QVERIFY(sensors.saveToJsonFile(QFileInfo(file)));
    SensorManagerWindow window(&sensors, file);
    window.show();
    window.putSensor(makeRadar(QStringLiteral("R2")));
    answer(button);
    window.close();
    QVERIFY(!m_asked.isEmpty());
    QTEST(!window.isVisible(), "closes");
    QTEST(sensors.sensorNames(), "names");
    SensorManager written;
    QVERIFY(written.loadFromJsonFile(QFileInfo(file)));
    QTEST(static_cast<int>(written.sensorNames().size()), "saved");
}

void TestSensorWindows::failuresNameFileAndReason_data()
{
    QTest::addColumn<bool>("saves");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reason");
    QTest::newRow("open what is not there") << false << "none.json"
                                            << "No such file";
    QTest::newRow("open what is no list") << false << "text.json"
                                          << "It is no JSON list of sensors.";
    QTest::newRow("save into a directory that is not there") << true << "no/such/dir.json"
                                                             << "No such file";
}

void TestSensorWindows::failuresNameFileAndReason()
{
    QFETCH(bool, saves);
    QFETCH(QString, file);
    QFETCH(QString, reason);
    QFile text(m_dir.filePath(QStringLiteral("text.json")));
    QVERIFY(text.open(QIODevice::WriteOnly));
    text.write("{}");
    text.close();
    SensorManager sensors;
    sensors.addSensor(makeRadar(QStringLiteral("R1")));
    SensorManagerWindow window(&sensors, QString());
    const QSignalSpy fileChanges(&window, &SensorManagerWindow::databaseFileChanged);
    answer(QMessageBox::Ok);
    const QString path = m_dir.filePath(file);
    QVERIFY(!(saves ? window.saveFile(path) : window.openFile(path)));
    QVERIFY2(m_asked.contains(QDir::toNativeSeparators(path)) && m_asked.contains(reason), qPrintable(m_asked));
    QCOMPARE(fileChanges.size(), 0);
    QCOMPARE(sensors.sensorNames(), QStringList{QStringLiteral("R1")});
}

void TestSensorWindows::savedFileOpensAgain()
{
    const QString file = m_dir.filePath(QStringLiteral("again.json"));
    SensorManager sensors;
    SensorManagerWindow window(&sensors, QString());
    const QSignalSpy fileChanges(&window, &SensorManagerWindow::databaseFileChanged);
    window.putSensor(makeRadar(QStringLiteral("R1")));
    QVERIFY(window.saveFile(file));
    QVERIFY(!window.hasUnsavedChanges());
    sensors.reset();
    QVERIFY(window.openFile(file));
    QCOMPARE(sensors.sensorNames(), QStringList{QStringLiteral("R1")});
    QCOMPARE(fileChanges.size(), 1);
    QCOMPARE(window.databaseFile(), file);
}

void TestSensorWindows::offersOnlyRadarsForInput()
{
    SensorManager sensors;
    sensors.addSensor(makeRadar(QStringLiteral("R1")));
    sensors.addSensor(makeSensor(QStringLiteral(R"("type": "mlat", "name": "M1")")));
    SensorManagerWindow window(&sensors, QString());
    const QSignalSpy chosen(&window, &SensorManagerWindow::sensorChosen);
    auto *use = field<QAbstractButton>(window, "useButton");
    window.selectSensor(QStringLiteral("M1"));
    use->click();
    QCOMPARE(chosen.size(), 0);
    window.selectSensor(QStringLiteral("R1"));
    use->click();
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(chosen.first().first().value<QSharedPointer<SensorInfo>>()->name(), QStringLiteral("R1"));
}

QTEST_MAIN(TestSensorWindows)
#include "tst_sensor_windows.moc"
