#include "display/geo_track_display.h"
#include "ui/track_display_format.h"
#include "ui/track_format_preview.h"
#include "ui/track_label_format_window.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QImage>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTest>

class TestTrackDisplayFormat : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyFieldTravels_data();
    void everyFieldTravels();
    void readsTolerantly_data();
    void readsTolerantly();
    void windowChangesTheDisplayOnlyWhenApplied();
    void windowKeepsAFaceThatIsNotInstalled();
    void previewShowsTheFormat_data();
    void previewShowsTheFormat();
};

namespace {

using Change = void (*)(TrackDisplayFormat *);

struct Case {
    const char *name;
    Change change;
};

// One row a field, each taken away from its default.
const Case cases[] = {
    {"label", [](TrackDisplayFormat *f) { f->labelVisible = !f->labelVisible; }},
    {"alert indicator", [](TrackDisplayFormat *f) { f->alertIndicatorVisible = !f->alertIndicatorVisible; }},
    {"track number", [](TrackDisplayFormat *f) { f->trackNumVisible = !f->trackNumVisible; }},
    {"callsign", [](TrackDisplayFormat *f) { f->callsignVisible = !f->callsignVisible; }},
    {"ICAO address", [](TrackDisplayFormat *f) { f->icaoAddrVisible = !f->icaoAddrVisible; }},
    {"squawk", [](TrackDisplayFormat *f) { f->squawkVisible = !f->squawkVisible; }},
    {"level", [](TrackDisplayFormat *f) { f->levelVisible = !f->levelVisible; }},
    {"selected altitude", [](TrackDisplayFormat *f) { f->selectedAltitudeVisible = !f->selectedAltitudeVisible; }},
    {"vertical rate", [](TrackDisplayFormat *f) { f->verticalRateVisible = !f->verticalRateVisible; }},
    {"ground speed", [](TrackDisplayFormat *f) { f->groundSpeedVisible = !f->groundSpeedVisible; }},
    {"heading", [](TrackDisplayFormat *f) { f->headingVisible = !f->headingVisible; }},
    {"background", [](TrackDisplayFormat *f) { f->backgroundVisible = !f->backgroundVisible; }},
    {"padding", [](TrackDisplayFormat *f) { f->backgroundPadding = 9; }},
    {"font", [](TrackDisplayFormat *f) { f->labelFont.setFamilies({QStringLiteral("DejaVu Sans")}); }},
    {"font size", [](TrackDisplayFormat *f) { f->labelFont.setPointSize(17); }},
    {"symbol choice", [](TrackDisplayFormat *f) { f->targetTypeSymbol = !f->targetTypeSymbol; }},
    {"symbol size", [](TrackDisplayFormat *f) { f->symbolSize = 40; }},
    {"trail", [](TrackDisplayFormat *f) { f->trailVisible = !f->trailVisible; }},
    {"trail dots", [](TrackDisplayFormat *f) { f->trailDots = 7; }},
    {"vector", [](TrackDisplayFormat *f) { f->vectorVisible = !f->vectorVisible; }},
    {"vector mode", [](TrackDisplayFormat *f) { f->vectorTimeMode = !f->vectorTimeMode; }},
    {"vector range", [](TrackDisplayFormat *f) { f->vectorRange = 8; }},
    {"vector ticks", [](TrackDisplayFormat *f) { f->vectorTicksVisible = !f->vectorTicksVisible; }},
};

TrackDisplayFormat initialFormat()
{
    const GeoTrackDisplay display;
    TrackDisplayFormat format;
    format.readFrom(display);
    return format;
}

QImage paintPreview(const TrackDisplayFormat &format)
{
    TrackFormatPreview preview;
    preview.resize(320, 380);
    preview.setFormat(format);
    QImage image(preview.size(), QImage::Format_RGB32);
    preview.render(&image);
    return image;
}

} // namespace

void TestTrackDisplayFormat::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
}

void TestTrackDisplayFormat::everyFieldTravels_data()
{
    QTest::addColumn<Change>("change");
    for (const Case &row : cases)
        QTest::newRow(row.name) << row.change;
}

