#include "display/label_placer.h"
#include "test_program.h"

#include <QLineF>
#include <QTest>

#include <algorithm>
#include <random>

using Form = LabelPlacer::Form;
using Label = LabelPlacer::Label;
using Placed = LabelPlacer::Placed;
using Priority = LabelPlacer::Priority;

namespace {

constexpr QSize Whole(90, 33);
constexpr QSize Shortened(90, 18);
constexpr int Reach = 8;

Label aircraft(quint64 id, const QPoint &place)
{
    Label label;
    label.id = id;
    label.place = place;
    label.whole = Whole;
    label.shortened = Shortened;
    return label;
}

// So many of them at places that a seed gives.
std::vector<Label> crowd(int count, const QSize &view, unsigned int seed = 1)
{
    std::mt19937 random(seed);
    std::vector<Label> labels;
    for (int i = 0; i < count; ++i) {
        labels.push_back(aircraft(
            quint64(i + 1), QPoint(int(random() % unsigned(view.width())), int(random() % unsigned(view.height())))));
    }
    return labels;
}

// A scope that a placer serves every 200 ms.
struct Scope {
    explicit Scope(const QSize &size = QSize(1600, 1000))
    {
        scene.view = QRect(QPoint(0, 0), size);
        scene.symbolReach = Reach;
        scene.preferredOffset = QPoint(16, -40);
    }

    const std::vector<Placed> &next(int snapshots = 1)
    {
        for (int i = 0; i < snapshots; ++i) {
            placed = &placer.place(scene, labels);
        }
        return *placed;
    }

    QRect rect(std::size_t i) const { return QRect(labels[i].place + (*placed)[i].offset, (*placed)[i].size); }
    bool shown(std::size_t i) const { return (*placed)[i].form != Form::Hidden; }
    int coveredLabels() const
    {
        return pairs([this](std::size_t a, std::size_t b) { return rect(a).intersects(rect(b)); });
    }
    int coveredSymbols() const
    {
        int count = 0;
        for (std::size_t i = 0; i < labels.size(); ++i) {
            const QRect symbol(labels[i].place - QPoint(Reach, Reach), QSize(2 * Reach, 2 * Reach));
            for (std::size_t j = 0; j < labels.size(); ++j) {
                count += shown(j) && rect(j).intersects(symbol) ? 1 : 0;
            }
        }
        return count;
    }
    int crossings() const
    {
        return pairs([this](std::size_t a, std::size_t b) {
            return leader(a).intersects(leader(b)) == QLineF::BoundedIntersection;
        });
    }

    double leaderLength(std::size_t i) const { return shown(i) ? leader(i).length() : 0.0; }
    // The label with the longest leader.
    std::size_t farthest() const
    {
        std::size_t found = 0;
        for (std::size_t i = 0; i < labels.size(); ++i) {
            found = leaderLength(i) > leaderLength(found) ? i : found;
        }
        return found;
    }

    LabelPlacer placer;
    LabelPlacer::Scene scene;
    std::vector<Label> labels;

private:
    QLineF leader(std::size_t i) const
    {
        return QLineF(labels[i].place, LabelField::leaderEnd(labels[i].place, rect(i)));
    }
    template <typename Test>
    int pairs(Test test) const
    {
        int count = 0;
        for (std::size_t a = 0; a < labels.size(); ++a) {
            for (std::size_t b = 0; b < a; ++b) {
                count += shown(a) && shown(b) && test(a, b) ? 1 : 0;
            }
        }
        return count;
    }

    const std::vector<Placed> *placed = nullptr;
};

std::vector<QPoint> offsets(const std::vector<Placed> &placed)
{
    std::vector<QPoint> result;
    std::transform(placed.begin(), placed.end(), std::back_inserter(result), [](const Placed &p) { return p.offset; });
    return result;
}

} // namespace

