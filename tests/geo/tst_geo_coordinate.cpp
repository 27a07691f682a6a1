#include "geo/geo_coordinate.h"

#include <QLocale>
#include <QTest>

#include <cmath>

using Format = GeoCoordinate::ATCStringFormat;

class tst_GeoCoordinate : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void writes_data();
    void writes();
    void keepsThePointInAnyLocale();
    void reads_data();
    void reads();
    void refuses_data();
    void refuses();
    void readsOneFormatOnly();
    void returnsWhatItWrote();
};

namespace {

constexpr double seconds(double degrees, double minutes, double value)
{
    return degrees + minutes / 60.0 + value / 3600.0;
}

constexpr auto UnknownFormat = static_cast<Format>(6);

} // namespace

void tst_GeoCoordinate::writes_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("expected");

    const double lat = seconds(39, 54, 27.35);
    const double lon = seconds(116, 23, 17.08);
    QTest::newRow("whole seconds") << lat << lon << int(Format::NormalPrecision) << "395427N1162317E";
    QTest::newRow("with comma") << lat << lon << int(Format::NormalPrecisionComma) << "395427N,1162317E";
    QTest::newRow("with blank") << lat << lon << int(Format::NormalPrecisionSpace) << "395427N 1162317E";
    QTest::newRow("with both") << lat << lon << int(Format::NormalPrecisionCommaSpace) << "395427N, 1162317E";
    QTest::newRow("hundredths") << lat << lon << int(Format::HighPrecision) << "395427.35N1162317.08E";
    QTest::newRow("decimal") << lat << lon << int(Format::DecimalDegrees) << "39.907597,116.388078";
    QTest::newRow("unknown format") << lat << lon << int(UnknownFormat) << "395427N1162317E";

    QTest::newRow("south west") << -33.5 << -70.25 << int(Format::NormalPrecision) << "333000S0701500W";
    QTest::newRow("signs in decimal") << -33.8688 << 151.2093 << int(Format::DecimalDegrees) << "-33.868800,151.209300";
    QTest::newRow("three longitude digits") << 5.0 << 5.0 << int(Format::NormalPrecision) << "050000N0050000E";
    QTest::newRow("pole and date line") << -90.0 << 180.0 << int(Format::HighPrecision) << "900000.00S1800000.00E";
    QTest::newRow("zero is north east") << 0.0 << 0.0 << int(Format::NormalPrecision) << "000000N0000000E";
    QTest::newRow("negative zero too") << -0.0 << -0.0 << int(Format::NormalPrecision) << "000000N0000000E";
    QTest::newRow("rounded to zero keeps its side")
        << -0.000001 << -0.000001 << int(Format::HighPrecision) << "000000.00S0000000.00W";

    QTest::newRow("dropped hundredths") << seconds(10, 0, 27.994) << 0.0 << int(Format::NormalPrecision)
                                        << "100027N0000000E";
    QTest::newRow("rounds to hundredths before it drops them")
        << seconds(10, 0, 27.9951) << 0.0 << int(Format::NormalPrecision) << "100028N0000000E";
    QTest::newRow("carries into the minute")
        << seconds(10, 7, 59.9951) << seconds(20, 8, 59.9951) << int(Format::HighPrecision) << "100800.00N0200900.00E";
    QTest::newRow("carries into the degree") << seconds(10, 59, 59.999999) << -seconds(99, 59, 59.999999)
                                             << int(Format::NormalPrecision) << "110000N1000000W";
}

void tst_GeoCoordinate::writes()
{
    QFETCH(const double, latitude);
    QFETCH(const double, longitude);
    QFETCH(const int, format);
    QFETCH(const QString, expected);
    QCOMPARE(GeoCoordinate(latitude, longitude).toATCString(static_cast<Format>(format)), expected);
}

void tst_GeoCoordinate::keepsThePointInAnyLocale()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    const auto text = GeoCoordinate(1.5, 2.25).toATCString(Format::DecimalDegrees);
    QLocale::setDefault(before);
    QCOMPARE(text, QStringLiteral("1.500000,2.250000"));
}

