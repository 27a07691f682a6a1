#include "sensors/sensor_manager.h"
#include "settings/sensor_edit_window.h"
#include "settings/sensor_form.h"
#include "settings/sensor_list.h"
#include "settings/sensor_manager_window.h"
#include "test_files.h"
#include "test_program.h"
#include "widgets/field_form.h"

#include <QCompleter>
#include <QHeaderView>
#include <QJsonDocument>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <algorithm>

class TestSensorWindows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void editingKeepsEveryField();
    void refusesInWords();
    void hasRoomForWhatIsRefused();
    void renamingReplacesTheRecord();
    void closingWithChangesAsks_data();
    void closingWithChangesAsks();
    void failuresNameFileAndReason();
    void offersEverySensorForInput();
    void isDrivenByKeys();
    void importsWhatIsGood();
    void exportsWhatIsSelected();
    void saysWhatAFileLoses();
    void asksBeforeItWritesOverOthers();
    void completesMakersAndModels();

private:
    void answer(QMessageBox::StandardButton button);
    QString written(const QString &name, const QByteArray &contents);

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

void TestSensorWindows::editingKeepsEveryField()
{
    for (const char *json : {R"("type": "radar", "name": "R", "antenna_altitude": -3, "rotation_period": 9.875,
        "psr": true, "ssr": true, "modes": false, "psr_coverage": 61, "ssr_coverage": 251)",
             R"("type": "radar", "name": "R", "psr": true)", R"("type": "mlat", "name": "M", "coverage": 31)",
             R"("type": "adsb", "name": "A", "coverage": 190, "update_interval": 0.5, "versions": ["0", "DO-260B"])",
             R"("type": "sdps", "name": "S", "coverage": 900, "update_interval": 4.0)",
             R"("type": "smr", "name": "G", "antenna_altitude": 45, "rotation_period": 0.985, "coverage": 2.75,
        "acp": 16384)"}) {
        const QSharedPointer<SensorInfo> sensor = makeSensor(QString::fromLatin1(json));
        SensorManager sensors;
        sensors.addSensor(sensor);
        SensorEditWindow window(sensor, &sensors);
        window.accept();
        QVERIFY(window.sensor() && window.sensor() != sensor);
        QCOMPARE(window.sensor()->jsonObject(), sensor->jsonObject());
    }
}

