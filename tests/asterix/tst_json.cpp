#include "asterix/json_encoder.h"
#include "asterix/json_writer.h"
#include "asterix/profile.h"
#include "octets.h"
#include "random_records.h"
#include "test_program.h"

#include <QTest>

using korvane::asterix::appendRecordJson;
using korvane::asterix::JsonEncoder;
using korvane::asterix::TextBuffer;

namespace {

// A field and what its LSB is worth.
struct Quantity {
    int category;
    const char *path;
    int bits;
    bool isSigned;
    double numerator, denominator;
};

// Whether the shortest decimal text that is printed for a value reads back as exactly that value.
void compareText(const QByteArray &text, double value)
{
    bool isNumber = false;
    const double read = text.toDouble(&isNumber);
    QVERIFY2(
        isNumber && read == value, qPrintable(QString("%1 instead of %2").arg(QString(text)).arg(value, 0, 'g', 17)));
}

// The text between a key and the comma or bracket after its value.
QByteArray valueText(const QByteArray &json, const QByteArray &key)
{
    const auto from = json.indexOf('"' + key + "\":") + key.size() + 3;
    auto to = from;
    while (json[to] != ',' && json[to] != '}') {
        ++to;
    }
    return json.mid(from, to - from);
}

} // namespace

class TestJson : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void printsRecord_data();
    void printsRecord();
    void printsPlace();
    void printsEveryNumberExactly_data();
    void printsEveryNumberExactly();
    void comesBackFromText_data();
    void comesBackFromText();
    void expandsReservedField_data();
    void expandsReservedField();
    void putsBlocksTogether();
    void refusesLine_data();

    void refusesLine();
};

void TestJson::printsRecord_data()
{
    QTest::addColumn<int>("category");
    QTest::addColumn<QByteArray>("hex");
    QTest::addColumn<QByteArray>("items");
    const auto row = [](const char *name, int category, const QByteArray &hex, const QByteArray &items) {
        QTest::newRow(name) << category << hex << items;
    };
    row("spare bits left out", 48, "08 FFFF", R"({"070":{"V":1,"G":1,"L":1,"MODE3A":"7777"}})");
    row("signed quantity", 48, "04 3FF6", R"({"090":{"V":0,"G":0,"FL":-2.5}})");
    row("callsign without its blanks", 48, "0140 599631CB3820", R"({"240":"VYX123"})");
    row("compound", 48, "02 88 01C4", R"({"130":{"SRL":0.0439453125,"PAM":-60}})");
    row("compound without sub-items", 34, "04 00", R"({"050":{}})");
    row("repetitions", 34, "0180 02 0801 17FF", R"({"070":[{"TYP":1,"COUNT":1},{"TYP":2,"COUNT":2047}]})");
    row("repeated sub-item", 62, "0110 01010110 01 0123456789ABCDEF", R"({"380":{"BDSDATA":["0123456789abcdef"]}})");
    row("more than 32 raw bits", 48, "01010180 01020304050607", R"({"260":"01020304050607"})");
    row("explicit", 48, "01010104 03 ABCD", R"({"SP":"abcd"})");
    row("text with blanks, quotes and octets", 62, "010102 40 225C4120E92000", R"({"390":{"CS":"\"\\A \u00e9"}})");
    row("flags chosen by two other fields", 4, "4120 07 40 1C",
        R"({"000":7,"120":{"CC":{"TID":1,"CPC":{"LPF":1,"CPF":1,"MHF":0},"CS":0}}})");
    row("code where they choose no flags", 4, "4120 07 40 0C", R"({"000":7,"120":{"CC":{"TID":0,"CPC":6,"CS":0}}})");
    row("code where what would choose is missing", 4, "0120 40 1C", R"({"120":{"CC":{"TID":1,"CPC":6,"CS":0}}})");
    row("extents of more than an octet", 8, "0140 F8FFFE", R"({"100":{"F":-1,"R":0,"Q":32767}})");
    row("video cells", 240, "0120 01" + QByteArray(128, 'A'), R"({"051":[")" + QByteArray(128, 'a') + R"("]})");
    row("expansion left as it is", 48, "01010102 03 08A5", R"({"RE":"08a5"})");
    row("unit chosen: Mach number", 62, "0110 10 8320", R"({"380":{"IAS":{"IM":1,"IAS":0.8}}})");
}

