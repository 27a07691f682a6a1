#include "app/config.h"
#include "painted_view.h"
#include "silence/geo_last_place_map.h"
#include "silence/last_places.h"
#include "test_program.h"
#include "view/contrast.h"
#include "view/text_room.h"

#include <QTest>

class TestLastPlaces : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whatEndsInSilenceStays();
    void marks();
};

namespace {

QDateTime at(double second)
{
    return QDateTime::fromMSecsSinceEpoch(qRound64(second * 1000.0), Qt::UTC);
}

TrackSnapshot track(unsigned int number, double lastReport)
{
    TrackSnapshot track;
    track.incarnationId = number;
    track.trackNumber = number;
    track.carCoordinate = QPointF(number * 1000.0, 0.0);
    track.carCoordinateValid = true;
    track.lastUpdate = at(lastReport);
    return track;
}

} // namespace

// Data stop at second 100; the period is the 4 seconds of a sensor that does not tell.
void TestLastPlaces::whatEndsInSilenceStays()
{
    SilenceWatch watch;
    watch.setExpecting(true);
    LastPlaces places;
    DisplaySnapshot snapshot;
    snapshot.plots.run = 1;
    const auto look = [&](double second, const QList<TrackSnapshot> &tracks) {
        snapshot.time = at(second);
        snapshot.messages += second <= 100.0 || second >= 120.0;
        snapshot.tracks = tracks;
        watch.look(snapshot);
        return places.look(snapshot, watch);
    };
    TrackSnapshot named = track(1, 99.0);
    named.callsign = "DLH1AB";
    named.callsignValid = named.levelValid = true;
    named.level = 35000;
    const TrackSnapshot lostBefore = track(2, 91.0);
    const TrackSnapshot lasting = track(3, 99.5);
    TrackSnapshot coded = track(4, 98.0);
    coded.modeAString = "7000";
    coded.modeACodeValid = true;
    TrackSnapshot placeless = track(5, 99.0);
    placeless.carCoordinateValid = false;

    look(99.0, {named, lostBefore, lasting, coded, placeless, track(6, 98.0)});
    look(100.0, {named, lostBefore, lasting, coded, placeless}); // the sixth ends while data come
    QVERIFY(places.places().empty());
    look(108.0, {named, lasting, coded, placeless});
    QVERIFY(places.places().empty());
    QVERIFY(look(110.0, {lasting}));
    QVERIFY(!look(111.0, {lasting}));
    QCOMPARE(places.places().size(), std::size_t(2));
    QCOMPARE(places.places()[0].name, QString("DLH1AB 350"));
    QCOMPARE(places.places()[0].time, at(99.0));
    QCOMPARE(places.places()[0].place, named.carCoordinate);
    QCOMPARE(places.places()[1].name, QString("A7000"));
    QVERIFY(look(112.0, {}));
    QCOMPARE(places.places()[2].name, QString("#0003"));
    QVERIFY(look(120.0, {})); // data return
    QVERIFY(places.places().empty());
}

void TestLastPlaces::marks()
{
    Config config;
    for (const auto &[symbol, ground] : QList<std::pair<QColor, QColor>>{{Qt::white, Qt::black},
             {QColor(0x00, 0x8F, 0xCC), QColor(173, 173, 173)}, {QColor(60, 60, 60), Qt::black}}) {
        config.trackSymbolColor = symbol;
        config.mapBackgroundColor = ground;
        GeoLastPlaceMap layer;
        layer.applyConfig(config);
        // The first's name has no room at its right for the second's mark.
        layer.setPlaces({{1, {0, 0}, "DLH1AB", at(5)}, {2, {20, 5}, "AUA2", at(5)}, {3, {0, -150}, "BAW3", at(5)}});
        PaintedView view(1.0);
        TextRoom room;
        room.begin(view.view().screenRect());
        layer.placeTexts(view.view(), room);
        view.paint([&](QPainter &painter, const GeoView &geo) {
            painter.save();
            painter.resetTransform();
            painter.fillRect(geo.screenRect(), ground);
            painter.restore();
            layer.paint(painter, geo);
        });
        const QPoint first = PaintedView::Middle;
        QCOMPARE(view.at(first), ground); // hollow
        double strongest = 1.0;
        for (int x = 0; x < PaintedView::Size; ++x) {
            for (int y = 0; y < PaintedView::Size; ++y) {
                strongest = std::max(strongest, contrastRatio(view.at({x, y}), ground));
            }
        }
        QVERIFY2(strongest > 2.2 && strongest < 5.0, qPrintable(QString::number(strongest)));
        for (const auto &[offset, text] : QList<std::pair<QPointF, bool>>{
                 {{-30, -5}, true}, {{35, -10}, true}, {{110, -5}, false}, {{15, 145}, true}, {{-30, 145}, false}}) {
            QCOMPARE(room.isFree(QRectF(first + offset, QSizeF(10, 10))), !text);
        }
    }
}

VYX_TEST(TestLastPlaces)
#include "tst_last_places.moc"