class TestLabelPlacer final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aloneStandsWhereWanted()
    {
        Scope scope;
        scope.labels = {aircraft(1, QPoint(800, 500))};
        QCOMPARE(scope.next().front().offset, scope.scene.preferredOffset);
        QCOMPARE(scope.next().front().form, Form::Whole);
    }

    void nothingCoversAnythingWhereThereIsRoom_data()
    {
        QTest::addColumn<int>("seed");
        for (int seed = 1; seed <= 5; ++seed) {
            QTest::addRow("%d", seed) << seed;
        }
    }

    void nothingCoversAnythingWhereThereIsRoom()
    {
        QFETCH(int, seed);
        Scope scope;
        scope.labels = crowd(70, QSize(1600, 1000), unsigned(seed));
        const auto &placed = scope.next(20);
        QCOMPARE(scope.coveredLabels(), 0);
        QCOMPARE(scope.crossings(), 0);
        QCOMPARE(scope.placer.shortenedCount() + scope.placer.hiddenCount(), 0);
        // Symbols that lie on top of each other leave labels little choice.
        QVERIFY(scope.coveredSymbols() <= 2);
        for (std::size_t i = 0; i < placed.size(); ++i) {
            QVERIFY(scope.scene.view.contains(scope.rect(i)));
        }
        const std::vector<QPoint> before = offsets(placed);
        QCOMPARE(offsets(scope.next(20)), before);
    }

    void staysInsideASmallView()
    {
        Scope scope(QSize(400, 300));
        scope.labels = {aircraft(1, QPoint(2, 2)), aircraft(2, QPoint(397, 2)), aircraft(3, QPoint(2, 297)),
            aircraft(4, QPoint(397, 297)), aircraft(5, QPoint(-40, 150))};
        scope.next();
        for (std::size_t i = 0; i < 4; ++i) {
            QVERIFY(scope.scene.view.contains(scope.rect(i)));
        }
        QVERIFY(scope.coveredLabels() == 0);
        QCOMPARE(scope.placer.hiddenCount(), 0);
    }

    void survivesViewsAndCrowdsOfAnySize()
    {
        for (const QSize &view : {QSize(0, 0), QSize(1, 1), QSize(400, 300), QSize(1600, 1000)}) {
            for (const int count : {0, 1, 2000}) {
                Scope scope(view);
                scope.labels = crowd(count, QSize(1600, 1000));
                if (count > 0) {
                    scope.labels.front().place = QPoint(2000000000, -2000000000);
                }
                QCOMPARE(int(scope.next(2).size()), count);
            }
        }
    }

    // The view is dragged over an edge, and let go.
    void nothingMovesWhileTheViewIsPanned()
    {
        Scope scope(QSize(800, 600));
        scope.labels = crowd(60, QSize(800, 600));
        const std::vector<QPoint> before = offsets(scope.next(10));
        scope.scene.panning = true;
        for (int step = 0; step < 20; ++step) {
            for (Label &label : scope.labels) {
                label.place += QPoint(20, -10);
            }
            QCOMPARE(offsets(scope.next()), before);
        }
        scope.scene.panning = false;
        scope.next(40);
        for (std::size_t i = 0; i < scope.labels.size(); ++i) {
            if (scope.scene.view.adjusted(30, 60, -30, -30).contains(scope.labels[i].place)) {
                QVERIFY(!scope.shown(i) || scope.scene.view.contains(scope.rect(i)));
            }
        }
    }

    // One aircraft overtakes another and nobody knew: labels give way, and do so once.
    void movesOnceWhenItsPlaceHasBecomeBad()
    {
        Scope scope;
        scope.labels = {aircraft(1, QPoint(800, 500)), aircraft(2, QPoint(600, 515))};
        std::vector<QPoint> last = offsets(scope.next());
        int moves = 0;
        for (int step = 0; step < 400; ++step) {
            scope.labels[1].place.setX(600 + step);
            const std::vector<QPoint> now = offsets(scope.next());
            moves += (now[0] != last[0] ? 1 : 0) + (now[1] != last[1] ? 1 : 0);
            last = now;
            QVERIFY(scope.coveredLabels() == 0 || scope.rect(0).intersected(scope.rect(1)).width() < 10);
        }
        QVERIFY2(moves >= 1 && moves <= 4, qPrintable(QString::number(moves)));
        // Known, it is allowed for from the first.
        scope.placer.forget();
        scope.labels[1].place.setX(600);
        scope.labels[1].motion = QPointF(5.0, 0.0);
        last = offsets(scope.next());
        for (int step = 0; step < 300; ++step) {
            scope.labels[1].place.setX(600 + step);
            QCOMPARE(offsets(scope.next()), last);
        }
    }

    void theImportantStayWholeInACrowd()
    {
        Scope scope(QSize(400, 300));
        scope.labels = crowd(300, QSize(400, 300));
        const std::vector<Priority> priorities = {Priority::Alert, Priority::Selected, Priority::Emergency};
        for (std::size_t i = 0; i < priorities.size(); ++i) {
            scope.labels[i].priority = priorities[i];
        }
        const auto &placed = scope.next(20);
        int shortened = 0;
        int hidden = 0;
        for (std::size_t i = 0; i < placed.size(); ++i) {
            QVERIFY(i >= priorities.size() || placed[i].form == Form::Whole);
            shortened += placed[i].form == Form::Shortened ? 1 : 0;
            hidden += placed[i].form == Form::Hidden ? 1 : 0;
            QCOMPARE(placed[i].size.isEmpty(), placed[i].form == Form::Hidden);
        }
        QVERIFY2(hidden > 100, qPrintable(QString::number(hidden)));
        QCOMPARE(scope.placer.shortenedCount(), shortened);
        QCOMPARE(scope.placer.hiddenCount(), hidden);
    }

    // Where all places near are taken, those who have them make room.
    void anAlertComesNearItsTrack()
    {
        Scope scope;
        scope.labels = crowd(250, QSize(1600, 1000));
        scope.next(60);
        const std::size_t farthest = scope.farthest();
        const double before = scope.leaderLength(farthest);
        QVERIFY(before > 150.0);
        scope.labels[farthest].priority = Priority::Alert;
        scope.next(20);
        QVERIFY2(
            scope.leaderLength(farthest) < before / 2.0, qPrintable(QString::number(scope.leaderLength(farthest))));
        for (std::size_t i = 0; i < scope.labels.size(); ++i) {
            const QRect shared = scope.rect(i) & scope.rect(farthest);
            QVERIFY(i == farthest || !scope.shown(i) || shared.width() * shared.height() < 300);
        }
    }

    // The pointer brings up what there is no room for, over the others, who stay where they are.
    void hoveringShowsAtOnceAndMovesNobody()
    {
        Scope scope(QSize(400, 300));
        scope.labels = crowd(300, QSize(400, 300));
        scope.next(60);
        const std::vector<Placed> before = scope.next();
        const auto gone =
            std::find_if(before.begin(), before.end(), [](const Placed &p) { return p.form == Form::Hidden; });
        const auto index = std::size_t(gone - before.begin());
        scope.scene.panning = true; // what else would move
        scope.labels[index].priority = Priority::Hovered;
        const Placed shown = scope.next()[index];
        QCOMPARE(shown.form, Form::Whole);
        QVERIFY(scope.scene.view.contains(scope.rect(index)));
        std::vector<QPoint> others = offsets(scope.next());
        QCOMPARE(others[index], shown.offset);
        others[index] = before[index].offset;
        QCOMPARE(others, offsets(before));
        scope.labels[index].priority = Priority::Normal;
        QCOMPARE(scope.next()[index].form, Form::Hidden);
    }

    void whatWasGivenUpComesBack()
    {
        Scope scope(QSize(400, 300));
        scope.labels = crowd(200, QSize(400, 300));
        scope.next(20);
        QVERIFY(scope.placer.hiddenCount() > 0);
        scope.labels.resize(6);
        scope.next(100);
        QCOMPARE(scope.placer.hiddenCount() + scope.placer.shortenedCount(), 0);
    }

    // Crowds disperse, and views are zoomed into.
    void comesBackFromFarAwayWhenThereIsRoom()
    {
        Scope scope;
        scope.labels = crowd(250, QSize(1600, 1000));
        scope.next(60);
        const std::size_t farthest = scope.farthest();
        QVERIFY(scope.leaderLength(farthest) > 150.0);
        scope.labels = {scope.labels[farthest]};
        scope.next(40);
        QVERIFY2(scope.leaderLength(0) < 60.0, qPrintable(QString::number(scope.leaderLength(0))));
    }

    // Zoomed into a crowd, most of which is out of view then.
    void aNewViewShowsAtOnceWhatItHasRoomFor()
    {
        Scope scope(QSize(800, 600));
        scope.labels = crowd(1500, QSize(800, 600));
        scope.next(20);
        QVERIFY(scope.placer.hiddenCount() > 500);
        for (Label &label : scope.labels) {
            label.place = QPoint(400, 300) + 8 * (label.place - QPoint(400, 300));
        }
        scope.placer.lookAgain();
        scope.next();
        QCOMPARE(scope.placer.hiddenCount(), 0);
    }

    void evenTheFringeOfAnAlertIsLeftFree()
    {
        Scope scope;
        scope.labels = {aircraft(1, QPoint(800, 500)), aircraft(2, QPoint(1000, 600))};
        scope.next();
        const QRect fringe = scope.rect(0).translated(Whole.width() - 3, 0);
        scope.labels[1].pinned = true;
        scope.labels[1].pinnedOffset = fringe.topLeft() - scope.labels[1].place;
        scope.next(40);
        QCOMPARE(scope.coveredLabels(), 0);
    }

    void othersAvoidAPinnedLabel()
    {
        Scope scope;
        scope.labels = {aircraft(1, QPoint(800, 500)), aircraft(2, QPoint(700, 480))};
        scope.next();
        scope.labels[1].pinned = true;
        scope.labels[1].pinnedOffset = QPoint(110, -10);
        scope.next(20);
        QCOMPARE(scope.rect(1), QRect(QPoint(810, 470), Whole));
        QCOMPARE(scope.coveredLabels(), 0);
        scope.labels[1].pinned = false;
        scope.placer.forget(2);
        QCOMPARE(scope.next()[1].form, Form::Whole);
        QVERIFY(scope.rect(1) != QRect(QPoint(810, 470), Whole));
    }

    void theSelectedVectorStaysFree()
    {
        Scope scope;
        scope.labels = {aircraft(1, QPoint(800, 500)), aircraft(2, QPoint(840, 530))};
        scope.labels[0].vectorTip = QPoint(200, 0);
        scope.labels[0].keepsVectorFree = true;
        scope.next(10);
        QVERIFY(!scope.rect(0).intersects(QRect(800, 500, 200, 1)));
        QVERIFY(!scope.rect(1).intersects(QRect(800, 500, 200, 1)));
    }

    // Two aircraft change sides; their leaders must not stay crossed.
    void leadersUncross()
    {
        Scope scope;
        scope.labels = {aircraft(1, QPoint(780, 500)), aircraft(2, QPoint(820, 500))};
        scope.next();
        std::swap(scope.labels[0].place, scope.labels[1].place);
        scope.next(20);
        QCOMPARE(scope.crossings(), 0);
        QCOMPARE(scope.coveredLabels(), 0);
    }

    // An alert line comes, a call sign becomes known: the side towards the symbol stays.
    void growsAwayFromItsSymbol()
    {
        Scope scope;
        scope.scene.preferredOffset = QPoint(-106, -49);
        scope.labels = {aircraft(1, QPoint(800, 500))};
        scope.next();
        const QRect before = scope.rect(0);
        scope.labels[0].whole += QSize(30, 15);
        scope.next();
        QCOMPARE(scope.rect(0).bottomRight(), before.bottomRight());
        QCOMPARE(scope.rect(0).size(), scope.labels[0].whole);
    }
};

VYX_TEST(TestLabelPlacer)
#include "tst_label_placer.moc"
