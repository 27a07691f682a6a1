#include "map_painting/static_map_symbols.h"
#include "test_program.h"

#include <QImage>
#include <QPainter>
#include <QTest>

class TestStaticMapSymbols : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void differFromEachOther();
};

// The least that an eye can tell apart at this size.
void TestStaticMapSymbols::differFromEachOther()
{
    constexpr int Size = 16;
    QMap<QString, QImage> drawings;
    QStringList types = staticMapSymbolTypes();
    types.append(QStringLiteral("no such type"));
    for (const QString &type : types) {
        QImage image(Size, Size, QImage::Format_Grayscale8);
        image.fill(Qt::black);
        QPainter painter(&image);
        drawStaticMapSymbol(painter, type, Size, Qt::white);
        painter.end();
        drawings.insert(type, image);
    }
    QCOMPARE(drawings.size(), 18);
    for (auto one = drawings.cbegin(); one != drawings.cend(); ++one) {
        for (auto other = std::next(one); other != drawings.cend(); ++other) {
            int difference = 0;
            for (int i = 0; i < Size * Size; ++i) {
                const QPoint pixel(i % Size, i / Size);
                difference += std::abs(qGray(one->pixel(pixel)) - qGray(other->pixel(pixel)));
            }
            QVERIFY2(difference > 255 * 8, qPrintable(one.key() + QLatin1Char(' ') + other.key()));
        }
    }
}

VYX_TEST(TestStaticMapSymbols)
#include "tst_static_map_symbols.moc"
