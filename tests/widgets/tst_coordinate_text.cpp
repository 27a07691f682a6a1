#include "test_program.h"
#include "widgets/coordinate_edit.h"
#include "widgets/coordinate_text.h"
#include "widgets/field_form.h"

#include <QTest>

class TestCoordinateText : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void reads_data();
    void reads();
    void refuses_data();
    void refuses();
    void readsLines_data();
    void readsLines();
    void fieldTellsWhatItCannotRead();
    void fieldTakesEveryNotation();
    void noteGoesWhenTheCoordinateIsMended();
};

void TestCoordinateText::reads_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("read");
    const auto row = [](const char *text, const char *read) { QTest::newRow(text) << QString::fromUtf8(text) << read; };
    // Without gaps.
    row("395427N1162317E", "395427.00N1162317.00E");
    row("395427.35n1162317.08e", "395427.35N1162317.08E");
    row("395427.35N1162317E", "395427.35N1162317.00E");
    row("395427.356N1162317.08E", "395427.36N1162317.08E");
    row("  395427S, 1162317W ", "395427.00S1162317.00W");
    row("395427N 1162317E", "395427.00N1162317.00E");
    row("395427N,1162317E", "395427.00N1162317.00E");
    row("1162317E395427N", "395427.00N1162317.00E");
    row("N395427E1162317", "395427.00N1162317.00E");
    row("3954N11623E", "395400.00N1162300.00E");
    row("3954.5N11623.25W", "395430.00N1162315.00W");
    row("39N116E", "390000.00N1160000.00E");
    // Degrees.
    row("39.5,116.25", "393000.00N1161500.00E");
    row("39.907597,116.388078", "395427.35N1162317.08E");
    row("-33.5 -70.5", "333000.00S0703000.00W");
    row("\u221233.5\u00a0\u201370.5", "333000.00S0703000.00W");
    row("+1; 2", "010000.00N0020000.00E");
    row("-3,4", "030000.00S0040000.00E");
    row("48,1234; 16,5678", "480724.24N0163404.08E");
    row("48,1234 16,5678", "480724.24N0163404.08E");
    row("48,1234N, 16,5678E", "480724.24N0163404.08E");
    row("48,1234\u00b0, 16,5678\u00b0", "480724.24N0163404.08E");
    row("48.5\u00b0S 16.25\u00b0W", "483000.00S0161500.00W");
    row("W 16.25, S 48.5", "483000.00S0161500.00W");
    // Degrees and minutes.
    row("48\u00b012.5'N 16\u00b022'E", "481230.00N0162200.00E");
    row("N48 12,5 E016 22", "481230.00N0162200.00E");
    row("48 12.5 16 22", "481230.00N0162200.00E");
    row("48 12.5, -16 22", "481230.00N0162200.00W");
    // Degrees, minutes and seconds.
    row("48\u00b012'30\"N 16\u00b022'10.5\"E", "481230.00N0162210.50E");
    row("48\u00ba 12\u2032 30.25\u2033 n, 16\u00ba 22\u2032 10\u2033 w", "481230.25N0162210.00W");
    row("S48\u00b012\u201930\u201d W16\u00b022\u201910''", "481230.00S0162210.00W");
    row("48\u00b012'30\" 16\u00b022'10\"", "481230.00N0162210.00E");
    row("-33\u00b0 52' 10\", 151\u00b0 12' 30\"", "335210.00S1511230.00E");
    row("48:12:30N 016:22:10E", "481230.00N0162210.00E");
    row("48 12 30 16 22 10", "481230.00N0162210.00E");
    row("48 12 30, 16 22 10", "481230.00N0162210.00E");
    // The limits.
    row("900000N1800000E", "900000.00N1800000.00E");
    row("900000.00S1800000.00W", "900000.00S1800000.00W");
    row("-90, 180", "900000.00S1800000.00E");
    row("895959.99N1795959.99E", "895959.99N1795959.99E");
}

void TestCoordinateText::reads()
{
    QFETCH(QString, text);
    QTEST(coordinateFromText(text).toATCString(GeoCoordinate::HighPrecision), "read");
}

