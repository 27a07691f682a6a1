#include "app/theme_library.h"
#include "settings/config_page.h"
#include "settings/config_window.h"
#include "settings/password_field.h"
#include "settings/password_window.h"
#include "test_program.h"
#include "widgets/color_button.h"
#include "widgets/field_form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTest>

// What the settings window says about its fields, and how they are found, marked and put back.
class TestConfigFields : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void everySettingHasAField();
    void everyFieldIsDescribed();
    void searchGoesThroughAllPages();
    void searchLeadsToWhatIsHidden();
    void marksWhatIsChangedAndNotApplied();
    void putsDefaultsBack();
    void findsWhatIsNotDefault();
    void passwordIsSetAndRemoved();
};

namespace {

QStringList shownPages(const ConfigWindow &window)
{
    const auto *list = window.findChild<QListWidget *>("pageList");
    QStringList shown;
    for (int row = 0; row < list->count(); ++row) {
        if (!list->item(row)->isHidden()) {
            shown.append(list->item(row)->text());
        }
    }
    return shown;
}

QString answer(const ConfigWindow &window)
{
    return window.findChild<QLabel *>("searchAnswer")->text();
}

bool inSight(const ConfigWindow &window, const char *key)
{
    const auto *field = window.findChild<QWidget *>(QString::fromLatin1(key));
    return field && field->isVisible() && !field->visibleRegion().isEmpty();
}

void chooseFromMenu(const ConfigWindow &window, const QString &entry)
{
    QMenu *menu = window.findChild<QPushButton *>("defaults")->menu();
    Q_EMIT menu->aboutToShow();
    for (QAction *action : menu->actions()) {
        if (action->text().startsWith(entry)) {
            QVERIFY2(action->isEnabled(), qPrintable(action->text()));
            action->trigger();
            return;
        }
    }
    QFAIL(qPrintable(entry));
}

} // namespace

// Every setting has its place in the window, or is edited elsewhere for a reason.
void TestConfigFields::everySettingHasAField()
{
    const QHash<QString, QString> elsewhere{
        {"sensorDatabase", "Open and Save as of the sensor manager"},
    };
    const ConfigWindow window(Config(), nullptr);
    QHash<QString, int> pages;
    for (const ConfigPage *page : window.pages()) {
        for (const Setting *setting : page->settings()) {
            ++pages[setting->key()];
            QVERIFY2(page->findChild<QWidget *>(setting->key()), qPrintable(setting->key()));
        }
    }
    for (const Setting &setting : Setting::all()) {
        QVERIFY2(pages.value(setting.key()) == (elsewhere.contains(setting.key()) ? 0 : 1), qPrintable(setting.key()));
    }
}

void TestConfigFields::everyFieldIsDescribed()
{
    const ConfigWindow window(Config(), nullptr);
    for (const ConfigPage *page : window.pages()) {
        for (QWidget *field : page->form()->fields()) {
            if (qobject_cast<QLabel *>(field)) {
                continue; // an answer, not a question
            }
            const QString name = page->title() + u'/' + field->objectName() + u'/' + page->form()->title(field);
            QVERIFY2(!page->form()->title(field).isEmpty(), qPrintable(name));
            const QString tip = field->toolTip().section(u'\n', 0, 0);
            QVERIFY2(tip.endsWith(u'.') && tip.size() > 10, qPrintable(name));
            QWidget *focused = field->focusProxy() ? field->focusProxy() : field;
            const bool namesItself = qobject_cast<QAbstractButton *>(field) && focused->accessibleName().isEmpty();
            QVERIFY2(namesItself || focused->accessibleName() == page->form()->title(field), qPrintable(name));
            const Setting *setting = nullptr;
            for (const Setting *bound : page->settings()) {
                setting = bound->key() == field->objectName() ? bound : setting;
            }
            if (setting && qobject_cast<QSpinBox *>(field) && !(setting->groups() & SettingGroup::Sensor)) {
                QVERIFY2(field->toolTip().contains(setting->unitSuffix() + ", default "), qPrintable(name));
            }
        }
    }
}

