#include "inspection/octet_view.h"
#include "test_program.h"
#include "widgets/text_colors.h"

#include <QTest>

class TestOctetView : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void findsBitUnderPointer_data();
    void findsBitUnderPointer();
    void marksWhatItIsTold();
};

void TestOctetView::findsBitUnderPointer_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("sixteen in a row") << 700;
    QTest::newRow("eight in a row") << 350;
    QTest::newRow("too narrow") << 60;
}

// Where a bit is drawn, there the pointer finds it, and the last one is within the height that is asked for.
void TestOctetView::findsBitUnderPointer()
{
    QFETCH(int, width);
    OctetView view;
    view.setOctets(QByteArray(40, '\x5A'));
    view.resize(width, view.heightForWidth(width));
    for (int bit = 0; bit < 320; ++bit) {
        QCOMPARE(view.bitAt(view.placeOfBit(bit).center()), bit);
    }
    QVERIFY(view.placeOfBit(319).bottom() <= view.height());
    QCOMPARE(view.bitAt({-5.0, -5.0}), -1);
    QCOMPARE(view.bitAt({0.0, 100000.0}), -1);
}

void TestOctetView::marksWhatItIsTold()
{
    OctetView view;
    view.setOctets(QByteArray(8, '\xFF'));
    view.resize(700, 200);
    view.setMarks({{13, 6}});
    const QImage picture = view.grab().toImage();
    for (const int bit : {12, 13, 18, 19}) {
        const QColor color = picture.pixelColor(view.placeOfBit(bit).center().toPoint());
        QCOMPARE(color == warningTextColor(view.palette()), bit == 13 || bit == 18);
    }
}

VYX_TEST(TestOctetView)
#include "tst_octet_view.moc"
