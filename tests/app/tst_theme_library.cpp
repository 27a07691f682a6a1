#include "app/setting.h"
#include "app/theme_library.h"
#include "test_files.h"
#include "test_program.h"

#include <QDir>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>

class TestThemeLibrary : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyThemeWritesTheWholeLook();
    void tellsWhatIsWrongAndKeepsTheRest_data();
    void tellsWhatIsWrongAndKeepsTheRest();
    void ownThemesComeBack();
    void ownThemesStandBesideTheProgramsOwn();

private:
    void write(const QString &name, const QByteArray &bytes) const;

    QTemporaryDir m_directory;
};

namespace {

QStringList changedKeys(const Config &a, const Config &b)
{
    QStringList keys;
    for (const Setting &setting : Setting::all()) {
        if (!setting.same(a, b)) {
            keys.append(setting.key());
        }
    }
    return keys;
}

} // namespace

void TestThemeLibrary::write(const QString &name, const QByteArray &bytes) const
{
    writtenTo(m_directory.filePath(name), bytes);
}

// From whatever theme to whatever other: nothing of the former look is left, nothing else is touched.
void TestThemeLibrary::everyThemeWritesTheWholeLook()
{
    const ThemeLibrary library(m_directory.filePath("none"));
    QCOMPARE(library.names().join(' '), "Classic Night Dusk Day");
    QVERIFY2(library.problems().isEmpty(), qPrintable(library.problems().join('\n')));
    for (const Theme &former : library.themes()) {
        for (const Theme &theme : library.themes()) {
            Config config;
            config.inputUdpPort1 = 7;
            config.mapRangeRingVisible = true;
            const Config own = config;
            former.applyTo(config);
            theme.applyTo(config);
            Config expected = own;
            theme.applyTo(expected);
            QCOMPARE(changedKeys(config, expected), QStringList());
            QCOMPARE(config.displayTheme, theme.name());
            if (theme.name() == Theme::Classic) {
                QCOMPARE(changedKeys(config, own), QStringList());
            } else {
                QVERIFY(theme.palette().has_value());
                QCOMPARE(config.trackLabelLayout, Config::TrackLabelLayout::Compact);
            }
        }
    }
}

void TestThemeLibrary::tellsWhatIsWrongAndKeepsTheRest_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QString>("about");
    const auto row = [](const char *settings, const char *about) {
        QTest::newRow(settings) << QByteArray(settings) << QString(about);
    };
    row(R"("trackSymbolColour": "#FF0000")", "\"trackSymbolColour\" is no setting");
    row(R"("inputUdpPort1": 8600)", "\"inputUdpPort1\" is no setting");
    row(R"("displayTheme": "Other")", "\"displayTheme\" is no setting");
    row(R"("mapWeatherColor8": "#FF0000")", "\"mapWeatherColor8\" is no setting");
    row(R"("trackSymbolColor": "reddish")", "\"trackSymbolColor\" cannot be reddish");
    row(R"("trackLabelAutoPlace": 1)", "\"trackLabelAutoPlace\" cannot be 1");
    row(R"("trackLabelBackgroundOpacity": 101)", "\"trackLabelBackgroundOpacity\" cannot be 101");
    row(R"("trackLabelBackgroundOpacity": 10.5)", "\"trackLabelBackgroundOpacity\" cannot be 10.5");
    row(R"("trackLabelLayout": "Compact")", "\"trackLabelLayout\" cannot be Compact");
    row(R"("mapStyleSheet": null)", "\"mapStyleSheet\" cannot be");
}

void TestThemeLibrary::tellsWhatIsWrongAndKeepsTheRest()
{
    QFETCH(const QByteArray, settings);
    QFETCH(const QString, about);
    QStringList problems;
    const auto theme =
        Theme::fromJson(R"({"name": "Odd", "settings": {"trackLabelColor": "#010203", "mapWeatherColor7": "#040506", )"
                + settings + "}}",
            &problems);
    QCOMPARE(problems.size(), 1);
    QVERIFY2(problems.first().contains(about), qPrintable(problems.first()));
    Config config;
    theme->applyTo(config);
    QCOMPARE(changedKeys(config, Config()), QStringList({"displayTheme", "mapWeatherColor%1", "trackLabelColor"}));
    QCOMPARE(config.mapWeatherColor.at(7), QColor(4, 5, 6));
}

void TestThemeLibrary::ownThemesComeBack()
{
    const QString folder = m_directory.filePath("themes");
    const Theme night = *ThemeLibrary(folder).find("night");
    Config config;
    night.applyTo(config);
    config.trackSymbolCasingColor = QColor(1, 2, 3, 128);
    config.mapSensorNameVisible = false;
    const QJsonObject format{{"symbolSize", 20}};
    const QString name = QStringLiteral("Tower 1/2: \u00fc*?");
    QString error;
    QVERIFY2(ThemeLibrary(folder).save(Theme(name, config, format, night), &error), qPrintable(error));
    QVERIFY2(
        ThemeLibrary(folder).save(Theme(name, config, format, night), &error), "again, in the place of the former");

    const ThemeLibrary library(folder);
    QVERIFY2(library.problems().isEmpty(), qPrintable(library.problems().join('\n')));
    QCOMPARE(library.names().last(), name);
    Config read;
    library.find(name)->applyTo(read);
    config.displayTheme = name;
    QCOMPARE(changedKeys(read, config), QStringList());
    QCOMPARE(library.find(name)->trackFormat(), format);
    QCOMPARE(library.find(name)->palette(), night.palette());

    QVERIFY(!library.save(Theme("NIGHT", config, format, night), &error) && error.contains("NIGHT"));
    write("file", {});
    QVERIFY(!ThemeLibrary(m_directory.filePath("file")).save(Theme("Mine", config, format, night), &error));
}

// A broken file is told by its name and takes nothing else with it.
void TestThemeLibrary::ownThemesStandBesideTheProgramsOwn()
{
    write("broken.json", "{\"name\": \"Half\", ");
    write("list.json", "[1, 2]");
    write("nameless.json", "{\"settings\": {}}");
    write("night.json", "{\"name\": \"night\"}");
    write("windows.json", "{\"name\": \"Windows\", \"windows\": {\"window\": \"#000000\"}}");
    write("zulu.json", "{\"name\": \"Alpha\"}");
    const ThemeLibrary library(m_directory.path());
    QCOMPARE(library.names().mid(4).join(' '), "Alpha Windows");
    QVERIFY(library.isOfTheProgram("night") && !library.isOfTheProgram("Alpha"));
    QVERIFY2(!library.find("Windows")->palette(), "half of the colours would not go with the desktop's");
    const QString problems = library.problems().join('\n');
    for (const char *file : {"broken.json", "list.json", "nameless.json", "night.json", "windows.json"}) {
        QVERIFY2(problems.contains(file), qPrintable(problems));
    }
    QCOMPARE(library.problems().size(), 5);
}

VYX_TEST(TestThemeLibrary)
#include "tst_theme_library.moc"