void TestJson::printsRecord()
{
    QFETCH(int, category);
    QFETCH(QByteArray, hex);
    const Octets octets = Octets::block(category, hex);
    _ast_datablock_t block;
    ast_datablock_smart_decode(&block, octets.data(), octets.size());
    QVERIFY2(block.valid && block.records.size() == 1, korvane::asterix::errorText(block.error));
    const QByteArray line = jsonLine(block.records[0]);
    const QByteArray head = "\"items\":";
    const QByteArray items = line.mid(line.indexOf(head) + head.size()).chopped(2);
    QTEST(items, "items");
}

void TestJson::printsPlace()
{
    const Octets octets = Octets::block(48, "80 19C9");
    _ast_datablock_t block;
    ast_datablock_smart_decode(&block, octets.data(), octets.size());
    TextBuffer text;
    appendRecordJson(text, block.records[0], {.block = 7, .offset = 12345678901});
    appendRecordJson(
        text, block.records[0], {.block = 8, .offset = 0, .hasTime = true, .timeMilliseconds = 1700000000005});
    QCOMPARE(QByteArray(text.text().data(), static_cast<int>(text.size())),
        QByteArray(
            R"({"cat":48,"block":7,"offset":12345678901,"length":3,"items":{"010":{"SAC":25,"SIC":201}}})"
            "\n"
            R"({"cat":48,"block":8,"offset":0,"length":3,"time":1700000000.005,"items":{"010":{"SAC":25,"SIC":201}}})"
            "\n"));
}

void TestJson::printsEveryNumberExactly_data()
{
    QTest::addColumn<Quantity>("quantity");
    const auto row = [](const Quantity &quantity) { QTest::newRow(quantity.path) << quantity; };
    row({48, "040/THETA", 16, false, 360, 65536});
    row({48, "200/GSP", 16, false, 1, 16384});
    row({48, "140", 24, false, 1, 128});
    row({34, "120/LAT", 24, true, 180, 8388608});
    row({62, "105/LON", 32, true, 180, 33554432});
    row({62, "130", 16, true, 25, 4});
    row({62, "380/MAC", 16, false, 8, 1000});
    row({62, "380/RAN", 16, true, 1, 100});
}

void TestJson::printsEveryNumberExactly()
{
    QFETCH(Quantity, quantity);
    const QByteArray path = quantity.path;
    const QByteArray key = path.mid(path.lastIndexOf('/') + 1);
    korvane::asterix::BlockEncoder encoder(quantity.category);
    _ast_datablock_t block;
    const std::uint64_t count = std::uint64_t{1} << quantity.bits;
    // All values of narrow fields, some thousands spread over the others.
    for (std::uint64_t raw = 0; raw < count; raw += quantity.bits <= 16 ? 7 : count / 9973) {
        encoder.beginBlock();
        encoder.beginRecord();
        QVERIFY(encoder.setRaw(quantity.path, raw));
        encoder.endRecord();
        ast_datablock_smart_decode(&block, encoder.block().data(), encoder.block().size());
        const bool isNegative = quantity.isSigned && raw >= count / 2;
        const double value = static_cast<double>(raw) - (isNegative ? static_cast<double>(count) : 0);
        const QByteArray json = jsonLine(block.records[0]);
        const QByteArray text = valueText(json.mid(json.lastIndexOf('"' + key + "\":")), key);
        compareText(text, value * quantity.numerator / quantity.denominator);
        // And the number makes the same bits again.
        encoder.beginRecord();
        QVERIFY(encoder.set(quantity.path, text.toDouble()));
        encoder.endRecord();
        const QByteArray octets = bytesOf(encoder.block()).mid(3);
        QCOMPARE(octets.left(octets.size() / 2), octets.mid(octets.size() / 2));
    }
}

