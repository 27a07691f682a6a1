#include "test_program.h"
#include "widgets/coordinate_edit.h"
#include "widgets/coordinate_text.h"

#include <QTest>

class TestCoordinateText : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void reads_data();
    void reads();
    void readsLines_data();
    void readsLines();
    void fieldTellsWhatItCannotRead();
};

void TestCoordinateText::reads_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("read"); // empty: refused
    const auto row = [](const char *text, const char *read) { QTest::newRow(text) << text << read; };
    row("395427N1162317E", "395427.00N1162317.00E");
    row("395427.35n1162317.08e", "395427.35N1162317.08E");
    row("  395427S, 1162317W ", "395427.00S1162317.00W");
    row("395427N 1162317E", "395427.00N1162317.00E");
    row("395427N,1162317E", "395427.00N1162317.00E");
    row("900000N1800000E", "900000.00N1800000.00E");
    row("39.5,116.25", "393000.00N1161500.00E");
    row("-33.5 -70.5", "333000.00S0703000.00W");
    row("+1; 2", "010000.00N0020000.00E");
    row("396027N1162317E", ""); // sixty minutes
    row("395460N1162317E", "");
    row("395427N1166017E", "");
    row("395427N1162360E", "");
    row("910000N0100000E", "");
    row("395427N1810000E", "");
    row("395427N012317E", ""); // two digits of degrees
    row("395427.35N1162317E", ""); // two precisions
    row("395427E1162317N", "");
    row("91, 10", "");
    row("10, 181", "");
    row("10", "");
    row("39,5, 116,25", ""); // decimal commas
    row("nan inf", "");
    row("", "");
}

void TestCoordinateText::reads()
{
    QFETCH(QString, text);
    QTEST(coordinateFromText(text).toATCString(GeoCoordinate::HighPrecision), "read");
}

void TestCoordinateText::readsLines_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("count"); // -1: refused
    QTest::addColumn<QString>("badLine");
    QTest::newRow("mixed notations, empty lines, line ends of any kind")
        << "395427N1162317E\r\n\n   \n1.5 2.5\n-3,4" << 3 << "";
    QTest::newRow("nothing") << "\n \n" << 0 << "";
    QTest::newRow("one bad line refuses all") << "1 2\n3 x \n4 5\nbad" << -1 << "3 x";
}

void TestCoordinateText::readsLines()
{
    QFETCH(QString, text);
    QString badLine;
    const auto read = coordinatesFromLines(text, &badLine);
    QTEST(read ? static_cast<int>(read->size()) : -1, "count");
    QTEST(badLine, "badLine");
}

void TestCoordinateText::fieldTellsWhatItCannotRead()
{
    CoordinateEdit edit;
    const QColor readable = edit.palette().color(QPalette::Text);
    const GeoCoordinate precise(48.123456789, 16.987654321);
    edit.setCoordinate(precise);
    QCOMPARE(edit.coordinate(), precise);
    edit.setText(QStringLiteral("396000N0160000E"));
    QVERIFY(!edit.coordinate().isValid());
    QVERIFY(edit.palette().color(QPalette::Text) != readable);
    edit.setText(QStringLiteral("48.5, 16.5"));
    QCOMPARE(edit.coordinate(), GeoCoordinate(48.5, 16.5));
    QCOMPARE(edit.palette().color(QPalette::Text), readable);
}

VYX_TEST(TestCoordinateText)
#include "tst_coordinate_text.moc"
