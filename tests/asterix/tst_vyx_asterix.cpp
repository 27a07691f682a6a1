#include "adsb_blocks.h"
#include "astfile/pcap_writer.h"
#include "octets.h"
#include "test_files.h"
#include "test_program.h"
#include "vyx-asterix/command_line.h"
#include "vyx-asterix/doctor_command.h"
#include "vyx-asterix/encode_command.h"
#include "vyx-asterix/input_file.h"
#include "vyx-asterix/stat_command.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

namespace {

using Verb = CommandLine::Verb;

const QByteArray plotBlock = QByteArray::fromHex("300006 80 19C9");
const QByteArray brokenBlock = QByteArray::fromHex("300009 80 19CA C0 19C9"); // a good record, then one cut short

// What a command left behind.
struct Outcome {
    int status = -1;
    QByteArray out;
    QStringList err;
};

Outcome run(int (*command)(const CommandLine &, const TextSink &, const LineSink &), const QString &fileName,
    std::vector<std::pair<int, std::string>> editions = {})
{
    Outcome outcome;
    CommandLine line;
    line.fileName = fileName.toStdString();
    line.editions = std::move(editions);
    const TextSink out = [&](std::string_view text) {
        outcome.out.append(text.data(), static_cast<int>(text.size()));
        return true;
    };
    const LineSink err = [&](std::string_view text) {
        outcome.err.append(QString::fromUtf8(text.data(), static_cast<int>(text.size())));
    };
    outcome.status = command(line, out, err);
    return outcome;
}

} // namespace

class TestVyxAsterix : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    QString write(const QByteArray &contents) { return writtenTo(m_folder.filePath("input"), contents); }

    QString writeCapture(const QList<QByteArray> &datagrams)
    {
        const QString name = m_folder.filePath("input.pcap");
        korvane::astfile::PcapWriter writer;
        writer.open(name);
        QDateTime time = QDateTime::fromMSecsSinceEpoch(1700000000250, Qt::UTC);
        for (const QByteArray &datagram : datagrams) {
            writer.write(time, {0x7F000001, 5000}, {0x7F000001, 8600}, datagram);
            time = time.addMSecs(500);
        }
        writer.close();
        return name;
    }

