#include "geo/input_validator.h"

#include <QRegularExpressionValidator>
#include <QTest>

using Accessor = QRegularExpressionValidator *(*)();
Q_DECLARE_METATYPE(Accessor)
Q_DECLARE_METATYPE(QValidator::State)

class tst_InputValidator : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void judges_data();
    void judges();
};

void tst_InputValidator::judges_data()
{
    QTest::addColumn<Accessor>("validator");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QValidator::State>("expected");

    const auto rows = [](const char *name, Accessor validator, QValidator::State expected, const QStringList &texts) {
        for (const auto &text : texts)
            QTest::addRow("%s '%s'", name, qPrintable(text)) << validator << text << expected;
    };
    constexpr auto good = QValidator::Acceptable;
    constexpr auto bad = QValidator::Invalid;
    constexpr auto half = QValidator::Intermediate;

    const Accessor ip = InputValidator::ipAddrValidator;
    rows("ip", ip, good, {"0.0.0.0", "255.255.255.255", "239.0.0.1", "010.1.02.3"});
    rows("ip", ip, half, {"", "239.0", "1.2.3."});
    rows("ip", ip, bad, {"256.0.0.1", "1.2.3.4.5", "1.2.3.999", "a"});

    const Accessor icao = InputValidator::icaoAddrValidator;
    rows("icao", icao, good, {"", "7", "3c65AF", "FFFFFF"});
    rows("icao", icao, bad, {"3C65AF0", "G", " 1"});

    const Accessor latitude = InputValidator::atcCoordinateLatitudeValidator;
    rows("latitude", latitude, good, {"000000N", "895959S", "395427n"});
    rows("latitude", latitude, half, {"", "39", "395427"});
    rows("latitude", latitude, bad, {"900000N", "396000N", "390060N", "395427E", "395427.00N"});

    const Accessor longitude = InputValidator::atcCoordinateLongitudeValidator;
    rows("longitude", longitude, good, {"0000000E", "1795959W", "0995959e"});
    rows("longitude", longitude, bad, {"1800000E", "2000000E", "1166000E", "1160060W", "1162317N"});

    const Accessor both = InputValidator::atcCoordinateValidator;
    rows("coordinate", both, good, {"395427N1162317E", "895959s1795959w"});
    rows("coordinate", both, half, {"395427N", "395427N116231"});
    rows("coordinate", both, bad, {"395427N 1162317E", "395427N1162317E0", "395427.35N1162317.08E", "395427N200"});

    const Accessor fineLatitude = InputValidator::atcCoordinateHighPrecisionLatitudeValidator;
    rows("fine latitude", fineLatitude, good, {"000000.00N", "895959.99s"});
    rows("fine latitude", fineLatitude, bad, {"395427N", "900000.00N", "395427.5N"});

    const Accessor fineLongitude = InputValidator::atcCoordinateHighPrecisionLongitudeValidator;
    rows("fine longitude", fineLongitude, good, {"0000000.00E", "1795959.99w"});
    rows("fine longitude", fineLongitude, bad, {"1162317E", "1800000.00E", "1162317.080E"});

    const Accessor fine = InputValidator::atcCoordinateHighPrecisionValidator;
    rows("fine coordinate", fine, good, {"395427.35N1162317.08E", "895959.99S1795959.99W"});
    rows("fine coordinate", fine, bad, {"395427N1162317E", "395427.35N1800000.00E"});
}

void tst_InputValidator::judges()
{
    QFETCH(const Accessor, validator);
    QFETCH(QString, text);
    QFETCH(const QValidator::State, expected);
    int cursor = 0;
    QCOMPARE(validator()->validate(text, cursor), expected);
    QCOMPARE(validator(), validator());
}

QTEST_GUILESS_MAIN(tst_InputValidator)
#include "tst_input_validator.moc"
