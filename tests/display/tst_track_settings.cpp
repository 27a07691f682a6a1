#include "test_program.h"
#include "track_scope.h"

#include <QTest>

// From the settings to the pixels of a track.
class TestTrackSettings : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyColorIsPainted_data();
    void everyColorIsPainted();
    void opacityOfTheLabelGroundIsPercent_data();
    void opacityOfTheLabelGroundIsPercent();
};

namespace {

constexpr QRgb Wanted = 0xff12a8e4; // no mixture of the other colours looks like it

Config darkConfig()
{
    Config config;
    for (QColor Config::*color : {&Config::trackSymbolColor, &Config::trackLabelColor, &Config::trackLabelSelectedColor,
             &Config::trackLabelAlertColor, &Config::trackLabelBackgroundColor}) {
        config.*color = QColor(40, 0, 0);
    }
    return config;
}

PaintedView painted(const Config &config)
{
    TrackScope scope(config);
    scope.display.setSelected(2);
    QList<TrackSnapshot> tracks{flightAt(), flightAt({0.0, 12000.0}, 2), flightAt({0.0, -12000.0}, 3)};
    tracks[2].alertsString = QStringLiteral("HHHHHH");
    scope.show(tracks);
    return scope.painted();
}

} // namespace

void TestTrackSettings::everyColorIsPainted_data()
{
    QTest::addColumn<QColor Config::*>("color");
    QTest::newRow("symbol") << &Config::trackSymbolColor;
    QTest::newRow("label") << &Config::trackLabelColor;
    QTest::newRow("selected label") << &Config::trackLabelSelectedColor;
    QTest::newRow("alert") << &Config::trackLabelAlertColor;
    QTest::newRow("label ground") << &Config::trackLabelBackgroundColor;
}

void TestTrackSettings::everyColorIsPainted()
{
    QFETCH(QColor Config::*, color);
    Config config = darkConfig();
    QCOMPARE(painted(config).count(QColor(Wanted)), 0);
    config.*color = QColor(Wanted);
    QVERIFY(painted(config).count(QColor(Wanted)) > 10);
}

void TestTrackSettings::opacityOfTheLabelGroundIsPercent_data()
{
    QTest::addColumn<int>("opacity");
    QTest::addColumn<int>("level"); // of green at that opacity on black
    QTest::newRow("transparent") << 0 << 0;
    QTest::newRow("two fifths") << 40 << 102;
    QTest::newRow("solid") << 100 << 255;
    QTest::newRow("of an older file") << 180 << 255;
}

void TestTrackSettings::opacityOfTheLabelGroundIsPercent()
{
    QFETCH(int, opacity);
    QFETCH(int, level);
    Config config = darkConfig();
    config.trackLabelBackgroundColor = QColor(0, 255, 0);
    config.trackLabelBackgroundOpacity = opacity;
    const PaintedView view = painted(config);
    QVERIFY(view.count(QColor(0, level, 0)) > 200);
    QCOMPARE(view.count(QColor(0, 255, 0)) > 0, level == 255);
}

VYX_TEST(TestTrackSettings)
#include "tst_track_settings.moc"
