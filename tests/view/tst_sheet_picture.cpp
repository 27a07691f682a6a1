#include "test_program.h"
#include "view/sheet_picture.h"

#include <QImage>
#include <QPainter>
#include <QTest>

#include <algorithm>
#include <cstdlib>
#include <functional>

class TestSheetPicture : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void looksAsIfDrawnThere_data();
    void looksAsIfDrawnThere();
    void drawsOnlyWhatComesIntoSight();
    void drawsAnewWhatIsNoLongerTrue_data();
    void drawsAnewWhatIsNoLongerTrue();
    void leavesGapsOut();
};

namespace {

constexpr QSize Screen(300, 200);

GeoView viewAt(const QPointF &corner, double scale = 1.0, double ratio = 1.0, double rotation = 0.0)
{
    QTransform transform = QTransform::fromScale(scale, -scale);
    transform.rotate(rotation);
    return GeoView(transform * QTransform::fromTranslate(corner.x(), corner.y()), Screen, ratio);
}

// Lines and dots of the plane at odd places, with nothing in between, and the logical pixels drawn.
class Drawing {
public:
    void operator()(QImage &picture, const GeoView &part)
    {
        QPainter painter(&picture);
        drawn += part.screenRect().width() * part.screenRect().height();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor(255, 0, 0, 120), 2));
        painter.drawLine(part.toScreen({-1000.0, -700.3}), part.toScreen({1000.0, 700.1}));
        painter.drawEllipse(part.toScreen({-100.0, -50.0}), 140.0, 140.0);
        painter.drawRect(QRectF(part.toScreen({200.0, 100.0}), QSizeF(3.0, 5.0)));
    }

    int drawn = 0;
};

QImage shown(SheetPicture &picture, const GeoView &view, Drawing &drawing, const QList<QRect> &gaps = {})
{
    picture.turnTo(view, std::ref(drawing));
    QImage image((QSizeF(Screen) * view.devicePixelRatio()).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(view.devicePixelRatio());
    image.fill(Qt::darkBlue);
    QPainter painter(&image);
    painter.setWorldTransform(view.screenTransform());
    picture.paint(painter, gaps);
    return image;
}

// Smoothing rounds a little differently where the numbers are others.
int differing(const QImage &one, const QImage &other)
{
    int count = 0;
    const auto apart = [](QRgb a, QRgb b) {
        return std::abs(qRed(a) - qRed(b)) > 3 || std::abs(qBlue(a) - qBlue(b)) > 3;
    };
    for (int y = 0; y < std::min(one.height(), other.height()); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(one.constScanLine(y));
        const auto *otherRow = reinterpret_cast<const QRgb *>(other.constScanLine(y));
        for (int x = 0; x < one.width(); ++x) {
            count += apart(row[x], otherRow[x]) ? 1 : 0;
        }
    }
    return one.size() == other.size() ? count : -1;
}

} // namespace

void TestSheetPicture::looksAsIfDrawnThere_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<double>("rotation");
    QTest::newRow("plain") << 1.0 << 0.0;
    QTest::newRow("turned") << 1.0 << 30.0;
    QTest::newRow("fine pixels") << 2.0 << 0.0;
    QTest::newRow("pixels between") << 1.5 << 0.0;
}

// Steps within the margin, across it, round the whole picture, back again, and half a pixel.
void TestSheetPicture::looksAsIfDrawnThere()
{
    QFETCH(double, ratio);
    QFETCH(double, rotation);
    SheetPicture picture;
    Drawing drawing;
    QPointF corner(150.0, 100.0);
    for (const QPointF step :
        {QPointF(), QPointF(30, 12), QPointF(-50, 40), QPointF(70, -66), QPointF(64, 64), QPointF(-129, 3),
            QPointF(1, -300), QPointF(-1, 200), QPointF(700, 0), QPointF(-700, 0), QPointF(0.5, 0)}) {
        corner += step;
        const GeoView view = viewAt(corner, 1.0, ratio, rotation);
        SheetPicture fresh;
        QCOMPARE(differing(shown(picture, view, drawing), shown(fresh, view, drawing)), 0);
    }
}

void TestSheetPicture::drawsOnlyWhatComesIntoSight()
{
    SheetPicture picture;
    Drawing drawing;
    shown(picture, viewAt({150.0, 100.0}), drawing);
    drawing.drawn = 0;
    shown(picture, viewAt({150.0 + 40.0, 100.0 - 40.0}), drawing);
    QCOMPARE(drawing.drawn, 0);
    shown(picture, viewAt({150.0 + 80.0, 100.0 - 40.0}), drawing);
    QVERIFY(drawing.drawn > 0);
    QVERIFY2(drawing.drawn <= 80 * 2 * Screen.height(), qPrintable(QString::number(drawing.drawn)));
}

void TestSheetPicture::drawsAnewWhatIsNoLongerTrue_data()
{
    QTest::addColumn<GeoView>("view");
    QTest::addColumn<bool>("invalidated");
    const QPointF corner(150.0, 100.0);
    QTest::newRow("what is drawn") << viewAt(corner) << true;
    QTest::newRow("scale") << viewAt(corner, 1.25) << false;
    QTest::newRow("rotation") << viewAt(corner, 1.0, 1.0, 5.0) << false;
    QTest::newRow("device pixels") << viewAt(corner, 1.0, 2.0) << false;
    QTest::newRow("part of a pixel") << viewAt(corner + QPointF(0.3, 0.0)) << false;
}

void TestSheetPicture::drawsAnewWhatIsNoLongerTrue()
{
    QFETCH(GeoView, view);
    QFETCH(bool, invalidated);
    SheetPicture picture;
    Drawing drawing;
    shown(picture, viewAt({150.0, 100.0}), drawing);
    if (invalidated) {
        picture.invalidate();
    }
    drawing.drawn = 0;
    shown(picture, view, drawing);
    QVERIFY(drawing.drawn >= Screen.width() * Screen.height());
}

void TestSheetPicture::leavesGapsOut()
{
    SheetPicture picture;
    const auto fill = [](QImage &part, const GeoView &) { part.fill(Qt::green); };
    const GeoView view = viewAt({150.0, 100.0}, 1.0, 2.0);
    picture.turnTo(view, fill);
    QImage image(Screen * 2.0, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(2.0);
    image.fill(Qt::black);
    QPainter painter(&image);
    const QRect gap(60, 30, 20, 10);
    picture.paint(painter, {gap, QRect(290, 190, 50, 50)});
    painter.end();
    int left = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            left += image.pixel(x, y) == QColor(Qt::black).rgba() ? 1 : 0;
        }
    }
    QCOMPARE(left, (20 * 10 + 10 * 10) * 4);
    QCOMPARE(image.pixelColor(120, 60), QColor(Qt::black));
    QCOMPARE(image.pixelColor(119, 60), QColor(Qt::green));
}

VYX_TEST(TestSheetPicture)
#include "tst_sheet_picture.moc"
