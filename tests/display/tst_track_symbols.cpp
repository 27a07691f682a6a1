#include "display/track_symbols.h"
#include "test_program.h"

#include <QTest>

class TestTrackSymbols : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everySymbolHasAShapeOfItsOwn();
    void showsColorAndSize();
    void turnsTheAircraft();
};

namespace {

QImage imageOf(TrackSymbols::Symbol symbol, int size)
{
    TrackSymbols symbols(size, Qt::red);
    return symbols.pixmap(symbol, 1.0).toImage().convertToFormat(QImage::Format_ARGB32);
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

// At 16 pixels, where a shape is just a few dozen pixels of ink: an eighth of the picture must differ.
void TestTrackSymbols::everySymbolHasAShapeOfItsOwn()
{
    constexpr int Size = 16;
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
    TrackSymbols symbols(24, Qt::red);
    QCOMPARE(symbols.pixmap(TrackSymbols::Smr, 1.0).toImage().pixelColor(12, 12), QColor(Qt::red));
    symbols.setColor(Qt::green);
    symbols.setSize(40);
    const QPixmap large = symbols.pixmap(TrackSymbols::Smr, 1.5);
    QCOMPARE(large.size(), QSize(60, 60));
    QCOMPARE(large.toImage().pixelColor(30, 30), QColor(Qt::green));
    QCOMPARE(symbols.pixmap(TrackSymbols::Smr, 1.5).cacheKey(), large.cacheKey());
}

// The nose is the thin end of the drawing: turned by a quarter it points to the right.
void TestTrackSymbols::turnsTheAircraft()
{
    TrackSymbols symbols(24, Qt::red);
    const QImage upright = symbols.aircraft(0.0, 1.0).toImage();
    const QImage turned = symbols.aircraft(90.0, 1.0).toImage();
    QVERIFY(differingPixels(turned, upright) > 40);
    QVERIFY(differingPixels(turned, upright.transformed(QTransform().rotate(90.0))) < 20);
    QCOMPARE(symbols.aircraft(-270.3, 1.0).toImage(), turned);
}

VYX_TEST(TestTrackSymbols)
#include "tst_track_symbols.moc"