void TestJson::comesBackFromText_data()
{
    QTest::addColumn<int>("category");
    QTest::addColumn<QByteArray>("edition");
    QTest::addColumn<QByteArray>("variation");
    for (const korvane::asterix::EditionName &name : korvane::asterix::editions()) {
        const bool isChosenByRecord = name.category == 1;
        for (const char *variation : isChosenByRecord ? QList<const char *>{"plot", "track"} : QList{""}) {
            QTest::addRow("CAT%03d %s %s", name.category, name.edition.c_str(), variation)
                << name.category << QByteArray::fromStdString(name.edition) << QByteArray(variation);
        }
    }
}

void TestJson::comesBackFromText()
{
    QFETCH(int, category);
    QFETCH(QByteArray, edition);
    QFETCH(QByteArray, variation);
    RandomRecords random(category, edition.constData(), variation.isEmpty() ? nullptr : variation.constData(), 11);
    korvane::asterix::Profile profile;
    QVERIFY(profile.select(category, edition.toStdString()));
    _ast_datablock_t block;
    for (int i = 0; i < 100; ++i) {
        const Octets octets(bytesOf(random.makeBlock(5).block()));
        QVERIFY(ast_datablock_decode(&block, octets.data(), octets.size(), profile.uap()));
        QVERIFY2(block.valid, korvane::asterix::errorText(block.error));
        QCOMPARE(block.records.size(), std::size_t{5});
        QByteArray again;
        JsonEncoder encoder([&again](std::span<const unsigned char> encoded) { again += bytesOf(encoded); });
        encoder.select(category, edition.toStdString());
        for (const _ast_datarecord_t &record : block.records) {
            const QByteArray line = jsonLine(record);
            QVERIFY(QJsonDocument::fromJson(line).isObject());
            QVERIFY2(encoder.addLine({line.constData(), static_cast<std::size_t>(line.size())}),
                encoder.lastError().c_str());
        }
        encoder.finish();
        QCOMPARE(again.toHex(), bytesOf({octets.data(), octets.size()}).toHex());
    }
}

void TestJson::expandsReservedField_data()
{
    QTest::addColumn<int>("category");
    QTest::addColumn<QByteArray>("hex"); // of the field with its length
    QTest::addColumn<QByteArray>("contents");
    const auto row = [](const char *name, int category, const char *hex, const char *contents) {
        QTest::newRow(name) << category << QByteArray(hex) << QByteArray(contents);
    };
    row("two sub-items", 21, "06 C0 0FFF 0E00", R"({"BPS":{"BPS":409.5},"SH":{"HDR":1,"STAT":1,"SH":360}})");
    row("eighth sub-item, a compound", 21, "04 01 10 21",
        R"({"MES":{"XP":{"XP":1,"X5":0,"XC":0,"X3":0,"X2":0,"X1":1}}})");
    row("extents of two octets and of one", 21, "05 08 0011 20",
        R"({"SGV":{"STP":0,"HTS":0,"HTT":0,"HRD":0,"GSS":1,"HGT":45}})");
    row("all of eight bits for sub-items", 48, "05 01 10 00C8", R"({"GEN48":{"RCSDB":{"RCSDB":2}}})");
    row("repetitions", 62, "06 40 01 0102 03", R"({"CSN":[{"SAC":1,"SIC":2,"TYP":3}]})");
    // What does not fit the table to the last octet.
    row("empty", 48, "01", R"("")");
    row("no sub-item", 48, "02 00", R"("00")");
    row("octet too many", 48, "04 20 00 00", R"("200000")");
    row("sub-item cut short", 48, "04 08 0001", R"("080001")");
    row("repetitions cut short", 62, "04 80 FF 01", R"("80ff01")");
    row("sub-item that there is not", 62, "03 04 00", R"("0400")");
    row("no table for its contents", 34, "03 80 00", R"("8000")");
}

