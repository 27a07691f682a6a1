#include "app/setting.h"
#include "plan_view/geo_widget.h"
#include "settings/config_window.h"
#include "settings/sensor_edit_window.h"
#include "settings/sensor_manager_window.h"
#include "test_program.h"
#include "ui/actions.h"
#include "widgets/color_button.h"
#include "widgets/coordinate_edit.h"
#include "widgets/file_edit.h"
#include "widgets/geometry_dialog.h"
#include "window_fixture.h"
#include "written_capture.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFileInfo>
#include <QFontComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStackedWidget>
#include <QTimer>

#include <algorithm>
#include <utility>

// What an operator enters into a window by keys and mouse is there when the program has been started again.
class TestWindowsKeepValues : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fieldsComeBack_data();
    void fieldsComeBack();
    void settingsComeBack();
    void placesComeBack();
    void sensorsComeBack();
    void sizesComeBack();
};

namespace {

using Values = QMap<QString, QString>; // as shown, by the fields' names

// What is entered by hand, in the order of the tab key.
QWidgetList fieldsOf(QWidget *window)
{
    QWidgetList fields;
    for (QWidget *widget = window->nextInFocusChain(); widget != window; widget = widget->nextInFocusChain()) {
        const bool isField = qobject_cast<QCheckBox *>(widget) || qobject_cast<QComboBox *>(widget)
            || qobject_cast<QAbstractSpinBox *>(widget) || qobject_cast<QLineEdit *>(widget)
            || qobject_cast<FileEdit *>(widget) || qobject_cast<ColorButton *>(widget);
        if (isField && !widget->objectName().isEmpty() && !widget->objectName().startsWith("qt_")) {
            fields.append(widget);
        }
    }
    return fields;
}

QString shown(const QWidget *field)
{
    if (const auto *box = qobject_cast<const QCheckBox *>(field)) {
        return box->isChecked() ? "on" : "off";
    }
    if (const auto *box = qobject_cast<const QComboBox *>(field)) {
        return box->currentText();
    }
    const auto *file = qobject_cast<const FileEdit *>(field);
    return file ? file->path() : field->property("text").toString();
}

Values valuesOf(QWidget *window)
{
    Values values;
    for (const QWidget *field : fieldsOf(window)) {
        values.insert(field->objectName(), shown(field));
    }
    return values;
}

QString textFor(const QWidget *field)
{
    const QString folder = qEnvironmentVariable("XDG_DATA_HOME");
    const QHash<QString, QString> notFree{{"inputUdpMcastAddress1", "239.7.7.7"},
        {"inputUdpMcastAddress2", "239.7.7.8"}, {"mapCustomTileUrl", "https://tiles.example/{z}/{x}/{y}.png"},
        {"mapCustomTileHeader", "Key: value"}, {"inputFileName", folder + "/x.pcap"}};
    const QString name = field->objectName();
    if (notFree.contains(name)) {
        return notFree.value(name);
    }
    return qobject_cast<const CoordinateEdit *>(field) ? "481500N0161500E"
        : qobject_cast<const FileEdit *>(field)        ? folder + u'/' + name
        : name.endsWith("TileServer")                  ? "https://tiles.example"
                                                       : "vyx7";
}

// In the dialog that opens.
void chooseColor(QWidget *field)
{
    QTimer::singleShot(0, field, [] {
        auto *dialog = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
        dialog->setCurrentColor(QColor(dialog->currentColor().red() ^ 0x41, 20, 30));
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    QTest::keyClick(field, Qt::Key_Space);
}

// With the keys; what is at an end goes the other way.
void change(QWidget *field)
{
    const QString before = shown(field);
    if (qobject_cast<ColorButton *>(field)) {
        chooseColor(field);
        return;
    }
    auto *box = qobject_cast<QComboBox *>(field);
    if (qobject_cast<QLineEdit *>(field) || qobject_cast<FileEdit *>(field) || (box && box->count() == 0)) {
        QWidget *line = qobject_cast<QLineEdit *>(field) ? field : field->findChild<QLineEdit *>();
        QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(line, textFor(field));
        return;
    }
    const bool isSwitch = qobject_cast<QCheckBox *>(field) != nullptr;
    QTest::keyClick(field, isSwitch ? Qt::Key_Space : Qt::Key_Down);
    if (shown(field) == before && !isSwitch) {
        QTest::keyClick(field, Qt::Key_Up);
    }
}

// By a click on each page's name.
void visitPages(QWidget *window, const std::function<void()> &visit)
{
    auto *settings = qobject_cast<ConfigWindow *>(window);
    if (!settings) {
        visit();
        return;
    }
    auto *list = settings->findChild<QListWidget *>();
    for (int row = 0; row < list->count(); ++row) {
        const QPoint place = list->visualItemRect(list->item(row)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
        visit();
    }
}

// Those that are in sight and have not been changed yet.
void changeFields(QWidget *window, QStringList *done)
{
    QWidgetList fields = fieldsOf(window);
    std::reverse(fields.begin(), fields.end()); // what is switched off locks what is below it
    for (QWidget *field : std::as_const(fields)) {
        if (field->isVisible() && field->isEnabled() && !done->contains(field->objectName())) {
            change(field);
            done->append(field->objectName());
        }
    }
}

// The fields that show something else, with both.
QStringList differing(const Values &before, const Values &after)
{
    QStringList names;
    for (auto value = before.cbegin(); value != before.cend(); ++value) {
        if (after.value(value.key()) != value.value()) {
            names += QStringLiteral("%1: \"%2\", \"%3\"").arg(value.key(), value.value(), after.value(value.key()));
        }
    }
    return names;
}

// By so many steps each.
void choose(QWidget *window, const QMap<QString, int> &choices)
{
    visitPages(window, [window, &choices] {
        for (auto choice = choices.cbegin(); choice != choices.cend(); ++choice) {
            auto *field = window->findChild<QWidget *>(choice.key());
            for (int step = 0; field->isVisible() && step < choice.value(); ++step) {
                change(field);
            }
        }
    });
}

QSet<QString> changedSettings(const Config &before, const Config &after)
{
    QSet<QString> keys;
    for (const Setting &setting : Setting::all()) {
        if (!setting.same(before, after)) {
            keys += setting.key();
        }
    }
    return keys;
}

QDialog *open(MainWindow &window, ActionId id)
{
    action(window, id)->trigger();
    QDialog *dialog = nullptr;
    const auto opened = [&dialog, &window] {
        for (auto *candidate : window.findChildren<QDialog *>()) {
            dialog = candidate->isVisible() ? candidate : dialog;
        }
        return dialog != nullptr;
    };
    return QTest::qWaitFor(opened, 1000) ? dialog : nullptr;
}

bool press(const QDialog *dialog, std::initializer_list<QDialogButtonBox::StandardButton> buttons)
{
    const auto *box = dialog->findChild<QDialogButtonBox *>();
    for (const auto which : buttons) {
        if (QPushButton *button = box ? box->button(which) : nullptr) {
            QTest::mouseClick(button, Qt::LeftButton);
            return true;
        }
    }
    return false;
}

} // namespace

void TestWindowsKeepValues::fieldsComeBack_data()
{
    QTest::addColumn<int>("action");
    QTest::addColumn<QStringList>("kept");
    QTest::addColumn<int>("atLeast"); // so many fields are different
    QTest::newRow("track label format") << int(ActionId::TrackLabelFormat) << QStringList() << 7;
    QTest::newRow("range rings") << int(ActionId::RangeRings) << QStringList() << 3;
    QTest::newRow("rotation") << int(ActionId::Rotate) << QStringList() << 1;
    QTest::newRow("weather intensity") << int(ActionId::WeatherIntensity) << QStringList() << 5;
    QTest::newRow("playback") << int(ActionId::PlaybackWindow) << QStringList("speed") << 1;
}

void TestWindowsKeepValues::fieldsComeBack()
{
    QFETCH(int, action);
    QFETCH(QStringList, kept);
    QFETCH(int, atLeast);
    const WindowFixture fixture;
    Values entered;
    {
        const auto window = WindowFixture::makeWindow();
        QDialog *dialog = open(*window, ActionId(action));
        QVERIFY(dialog);
        const Values before = valuesOf(dialog);
        changeFields(dialog, &kept);
        entered = valuesOf(dialog);
        const auto different = differing(before, entered);
        QVERIFY2(different.size() >= atLeast, qPrintable(different.join('\n')));
        press(dialog, {QDialogButtonBox::Ok, QDialogButtonBox::Close});
        QVERIFY2(!dialog->isVisible() || ActionId(action) == ActionId::PlaybackWindow, "it was accepted");
        QVERIFY(WindowFixture::close(*window));
    }
    const auto window = WindowFixture::makeWindow();
    QDialog *dialog = open(*window, ActionId(action));
    QVERIFY(dialog);
    QCOMPARE(differing(entered, valuesOf(dialog)).join('\n'), QString());
    QVERIFY(WindowFixture::close(*window));
}

// Every field of every page. What decides over other fields is moved by so many steps before.
void TestWindowsKeepValues::settingsComeBack()
{
    const QList<QMap<QString, int>> choices{{}, {{"inputComm", 1}, {"processorType", 1}, {"sensorType", 1}},
        {{"inputComm", 2}, {"processorType", 2}, {"sensorType", 2}, {"shownTileService", 1}},
        {{"sensorType", 3}, {"shownTileService", 2}}, {{"sensorType", 4}, {"shownTileService", 3}},
        {{"shownTileService", 4}, {"displayStyle", 1}, {"displayLanguage", 1}},
        {{"shownTileService", 5}, {"displayTheme", 1}, {"displayFontScale", 1}}};
    QStringList done{"displayStyle", "displayLanguage", "displayTheme", "displayFontScale", "inputComm",
        "processorType", "sensorType", "sensorChoice", "shownTileService", "differingOnly", "searchLine"};
    QSet<QString> changed;
    for (const auto &choice : choices) {
        const WindowFixture fixture;
        QVERIFY(!writtenCapture(qEnvironmentVariable("XDG_DATA_HOME") + "/x.pcap", {{0, "x"}}).isEmpty());
        Values entered;
        Config config;
        {
            const auto window = WindowFixture::makeWindow();
            const Config before = window->config();
            QDialog *dialog = open(*window, ActionId::Settings);
            QVERIFY(dialog);
            choose(dialog, choice);
            for (int round = 0; round < 2; ++round) { // what is switched on brings other fields
                visitPages(dialog, [dialog, &done] { changeFields(dialog, &done); });
            }
            entered = valuesOf(dialog);
            press(dialog, {QDialogButtonBox::Ok});
            QVERIFY2(!dialog->isVisible(), qPrintable(choice.keys().join(' ')));
            config = window->config();
            changed += changedSettings(before, config);
            QVERIFY(WindowFixture::close(*window));
        }
        const auto window = WindowFixture::makeWindow();
        QCOMPARE(changedSettings(config, window->config()), QSet<QString>());
        QDialog *dialog = open(*window, ActionId::Settings);
        QVERIFY(dialog);
        for (const char *name : {"shownTileService", "mapWeatherColor%1"}) {
            entered.remove(name); // these choose what other fields show, and are no values
        }
        QCOMPARE(differing(entered, valuesOf(dialog)).join('\n'), QString());
        QVERIFY(WindowFixture::close(*window));
    }
    QStringList never;
    for (const Setting &setting : Setting::all()) {
        // The one locks the rest, the other has its window.
        if (!changed.contains(setting.key()) && setting.key() != "settingsLock" && setting.key() != "sensorDatabase") {
            never += setting.key();
        }
    }
    QCOMPARE(never.join(' '), QString());
}

void TestWindowsKeepValues::placesComeBack()
{
    const WindowFixture fixture;
    const QString place = "481500N0161500E";
    {
        const auto window = WindowFixture::makeWindow();
        QDialog *dialog = open(*window, ActionId::GoTo);
        QVERIFY(dialog);
        auto *center = dialog->findChild<CoordinateEdit *>("center");
        QTest::keyClick(center, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(center, place);
        QTest::keyClick(center, Qt::Key_Return);
        QVERIFY(WindowFixture::close(*window));
    }
    const auto window = WindowFixture::makeWindow();
    const GeoWidget *plan = window->geoWidget();
    const QPointF there = window->engineHost().shared().projector.toCartesian(GeoCoordinate::fromATCString(place));
    const QPointF pixel = plan->screenTransform().map(there);
    QVERIFY2(QLineF(pixel, QRectF(plan->rect()).center()).length() < 2.0, "the view is there");
    QDialog *dialog = open(*window, ActionId::GoTo);
    QVERIFY(dialog);
    auto *recent = dialog->findChild<QComboBox *>("recent");
    QTest::keyClick(recent, Qt::Key_Down);
    QCOMPARE(recent->currentText(), place);
    QVERIFY(WindowFixture::close(*window));
}

// From an empty list to a sensor that the input uses.
void TestWindowsKeepValues::sensorsComeBack()
{
    const WindowFixture fixture;
    const QString file = QFileInfo(AppPaths::configFile()).dir().filePath("sensors.json");
    const auto withFile = [&file](Config &config) { config.sensorDatabase = file; };
    {
        const auto window = WindowFixture::makeWindow(withFile);
        auto *manager = qobject_cast<SensorManagerWindow *>(open(*window, ActionId::SensorManager));
        QVERIFY(manager);
        QTimer::singleShot(0, this, [] {
            auto *edit = qobject_cast<SensorEditWindow *>(QApplication::activeModalWidget());
            auto *name = edit->findChild<QLineEdit *>("sensorName");
            QTest::keyClick(name, Qt::Key_A, Qt::ControlModifier);
            QTest::keyClicks(name, "EAST");
            QTest::keyClicks(edit->findChild<CoordinateEdit *>(), "480000N0170000E");
            QTest::keyClick(edit->findChild<QCheckBox *>("sensorRadarIsModeS"), Qt::Key_Space);
            QTest::keyClick(name, Qt::Key_Return);
            edit->close(); // whatever became of it
        });
        manager->addSensor();
        QCOMPARE(manager->selectedName(), "EAST");
        QTest::mouseClick(manager->findChild<QPushButton *>("saveButton"), Qt::LeftButton);
        QVERIFY(!manager->hasUnsavedChanges());
        QTest::mouseClick(manager->findChild<QPushButton *>("useButton"), Qt::LeftButton);
        QCOMPARE(window->config().sensorName, "EAST");
        QVERIFY(WindowFixture::close(*window));
    }
    const auto window = WindowFixture::makeWindow(withFile);
    QCOMPARE(window->config().sensorName, "EAST");
    QCOMPARE(window->config().sensorLocation.toATCString(), "480000N0170000E");
    auto *manager = qobject_cast<SensorManagerWindow *>(open(*window, ActionId::SensorManager));
    QVERIFY(manager);
    manager->selectSensor("EAST");
    QCOMPARE(manager->selectedName(), "EAST");
    QVERIFY(WindowFixture::close(*window));
}

void TestWindowsKeepValues::sizesComeBack()
{
    const WindowFixture fixture;
    constexpr ActionId Windows[] = {ActionId::PlaybackWindow, ActionId::Settings, ActionId::NewWindow, ActionId::Rotate,
        ActionId::GoTo, ActionId::SaveLayout, ActionId::Statistics, ActionId::RawView, ActionId::DiagnoseInput,
        ActionId::SensorManager, ActionId::SensorCheck, ActionId::GettingStarted, ActionId::CheatSheet,
        ActionId::WhatsNew, ActionId::About, ActionId::TrackLabelFormat, ActionId::WhyNotShown, ActionId::StaticMaps,
        ActionId::TileDownloader, ActionId::WeatherIntensity, ActionId::RangeRings};
    QMap<QString, QSize> sizes;
    for (const bool again : {false, true}) {
        const auto window = WindowFixture::makeWindow();
        for (const ActionId id : Windows) {
            QDialog *dialog = open(*window, id);
            QVERIFY2(dialog, qPrintable(action(*window, id)->text()));
            const QString name = QLatin1String(dialog->metaObject()->className());
            if (again) {
                QVERIFY2(dialog->size() == sizes.value(name), qPrintable(name));
            } else {
                dialog->resize(dialog->size() + QSize(31, 17));
                sizes.insert(name, dialog->size());
            }
            dialog->close();
        }
        QVERIFY(WindowFixture::close(*window));
    }
    QCOMPARE(sizes.size(), qsizetype(std::size(Windows)));
}

VYX_TEST(TestWindowsKeepValues)

#include "tst_windows_keep_values.moc"