void TestSensorWindows::refusesInWords()
{
    struct Entry {
        QString name;
        QString location;
        QString words;
    };
    const QString place = QStringLiteral("395427.35n1162317.08e"); // lower case is understood
    const QString taken = QStringLiteral("Another sensor is named \"R1\".");
    SensorManager sensors;
    sensors.addSensor(makeRadar(QStringLiteral("R1")));
    sensors.addSensor(makeRadar(QStringLiteral("Mine")));
    for (const Entry &entry : {Entry{"R2", place, ""}, Entry{"Mine", place, ""}, Entry{"r1", place, ""},
             Entry{"  ", place, "A sensor needs a name."}, Entry{" R1 ", place, taken},
             Entry{"R2", "", "INVALID COORDINATE"}, Entry{"R2", "395427N1162317E", ""},
             Entry{"R2", "395427N116", "INVALID COORDINATE"}}) {
        SensorEditWindow window(sensors.findSensor(QStringLiteral("Mine")), &sensors);
        field<QLineEdit>(window, "sensorName")->setText(entry.name);
        field<QLineEdit>(window, "sensorLocation")->setText(entry.location);
        window.accept();
        QCOMPARE(window.sensor().isNull(), !entry.words.isEmpty());
        auto *form = window.findChild<FieldForm *>();
        QCOMPARE(form->note(form->firstWithNote()).section(u'\n', 0, 0), entry.words);
    }
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
    QVERIFY(window.saveFile(m_dir.filePath(QStringLiteral("again.json"))));
    QVERIFY(!window.hasUnsavedChanges());
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

void TestSensorWindows::failuresNameFileAndReason()
{
    written("text.json", "{}");
    SensorManager sensors;
    sensors.addSensor(makeRadar(QStringLiteral("R1")));
    SensorManagerWindow window(&sensors, QString());
    const QSignalSpy fileChanges(&window, &SensorManagerWindow::databaseFileChanged);
    const auto explained = [&](const QString &file, bool (SensorManagerWindow::*access)(const QString &)) {
        answer(QMessageBox::Ok);
        const QString path = m_dir.filePath(file);
        return (window.*access)(path) || !m_asked.contains(path) ? QString() : m_asked;
    };
    QVERIFY(explained("none.json", &SensorManagerWindow::openFile).contains("No such file"));
    QVERIFY(explained("text.json", &SensorManagerWindow::openFile).contains("It is no JSON list of sensors."));
    QVERIFY(explained("no/such/dir.json", &SensorManagerWindow::saveFile).contains("No such file"));
    QCOMPARE(fileChanges.size(), 0);
    QCOMPARE(sensors.sensorNames(), QStringList{QStringLiteral("R1")});
}

void TestSensorWindows::offersEverySensorForInput()
{
    SensorManager sensors;
    sensors.addSensor(makeRadar(QStringLiteral("R1")));
    sensors.addSensor(makeSensor(QStringLiteral(R"("type": "mlat", "name": "M1")")));
    SensorManagerWindow window(&sensors, QString());
    const QSignalSpy chosen(&window, &SensorManagerWindow::sensorChosen);
    auto *use = field<QAbstractButton>(window, "useButton");
    for (const char *name : {"M1", "R1"}) {
        window.selectSensor(QString::fromLatin1(name));
        use->click();
        QCOMPARE(chosen.last().first().value<QSharedPointer<SensorInfo>>()->name(), QString::fromLatin1(name));
    }
    const auto *ofInput = field<QLabel>(window, "inputSensor");
    QVERIFY(ofInput->text().endsWith("none"));
    window.setInputSensor(makeRadar(QStringLiteral("R1")));
    QVERIFY(ofInput->text().endsWith("R1"));
    const auto edited = makeRadar(QStringLiteral("R1"));
    edited->setSacSic(7, 8);
    window.putSensor(edited, QStringLiteral("R1"));
    QVERIFY2(ofInput->text().contains("other values"), "the input does not follow by itself");
}

void TestSensorWindows::hasRoomForWhatIsRefused()
{
    const SensorManager sensors;
    SensorEditWindow window(nullptr, &sensors);
    window.show();
    window.accept();
    const auto notes = window.findChild<FieldForm *>()->findChildren<QLabel *>();
    const auto cut = [](const QLabel *note) {
        return note->isVisible() && note->wordWrap() && note->height() < note->heightForWidth(note->width());
    };
    QVERIFY(window.findChild<FieldForm *>()->firstWithNote());
    QTRY_VERIFY(std::none_of(notes.begin(), notes.end(), cut));
}

// A person's way through the list without a mouse, to the file and back.
void TestSensorWindows::isDrivenByKeys()
{
    const QString file = m_dir.filePath(QStringLiteral("keys.json"));
    SensorManager sensors;
    for (const char *name : {"R3", "R1", "R2"}) {
        sensors.addSensor(makeRadar(QString::fromLatin1(name)));
    }
    QVERIFY(sensors.saveToJsonFile(QFileInfo(file)));
    SensorManagerWindow window(&sensors, file);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    auto *list = field<SensorList>(window, "sensorList");
    const auto order = [&sensors] {
        QStringList names;
        for (const auto &sensor : sensors.sensors()) {
            names.append(sensor->name());
        }
        return names.join(u' ');
    };
    QCOMPARE(window.selectedName(), "R3");
    QTest::keyClick(list, Qt::Key_Down, Qt::AltModifier);
    QTest::keyClick(list, Qt::Key_Down, Qt::AltModifier);
    QTest::keyClick(list, Qt::Key_Down, Qt::AltModifier); // is last already
    QCOMPARE(order(), "R1 R2 R3");
    list->select({"R2", "R3"});
    QTest::keyClick(list, Qt::Key_Delete);
    QCOMPARE(order(), "R1");
    QTest::keyClick(list, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(order(), "R1 R2 R3");
    QTest::keyClick(list, Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!window.hasUnsavedChanges());
    sensors.reset();
    QVERIFY(sensors.loadFromJsonFile(QFileInfo(file)));
    QCOMPARE(order(), "R1 R2 R3");

    QVERIFY(window.openFile(file));
    Q_EMIT list->orderChanged({"R2", "R3", "R1"}); // as after dragging
    QTRY_COMPARE(order(), "R2 R3 R1");
    QTest::keyClick(list, Qt::Key_Z, Qt::ControlModifier);
    QVERIFY2(order() == "R1 R2 R3" && !window.hasUnsavedChanges(), "undone is unchanged");
    list->header()->setSortIndicator(0, Qt::DescendingOrder);
    window.selectSensor("R1");
    QTest::keyClick(list, Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(order(), "R1 R2 R3"); // sorted, it has no places to move to

    // Return edits: the name is taken, the reason stands at the field, another name is good.
    QString reason;
    QTimer::singleShot(0, this, [&reason] {
        auto *dialog = qobject_cast<SensorEditWindow *>(QApplication::activeModalWidget());
        auto *name = dialog->findChild<QLineEdit *>("sensorName");
        name->setText("R2");
        QTest::keyClick(dialog, Qt::Key_Return);
        if (dialog->isVisible() && dialog->focusWidget() == name) {
            reason = dialog->findChild<FieldForm *>()->note(name);
        }
        name->setText("R0");
        QTest::keyClick(dialog, Qt::Key_Return);
        dialog->close(); // whatever became of it
    });
    QTest::keyClick(list, Qt::Key_Return);
    QCOMPARE(reason, "Another sensor is named \"R2\".");
    QCOMPARE(order(), "R0 R2 R3");
}

QString TestSensorWindows::written(const QString &name, const QByteArray &contents)
{
    return writtenTo(m_dir.filePath(name), contents);
}

void TestSensorWindows::importsWhatIsGood()
{
    const QByteArray place = R"("location": "395427.35S0062317.08W", )";
    const QString file = written("import.json",
        "[{" + place + R"("type": "radar", "name": "R1"}, 7, {)" + place + R"("type": "Radar", "name": "X"},
        {"type": "radar", "name": "Nowhere", "location": "39"}, {)"
            + place + R"("type": "radar"}, {)" + place + R"("type": "mlat", "name": "M1", "sac": 300}])");
    SensorManager sensors;
    sensors.addSensor(makeRadar(QStringLiteral("R1")));
    SensorManagerWindow window(&sensors, QString());
    window.show();
    answer(QMessageBox::Ok);
    QVERIFY(window.importFile(file));
    QCOMPARE(sensors.sensorNames(), QStringList({"M1", "R1", "R1_dup1"}));
    for (const char *line : {"Record 2: it is no object.", "Record 3: \"X\" has no known type: \"Radar\".",
             "Record 4: \"Nowhere\" has no valid location: \"39\".", "Record 5: it has no name.", "\"sac\": 300",
             "\"R1\" is there already: imported as \"R1_dup1\"."}) {
        QVERIFY2(m_asked.contains(line), qPrintable(m_asked));
    }
    field<QPushButton>(window, "undoButton")->click();
    QCOMPARE(sensors.sensorNames(), QStringList("R1"));
    answer(QMessageBox::Ok);
    QVERIFY(!window.importFile(written("broken.json", "[{},\n{]")));
    QVERIFY2(m_asked.contains("line 2"), qPrintable(m_asked));
}

void TestSensorWindows::exportsWhatIsSelected()
{
    SensorManager sensors;
    for (const char *name : {"R1", "R2", "R3"}) {
        sensors.addSensor(makeRadar(QString::fromLatin1(name)));
    }
    SensorManagerWindow window(&sensors, QString());
    const QString file = m_dir.filePath(QStringLiteral("export.json"));
    SensorManager exported;
    field<SensorList>(window, "sensorList")->select({"R3", "R2"});
    QVERIFY(window.exportFile(file) && exported.loadFromJsonFile(QFileInfo(file)));
    QCOMPARE(exported.sensorNames(), QStringList({"R2", "R3"}));
    field<SensorList>(window, "sensorList")->select({});
    QVERIFY(window.exportFile(file) && exported.loadFromJsonFile(QFileInfo(file)));
    QCOMPARE(exported.sensorNames().size(), 3);
    QVERIFY(window.databaseFile().isEmpty());
}

void TestSensorWindows::saysWhatAFileLoses()
{
    const QString file = written("skips.json", R"([{"type": "radar", "name": "Nowhere"}])");
    SensorManager sensors;
    QVERIFY(sensors.loadFromJsonFile(QFileInfo(file)));
    const SensorManagerWindow window(&sensors, file);
    QVERIFY(field<QLabel>(window, "note")->text().contains("Record 1: \"Nowhere\" has no valid location"));
}

void TestSensorWindows::asksBeforeItWritesOverOthers()
{
    const QString file = m_dir.filePath(QStringLiteral("shared.json"));
    SensorManager sensors;
    sensors.addSensor(makeRadar(QStringLiteral("R1")));
    QVERIFY(sensors.saveToJsonFile(QFileInfo(file)));
    SensorManagerWindow window(&sensors, file);
    window.show();
    auto *reload = field<QPushButton>(window, "reloadButton");
    QVERIFY(!reload->isVisible());
    SensorManager other;
    other.addSensor(makeRadar(QStringLiteral("THEIRS")));
    QVERIFY(other.saveToJsonFile(QFileInfo(file)));
    window.putSensor(makeRadar(QStringLiteral("R2")));
    QVERIFY(reload->isVisible());
    answer(QMessageBox::Cancel);
    QVERIFY(!window.save() && window.hasUnsavedChanges());
    QVERIFY(other.loadFromJsonFile(QFileInfo(file)) && other.hasSensor("THEIRS"));
    answer(QMessageBox::Discard);
    reload->click();
    QCOMPARE(sensors.sensorNames(), QStringList("THEIRS"));
    QVERIFY(!reload->isVisible() && !window.hasUnsavedChanges());
    window.putSensor(makeRadar(QStringLiteral("R2")));
    QVERIFY2(window.save(), "its own writing is no change by others");
}

void TestSensorWindows::completesMakersAndModels()
{
    SensorManager sensors;
    sensors.addSensor(makeRadar(QStringLiteral("R1")));
    SensorEditWindow window(nullptr, &sensors);
    auto *model = field<QLineEdit>(window, "sensorModel");
    QCOMPARE(model->completer()->completionCount(), 0);
    field<QLineEdit>(window, "sensorManufacturer")->setText("Korvane");
    model->completer()->setCompletionPrefix("k");
    QCOMPARE(model->completer()->currentCompletion(), "K 2");
}

VYX_TEST(TestSensorWindows)
#include "tst_sensor_windows.moc"
