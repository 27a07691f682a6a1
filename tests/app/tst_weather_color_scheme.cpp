#include "app/config.h"
#include "app/weather_color_scheme.h"
#include "test_program.h"

#include <QTemporaryFile>
#include <QTest>

class TestWeatherColorScheme final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void predefinedSchemesAreComplete()
    {
        QSet<QString> names;
        for (const auto &scheme : WeatherColorScheme::predefinedSchemes()) {
            names += scheme.name();
            QCOMPARE(scheme.colors().size(), WeatherColorScheme::Levels);
            for (int level = 1; level < WeatherColorScheme::Levels; ++level) {
                const int step = qGray(scheme.colors()[level].rgb()) - qGray(scheme.colors()[level - 1].rgb());
                QVERIFY2(std::abs(step) > 5, qPrintable(scheme.name())); // neighbours differ without hue, too
                QVERIFY(step > 10 || scheme.name() != "Colour-Blind Safe"); // from dark to light throughout
            }
        }
        QVERIFY(names.size() >= 4 && names.contains("Colour-Blind Safe"));
        QCOMPARE(Config().mapWeatherColor, WeatherColorScheme::defaultScheme().colors());
    }

    void files()
    {
        // Quoted as JSON in the file.
        const std::pair<QByteArray, QString> rows[]{{"[]", ""}, {"{'level0':'red'}", ""}, {"[7", ""},
            {"[{'name':'A','level0':'red'},7,{'level0':'#8000ff00'}]", "A #ffff0000; #ff00ff00;"}, // always opaque
            {"[{'name':'B','level2':'blue','level1':'blau','level0':'red'}]", "B #ffff0000 - #ff0000ff;"}};
        for (const auto &[contents, expected] : rows) {
            QTemporaryFile file;
            QVERIFY(file.open() && file.write(QByteArray(contents).replace('\'', '"')) > 0 && file.flush());
            QString read;
            for (const auto &scheme : WeatherColorScheme::loadFromJsonFile(file.fileName())) {
                read += scheme.name();
                for (const QColor &color : scheme.colors()) {
                    read += ' ' + (color.isValid() ? color.name(QColor::HexArgb) : QString('-'));
                }
                read += ';';
            }
            QCOMPARE(read, expected);
        }
        QVERIFY(WeatherColorScheme::loadFromJsonFile("/no-such-file").isEmpty());
    }
};

VYX_TEST(TestWeatherColorScheme)
#include "tst_weather_color_scheme.moc"