// Through the bytes, the track display and the window.
void TestTrackDisplayFormat::everyFieldTravels()
{
    QFETCH(Change, change);
    const TrackDisplayFormat initial = initialFormat();
    TrackDisplayFormat changed = initial;
    change(&changed);
    QVERIFY(changed != initial);

    TrackDisplayFormat read = initial;
    QVERIFY(read.fromBytes(changed.toBytes()));
    QVERIFY2(read == changed, "bytes");

    GeoTrackDisplay display;
    changed.applyTo(display);
    read = TrackDisplayFormat();
    read.readFrom(display);
    QVERIFY2(read == changed, "display");

    QVERIFY2(TrackLabelFormatWindow(&display).format() == changed, "window");
}

void TestTrackDisplayFormat::readsTolerantly_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("read");
    QTest::addColumn<int>("trailDots"); // 20 before
    QTest::newRow("nothing") << QByteArray() << false << 20;
    QTest::newRow("noise") << QByteArray("\xff\x00{]", 4) << false << 20;
    QTest::newRow("cut off") << QByteArray(R"({"version":1,"trailDots":9)") << false << 20;
    QTest::newRow("something else") << QByteArray(R"({"trailDots":9})") << false << 20;
    QTest::newRow("older, with fewer fields") << QByteArray(R"({"version":1,"trailDots":9})") << true << 9;
    QTest::newRow("newer, with more") << QByteArray(R"({"version":7,"trailDots":9,"halo":{"on":true}})") << true << 9;
    QTest::newRow("wrong types") << QByteArray(
        R"({"version":1,"trailDots":"9","callsign":1,"labelFontFamilies":3,"labelFontSize":"9"})")
                                 << true << 20;
    QTest::newRow("highest") << QByteArray(R"({"version":1,"trailDots":50})") << true << 50;
    QTest::newRow("beyond the highest") << QByteArray(R"({"version":1,"trailDots":51})") << true << 20;
    QTest::newRow("below the lowest") << QByteArray(R"({"version":1,"trailDots":0})") << true << 20;
    QTest::newRow("no face and a giant size")
        << QByteArray(R"({"version":1,"labelFontFamilies":[],"labelFontSize":400,"trailDots":9})") << true << 9;
}

void TestTrackDisplayFormat::readsTolerantly()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, trailDots);
    TrackDisplayFormat expected = initialFormat();
    expected.trailDots = 20;
    TrackDisplayFormat format = expected;
    QTEST(format.fromBytes(bytes), "read");
    expected.trailDots = trailDots;
    QVERIFY2(format == expected, format.toBytes().constData());
}

void TestTrackDisplayFormat::windowChangesTheDisplayOnlyWhenApplied()
{
    GeoTrackDisplay display;
    display.setTrailDots(20);
    TrackLabelFormatWindow window(&display);
    const QSignalSpy applied(&window, &TrackLabelFormatWindow::formatApplied);
    auto *dots = window.findChild<QSpinBox *>(QStringLiteral("trailDots"));
    dots->setValue(3);
    QCOMPARE(display.trailDots(), 20);
    window.apply();
    QCOMPARE(display.trailDots(), 3);
    QCOMPARE(applied.size(), 1);
    dots->setValue(4);
    window.reject();
    QCOMPARE(display.trailDots(), 3);
    display.showLabel(false);
    window.readDisplay();
    QCOMPARE(window.format().trailDots, 3);
    QVERIFY(!window.format().labelVisible);
}

void TestTrackDisplayFormat::windowKeepsAFaceThatIsNotInstalled()
{
    GeoTrackDisplay display;
    display.setLabelFont(QFont(QStringLiteral("No Such Face"), 12));
    TrackLabelFormatWindow window(&display);
    window.findChild<QSpinBox *>(QStringLiteral("fontSize"))->setValue(14);
    window.apply();
    QCOMPARE(display.labelFont().family(), QStringLiteral("No Such Face"));
    QCOMPARE(display.labelFont().pointSize(), 14);
}

void TestTrackDisplayFormat::previewShowsTheFormat_data()
{
    everyFieldTravels_data();
}

// Everything that can be set shows on the sample, painted by the track display.
void TestTrackDisplayFormat::previewShowsTheFormat()
{
    QFETCH(Change, change);
    TrackDisplayFormat format = initialFormat();
    format.vectorRange = 3; // for ticks
    const QImage before = paintPreview(format);
    QVERIFY(before != QImage(before.size(), before.format()));
    change(&format);
    QVERIFY(paintPreview(format) != before);
}

QTEST_MAIN(TestTrackDisplayFormat)
#include "tst_track_display_format.moc"