void TestJson::expandsReservedField()
{
    QFETCH(int, category);
    QFETCH(QByteArray, hex);
    QFETCH(QByteArray, contents);
    const QMap<int, QByteArray> fspecs{{21, "01010101010104"}, {34, "0104"}, {48, "01010102"}, {62, "0101010104"}};
    const Octets octets = Octets::block(category, fspecs[category] + hex);
    _ast_datablock_t block;
    QVERIFY(ast_datablock_decode(&block, octets.data(), octets.size(), AST_UAP_STANDARD));
    QVERIFY2(block.valid && block.records.size() == 1, korvane::asterix::errorText(block.error));
    TextBuffer text;
    appendRecordJson(text, block.records[0], {.block = 1}, korvane::asterix::Expansion::AsObject);
    const QByteArray line(text.text().data(), static_cast<int>(text.size()));
    QCOMPARE(line.mid(line.indexOf("\"RE\":") + 5).chopped(3), contents);
    QByteArray again;
    JsonEncoder encoder([&again](std::span<const unsigned char> encoded) { again += bytesOf(encoded); });
    QVERIFY2(encoder.addLine(text.text()), encoder.lastError().c_str());
    encoder.finish();
    QCOMPARE(again.toHex(), bytesOf({octets.data(), octets.size()}).toHex());
}

void TestJson::putsBlocksTogether()
{
    QList<QByteArray> blocks;
    JsonEncoder encoder([&blocks](std::span<const unsigned char> block) { blocks.append(bytesOf(block).toHex()); });
    for (const char *line : {R"({"cat":34,"block":1,"items":{"000":1}})", R"({"items":{"000":2},"block":1,"cat":34})",
             R"({"cat":48,"block":1,"items":{"020":{"TYP":1}}})", R"( { "cat" : 48 , "block" : 2 , "items" : { } } )",
             R"({"cat":48,"block":3,"time":1.5e3,"x":[{"y":null}],"items":{"SP":""}})"}) {
        QVERIFY2(encoder.addLine(line), line);
    }
    encoder.finish();
    encoder.finish();
    QCOMPARE(blocks, (QList<QByteArray>{"22000740014002", "3000052020", "30000400", "3000080101010401"}));
}

void TestJson::refusesLine()
{
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, reason);
    QByteArray encoded;
    JsonEncoder encoder([&encoded](std::span<const unsigned char> block) { encoded += bytesOf(block); });
    QVERIFY(!encoder.addLine({line.constData(), static_cast<std::size_t>(line.size())}));
    QVERIFY2(encoder.lastError().find(reason.constData()) != std::string::npos, encoder.lastError().c_str());
    // The next line is encoded as if that one had not been there.
    QVERIFY(encoder.addLine(R"({"cat":48,"block":1,"items":{"010":{"SAC":1,"SIC":2}}})"));
    encoder.finish();
    QCOMPARE(encoded.toHex(), QByteArray("300006800102"));
}

void TestJson::refusesLine_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("reason"); // part of it
    const auto row = [](const char *name, const QByteArray &line, const char *reason = "not an object") {
        QTest::newRow(name) << line << QByteArray(reason);
    };
    row("cut short", R"({"cat":48,"block":1,"items":{"020":{"TYP":1})", "not an");
    row("more after it", R"({"cat":48,"items":{}} {})");
    row("category of nine bits", R"({"cat":304,"items":{}})");
    row("no items", R"({"cat":48,"block":1})");
    row("no table", R"({"cat":200,"items":{}})", "category 200");
    row("unknown item", R"({"cat":48,"items":{"999":1}})", "999");
    row("out of range", R"({"cat":48,"items":{"040":{"RHO":256}}})", "040/RHO");
    row("odd hexadecimal text", R"({"cat":48,"items":{"SP":"abc"}})", "SP");
    row("item of the other UAP", R"({"cat":1,"items":{"161":1}})", "UAP");
    row("nested without end", R"({"cat":48,"a":)" + QByteArray(100000, '['), "not an");
    row("nested items", R"({"cat":48,"items":{"250":)" + QByteArray(20, '[') + QByteArray(20, ']') + "}}", "250");
}

VYX_TEST(TestJson)
#include "tst_json.moc"
