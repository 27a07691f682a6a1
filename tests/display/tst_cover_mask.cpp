#include "display/cover_mask.h"

#include <QTest>

#include <random>
#include <vector>

class tst_CoverMask : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void neverHidesWhatCanBeSeen();
};

namespace {

constexpr QSize Screen(301, 151); // no whole number of cells

} // namespace

// Against a plain array of pixels.
void tst_CoverMask::neverHidesWhatCanBeSeen()
{
    std::mt19937 random(3);
    const auto any = [&random](int from, int to) { return from + int(random() % unsigned(to - from)); };
    CoverMask mask;
    mask.reset(Screen);
    std::vector<bool> pixels(std::size_t(Screen.width() * Screen.height()), false);
    int hiddenCount = 0;
    for (int i = 0; i < 400; ++i) {
        const QRect rect(any(-40, 300), any(-40, 150), any(1, 90), any(1, 60));
        const QRect seen = rect & QRect(QPoint(0, 0), Screen);
        QRect visible;
        for (int y = seen.top(); y <= seen.bottom(); ++y) {
            for (int x = seen.left(); x <= seen.right(); ++x) {
                if (!pixels[std::size_t(y * Screen.width() + x)])
                    visible |= QRect(x, y, 1, 1);
            }
        }
        const QRect reported = mask.visiblePart(rect);
        QVERIFY(visible.isEmpty() || reported.contains(visible));
        hiddenCount += reported.isEmpty();
        if (i % 4 != 0)
            continue;
        mask.cover(rect);
        for (int y = seen.top(); y <= seen.bottom(); ++y) {
            for (int x = seen.left(); x <= seen.right(); ++x)
                pixels[std::size_t(y * Screen.width() + x)] = true;
        }
    }
    QVERIFY(hiddenCount > 50);
}

QTEST_GUILESS_MAIN(tst_CoverMask)
#include "tst_cover_mask.moc"