void TestConfigFields::searchGoesThroughAllPages()
{
    ConfigWindow window(Config(), nullptr);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    auto *line = window.findChild<QLineEdit *>("searchLine");
    QVERIFY(line->hasFocus());
    QTest::keyClicks(line, "ring DIST");
    QCOMPARE(shownPages(window), QStringList("Map Layers (4)"));
    for (const char *key : {"mapRangeRingVisible", "mapRangeRingDistance", "mapRangeRingLabelVisible",
             "mapRangeRingLabelColor", "mapRangeRingVisible"}) {
        QTest::keyClick(line, Qt::Key_Return);
        QVERIFY2(window.isVisible() && inSight(window, key), key);
    }
    QCOMPARE(answer(window), "Hit 1 of 4");
    QTest::keyClick(line, Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(answer(window), "Hit 4 of 4");
    QTest::keyClick(line, Qt::Key_Return);
    QTest::keyClick(line, Qt::Key_Tab);
    QVERIFY2(window.focusWidget() == window.findChild<QWidget *>("mapRangeRingVisible"), "Tab goes into the field");
    line->setText("no such thing");
    QVERIFY(shownPages(window).isEmpty() && answer(window) == "Nothing found.");
    QTest::keyClick(line, Qt::Key_Escape);
    QVERIFY2(window.isVisible() && shownPages(window).size() == 9, "the first Esc ends the search");
    line->setText("processorModeSBaroAltituteMaxChange"); // as in the file
    QCOMPARE(shownPages(window), QStringList("Processor (1)"));
}

void TestConfigFields::searchLeadsToWhatIsHidden()
{
    ConfigWindow window(Config(), nullptr);
    window.show();
    auto *line = window.findChild<QLineEdit *>("searchLine");
    line->setText("faa server");
    QTest::keyClick(line, Qt::Key_Return);
    QVERIFY(inSight(window, "mapFaaTileServer") && !inSight(window, "mapBingTileServer"));
    // A choice that is itself a setting stays as it is.
    line->setText("baud");
    QTest::keyClick(line, Qt::Key_Return);
    QVERIFY(inSight(window, "inputComm") && !inSight(window, "inputSerialBaudRate"));
    QCOMPARE(answer(window), "\"Baud rate\" is there with another choice of \"Data from\".");
    QVERIFY(window.apply());
    QCOMPARE(window.config().inputComm, Config::InputComm::Udp);
}

void TestConfigFields::marksWhatIsChangedAndNotApplied()
{
    ConfigWindow window(Config(), nullptr);
    window.show();
    const auto *changes = window.findChild<QLabel *>("changes");
    const auto *weather = window.findChild<QCheckBox *>("mapWeatherVisible");
    const auto *opacity = window.findChild<QSpinBox *>("mapWeatherOpacity");
    QVERIFY(changes->text().isEmpty());
    window.findChild<QCheckBox *>("mapWeatherVisible")->click();
    window.findChild<QSpinBox *>("sensorSac")->setValue(9);
    window.findChild<ColorButton *>("mapPlotColor")->setColor(Qt::red);
    window.findChild<QComboBox *>("sensorType")->setCurrentText("Radar");
    QTRY_VERIFY(changes->text().startsWith("4 "));
    QVERIFY(shownPages(window).contains("Weather •") && shownPages(window).contains("Map Layers •"));
    QVERIFY(shownPages(window).contains("Tracks"));
    QVERIFY(weather->accessibleDescription().startsWith("Changed.") && opacity->accessibleDescription().isEmpty());
    window.findChild<QComboBox *>("sensorType")->setCurrentText("None");
    QTRY_VERIFY(changes->text().startsWith("2 "));
    QVERIFY(window.apply());
    QVERIFY(changes->text().isEmpty() && !shownPages(window).contains("Weather •"));
    window.findChild<QCheckBox *>("mapWeatherVisible")->click();
    QTRY_VERIFY(changes->text().startsWith("1 "));
    window.findChild<QCheckBox *>("mapWeatherVisible")->click();
    QTRY_VERIFY(changes->text().isEmpty());
}

void TestConfigFields::putsDefaultsBack()
{
    const ThemeLibrary themes("none");
    Config config;
    themes.find("Night")->applyTo(config);
    const Config night = config;
    config.mapWeatherOpacity = 3;
    config.mapWeatherValidity = 7;
    config.mapRangeRingNumber = 9;
    config.settingsLock = "kept";
    ConfigWindow window(config, nullptr);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    window.findChild<QListWidget *>("pageList")->setCurrentRow(6);
    window.findChild<QSpinBox *>("mapWeatherValidity")->setFocus();
    QTRY_VERIFY(window.findChild<QSpinBox *>("mapWeatherValidity")->hasFocus());
    chooseFromMenu(window, "Default of \"Remove");
    QVERIFY(window.apply());
    QCOMPARE(window.config().mapWeatherValidity, Config().mapWeatherValidity);
    QCOMPARE(window.config().mapWeatherOpacity, 3);
    chooseFromMenu(window, "Defaults of the Page");
    QVERIFY(window.apply());
    QCOMPARE(window.config().mapWeatherOpacity, night.mapWeatherOpacity); // as the theme has it
    QCOMPARE(window.config().mapRangeRingNumber, 9); // of another page
    window.findChild<QListWidget *>("pageList")->setCurrentRow(0);
    window.findChild<QSpinBox *>("displayFontScale")->setValue(150);
    chooseFromMenu(window, "Defaults of the Page");
    QVERIFY(window.apply());
    QCOMPARE(window.config().settingsLock, "kept");
    QCOMPARE(window.config().displayTheme, "Night");
    QCOMPARE(window.config().displayFontScale, 100);
}

void TestConfigFields::findsWhatIsNotDefault()
{
    Config config;
    config.mapTileProxyPort = 1081;
    ConfigWindow window(config, nullptr);
    window.show();
    window.findChild<QCheckBox *>("differingOnly")->click();
    QCOMPARE(shownPages(window), QStringList("Map Tiles (1)"));
    window.findChild<QSpinBox *>("mapVideoThreshold")->setValue(1);
    QTRY_COMPARE(shownPages(window), QStringList({"Map Tiles (1)", "Radar Video • (1)"}));
}

void TestConfigFields::passwordIsSetAndRemoved()
{
    ConfigWindow window(Config(), nullptr);
    window.show();
    auto *field = window.findChild<PasswordField *>("settingsLock");
    const auto enter = [&window, field](const QString &first, const QString &again) {
        field->click();
        auto *dialog = window.findChild<PasswordWindow *>();
        QTest::keyClicks(dialog->findChild<QLineEdit *>("password"), first);
        QTest::keyClicks(dialog->findChild<QLineEdit *>("passwordAgain"), again);
        QTest::keyClick(dialog, Qt::Key_Return);
        const bool taken = !dialog->isVisible();
        dialog->close();
        return taken && QTest::qWaitFor([&window] { return !window.findChild<PasswordWindow *>(); });
    };
    QVERIFY(!enter("abc", "abc"));
    QTRY_VERIFY(!window.findChild<PasswordWindow *>());
    QVERIFY(!enter("abcd", "abce"));
    QTRY_VERIFY(!window.findChild<PasswordWindow *>());
    QVERIFY(field->stored().isEmpty());
    QVERIFY(enter("abcd", "abcd"));
    QVERIFY(window.config().settingsLock.isEmpty());
    QVERIFY2(window.apply() && window.config().settingsLock.startsWith("pbkdf2"), "with the other fields");
    field->click();
    window.findChild<PasswordWindow *>()->findChild<QPushButton *>("removePassword")->click();
    QVERIFY(window.apply() && window.config().settingsLock.isEmpty());
}

VYX_TEST(TestConfigFields)
#include "tst_config_fields.moc"