void TestCoordinateText::refuses_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<CoordinateFault>("fault");
    const auto row = [](const char *text, CoordinateFault fault) {
        QTest::newRow(text) << QString::fromUtf8(text) << fault;
    };
    using enum CoordinateFault;
    row("", Empty);
    row(" \t", Empty);
    for (const char *beyond : {"396000N1162317E", "395460N1162317E", "395427N1166000E", "395427N1162360E",
             "900000.01N0100000E", "910000N0100000E", "395427N1800000.01E", "395427N1810000E", "90.000001, 10",
             "-91, 10", "10, 180.000001", "10, -181", "48\u00b060'N 16\u00b0E", "48 12 60 16 22 10"}) {
        row(beyond, Range);
    }
    for (const char *unclear :
        {"39,5, 116,25", "48,5 16", "48, 16,5", "48,5,16", "48,5,16,5", "-33.5S 70.5W", "33.5S -70.5W"}) {
        row(unclear, Ambiguous);
    }
    for (const char *other : {"10", "nan inf", "395427N012317E", "395427E1162317N", "95427N1162317E", "395427N",
             "395427N395427N", "395427 1162317", "N39.5 116.25E", "48.5N16.25E7", "48 12 16", "1 2 3 4 5 6 7 8",
             "48.5\u00b012'N 16E", "48'12\u00b0N 16E", "1e1, 10", "0x10, 10", "48.5, 16.5 m", "48..5, 16",
             "\u0664\u0668, 16", "39x54 27N1162317E"}) {
        row(other, Notation);
    }
}

void TestCoordinateText::refuses()
{
    QFETCH(QString, text);
    const CoordinateReading reading = readCoordinate(text);
    QVERIFY(!reading.coordinate.isValid());
    QTEST(reading.fault, "fault");
    QVERIFY(!coordinateFaultText(reading.fault).isEmpty());
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

// And shows it as it will be kept, whatever that hides.
void TestCoordinateText::fieldTakesEveryNotation()
{
    struct Entry {
        GeoCoordinate::ATCStringFormat format;
        QString typed;
        QString shown; // empty: refused
    };
    using Format = GeoCoordinate;
    for (const Entry &entry : {Entry{Format::NormalPrecision, "48,5; 16,25", "483000N0161500E"},
             Entry{Format::NormalPrecision, "395427n1162317w", "395427N1162317W"},
             Entry{Format::NormalPrecision, "48 12 30.5, 16 22 10", "481230.50N0162210.00E"},
             Entry{Format::HighPrecision, "395427N1162317E", "395427.00N1162317.00E"},
             Entry{Format::NormalPrecision, "895959N1795959W", "895959N1795959W"},
             Entry{Format::NormalPrecision, "900000N0100000E", ""}, Entry{Format::HighPrecision, "10, 180", ""}}) {
        CoordinateEdit edit(entry.format);
        edit.show();
        QTest::keyClicks(&edit, entry.typed);
        const GeoCoordinate typed = edit.coordinate();
        QCOMPARE(typed.isValid(), !entry.shown.isEmpty());
        QCOMPARE(edit.problem().isEmpty(), typed.isValid());
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(edit.text(), entry.shown.isEmpty() ? entry.typed.toUpper() : entry.shown);
        QCOMPARE(edit.coordinate(), typed);
    }
}

void TestCoordinateText::noteGoesWhenTheCoordinateIsMended()
{
    FieldForm form;
    auto *edit = new CoordinateEdit(GeoCoordinate::NormalPrecision);
    form.addField(QStringLiteral("Centre"), edit);
    edit->setText(QStringLiteral("48,5 16"));
    QVERIFY(form.note(edit).isEmpty() && !form.checkCoordinate(edit));
    const QString ambiguous = form.note(edit);
    QVERIFY(ambiguous.startsWith(QStringLiteral("INVALID COORDINATE\n")) && ambiguous.contains(u';'));
    edit->setText(QStringLiteral("91, 16"));
    QVERIFY(form.note(edit).contains(QStringLiteral("90")) && form.note(edit) != ambiguous);
    edit->setText(QStringLiteral("48,5; 16"));
    QVERIFY(form.note(edit).isEmpty() && form.checkCoordinate(edit));
}

VYX_TEST(TestCoordinateText)
#include "tst_coordinate_text.moc"
