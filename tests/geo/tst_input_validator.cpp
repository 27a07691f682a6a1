#include "geo/input_validator.h"
#include "test_program.h"

#include <QRegularExpressionValidator>
#include <QTest>

using Accessor = QRegularExpressionValidator *(*)();
Q_DECLARE_METATYPE(Accessor)
Q_DECLARE_METATYPE(QValidator::State)

class TestInputValidator : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void judges_data()
    {
        QTest::addColumn<Accessor>("validator");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QValidator::State>("expected");

        using Texts = QStringList;
        const auto rows = [](const char *name, Accessor validator, const Texts &good, const Texts &half,
                              const Texts &bad) {
            for (const auto &text : good + half + bad) {
                QTest::addRow("%s '%s'", name, qPrintable(text))
                    << validator << text
                    << (good.contains(text)          ? QValidator::Acceptable
                               : half.contains(text) ? QValidator::Intermediate
                                                     : QValidator::Invalid);
            }
        };
        rows("ip", InputValidator::ipAddrValidator, {"0.0.0.0", "255.255.255.255", "010.1.02.3"},
            {"", "239.0", "1.2.3."}, {"256.0.0.1", "1.2.3.4.5", "1.2.3.999", "a"});
        rows("icao", InputValidator::icaoAddrValidator, {"", "7", "3c65AF"}, {}, {"3C65AF0", "G", " 1"});
        rows("latitude", InputValidator::atcCoordinateLatitudeValidator, {"000000N", "895959S", "395427n"},
            {"", "395427"}, {"900000N", "396000N", "390060N", "395427E", "395427.00N"});
        rows("longitude", InputValidator::atcCoordinateLongitudeValidator, {"0000000E", "1795959W", "0995959e"}, {},
            {"1800000E", "2000000E", "1166000E", "1160060W", "1162317N"});
        rows("coordinate", InputValidator::atcCoordinateValidator, {"395427N1162317E", "895959s1795959w"},
            {"395427N", "395427N116231"},
            {"395427N 1162317E", "395427N1162317E0", "395427.35N1162317.08E", "395427N200"});
        rows("fine latitude", InputValidator::atcCoordinateHighPrecisionLatitudeValidator, {"000000.00N", "895959.99s"},
            {}, {"395427N", "900000.00N", "395427.5N"});
        rows("fine longitude", InputValidator::atcCoordinateHighPrecisionLongitudeValidator,
            {"0000000.00E", "1795959.99w"}, {}, {"1162317E", "1800000.00E", "1162317.080E"});
        rows("fine coordinate", InputValidator::atcCoordinateHighPrecisionValidator,
            {"395427.35N1162317.08E", "895959.99S1795959.99W"}, {}, {"395427N1162317E", "395427.35N1800000.00E"});
    }

    void judges()
    {
        QFETCH(const Accessor, validator);
        QFETCH(QString, text);
        int cursor = 0;
        QTEST(validator()->validate(text, cursor), "expected");
    }
};

VYX_TEST(TestInputValidator)
#include "tst_input_validator.moc"
