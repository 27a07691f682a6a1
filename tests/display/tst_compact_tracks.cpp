#include "test_program.h"
#include "track_scope.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QTest>

#include <algorithm>
#include <cmath>

// The compact layout, and the face that it is made for, by their pixels.
class TestCompactTracks : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void faceShipsWithTheProgram();
    void linesHaveTheirColors();
    void marksThatTheFontLacksAreAsWideAsItsCharacters();
    void leaderLeavesSymbolAndEndsAtTheNearestPoint_data();
    void leaderLeavesSymbolAndEndsAtTheNearestPoint();
    void trailFades();
    void endOfTheVectorIsMarked();
    void systemTrackShowsWhatDetectedIt();
    void manyVeilsHideWhatOneLetsThrough();
    void looksTheSameOnEveryScreen_data();
    void looksTheSameOnEveryScreen();
};

namespace {

const QColor SymbolColor(0, 0, 255);
const QColor LeaderColor(0, 200, 200);
const QColor IdentityColor(250, 250, 0);
const QColor DetailColor(250, 0, 250);
const QColor AlertColor(255, 0, 0);
const QColor GroundColor(0, 80, 0);

TrackSnapshot flight(const QPointF &place = {}, quint64 id = 1)
{
    return flightAt(place, id, QStringLiteral("HHHHHH"));
}

Config pureColors()
{
    Config config;
    config.trackLabelLayout = Config::TrackLabelLayout::Compact;
    config.trackSymbolColor = SymbolColor;
    config.trackLeaderColor = LeaderColor;
    config.trackLabelColor = IdentityColor;
    config.trackLabelDetailColor = DetailColor;
    config.trackLabelAlertColor = AlertColor;
    config.trackLabelBackgroundColor = GroundColor;
    return config;
}

// Labels alone are on.
struct Scope : TrackScope {
    explicit Scope(const TrackSnapshot &track) : TrackScope(pureColors())
    {
        display.setSymbolSize(12);
        show({track});
    }
};

} // namespace

void TestCompactTracks::faceShipsWithTheProgram()
{
    const TrackLook look;
    QCOMPARE(QFontInfo(look.labelFont).family(), look.labelFont.families().first());
    QVERIFY(QFontInfo(look.labelFont).fixedPitch());
    QVERIFY(QFontInfo(look.identityFont).bold());
    const QString text = QStringLiteral("KVN72 3102");
    QCOMPARE(QFontMetricsF(look.labelFont).horizontalAdvance(text),
        QFontMetricsF(look.identityFont).horizontalAdvance(text));
}

void TestCompactTracks::linesHaveTheirColors()
{
    Scope scope(flight());
    PaintedView view = scope.painted();
    QVERIFY(view.count(IdentityColor) > 20);
    QVERIFY(view.count(DetailColor) > 10);
    QVERIFY(view.extent(IdentityColor).bottom() < view.extent(DetailColor).top());
    QCOMPARE(view.count(AlertColor), 0);

    TrackSnapshot alerting = flight();
    alerting.alertsString = QStringLiteral("STCA");
    scope.show({alerting});
    view = scope.painted();
    // A filled head as wide as the label, not just letters of that colour.
    QVERIFY(view.count(AlertColor) > view.extent(IdentityColor).width() * 8);
}

void TestCompactTracks::marksThatTheFontLacksAreAsWideAsItsCharacters()
{
    TrackSnapshot coasting = flight();
    Scope scope(coasting);
    const TrackLook &look = scope.display.look();
    QVERIFY(look.drawnMarks.contains(QChar(0x2798)));
    const int width = scope.painted().extent(GroundColor).width();
    coasting.coasting = true;
    scope.show({coasting});
    const int wider = scope.painted().extent(GroundColor).width() - width;
    QVERIFY(std::abs(wider - QFontMetricsF(look.identityFont).horizontalAdvance(QLatin1Char(' '))) <= 1.0);
    QVERIFY(scope.display.frame().tracks.front().label->lines.front().marks.size() == 1);
}

void TestCompactTracks::leaderLeavesSymbolAndEndsAtTheNearestPoint_data()
{
    QTest::addColumn<QPoint>("offset"); // of the label's upper left corner, y upwards
    QTest::addColumn<QPoint>("toLabel"); // direction, y down
    QTest::newRow("straight right") << QPoint(80, 10) << QPoint(1, 0);
    QTest::newRow("straight up") << QPoint(-30, 120) << QPoint(0, -1);
    QTest::newRow("straight down") << QPoint(-30, -80) << QPoint(0, 1);
    QTest::newRow("too near for a line") << QPoint(14, 10) << QPoint(0, 0);
}

void TestCompactTracks::leaderLeavesSymbolAndEndsAtTheNearestPoint()
{
    QFETCH(QPoint, offset);
    QFETCH(QPoint, toLabel);
    Scope scope(flight());
    scope.display.setTrackLabelOffset(1, offset.x(), offset.y());
    const PaintedView view = scope.painted();
    const auto lit = [&view](const QPoint &pixel) {
        int best = 0; // the line may share its light with the next row of pixels
        for (int i = 0; i < 9; ++i) {
            const QColor color = view.at(pixel + QPoint(i % 3 - 1, i / 3 - 1));
            best = std::max(best, color.red() == 0 ? std::min(color.green(), color.blue()) : 0);
        }
        return best > 60;
    };
    if (toLabel.isNull()) {
        QCOMPARE(view.count(LeaderColor), 0);
        return;
    }
    for (int distance = 7; distance < 60; ++distance) {
        const QPoint pixel = PaintedView::Middle + toLabel * distance;
        if (view.at(pixel) == GroundColor) {
            QVERIFY(distance > 20);
            return;
        }
        if (distance < 8 || distance > 12) {
            QCOMPARE(lit(pixel), distance > 12);
        }
    }
}

