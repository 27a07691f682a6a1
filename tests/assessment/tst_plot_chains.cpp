#include "assessment/plot_chains.h"
#include "assessment/time_axis.h"
#include "test_program.h"

#include <QTest>

#include <cmath>

namespace {

constexpr double Period = 4.0;

RadarPlot plotAt(double turn, double range, std::optional<unsigned> address, std::optional<unsigned> number = {})
{
    RadarPlot plot;
    plot.time = turn * Period;
    plot.range = range;
    plot.azimuth = 359.0;
    plot.secondary = true;
    plot.address = address;
    plot.trackNumber = number;
    return plot;
}

} // namespace

class TestPlotChains : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void countsTurnsBetweenDetections()
    {
        PlotChains chains;
        // Nine turns, in which turns 2, 3 and 6 are missed; the first detection does not count.
        for (const int turn : {0, 1, 4, 5, 7, 8}) {
            chains.add(plotAt(turn, 50e3, 0x780A12), Period);
        }
        const DetectionGrid::Cell all = chains.detection().grid.total();
        QCOMPARE(all.looks, 8);
        QCOMPARE(all.hits, 5);
        // Six turns without are the end of it, and the input's silence is nobody's miss.
        chains.add(plotAt(14, 50e3, 0x780A12), Period);
        QCOMPARE(chains.detection().grid.total().looks, 8);
        chains.noteSilence(16.5 * Period);
        chains.add(plotAt(17, 50e3, 0x780A12), Period);
        QCOMPARE(chains.detection().grid.total().looks, 8);
        chains.add(plotAt(18, 50e3, 0x780A12), Period);
        QCOMPARE(chains.detection().grid.total().looks, 9);
    }

    void tellsFalsePlots_data()
    {
        QTest::addColumn<QList<double>>("turns");
        QTest::addColumn<QList<double>>("ranges"); // kilometres
        QTest::addColumn<bool>("identified");
        QTest::addColumn<int>("lone");
        QTest::addColumn<int>("doubled");

        const auto row = [](const char *name, const QList<double> &turns, const QList<double> &ranges, bool identified,
                             int lone,
                             int doubled) { QTest::newRow(name) << turns << ranges << identified << lone << doubled; };
        row("a target", {20, 21, 22}, {50, 51, 52}, true, 0, 0);
        row("its reflection", {20, 20.1, 21}, {50, 80, 51}, true, 0, 1);
        row("sent twice over", {20, 20, 21}, {50, 50, 51}, true, 0, 0);
        row("an address once", {20}, {50}, true, 1, 0);
        row("without identity, as an aircraft flies", {20, 21, 22}, {50, 51, 52}, false, 0, 0);
        row("without identity, anywhere", {20, 21, 22}, {50, 90, 20}, false, 3, 0);
        row("without identity, in one turn", {20, 20.2}, {50, 50.1}, false, 2, 0);
    }

    void tellsFalsePlots()
    {
        QFETCH(QList<double>, turns);
        QFETCH(QList<double>, ranges);
        QFETCH(bool, identified);
        QFETCH(int, lone);
        QFETCH(int, doubled);
        PlotChains chains;
        for (int turn = 0; turn < 40; ++turn) {
            chains.add(
                plotAt(turn, 120e3, 0x780A13), Period); // lasts, so that the ends are not at the ends of the data
        }
        for (qsizetype i = 0; i < turns.size(); ++i) {
            chains.add(
                plotAt(turns[i], ranges[i] * 1000, identified ? std::optional<unsigned>(0x780A12) : std::nullopt),
                Period);
        }
        chains.settle(40 * Period, Period);
        QCOMPARE(chains.falsePlots(Period).lone, lone);
        QCOMPARE(chains.falsePlots(Period).doubled, doubled);
        QCOMPARE(chains.detection().grid.total().falsePlots, lone + doubled);
    }

    void goesOnByTrackNumberWhereTheAddressIsMissing()
    {
        PlotChains chains;
        chains.add(plotAt(0, 50e3, 0x780A12, 7), Period);
        chains.add(plotAt(1, 50e3, {}, 7), Period);
        chains.add(plotAt(2, 50e3, 0x780A12, 7), Period);
        QCOMPARE(chains.detection().grid.total().hits, 2);
        QCOMPARE(chains.detection().grid.total().looks, 2);
    }

    void placesTimesOfDayOverMidnight()
    {
        TimeAxis bare;
        QCOMPARE(bare.place(86399.0, {}), 0.0);
        QCOMPARE(bare.place(1.0, {}), 2.0);
        QCOMPARE(bare.place(86399.5, {}), 0.5); // a late one
        QCOMPARE(bare.place(300.0, {}, 512.0), 300.0 - (86399.5 - 512.0 * 168) + 0.5);
        QVERIFY(!bare.origin().isValid());
        TimeAxis dated;
        const double midnight = 86400.0 * 20000;
        QCOMPARE(dated.place(86399.0, midnight + 2.0), 0.0);
        QCOMPARE(dated.place(86400.0 / 2, midnight + 86400.0 * 2.5), 86400.0 * 2.5 + 1.0); // days without data
        QCOMPARE(dated.place(300.0, midnight + 86400.0 * 3 + 820.0, 512.0), 86400.0 * 3 + 812.0 + 1.0);
        QCOMPARE(dated.origin().toMSecsSinceEpoch(), static_cast<qint64>(midnight - 1) * 1000);
    }

    void boundsProportions()
    {
        const auto none = ProportionInterval::of(0, 0);
        QVERIFY(none.low == 0.0 && none.high == 1.0);
        const auto all = ProportionInterval::of(10, 10);
        QVERIFY(std::abs(all.low - 0.7225) < 1e-3 && all.high > 0.9999); // Wilson's table value
        const auto half = ProportionInterval::of(50, 100);
        QVERIFY(std::abs(half.low - 0.4038) < 1e-3 && std::abs(half.high - 0.5962) < 1e-3);
    }
};

VYX_TEST(TestPlotChains)
#include "tst_plot_chains.moc"
