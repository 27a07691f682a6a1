#include "geo/geo_coordinate.h"
#include "test_program.h"

#include <QLocale>
#include <QTest>

#include <cmath>

using Format = GeoCoordinate::ATCStringFormat;

namespace {

constexpr double seconds(double degrees, double minutes, double value)
{
    return degrees + minutes / 60.0 + value / 3600.0;
}

} // namespace

class TestGeoCoordinate : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void writes_data()
    {
        QTest::addColumn<double>("latitude");
        QTest::addColumn<double>("longitude");
        QTest::addColumn<int>("format");
        QTest::addColumn<QString>("expected");

        const auto row = [](const char *name, double latitude, double longitude, Format format, const char *expected) {
            QTest::newRow(name) << latitude << longitude << int(format) << expected;
        };
        const double lat = seconds(39, 54, 27.35);
        const double lon = seconds(116, 23, 17.08);
        row("whole seconds", lat, lon, Format::NormalPrecision, "395427N1162317E");
        row("with both", lat, lon, Format::NormalPrecisionCommaSpace, "395427N, 1162317E");
        row("hundredths", lat, lon, Format::HighPrecision, "395427.35N1162317.08E");
        row("decimal", lat, lon, Format::DecimalDegrees, "39.907597,116.388078");

        row("signs in decimal", -33.8688, 151.2093, Format::DecimalDegrees, "-33.868800,151.209300");
        row("zero is north east", 0.0, 0.0, Format::NormalPrecision, "000000N0000000E");
        row("rounded to zero keeps its side", -0.000001, -0.000001, Format::HighPrecision, "000000.00S0000000.00W");

        row("rounds to hundredths before it drops them", seconds(10, 0, 27.9951), 0.0, Format::NormalPrecision,
            "100028N0000000E");
        row("carries into the minute", seconds(10, 7, 59.9951), seconds(20, 8, 59.9951), Format::HighPrecision,
            "100800.00N0200900.00E");
        row("carries into the degree", seconds(10, 59, 59.999999), -seconds(99, 59, 59.999999), Format::NormalPrecision,
            "110000N1000000W");
    }

    void writes()
    {
        QFETCH(const double, latitude);
        QFETCH(const double, longitude);
        QFETCH(const int, format);
        QLocale::setDefault(QLocale(QLocale::German)); // the point stays a point
        QTEST(GeoCoordinate(latitude, longitude).toATCString(static_cast<Format>(format)), "expected");
    }

    void reads_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("latitude");
        QTest::addColumn<double>("longitude");

        QTest::newRow("whole seconds") << "395427N1162317E" << seconds(39, 54, 27) << seconds(116, 23, 17);
        QTest::newRow("south west, hundredths") << "333000.36S0701500.72W" << -33.5001 << -70.2502;
        QTest::newRow("two longitude digits, hundredths") << "050000.00N990000.00W" << 5.0 << -99.0;
        QTest::newRow("minutes and seconds beyond 59 are folded in") << "109999N0209999W" << 11.6775 << -21.6775;
    }

    void reads()
    {
        QFETCH(const QString, text);
        QFETCH(const double, latitude);
        QFETCH(const double, longitude);
        const auto coordinate = GeoCoordinate::fromATCString(text);
        QVERIFY(std::abs(coordinate.latitude() - latitude) < 1e-12);
        QVERIFY(std::abs(coordinate.longitude() - longitude) < 1e-12);
    }

    void refuses()
    {
        for (const char *text : {"", " 395427N1162317E", "395427N1162317E\n", "395427n1162317e", "395427N 1162317E",
                 "39.907597,116.388078", "39542N1162317E", "395427N16317E", "395427N11623170E", "395427.35N1162317E",
                 "395427N1162317.08E", "395427.3N1162317.0E", "395427E1162317N", "996000N0000000E", "000000N9990000E",
                 "395427N1162317E395427N1162317E"}) {
            QVERIFY2(!GeoCoordinate::fromATCString(text).isValid(), text);
        }
        QVERIFY(!GeoCoordinate::fromATCString("395427N1162317E", Format::HighPrecision).isValid());
        QVERIFY(!GeoCoordinate::fromATCString("395427.35N1162317.08E", Format::NormalPrecision).isValid());
    }

    void returnsWhatItWrote()
    {
        constexpr double Tolerance = 0.005 / 3600.0 + 1e-12; // half of the last digit
        for (int step = -899; step <= 899; step += 7) {
            const GeoCoordinate before(step / 10.0 + 0.0123456, step / 5.0 - 0.0765432);
            const auto text = before.toATCString(Format::HighPrecision);
            const auto after = GeoCoordinate::fromATCString(text);
            QVERIFY2(std::abs(after.latitude() - before.latitude()) <= Tolerance, qPrintable(text));
            QVERIFY2(std::abs(after.longitude() - before.longitude()) <= Tolerance, qPrintable(text));
            QCOMPARE(after.toATCString(Format::HighPrecision), text);
        }
    }
};

VYX_TEST(TestGeoCoordinate)
#include "tst_geo_coordinate.moc"