void tst_GeoCoordinate::reads_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");

    QTest::newRow("whole seconds") << "395427N1162317E" << seconds(39, 54, 27) << seconds(116, 23, 17);
    QTest::newRow("hundredths") << "395427.35N1162317.08E" << seconds(39, 54, 27.35) << seconds(116, 23, 17.08);
    QTest::newRow("south west") << "333000S0701500W" << -33.5 << -70.25;
    QTest::newRow("south west, hundredths") << "333000.36S0701500.72W" << -33.5001 << -70.2502;
    QTest::newRow("two longitude digits") << "050000N010000E" << 5.0 << 1.0;
    QTest::newRow("two longitude digits, hundredths") << "050000.00N990000.00W" << 5.0 << -99.0;
    QTest::newRow("minutes and seconds beyond 59 are folded in") << "109999N0209999W" << 11.6775 << -21.6775;
}

void tst_GeoCoordinate::reads()
{
    QFETCH(const QString, text);
    QFETCH(const double, latitude);
    QFETCH(const double, longitude);
    const auto coordinate = GeoCoordinate::fromATCString(text);
    QVERIFY(std::abs(coordinate.latitude() - latitude) < 1e-12);
    QVERIFY(std::abs(coordinate.longitude() - longitude) < 1e-12);
}

void tst_GeoCoordinate::refuses_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"", " 395427N1162317E", "395427N1162317E ", "395427N1162317E\n", "395427n1162317e",
             "395427N,1162317E", "395427N 1162317E", "39.907597,116.388078", "39542N1162317E", "395427N16317E",
             "395427N11623170E", "395427.35N1162317E", "395427N1162317.08E", "395427.3N1162317.0E", "395427E1162317N",
             "996000N0000000E", "000000N9990000E", "395427N1162317E395427N1162317E"})
        QTest::addRow("'%s'", text) << text;
}

void tst_GeoCoordinate::refuses()
{
    QFETCH(const QString, text);
    const auto coordinate = GeoCoordinate::fromATCString(text);
    QVERIFY(!coordinate.isValid());
    QCOMPARE(coordinate.toATCString(), QString());
}

void tst_GeoCoordinate::readsOneFormatOnly()
{
    const auto normal = QStringLiteral("395427N1162317E");
    const auto high = QStringLiteral("395427.35N1162317.08E");
    for (int format = Format::NormalPrecision; format <= Format::DecimalDegrees + 1; ++format) {
        const auto value = static_cast<Format>(format);
        QCOMPARE(GeoCoordinate::fromATCString(normal, value).isValid(), value == Format::NormalPrecision);
        QCOMPARE(GeoCoordinate::fromATCString(high, value).isValid(), value == Format::HighPrecision);
        const auto written = GeoCoordinate(10.0, 20.0).toATCString(value);
        const bool readable = value == Format::NormalPrecision || value == Format::HighPrecision;
        QCOMPARE(GeoCoordinate::fromATCString(written, value).isValid(), readable);
    }
}

void tst_GeoCoordinate::returnsWhatItWrote()
{
    constexpr double tolerance = 0.005 / 3600.0 + 1e-12; // half of the last digit
    for (int step = -899; step <= 899; step += 7) {
        const GeoCoordinate before(step / 10.0 + 0.0123456, step / 5.0 - 0.0765432);
        const auto text = before.toATCString(Format::HighPrecision);
        const auto after = GeoCoordinate::fromATCString(text);
        QVERIFY2(std::abs(after.latitude() - before.latitude()) <= tolerance, qPrintable(text));
        QVERIFY2(std::abs(after.longitude() - before.longitude()) <= tolerance, qPrintable(text));
        QCOMPARE(after.toATCString(Format::HighPrecision), text);
    }
}

QTEST_GUILESS_MAIN(tst_GeoCoordinate)
#include "tst_geo_coordinate.moc"
