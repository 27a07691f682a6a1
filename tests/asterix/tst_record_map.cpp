#include "asterix/encoder.h"
#include "asterix/profile.h"
#include "asterix/record_map.h"
#include "bits.h"
#include "octets.h"
#include "random_records.h"
#include "test_program.h"

#include <QJsonArray>
#include <QTest>

using korvane::asterix::FieldPlace;
using korvane::asterix::fieldPlaces;

namespace {

// The values of a record's JSON in their order, whatever they are nested in.
void collectValues(const QByteArray &json, QStringList &values)
{
    // Objects of the JSON classes are sorted by key: the text itself keeps the order of the record.
    qsizetype at = json.indexOf("\"items\":") + 8;
    bool inText = false;
    QByteArray token;
    for (; at < json.size(); ++at) {
        const char character = json[at];
        if (inText) {
            if (character == '"' && json[at - 1] != '\\') {
                inText = false;
            }
            token += character;
            continue;
        }
        inText = character == '"';
        if (QByteArray("{}[],:\n").contains(character)) {
            if (character != ':' && !token.isEmpty()) {
                values.append(QString::fromLatin1(token.startsWith('"') ? token.mid(1).chopped(1) : token));
            }
            token.clear();
        } else {
            token += character;
        }
    }
}

} // namespace

class TestRecordMap : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void placesValues_data();
    void placesValues();
    void agreesWithJson_data();
    void agreesWithJson();
    void decodesKeptRecord();
};

void TestRecordMap::placesValues_data()
{
    QTest::addColumn<int>("category");
    QTest::addColumn<QByteArray>("hex");
    QTest::addColumn<QString>("places");
    const auto row = [](const char *name, int category, const QByteArray &hex, const QString &places) {
        QTest::newRow(name) << category << hex << places;
    };
    row("group after one octet of FSPEC", 48, "08 FFFF",
        "070/V=1 @8+1; 070/G=1 @9+1; 070/L=1 @10+1; 070/MODE3A=7777 @12+12");
    row("signed quantity with its unit", 48, "04 3FF6", "090/V=0 @8+1; 090/G=0 @9+1; 090/FL=-2.5 FL @10+14");
    row("six-bit text after two octets of FSPEC", 48, "0140 599631CB3820", "240=VYX123 @16+48");
    row("sub-items after their presence bits", 48, "02 88 01C4", "130/SRL=0.0439453125 ° @16+8; 130/PAM=-60 dBm @24+8");
    row("numbered repetitions", 34, "0180 02 0801 17FF",
        "070[1]/TYP=1 @24+5; 070[1]/COUNT=1 @29+11; 070[2]/TYP=2 @40+5; 070[2]/COUNT=2047 @45+11");
    row("nameless repetition", 62, "0110 01010110 01 0123456789ABCDEF", "380/BDSDATA[1]=0123456789abcdef @56+64");
    row("explicit contents without their length", 48, "01010104 03 ABCD", "SP=abcd @40+16");
    row("the alternative that the record chooses", 62, "0110 10 8320",
        "380/IAS/IM=1 @24+1; 380/IAS/IAS=0.8 Mach @25+15");
}

void TestRecordMap::placesValues()
{
    QFETCH(int, category);
    QFETCH(QByteArray, hex);
    const Octets octets = Octets::block(category, hex);
    _ast_datablock_t block;
    ast_datablock_smart_decode(&block, octets.data(), octets.size());
    QVERIFY2(block.valid && block.records.size() == 1, korvane::asterix::errorText(block.error));
    QStringList places;
    for (const FieldPlace &place : fieldPlaces(block.records[0])) {
        const QString unit = place.unit.empty()
            ? QString()
            : ' ' + QString::fromUtf8(place.unit.data(), static_cast<int>(place.unit.size()));
        places.append(QString("%1=%2%3 @%4+%5")
                          .arg(QString::fromStdString(place.path), QString::fromStdString(place.value), unit)
                          .arg(place.firstBit)
                          .arg(place.bits));
    }
    QTEST(places.join("; "), "places");
}

void TestRecordMap::agreesWithJson_data()
{
    QTest::addColumn<int>("category");
    QTest::addColumn<QByteArray>("edition");
    for (const auto &edition : korvane::asterix::editions()) {
        QTest::addRow("%d %s", edition.category, edition.edition.c_str())
            << edition.category << QByteArray::fromStdString(edition.edition);
    }
}

// Every value that the JSON has, in its order, within the record, and no bit read twice.
void TestRecordMap::agreesWithJson()
{
    QFETCH(int, category);
    QFETCH(QByteArray, edition);
    RandomRecords records(category, edition.constData(), category == 1 ? "track" : nullptr, 7);
    korvane::asterix::Profile profile;
    profile.select(category, edition.toStdString());
    for (int i = 0; i < 200; ++i) {
        const Octets octets(bytesOf(records.makeBlock(1).block()));
        _ast_datablock_t block;
        QVERIFY(ast_datablock_decode(&block, octets.data(), octets.size(), profile.uap()));
        if (!block.valid || block.records.size() != 1) {
            continue; // a record of the other variation
        }
        const _ast_datarecord_t &record = block.records[0];
        QStringList expected;
        collectValues(jsonLine(record), expected);
        QStringList values;
        QSet<std::uint32_t> read;
        for (const FieldPlace &place : fieldPlaces(record)) {
            QVERIFY(place.firstBit + place.bits <= record.length * 8U);
            QVERIFY2(place.bits == 0 || !read.contains(place.firstBit), place.path.c_str());
            read.insert(place.firstBit);
            if (!place.value.empty()) {
                values.append(QString::fromStdString(place.value));
            }
        }
        expected.removeAll(QString());
        QCOMPARE(values, expected);
    }
}

void TestRecordMap::decodesKeptRecord()
{
    // A plot of CAT001, whose UAP the octets alone choose, and octets of a later record after it.
    const Octets octets = Octets::fromHex("01 0012 F0 1901 20 1000 2000 0000 F0 1901 20 1000 2000 0000");
    _ast_datablock_t block;
    QVERIFY(ast_datablock_smart_decode(&block, octets.data(), octets.size()));
    QVERIFY(!block.records.empty());
    const _ast_datarecord_t &before = block.records[0];
    _ast_datarecord_t after;
    QVERIFY(korvane::asterix::decodeRecord(&after, before.data, before.length, before.uap));
    QCOMPARE(jsonLine(after), jsonLine(before));
    QVERIFY(!korvane::asterix::decodeRecord(&after, before.data, before.length - 1U, before.uap));
    QVERIFY(!after.valid);
    QVERIFY(fieldPlaces(after).empty());
    QCOMPARE(korvane::asterix::categoryOf(after), 0);
    QCOMPARE(korvane::asterix::categoryOf(before), 1);
}

VYX_TEST(TestRecordMap)
#include "tst_record_map.moc"
