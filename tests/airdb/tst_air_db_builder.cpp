// CSV texts to database files: what is taken, and what is said of the rest.

#include "airdb/air_db_builder.h"
#include "test_program.h"

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace korvane::airdb;

namespace {

using Import = AirDBBuilder::Report (AirDBBuilder::*)(QIODevice &);

AirDBBuilder::Report import(AirDBBuilder &builder, Import function, const QByteArray &text)
{
    QBuffer csv;
    csv.setData(text);
    csv.open(QIODevice::ReadOnly);
    return (builder.*function)(csv);
}

QStringList linesOf(const AirDBBuilder::Report &report)
{
    QStringList lines;
    for (const AirDBBuilder::Error &error : report.errors) {
        lines += QString("%1: %2").arg(error.line).arg(error.reason);
    }
    return lines;
}

// Two countries to refer to.
void fill(AirDBBuilder &builder)
{
    QVERIFY(import(builder, &AirDBBuilder::importRegions, "code,name\nEU,Europe\n").isGood());
    const QByteArray countries = "name,region,iso2,iso3\nIreland,EU,IE,IRL\nIceland,EU,IS,ISL\n";
    QCOMPARE(import(builder, &AirDBBuilder::importCountries, countries).rows, 2);
}

} // namespace

class TestAirDBBuilder : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void badRowsAreNamedByTheirLine_data()
    {
        QTest::addColumn<Import>("function");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("rows");
        QTest::addColumn<QStringList>("errors");

        const auto row = [](const char *name, Import function, const char *text, int rows, const QStringList &errors) {
            QTest::newRow(name) << function << QByteArray(text) << rows << errors;
        };
        const Import blocks = &AirDBBuilder::importBlocks;
        const Import sensors = &AirDBBuilder::importSensors;
        const Import aircraft = &AirDBBuilder::importAircraft;
        const QString notText = "2: a quote is not closed, or the text is not UTF-8";

        row("empty text", aircraft, "# x\n\n", 0, {"0: there is no line with the names of the columns"});
        row("missing column", aircraft, "\naddress,type\n1,2\n", 0, {"2: there is no column \"registration\""});
        row("comments count as lines", aircraft,
            "# x\r\naddress,registration,type,operator\r\n\r\nzz,A,,\r\n4ca001,B,,\r\n", 1,
            {"4: zz is not an aircraft's address"});
        row("addresses of nobody, signs, too many digits, the same twice", aircraft,
            "address,registration,type,operator\n0,A,,\n+1,C,,\n1000000,D,,\n4CA001,A,,\n4ca001,B,,\n4CA002,,,\n", 1,
            {"2: 0 is not an aircraft's address", "3: +1 is not an aircraft's address",
                "4: 1000000 is not an aircraft's address", "6: aircraft 4ca001 is there already",
                "7: an aircraft needs a registration"});
        row("row too short, after one over two lines", sensors, "sac,sic,name\n19,c9,\"two\nlines\"\n19,ca\n", 1,
            {"4: 2 values in 3 columns"});
        row("quote that stays open", sensors, "sac,sic,name\n19,c9,\"open\n19,ca,b\n", 0, {notText});
        row("not UTF-8", sensors, "sac,sic,name\n19,c9,\xE9\n19,ca,b\n", 1, {notText});
        row("countries", &AirDBBuilder::importCountries,
            "iso2,iso3,region,name\nFRA,FRA,EU,a\nFR,FRA,XX,b\nIE,IRL,EU,c\nie,IRL,EU,c\nXA,,,d\n", 1,
            {"2: country codes have two and three capitals", "3: there is no region XX",
                "4: country IE is there already", "5: country codes have two and three capitals"});
        row("blocks", blocks, "first,last,country,military\n2,1,IE,\n1,2,FR,\n1,2,IE,y\n1,2,IE,\n1,2,IS,1\n", 1,
            {"2: 2 to 1 are not addresses in their order", "3: there is no country FR", "4: military is 1 or empty",
                "6: the block is there already"});
        row("system area codes", &AirDBBuilder::importSACs, "sac,country\n100,IE\n72,FR\n72,IE\n72,IS\n", 1,
            {"2: 100 is not a system area code", "3: there is no country FR",
                "5: system area code 72 is there already"});
    }

    void badRowsAreNamedByTheirLine()
    {
        QFETCH(Import, function);
        QFETCH(QByteArray, text);
        AirDBBuilder builder;
        fill(builder);
        const AirDBBuilder::Report report = import(builder, function, text);
        QTEST(linesOf(report), "errors");
        QTEST(report.rows, "rows");
    }

    void valuesComeBackAsTheyWere()
    {
        AirDBBuilder builder;
        fill(builder);
        import(builder, &AirDBBuilder::importSensors,
            "\xEF\xBB\xBFname,extra,sic,sac\n\" The \"\"Hill\"\", west\" ,x,C9,19\n  plain  ,,ca,19\n\"\",y,cb,19\n");
        import(builder, &AirDBBuilder::importAircraft,
            "address,registration,type,operator\n4CA001,A,B,\xC3\xA9\n4CA002,B,,"
                + QByteArray("\xC3\xA9").repeated(128));
        LibAirDB database;
        QVERIFY(database.loadFromData(builder.toData()));
        QCOMPARE(database.sensorDictItem(0x19, 0xC9).name, QString(" The \"Hill\", west"));
        QCOMPARE(database.sensorDictItem(0x19, 0xCA).name, QString("plain"));
        QVERIFY(!database.sensorDictItem(0x19, 0xCB).isValid() && !database.sensorDictItem(0, 0x19CA).isValid());
        // Texts are cut where they are too long for the file, between characters.
        const auto info = database.getICAOAddrDict().getICAOAddrInfo(ICAOAddr(0x4CA002));
        QCOMPARE(info.aircraft().aircraftOperator, QString(127, QChar(0xE9)));
        QCOMPARE(AirDBBuilder(database).toData(), builder.toData());
    }

    // Against a search through all blocks, for blocks of every alignment and size.
    void smallestBlockWinsWhateverTheOverlap()
    {
        struct Block {
            quint32 first;
            quint32 last;
            bool isIrish;
        };
        QList<Block> blocks;
        QByteArray text = "first,last,country,military\n";
        for (quint32 i = 0, state = 1; i < 300; ++i) {
            state = state * 1664525 + 1013904223;
            const quint32 first = state >> 8;
            const quint32 last = qMin(first + (i * i * i) / 3, ICAOAddr::Last);
            blocks.append({first, last, i % 2 == 0});
            text +=
                QByteArray::number(first, 16) + ',' + QByteArray::number(last, 16) + (i % 2 == 0 ? ",IE,\n" : ",IS,\n");
        }
        AirDBBuilder builder;
        fill(builder);
        QCOMPARE(import(builder, &AirDBBuilder::importBlocks, text).rows, 300);
        LibAirDB database;
        QVERIFY(database.loadFromData(builder.toData()));
        const auto check = [&](quint32 address) {
            const Block *smallest = nullptr;
            for (const Block &block : std::as_const(blocks)) {
                const bool isIn = block.first <= address && address <= block.last;
                if (isIn && (!smallest || block.last - block.first <= smallest->last - smallest->first)) {
                    smallest = &block;
                }
            }
            const QString code = !smallest ? "" : smallest->isIrish ? "IE" : "IS";
            QCOMPARE(database.getICAOAddrDict().getICAOAddrInfo(ICAOAddr(address)).country().isoCode2(), code);
        };
        for (const Block &block : std::as_const(blocks)) {
            for (const quint32 address : {block.first - 1, block.first, block.last, block.last + 1}) {
                if (ICAOAddr(address).isValid()) {
                    check(address);
                }
            }
        }
    }

    void fileIsReplacedWholeOrNotAtAll()
    {
        const QTemporaryDir folder;
        const QFileInfo file(folder.filePath("airdb.dat"));
        AirDBBuilder builder;
        fill(builder);
        QVERIFY(builder.save(file) && builder.save(file));
        LibAirDB database;
        QVERIFY(database.loadFromDataFile(file));
        QCOMPARE(database.country("IE").name(), QString("Ireland"));
        QString error;
        QVERIFY(!builder.save(QFileInfo(folder.filePath("no/such/folder/airdb.dat")), &error));
        QVERIFY(error.contains("no/such/folder/airdb.dat cannot be written: "));
    }
};

VYX_TEST(TestAirDBBuilder)
#include "tst_air_db_builder.moc"
