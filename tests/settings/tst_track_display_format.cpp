#include "display/geo_track_display.h"
#include "display/track_display_format.h"
#include "settings/track_format_preview.h"
#include "settings/track_label_format_window.h"
#include "test_program.h"

#include <QImage>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTest>

#include <functional>

class TestTrackDisplayFormat : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyFieldTravels_data();
    void everyFieldTravels();
    void readsTolerantly();
    void windowChangesTheDisplayOnlyWhenApplied();
    void previewShowsTheFormat_data();
    void previewShowsTheFormat();
};

namespace {

using Change = std::function<void(TrackDisplayFormat *)>;

// Each takes one field away from its default.
QList<Change> changes()
{
    using F = TrackDisplayFormat;
    QList<Change> all{[](F *f) { f->backgroundPadding = 9; },
        [](F *f) { f->labelFont.setFamilies({QStringLiteral("DejaVu Sans")}); },
        [](F *f) { f->labelFont.setPointSize(17); }, [](F *f) { f->symbolSize = 40; }, [](F *f) { f->trailDots = 7; },
        [](F *f) { f->vectorRange = 8; }};
    for (bool F::*flag : {&F::labelVisible, &F::alertIndicatorVisible, &F::trackNumVisible, &F::callsignVisible,
             &F::icaoAddrVisible, &F::squawkVisible, &F::levelVisible, &F::selectedAltitudeVisible,
             &F::verticalRateVisible, &F::groundSpeedVisible, &F::headingVisible, &F::backgroundVisible,
             &F::targetTypeSymbol, &F::trailVisible, &F::vectorVisible, &F::vectorTimeMode, &F::vectorTicksVisible}) {
        all.append([flag](F *f) { f->*flag = !(f->*flag); });
    }
    return all;
}

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
    const QList<Change> all = changes();
    for (int i = 0; i < all.size(); ++i) {
        QTest::addRow("%d", i) << all[i];
    }
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

void TestTrackDisplayFormat::readsTolerantly()
{
    const QList<std::pair<QByteArray, int>> cases{// the trail dots afterwards, 20 before; 0: not read at all
        {"", 0}, {"\xff{]", 0}, {R"({"version":1,"trailDots":9)", 0}, {R"({"trailDots":9})", 0},
        {R"({"version":1,"trailDots":9})", 9}, {R"({"version":7,"trailDots":9,"halo":{"on":true}})", 9},
        {R"({"version":1,"trailDots":"9","callsign":1,"labelFontFamilies":3,"labelFontSize":"9"})", 20},
        {R"({"version":1,"trailDots":50})", 50}, {R"({"version":1,"trailDots":51})", 20},
        {R"({"version":1,"trailDots":0})", 20},
        {R"({"version":1,"labelFontFamilies":[],"labelFontSize":400,"trailDots":9})", 9}};
    for (const auto &[bytes, trailDots] : cases) {
        TrackDisplayFormat expected = initialFormat();
        expected.trailDots = 20;
        TrackDisplayFormat format = expected;
        QCOMPARE(format.fromBytes(bytes), trailDots > 0);
        expected.trailDots = trailDots > 0 ? trailDots : 20;
        QVERIFY2(format == expected, bytes.constData());
    }
}

void TestTrackDisplayFormat::windowChangesTheDisplayOnlyWhenApplied()
{
    GeoTrackDisplay display;
    display.setTrailDots(20);
    TrackLabelFormatWindow window(&display);
    auto *dots = window.findChild<QSpinBox *>(QStringLiteral("trailDots"));
    dots->setValue(3);
    QCOMPARE(display.trailDots(), 20);
    window.apply();
    QCOMPARE(display.trailDots(), 3);
    dots->setValue(4);
    window.reject();
    QCOMPARE(display.trailDots(), 3);
    window.readDisplay();
    QCOMPARE(window.format().trailDots, 3);
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

VYX_TEST(TestTrackDisplayFormat)
#include "tst_track_display_format.moc"
