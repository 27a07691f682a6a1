#include "test_program.h"
#include "track_scope.h"

#include <QSignalSpy>
#include <QTest>

#include <random>

class TestTrackLabelPlaces final : public QObject {
    Q_OBJECT

private:
    // Paints the tracks with labels that arrange themselves, north-up at a metre a pixel unless told otherwise.
    struct Scope : TrackScope {
        explicit Scope(Config::TrackLabelLayout layout = Config::TrackLabelLayout::Compact)
        {
            Config config;
            config.trackLabelAutoPlace = true;
            config.trackLabelLayout = layout;
            display.applyConfig(config);
        }

        QRect rect(unsigned long long id) const
        {
            for (const ShownTrack &shown : display.frame().tracks) {
                if (shown.track->incarnationId == id && shown.label) {
                    return display.look().padded(shown.labelRect);
                }
            }
            return {};
        }
    };

    // Of a label that has all its lines.
    static int fullHeight()
    {
        Scope scope;
        scope.show({flightAt()});
        PaintedView view(1.0);
        scope.paint(view);
        return scope.rect(1).height();
    }

    static QList<TrackSnapshot> crowd(int count)
    {
        std::mt19937 random(1);
        QList<TrackSnapshot> tracks;
        for (int i = 0; i < count; ++i) {
            tracks += flightAt(QPointF(int(random() % 400) - 200, int(random() % 400) - 200), quint64(i + 1));
        }
        return tracks;
    }

private Q_SLOTS:
    void labelsKeepApartInEveryLayoutAndView()
    {
        for (const auto layout : {Config::TrackLabelLayout::Standard, Config::TrackLabelLayout::Compact}) {
            for (const double rotation : {0.0, 120.0}) {
                Scope scope(layout);
                scope.show({flightAt(), flightAt({12, 8}, 2), flightAt({-9, 14}, 3), flightAt({150, 150}, 4)});
                PaintedView view(1.0, {}, rotation);
                scope.paint(view, 30);
                for (unsigned int a = 1; a <= 4; ++a) {
                    QVERIFY(view.image().rect().contains(scope.rect(a)));
                    for (unsigned int b = 1; b < a; ++b) {
                        QVERIFY(!scope.rect(a).intersects(scope.rect(b)));
                    }
                }
            }
        }
    }

    void readOutsOfTheMapAreLeftFree()
    {
        Scope scope;
        scope.show({flightAt()});
        PaintedView view(1.0);
        scope.paint(view);
        const QRect usual = scope.rect(1);
        scope.display.keepFree({usual});
        scope.paint(view, 30);
        QVERIFY(scope.rect(1).isValid() && !scope.rect(1).intersects(usual));
    }

    void noTextIsCutByTheEdge()
    {
        for (const int beyond : {-30, 0, 5, 60}) { // pixels that the aircraft is right of the edge
            Scope scope;
            scope.show({flightAt({PaintedView::Size / 2.0 + beyond, 0})});
            PaintedView view(1.0);
            scope.paint(view, 2);
            QVERIFY(scope.rect(1).isNull() || view.image().rect().contains(scope.rect(1)));
            QVERIFY(beyond >= 0 || scope.rect(1).isValid());
            scope.display.setTrackLabelOffset(1, 10, 0); // where the operator wants it
            scope.paint(view);
            QVERIFY(scope.rect(1).isValid());
        }
    }

    void theOperatorsPlaceStaysUntilItIsReset()
    {
        Scope scope;
        scope.show({flightAt(), flightAt({20, 5}, 2)});
        PaintedView view(1.0);
        scope.paint(view, 5);
        const QRect arranged = scope.rect(1);
        // A drag begins where the label stands.
        const QPoint start = scope.display.trackLabelOffset(1);
        scope.display.setTrackLabelOffset(1, start.x() - 60, start.y() + 10);
        scope.paint(view, 5);
        QCOMPARE(scope.rect(1), arranged.translated(-60, -10));
        QVERIFY(scope.display.anyTrackLabelOffset());
        scope.display.resetTrackLabelOffset(1);
        scope.paint(view, 5);
        QCOMPARE(scope.rect(1), arranged);
        scope.display.setTrackLabelOffset(2, 100, 100);
        scope.display.resetTrackLabelOffsets();
        QVERIFY(!scope.display.anyTrackLabelOffset());
    }

    void aCrowdGivesUpLinesAndSaysSo()
    {
        Scope scope;
        QSignalSpy counts(&scope.display, &GeoTrackDisplay::shortenedLabelsChanged);
        scope.show(crowd(100));
        PaintedView view(1.0);
        scope.paint(view, 5);
        QVERIFY(!counts.isEmpty());
        int shortened = 0;
        for (const ShownTrack &shown : scope.display.frame().tracks) {
            const bool whole = shown.label && shown.lines == int(shown.label->lines.size());
            shortened += view.image().rect().contains(shown.place) && !whole ? 1 : 0;
            QVERIFY(!shown.label || shown.labelRect.height() < shown.label->size.height() || whole);
        }
        QVERIFY(shortened > 0);
        QCOMPARE(counts.last()[0].toInt(), shortened);
        // The pointer brings up all of one.
        for (const ShownTrack &shown : std::vector(scope.display.frame().tracks)) {
            const bool whole = shown.label && shown.lines == int(shown.label->lines.size());
            if (view.image().rect().contains(shown.place) && !whole) {
                scope.display.setHovered(shown.track->incarnationId);
                break;
            }
        }
        scope.paint(view);
        QVERIFY(scope.rect(scope.display.hoveredTrackId()).height() >= fullHeight());
        scope.display.setHovered(0);
        scope.show({flightAt()});
        scope.paint(view, 30);
        QCOMPARE(counts.last()[0].toInt(), 0);
        // Switched off, all stand in full where they always did.
        scope.show(crowd(100));
        scope.display.applyConfig(Config());
        scope.paint(view);
        for (const ShownTrack &shown : scope.display.frame().tracks) {
            QCOMPARE(shown.labelRect.topLeft() - shown.place,
                QPoint(scope.display.labelOffsetX(), -scope.display.labelOffsetY()));
        }
        QCOMPARE(counts.last()[0].toInt(), 0);
    }

    void aDraggedViewTakesItsLabelsAlong()
    {
        Scope scope;
        scope.show(crowd(12));
        PaintedView view(1.0);
        scope.paint(view, 20);
        std::vector<QPoint> before;
        for (unsigned long long id = 1; id <= 12; ++id) {
            before.push_back(scope.display.trackLabelOffset(id));
        }
        scope.display.setViewHeld(true);
        PaintedView moved(1.0, QPointF(120, 60));
        scope.paint(moved, 3);
        int shown = 0;
        for (unsigned long long id = 1; id <= 12; ++id) {
            const bool seen = scope.rect(id).isValid(); // some have gone over the edge
            QVERIFY(!seen || scope.display.trackLabelOffset(id) == before[id - 1]);
            shown += seen ? 1 : 0;
        }
        QVERIFY(shown >= 6);
    }

    void anyNumberOfTracksIsPlaced()
    {
        Scope scope;
        PaintedView view(1.0);
        for (const int count : {0, 1, 5000}) {
            scope.show(crowd(count));
            scope.paint(view, 2);
            QCOMPARE(int(scope.display.frame().tracks.size()), count);
        }
    }
};

VYX_TEST(TestTrackLabelPlaces)
#include "tst_track_label_places.moc"