private Q_SLOTS:
    void readsArguments_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("verb"); // -1: refused
        QTest::addColumn<QString>("error"); // part of it
        const auto good = [](const QStringList &arguments, Verb verb) {
            QTest::addRow("%s", qPrintable(arguments.join(' '))) << arguments << static_cast<int>(verb) << QString();
        };
        const auto bad = [](const QStringList &arguments, const char *error) {
            QTest::addRow("refused: %s", qPrintable(arguments.join(' '))) << arguments << -1 << QString(error);
        };
        good({"--help"}, Verb::Help);
        good({"decode", "--uap", "48=1.32", "--uap", "62=1.21", "FILE"}, Verb::Decode);
        good({"decode", "--expand", "FILE"}, Verb::Decode);
        good({"encode", "-", "-o", "OUT"}, Verb::Encode);
        good({"doctor", "FILE", "--json"}, Verb::Doctor);
        good({"assess", "--sensor", "25/11", "--site", "-40.5,116.25,45", "--json", "--report", "a.pdf", "f.pcap"},
            Verb::Assess);
        good({"assess", "--sensor", "25/11", "--site", "40,-116", "FILE"}, Verb::Assess);
        bad({}, "decode, encode, stat, doctor or assess");
        bad({"decode", "A", "B"}, "one argument too many");
        bad({"decode", "--uap"}, "needs a value");
        bad({"decode", "--uap", "48", "FILE"}, "CATEGORY=EDITION");
        bad({"decode", "--uap", "48=9.9", "FILE"}, "edition \"9.9\" of category 48");
        bad({"decode", "--uap", "-48=1.32", "FILE"}, "no table");
        bad({"decode", "-o", "OUT", "FILE"}, "unknown option");
        bad({"stat", "--expand", "FILE"}, "unknown option");
        bad({"stat", "--json", "FILE"}, "unknown option");
        bad({"doctor", "--uap", "48=1.32", "FILE"}, "unknown option");
        bad({"assess", "--uap", "48=1.32", "FILE"}, "unknown option");
        bad({"assess", "--sensor", "25", "FILE"}, "--sensor takes SAC/SIC");
        bad({"assess", "--sensor", "25/256", "FILE"}, "--sensor takes SAC/SIC");
        bad({"assess", "--sensor", "25/11", "--site", "91,1", "FILE"}, "--site takes");
        bad({"assess", "--site", "40,116", "FILE"}, "--site needs one --sensor");
    }

    void readsArguments()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, error);
        std::vector<std::string> words;
        for (const QString &argument : arguments) {
            words.push_back(argument.toStdString());
        }
        CommandLine line;
        std::string reason;
        const bool isGood = CommandLine::parse(words, line, reason);
        QTEST(isGood ? static_cast<int>(line.verb) : -1, "verb");
        QVERIFY2(QString::fromStdString(reason).contains(error), reason.c_str());
        QVERIFY(!QString::fromStdString(reason).contains('\n'));
        QCOMPARE(line.isExpanding, isGood && arguments.contains("--expand"));
        QCOMPARE(
            line.editions.size(), isGood ? static_cast<std::size_t>(arguments.count("--uap")) : line.editions.size());
        if (isGood && arguments.contains("--report")) {
            QCOMPARE(line.assess.sensors, std::vector<int>{25 * 256 + 11});
            QVERIFY(line.assess.site[0] == -40.5 && line.assess.site[1] == 116.25 && line.assess.site[2] == 45.0);
            QVERIFY(line.isJson && line.assess.reportName == "a.pdf" && line.fileName == "f.pcap");
        }
    }

    void saysWhatIsWrong()
    {
        const QString good = writeCapture({plotBlock, plotBlock});
        const Outcome fine = run(runDoctor, good);
        QCOMPARE(fine.status, 0);
        QVERIFY2(fine.out.contains("\n  fine: The stream holds CAT048 from 25/201, ")
                && fine.out.endsWith("\nNothing is wrong.\n"),
            fine.out.constData());
        const Outcome broken = run(runDoctor, writeCapture({plotBlock, brokenBlock}));
        QCOMPARE(broken.status, 1);
        QVERIFY2(
            broken.out.contains("\n  wrong: CAT048 from 25/202 cannot be decoded: of 1 block none fits edition 1.32"),
            broken.out.constData());
        CommandLine line;
        line.fileName = good.toStdString();
        line.isJson = true;
        QByteArray text;
        const auto out = [&text](std::string_view part) {
            text.append(part.data(), static_cast<qsizetype>(part.size()));
            return true;
        };
        QCOMPARE(runDoctor(line, out, {}), 1); // the broken one, under the same name
        const QJsonObject object = QJsonDocument::fromJson(text).object();
        QCOMPARE(object["wrong"].toBool(), true);
        QCOMPARE(object["remarks"][1]["topic"].toString(), QStringLiteral("damage"));
        QCOMPARE(object["sources"][1]["categories"][0]["editions"][0]["wholeBlocks"].toInt(), 0);
    }

    void decodes_data()
    {
        QTest::addColumn<QList<QByteArray>>("datagrams");
        QTest::addColumn<bool>("isCapture");
        QTest::addColumn<QList<double>>("printed"); // block of each record or seconds from the first datagram
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("err"); // after the name of the file
        const auto blocks = [](const char *name, const QByteArray &contents, const QList<double> &printed, int status,
                                const char *err) {
            QTest::newRow(name) << QList{contents} << false << printed << status << QString(err);
        };
        const auto capture = [](const char *name, const QList<QByteArray> &datagrams, const QList<double> &printed,
                                 int status, const char *err) {
            QTest::newRow(name) << datagrams << true << printed << status << QString(err);
        };
        const QByteArray &good = plotBlock;
        const QByteArray weather = QByteArray::fromHex("FA000401");
        blocks("malformed block among good ones", good + brokenBlock + good, {1, 2, 3}, 1,
            "octet 15: CAT048: item runs past the end of the block");
        blocks("block cut short", good + good.left(5), {1}, 1, "octet 11: CAT048: block runs past the end of the data");
        blocks("block length zero", good + QByteArray(9, '\0') + good, {1}, 1, "octet 7: CAT000: block length is zero");
        blocks("category without a table", good + weather + weather + good, {1, 4}, 0,
            "2 of CAT250 passed over: no table for this category");
        const QByteArray trailer = QByteArray::fromHex("AABBCCDDEEFF00112233");
        capture("two blocks in a datagram", {good + good, good}, {0, 0, 0.5}, 0, "");
        capture("octets of the recorder", {good + trailer, good + QByteArray::fromHex("0000")}, {0, 0.5}, 0,
            "2 datagrams end in octets that are no data block");
        capture("malformed block in a datagram", {good + brokenBlock + good, good}, {0, 0, 0.5}, 1,
            "datagram 1, octet 15: CAT048: item runs past the end of the block");
        capture("no block at all", {trailer, good}, {0.5}, 1,
            "datagram 1, octet 10: CAT170: block runs past the end of the data");
    }

    void decodes()
    {
        QFETCH(QList<QByteArray>, datagrams);
        QFETCH(bool, isCapture);
        QFETCH(QString, err);
        const QString fileName = isCapture ? writeCapture(datagrams) : write(datagrams.front());
        const Outcome outcome = run(runDecode, fileName);
        QTEST(outcome.status, "status");
        QCOMPARE(outcome.err.join('\n'), err.isEmpty() ? QString() : fileName + ": " + err);
        QList<double> printed;
        for (const QByteArray &line : outcome.out.split('\n')) {
            const QJsonObject object = QJsonDocument::fromJson(line).object();
            if (!line.isEmpty()) {
                printed.append(isCapture ? object["time"].toDouble() - 1700000000.25 : object["block"].toDouble());
            }
        }
        QTEST(printed, "printed");
    }

    // Files are larger than memory: pieces of them must give what the whole would.
    void readsLargeFilesInPieces()
    {
        QByteArray contents;
        int blocks = 0;
        for (; contents.size() < 3000000; ++blocks) {
            const int items = blocks % 300; // so that pieces end at every place of a block
            contents += QByteArray::fromHex("30") + char((3 + 3 * items) >> 8) + char((3 + 3 * items) & 255)
                + QByteArray::fromHex("8019C9").repeated(items);
        }
        const qsizetype good = contents.size();
        contents += brokenBlock + plotBlock + QByteArray::fromHex("300000") + plotBlock;
        const QString fileName = write(contents);

        std::string error;
        std::size_t most = 0;
        const auto measure = [&most](const InputMessage &message) {
            most = std::max(most, message.size);
            return true;
        };
        QVERIFY(readInputFile(fileName.toStdString(), measure, error));
        QVERIFY2(most < 1000000, qPrintable(QString::number(most)));

        const Outcome outcome = run(runDecode, fileName);
        const QString place = fileName + ": octet %1: CAT048: %2";
        QCOMPARE(outcome.err,
            (QStringList{place.arg(good + 9).arg("item runs past the end of the block"),
                place.arg(good + 16).arg("block length is zero")}));
        const QByteArrayList lines = outcome.out.trimmed().split('\n');
        const QJsonObject last = QJsonDocument::fromJson(lines.back()).object();
        QCOMPARE(last["block"].toInt(), blocks + 2);
        QCOMPARE(last["offset"].toInt(), static_cast<int>(good) + 12);
        const Outcome encoded = run(runEncode, write(lines.mid(0, lines.size() - 2).join('\n')));
        QCOMPARE(encoded.status, 0);
        QCOMPARE(encoded.out.count("\x19\xC9"), lines.size() - 2);
    }

    void refusesLinesThatFitNoRecord()
    {
        const QByteArray good = R"({"cat":34,"block":1,"items":{"000":1}})"
                                "\n";
        const QString fileName = write(good + QByteArray(9000000, 'x') + '\n' + good);
        const Outcome outcome = run(runEncode, fileName);
        QCOMPARE(outcome.status, 1);
        QCOMPARE(outcome.err, QStringList{fileName + ": line 2: the line is too long for a record"});
        QCOMPARE(outcome.out.toHex(), QByteArray("22000740014001"));
    }

    void choosesTheEditionOfAdsbReports_data()
    {
        QTest::addColumn<QByteArray>("edition");
        QTest::addColumn<bool>("isNamed");
        QTest::newRow("0.23 by its contents") << QByteArray("0.23") << false;
        QTest::newRow("0.26 by its contents") << QByteArray("0.26") << false;
        QTest::newRow("2.7 by its contents") << QByteArray("2.7") << false;
        QTest::newRow("0.26 by name") << QByteArray("0.26") << true;
    }

    void choosesTheEditionOfAdsbReports()
    {
        QFETCH(QByteArray, edition);
        QFETCH(bool, isNamed);
        AdsbBlocks maker(edition.constData(), 7);
        QByteArray contents = plotBlock;
        for (int i = 0; i < 20; ++i) {
            const auto block = maker.makeBlock(5).block();
            contents.append(reinterpret_cast<const char *>(block.data()), static_cast<int>(block.size()));
        }
        const std::vector<std::pair<int, std::string>> named = {{21, edition.toStdString()}};
        const QString fileName = write(contents);
        const Outcome expected = run(runDecode, fileName, named);
        QVERIFY(expected.err.isEmpty());
        const auto editions = isNamed ? named : decltype(named){{48, "1.32"}};
        for (const auto command : {runDecode, runStat}) {
            const Outcome outcome = run(command, fileName, editions);
            QCOMPARE(outcome.status, 0);
            QCOMPARE(outcome.err.size(), isNamed ? 0 : 1);
            QVERIFY(isNamed || outcome.err[0].contains("20 of CAT021 read as edition " + edition + ','));
        }
        QCOMPARE(run(runDecode, fileName, editions).out, expected.out);
    }

    void reportsUnreadableFile()
    {
        for (const auto command : {runDecode, runEncode, runStat}) {
            const Outcome outcome = run(command, m_folder.filePath("missing"));
            QCOMPARE(outcome.status, 1);
            QCOMPARE(outcome.err.size(), 1);
            QVERIFY(outcome.err[0].startsWith(m_folder.filePath("missing") + ": "));
        }
        // A capture that ends amid a packet.
        const QString name = writeCapture({plotBlock, plotBlock});
        QFile(name).resize(QFile(name).size() - 3);
        const Outcome outcome = run(runDecode, name);
        QCOMPARE(outcome.status, 1);
        QCOMPARE(outcome.out.count('\n'), 1);
    }

    void encodesWhatItDecoded()
    {
        const QByteArray contents = plotBlock + QByteArray::fromHex("30000C 80 19C9 08 0E00 20 A0 00")
            + QByteArray::fromHex("22000A C0 19C9 02 40 01 00") + plotBlock;
        const Outcome decoded = run(runDecode, write(contents), {{48, "1.32"}});
        QCOMPARE(decoded.status, 0);
        const Outcome encoded = run(runEncode, write(decoded.out + "\n \n"));
        QCOMPARE(encoded.status, 0);
        QCOMPARE(encoded.out.toHex(), contents.toHex());
    }

    void expandsReservedFieldsOnlyWhenAsked()
    {
        const QString fileName = write(QByteArray::fromHex("30000A 01010102 03 2000"));
        CommandLine line;
        line.fileName = fileName.toStdString();
        for (const bool isExpanding : {false, true}) {
            line.isExpanding = isExpanding;
            QByteArray printed;
            const TextSink out = [&](std::string_view text) {
                printed.append(text.data(), static_cast<int>(text.size()));
                return true;
            };
            QCOMPARE(runDecode(line, out, [](std::string_view) {}), 0);
            QVERIFY2(
                printed.contains(isExpanding ? R"("RE":{"M4E":{"FOEFRI":0}})" : R"("RE":"2000")"), printed.constData());
        }
    }

    void reportsLinesThatDoNotEncode()
    {
        const QByteArray good = R"({"cat":34,"block":1,"items":{"000":1}})"
                                "\n";
        const Outcome outcome = run(runEncode, write(good + "\nnonsense\n" + good));
        QCOMPARE(outcome.status, 1);
        QCOMPARE(outcome.err.size(), 1);
        QVERIFY(outcome.err[0].startsWith(m_folder.filePath("input") + ": line 3: "));
        QCOMPARE(outcome.out.toHex(), QByteArray("22000740014001"));
    }

    void countsBySource()
    {
        const QByteArray sector = QByteArray::fromHex("22000A E0 19C9 02 A8BFC0"); // 86399.5 s
        const QByteArray nextDay = QByteArray::fromHex("22000A E0 19C9 02 000040"); // 0.5 s
        const Outcome blocks = run(runStat, write(sector + nextDay + plotBlock));
        QCOMPARE(blocks.status, 0);
        QCOMPARE(blocks.out.simplified(),
            QByteArray("category SAC/SIC blocks records octets records/s "
                       "CAT034 25/201 2 2 14 2.0 CAT048 25/201 1 1 3 -"));
        const Outcome capture = run(runStat, writeCapture({plotBlock, plotBlock + plotBlock}));
        QCOMPARE(capture.out.simplified().split(' ').mid(6).join(' '), QByteArray("CAT048 25/201 3 3 9 6.0"));
    }
};

VYX_TEST(TestVyxAsterix)
#include "tst_vyx_asterix.moc"