void TestCompactTracks::trailFades()
{
    TrackSnapshot track = flight();
    for (int i = 1; i <= 16; ++i) {
        track.trail.append(QPointF(i * 1000.0, 0.0));
    }
    Scope scope(track);
    scope.display.showLabel(false);
    scope.display.showTrail(true);
    const PaintedView view = scope.painted();
    int before = 256;
    for (int i = 2; i <= 16; i += 2) {
        const int light = view.at(PaintedView::Middle + QPoint(10 * i, 0)).blue();
        QVERIFY(light > 20 && light < before);
        before = light;
    }
}

void TestCompactTracks::endOfTheVectorIsMarked()
{
    TrackSnapshot track = flight();
    track.headingValid = true;
    track.heading = 90.0;
    Scope scope(track);
    scope.display.showLabel(false);
    scope.display.showVector(true);
    scope.display.setVectorTimeMode(false);
    scope.display.setVectorRange(10);
    const PaintedView view = scope.painted(185.2); // 100 pixels long
    const auto height = [&view](
                            int x) { return view.inkIn(QRect(PaintedView::Middle + QPoint(x, -10), QSize(1, 20))); };
    QVERIFY(height(100) + height(99) > height(95) + height(94) + 4);
    QCOMPARE(height(104), 0);
}

void TestCompactTracks::systemTrackShowsWhatDetectedIt()
{
    TrackSnapshot track = flight();
    const auto image = [&track] {
        Scope scope(track);
        scope.display.showLabel(false);
        return scope.painted().image();
    };
    track.type = Track::Psr;
    const QImage primary = image();
    track.type = Track::Sdps;
    track.detectedBy = Track::Psr;
    QCOMPARE(image(), primary);
    track.detectedBy = Track::Ssr;
    QVERIFY(image() != primary);
}

// However many labels lie on a place, it looks as if each had been painted.
void TestCompactTracks::manyVeilsHideWhatOneLetsThrough()
{
    Config config;
    config.trackLabelLayout = Config::TrackLabelLayout::Compact;
    config.trackLabelBackgroundColor = GroundColor;
    config.trackLabelBackgroundOpacity = 60;
    config.trackSymbolColor = config.trackSymbolCasingColor = config.trackLeaderColor = Qt::transparent;
    QList<TrackSnapshot> tracks;
    for (int i = 0; i < 40; ++i) {
        tracks.append(flight(QPointF(100.0 * (i * 7 % 23), 100.0 * (i * 5 % 11)), quint64(i) + 1));
    }
    const auto paint = [&config](QPainter &painter, const QList<TrackSnapshot> &some) {
        TrackScope scope(config);
        scope.show(some);
        scope.display.paint(&painter);
    };
    PaintedView together(100.0);
    together.paint([&](QPainter &painter, const GeoView &) { paint(painter, tracks); });
    PaintedView oneByOne(100.0);
    oneByOne.paint([&](QPainter &painter, const GeoView &) {
        for (const TrackSnapshot &track : tracks) {
            paint(painter, {track});
        }
    });
    int farthest = 0;
    for (int i = 0; i < PaintedView::Size * PaintedView::Size; ++i) {
        const QPoint pixel(i % PaintedView::Size, i / PaintedView::Size);
        farthest = std::max(farthest, std::abs(together.at(pixel).green() - oneByOne.at(pixel).green()));
    }
    QVERIFY2(farthest <= 6, qPrintable(QString::number(farthest)));
}

void TestCompactTracks::looksTheSameOnEveryScreen_data()
{
    QTest::addColumn<double>("ratio");
    QTest::newRow("one and a half") << 1.5;
    QTest::newRow("two") << 2.0;
}

// Ground, text and symbol keep their places; a turned view turns neither.
void TestCompactTracks::looksTheSameOnEveryScreen()
{
    QFETCH(double, ratio);
    Scope scope(flight());
    const auto extents = [&scope](double devicePixelRatio, double rotation) {
        const GeoView plain = PaintedView(100.0, {}, rotation).view();
        QImage image((QSizeF(PaintedView::Size, PaintedView::Size) * devicePixelRatio).toSize(),
            QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(devicePixelRatio);
        image.fill(Qt::black);
        QPainter painter(&image);
        painter.setWorldTransform(plain.screenTransform());
        scope.display.paint(&painter, GeoView(plain.screenTransform(), plain.screenRect().size(), devicePixelRatio));
        painter.end();
        QList<QRectF> found;
        for (const QColor &color : {GroundColor, SymbolColor}) {
            QRect extent;
            for (int i = 0; i < image.width() * image.height(); ++i) {
                const QPoint pixel(i % image.width(), i / image.width());
                extent |= image.pixelColor(pixel) == color ? QRect(pixel, QSize(1, 1)) : QRect();
            }
            found.append(
                QRectF(QPointF(extent.topLeft()) / devicePixelRatio, QSizeF(extent.size()) / devicePixelRatio));
        }
        return found;
    };
    const QList<QRectF> plain = extents(1.0, 0.0);
    const QList<QRectF> fine = extents(ratio, 130.0);
    for (qsizetype i = 0; i < plain.size(); ++i) {
        QVERIFY(!plain[i].isEmpty());
        QVERIFY((fine[i].topLeft() - plain[i].topLeft()).manhattanLength() <= 2.0);
        QVERIFY((fine[i].bottomRight() - plain[i].bottomRight()).manhattanLength() <= 2.0);
    }
}

VYX_TEST(TestCompactTracks)
#include "tst_compact_tracks.moc"
