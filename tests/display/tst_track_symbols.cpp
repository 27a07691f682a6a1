#include "app/config.h"
#include "display/track_symbols.h"
#include "test_program.h"
#include "view/contrast.h"

#include <QPainter>
#include <QTest>

class TestTrackSymbols : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everySymbolHasAShapeOfItsOwn();
    void showsColorAndSize();
    void turnsTheAircraft();
    void standsOutFromTheGround_data();
    void standsOutFromTheGround();
};

namespace {

QImage imageOf(TrackSymbols::Symbol symbol, int size)
{
    TrackSymbols symbols(size, Qt::transparent);
    return symbols.pixmap(symbol, Qt::red, 1.0).toImage().convertToFormat(QImage::Format_ARGB32);
}

bool inked(const QImage &image, int x, int y)
{
    return qAlpha(image.pixel(x, y)) > 127;
}

int differingPixels(const QImage &one, const QImage &other)
{
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            count += inked(one, x, y) != inked(other, x, y);
        }
    }
    return count;
}

} // namespace

// At 12 pixels, where a shape is just a few dozen pixels of ink: an eighth of the picture must differ.
void TestTrackSymbols::everySymbolHasAShapeOfItsOwn()
{
    constexpr int Size = 12;
    for (int one = 0; one < TrackSymbols::Count; ++one) {
        const QImage oneImage = imageOf(TrackSymbols::Symbol(one), Size);
        for (int other = one + 1; other < TrackSymbols::Count; ++other) {
            const int differing = differingPixels(oneImage, imageOf(TrackSymbols::Symbol(other), Size));
            QVERIFY2(differing >= Size * Size / 8,
                qPrintable(QStringLiteral("%1 and %2: %3").arg(one).arg(other).arg(differing)));
        }
    }
}

void TestTrackSymbols::showsColorAndSize()
{
    constexpr int Margin = TrackSymbols::Margin;
    TrackSymbols symbols(24, Qt::black);
    const QPoint middle(12 + Margin, 12 + Margin);
    QCOMPARE(symbols.pixmap(TrackSymbols::Smr, Qt::red, 1.0).toImage().pixelColor(middle), QColor(Qt::red));
    QCOMPARE(symbols.pixmap(TrackSymbols::Smr, Qt::blue, 1.0).toImage().pixelColor(middle), QColor(Qt::blue));
    symbols.setSize(40);
    const QPixmap large = symbols.pixmap(TrackSymbols::Smr, Qt::green, 1.5);
    QCOMPARE(large.size(), QSize(60 + 3 * Margin, 60 + 3 * Margin));
    QCOMPARE(large.toImage().pixelColor(large.rect().center()), QColor(Qt::green));
    QCOMPARE(symbols.pixmap(TrackSymbols::Smr, Qt::green, 1.5).cacheKey(), large.cacheKey());
}

// The nose is the thin end of the drawing: turned by a quarter it points to the right.
void TestTrackSymbols::turnsTheAircraft()
{
    TrackSymbols symbols(24, Qt::transparent);
    const QImage upright = symbols.aircraft(0.0, Qt::red, 1.0).toImage();
    const QImage turned = symbols.aircraft(90.0, Qt::red, 1.0).toImage();
    QVERIFY(differingPixels(turned, upright) > 40);
    QVERIFY(differingPixels(turned, upright.transformed(QTransform().rotate(90.0))) < 20);
    QCOMPARE(symbols.aircraft(-270.3, Qt::red, 1.0).toImage(), turned);
}

void TestTrackSymbols::standsOutFromTheGround_data()
{
    QTest::addColumn<int>("symbol");
    QTest::addColumn<double>("devicePixelRatio");
    for (int symbol = 0; symbol < TrackSymbols::Count; ++symbol) {
        QTest::addRow("symbol %d", symbol) << symbol << 1.0;
    }
    QTest::newRow("fine screen") << int(TrackSymbols::ModeS) << 1.5;
}

// The colours and the ground of the default settings, in which symbol and ground alone are too much alike. Beside every
// pixel of a line there must be one that it stands out from.
void TestTrackSymbols::standsOutFromTheGround()
{
    QFETCH(int, symbol);
    QFETCH(double, devicePixelRatio);
    const Config config;
    QVERIFY(contrastRatio(config.trackSymbolColor, config.mapBackgroundColor) < 3.0);
    TrackSymbols symbols(24, config.trackSymbolCasingColor);
    const QPixmap &pixmap = symbols.pixmap(TrackSymbols::Symbol(symbol), config.trackSymbolColor, devicePixelRatio);
    QImage image(pixmap.size(), QImage::Format_RGB32);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(config.mapBackgroundColor);
    QPainter(&image).drawPixmap(0, 0, pixmap);
    int lines = 0;
    for (int i = 0; i < image.width() * image.height(); ++i) {
        const QPoint pixel(i % image.width(), i / image.width());
        if (image.pixelColor(pixel) != config.trackSymbolColor) {
            continue;
        }
        ++lines;
        double best = 1.0;
        for (int n = 0; n < 81; ++n) {
            const QPoint near = pixel + QPoint(n % 9 - 4, n / 9 - 4);
            if (image.rect().contains(near)) {
                best = std::max(best, contrastRatio(image.pixelColor(near), config.trackSymbolColor));
            }
        }
        QVERIFY2(best > 3.0, qPrintable(QStringLiteral("%1, %2").arg(pixel.x()).arg(pixel.y())));
    }
    QVERIFY(lines > 20);
}

VYX_TEST(TestTrackSymbols)
#include "tst_track_symbols.moc"
