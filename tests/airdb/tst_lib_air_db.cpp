// The built-in database, and what becomes of damaged files.

#include "airdb/air_db_builder.h"
#include "example/who_is.h"
#include "test_files.h"
#include "test_program.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QTest>

using namespace korvane::airdb;

namespace {

// The octets of a file around a payload that somebody made up.
QByteArray sealed(const QByteArray &payload, const char *version = "00000001")
{
    const QByteArray size = QByteArray::number(payload.size(), 16).rightJustified(8, '0');
    return "KVAIRDB\n" + QByteArray::fromHex(version) + QByteArray::fromHex(size)
        + QCryptographicHash::hash(payload, QCryptographicHash::Sha256) + payload;
}

void addAircraft(LibAirDB &database, const QByteArray &rows)
{
    QBuffer csv;
    csv.setData("address,registration,type,operator\n" + rows);
    QVERIFY(csv.open(QIODevice::ReadOnly));
    AirDBBuilder builder(database);
    QVERIFY(builder.importAircraft(csv).isGood());
    QVERIFY(database.loadFromData(builder.toData()));
}

} // namespace

class TestLibAirDB : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(m_builtIn.loadFromDataFile(QFileInfo(AIRDB_FILE)), qPrintable(m_builtIn.lastError()));
    }

    void addressBelongsToTheSmallestBlock_data()
    {
        QTest::addColumn<quint32>("address");
        QTest::addColumn<QString>("codes");
        QTest::addColumn<bool>("isMilitary");

        QTest::newRow("all zeros is nobody") << 0x000000U << "" << false;
        QTest::newRow("all ones is nobody") << 0xFFFFFFU << "" << false;
        QTest::newRow("more than 24 bits") << 0x1400000U << "" << false;
        QTest::newRow("before the smallest allocation") << 0x003FFFU << "" << false;
        QTest::newRow("first of 1024") << 0x004000U << "ZW ZWE" << false;
        QTest::newRow("last of 1024") << 0x0043FFU << "ZW ZWE" << false;
        QTest::newRow("after 1024") << 0x004400U << "" << false;
        QTest::newRow("last of one State") << 0x3BFFFFU << "FR FRA" << true;
        QTest::newRow("first of the next") << 0x3C0000U << "DE DEU" << false;
        QTest::newRow("largest allocation, first") << 0xA00000U << "US USA" << false;
        QTest::newRow("State aircraft within it") << 0xAE0000U << "US USA" << true;
        QTest::newRow("territory in its State's block") << 0x48433EU << "AW ABW" << false;
        QTest::newRow("its neighbour") << 0x48433FU << "NL NLD" << false;
        QTest::newRow("organisation without a three-letter code") << 0xF00000U << "XA " << false;
        QTest::newRow("reserved") << 0xB12345U << "" << false;
    }

    void addressBelongsToTheSmallestBlock()
    {
        QFETCH(quint32, address);
        QFETCH(QString, codes);
        const ICAOAddrInfo info = m_builtIn.getICAOAddrDict().getICAOAddrInfo(ICAOAddr(address));
        QCOMPARE(info.isValid(), !codes.isEmpty());
        QCOMPARE(info.country().isValid(), !codes.isEmpty());
        if (info.isValid()) {
            QCOMPARE(info.country().isoCode2() + ' ' + info.country().isoCode3(), codes);
        }
        QTEST(info.isMilitary(), "isMilitary");
    }

    void countriesAndSystemAreaCodes()
    {
        QCOMPARE(m_builtIn.countries().size(), 252);
        QCOMPARE(m_builtIn.country("cz").name(), QString("Czech Republic"));
        QCOMPARE(m_builtIn.country("CZ").region().name(), QString("Europe"));
        QVERIFY(!m_builtIn.country("ZZ").isValid());
        QCOMPARE(m_builtIn.sacDictItem(0x19).country.isoCode2(), QString("HR"));
        QVERIFY(!m_builtIn.sacDictItem(0xFF).isValid() && !m_builtIn.sacDictItem(0x119).isValid());
    }

    void aircraftIsFoundBesideItsCountry()
    {
        LibAirDB database;
        QVERIFY(database.isEmpty());
        QCOMPARE(whoIs(database, 0x4CA123), QString("nobody"));
        QVERIFY(database.loadFromDataFile(QFileInfo(AIRDB_FILE)));
        addAircraft(database, "4CA123,EI-ABC,A320,\"Lines, inc.\"\nB12345,X-1,,\n");
        const ICAOAddrInfo info = database.getICAOAddrDict().getICAOAddrInfo(ICAOAddr(0x4CA123));
        QCOMPARE(info.aircraft().aircraftOperator, QString("Lines, inc."));
        QCOMPARE(whoIs(database, 0x4CA123), QString("Ireland: EI-ABC A320"));
        QCOMPARE(whoIs(database, 0xB12345), QString("unknown country: X-1 "));
        QCOMPARE(whoIs(database, 0xAE0000), QString("United States, State aircraft"));

        // Of an aircraft that is there again the newer row counts, and what was looked up before stays.
        addAircraft(database, "4CA123,EI-NEW,B738,\n");
        QCOMPARE(database.getICAOAddrDict().aircraftCount(), 2);
        QCOMPARE(whoIs(database, 0x4CA123), QString("Ireland: EI-NEW B738"));
        QCOMPARE(info.aircraft().registration, QString("EI-ABC"));
    }

    void exampleInTheReadmeIsTheOneThatRuns() { QVERIFY(readmeShows(AIRDB_FOLDER, "who_is.cpp", "QString whoIs")); }

    void damagedFileChangesNothing_data()
    {
        QTest::addColumn<QByteArray>("octets");
        QTest::addColumn<QString>("error");

        const QString damaged = "damaged aircraft database";
        // Tables in hexadecimal, after so many empty ones; those behind them are empty too.
        const auto tables = [&damaged](const char *name, int before, const QByteArray &hex, int after) {
            const QByteArray none = "00000000";
            QTest::newRow(name) << sealed(QByteArray::fromHex(none.repeated(before) + hex + none.repeated(after)))
                                << damaged;
        };
        QTest::newRow("empty") << QByteArray() << "not an aircraft database";
        QTest::newRow("other magic") << QByteArray(100, 'x') << "not an aircraft database";
        QTest::newRow("later version") << sealed({}, "00000002") << "aircraft database of another version";
        QTest::newRow("digest of something else") << sealed("abc").replace("abc", "abd") << damaged;
        QTest::newRow("payload longer than said") << sealed(QByteArray(24, '\0')) + '\0' << damaged;
        QTest::newRow("six empty tables") << sealed(QByteArray(24, '\0')) << "";
        tables("no tables", 0, "", 0);
        tables("octets after the last table", 0, "00", 6);
        tables("four thousand million regions", 0, "ffffffff", 6);
        tables("text past the end", 0, "00000001 ff4142", 0);
        tables("text that is not UTF-8", 0, "00000001 01ff 0141", 5);
        tables("region that there is not", 1, "00000001 024141 00 00 0000", 4);
        tables("country without a code", 1, "00000001 00 00 00 ffff", 4);
        tables("block that ends before it starts", 2, "00000001 000002 000001 ffff 00", 3);
        tables("more blocks than are taken", 2, "00004001" + QByteArray("000000ffffffffff00").repeated(16385), 3);
        tables("system area code of nobody", 3, "00000001 01 ffff", 2);
        tables("aircraft out of order", 5, "00000002 000002 01410000 000001 01410000", 0);
        tables("aircraft without a registration", 5, "00000001 000002 000000", 0);
    }

    void damagedFileChangesNothing()
    {
        QFETCH(QByteArray, octets);
        QFETCH(QString, error);
        LibAirDB database;
        QVERIFY(database.loadFromDataFile(QFileInfo(AIRDB_FILE)));
        QCOMPARE(database.loadFromData(octets), error.isEmpty());
        QCOMPARE(database.lastError(), error);
        QCOMPARE(database.isEmpty(), error.isEmpty());
    }

    void everyOctetIsChecked()
    {
        const QByteArray octets = contentsOf(AIRDB_FILE);
        LibAirDB database;
        for (qsizetype i = 0; i < octets.size(); i += 37) {
            QByteArray changed = octets;
            changed[i] = static_cast<char>(changed.at(i) ^ 0x10);
            QVERIFY2(!database.loadFromData(changed) && !database.loadFromData(octets.first(i)),
                qPrintable(QString::number(i)));
        }
        QVERIFY(!database.loadFromDataFile(QFileInfo("/nowhere/airdb.dat")));
        QVERIFY(database.lastError().startsWith("/nowhere/airdb.dat cannot be read: "));
    }

private:
    LibAirDB m_builtIn;
};

VYX_TEST(TestLibAirDB)
#include "tst_lib_air_db.moc"
