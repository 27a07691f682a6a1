#include "recorded_stream.h"
#include "test_files.h"
#include "test_program.h"

#include "modes/encoder.h"
#include "recognition/recording_analysis.h"
#include "recognition/settings_diagnosis.h"
#include "recognition/stream_diagnosis.h"

#include <QTemporaryDir>
#include <QTest>

using korvane::modes::ModeSEncapsulation;
using Level = DiagnosisRemark::Level;

namespace {

const char PlotReport[] = "161/TRN=7 040/RHO=50.5 040/THETA=90.5 220=0x400123 020/TYP=5 140=43200";
const char AdsbReport[] = "080=0x400123 130/LAT=50 130/LON=8 073=100 040/ATP=0";

QByteArray plot()
{
    return encodedReport(48, PlotReport);
}

// As a ground station of an old edition sends it: descriptor, time, position, address, a level; from 25/11.
QByteArray oldAdsb()
{
    korvane::asterix::BlockEncoder encoder(21, "0.26", nullptr);
    encoder.beginBlock();
    encoder.beginRecord();
    bool complete = encoder.set("010/SAC", 25) && encoder.set("010/SIC", 11) && encoder.set("040/DCR", 0)
        && encoder.set("030", 43200) && encoder.set("130/LAT", 50) && encoder.set("130/LON", 8)
        && encoder.set("080", 0x400123) && encoder.set("145", 330);
    if (!complete || !encoder.endRecord()) {
        qFatal("a report of the test cannot be encoded");
    }
    const auto block = encoder.block();
    return QByteArray(reinterpret_cast<const char *>(block.data()), static_cast<qsizetype>(block.size()));
}

// From 25/11, with the identification "3 KA".
QByteArray brokenCallsign()
{
    constexpr quint64 Blank = 32;
    quint64 characters = 0;
    for (const quint64 character : {quint64('3'), Blank, quint64(11), quint64(1), Blank, Blank, Blank, Blank}) {
        characters = characters << 6 | character;
    }
    korvane::asterix::BlockEncoder encoder(48);
    encoder.beginBlock();
    encoder.beginRecord();
    encoder.set("010/SAC", 25);
    encoder.set("010/SIC", 11);
    encoder.setRaw("240", characters);
    encoder.endRecord();
    const auto block = encoder.block();
    return QByteArray(reinterpret_cast<const char *>(block.data()), static_cast<qsizetype>(block.size()));
}

QByteArray beast(int count)
{
    std::string octets;
    for (int i = 0; i < count; ++i) {
        appendEncapsulated(octets, korvane::modes::encodeAirbornePosition(0x400123, {50.0, 8.0}, 30000, i % 2 != 0),
            ModeSEncapsulation::Beast);
    }
    return QByteArray::fromStdString(octets);
}

QString textOf(const Diagnosis &diagnosis)
{
    QStringList lines;
    for (const DiagnosisRemark &remark : diagnosis) {
        lines += QStringLiteral("%1 %2: %3").arg(levelName(remark.level), topicName(remark.topic), remarkText(remark));
    }
    return lines.join(u'\n');
}

} // namespace

class TestStreamDiagnosis final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // What is said of messages, beside what they hold; "; " between the messages' kinds and their numbers.
    void ofStreams_data()
    {
        QTest::addColumn<QList<QByteArray>>("messages");
        QTest::addColumn<QString>("said"); // the remarks after the first one
        const auto row = [](const char *tag, const QList<QByteArray> &messages, const char *said) {
            QTest::newRow(tag) << messages << QString(said);
        };
        const auto repeated = [](const QByteArray &message, int count) { return QList<QByteArray>(count, message); };
        const QByteArray hdlc = QByteArray::fromHex("0103"), check = QByteArray::fromHex("1234");
        row("plots", repeated(plot(), 5), "");
        row("HDLC frames", repeated(hdlc + plot() + check, 5),
            "note format: Each message begins with 2 octets of its transport: the format is \"HDLC Frame\".");
        row("recorder's octets", repeated(plot() + QByteArray(4, '\xA5'), 5) + repeated(plot(), 3),
            "note trailer: In 5 of 8 messages the last block is followed by 4 octets that begin no other one, as "
            "recorders and gateways append them; they are passed over.");
        row("Beast among plots", repeated(plot(), 40) + repeated(beast(4), 3),
            "wrong mixture: Several formats arrive together: beside ASTERIX there is Mode S (Beast Binary) in 3 "
            "messages. One "
            "is shown at a time; each needs a port of its own.");
        row("raw blocks among HDLC frames", repeated(hdlc + plot() + check, 9) + repeated(plot(), 2),
            "note format: Each message begins with 2 octets of its transport: the format is \"HDLC Frame\".\n"
            "wrong mixture: Several formats arrive together: beside ASTERIX in HDLC Frame there is ASTERIX in 2 "
            "messages. One is shown at a time; each needs a port of its own.");
        row("cut short",
            repeated(plot(), 3) + repeated(plot() + QByteArray::fromHex("300064") + QByteArray(50, '\0'), 1),
            "wrong damage: 1 of 4 messages end within a block: they are cut short, or what follows their blocks is "
            "something else.");
        row("category without a table", repeated(plot() + QByteArray::fromHex("ff0006c01901"), 2),
            "note category: CAT255 from a source without SAC/SIC is passed over: nothing here reads this category (2 "
            "blocks, 12 octets).");
        row("damaged blocks", repeated(plot(), 3) + repeated(QByteArray::fromHex("300006e01900"), 1),
            "wrong damage: 1 of 4 blocks of CAT048 from 25/0 cannot be decoded in edition 1.32: damaged on the way, or "
            "of "
            "another edition. The first fault: item runs past the end of the block, at octet 6 of the block.");
        row("blanks within callsigns", repeated(brokenCallsign(), 3),
            "note edition: In 3 of 3 records of CAT048 from 25/11 the aircraft identification cannot be right: its "
            "callsigns are not to be relied on. Blanks stand before or between its characters, as in \"3 KA\".");
        row("edition told by contents", repeated(oldAdsb(), 3),
            "fine edition: CAT021 from 25/11 is of edition 0.26. Of 3 blocks that were looked at: edition 0.26 reads "
            "all, and no other edition reads any; edition 2.7 reads none; ");
        row("editions alike", repeated(encodedReport(21, AdsbReport), 2),
            "note edition: CAT021 from 25/0 is read in edition 2.7, but nothing in it tells that from edition 2.1.");
    }

    void ofStreams()
    {
        QFETCH(QList<QByteArray>, messages);
        QFETCH(QString, said);
        RecordedStream stream;
        for (const QByteArray &message : messages) {
            stream.add(message);
        }
        Diagnosis diagnosis = diagnose(stream.findings());
        QCOMPARE(int(diagnosis.first().topic), int(DiagnosisRemark::Topic::Contents));
        diagnosis.removeFirst();
        const QString text = textOf(diagnosis);
        QVERIFY2(text == said || (!said.isEmpty() && text.startsWith(said)), qPrintable(text));
    }

    void nothingKnown()
    {
        RecordedStream stream;
        stream.add("GET / HTTP/1.1\r\n");
        QCOMPARE(textOf(diagnose(stream.findings())),
            QStringLiteral(
                "wrong format: In 1 message nothing makes sense as ASTERIX, Mode S or Alenia SIR-M, in whatever "
                "encapsulation. The first one begins with the octets 47 45 54 20 2f 20 48 54 54 50 2f 31 2e "
                "31 0d 0a."));
        QVERIFY(isAnyWrong(diagnose(StreamFindings())));
    }

    void ofSettings_data()
    {
        QTest::addColumn<QByteArray>("message");
        QTest::addColumn<QString>("setting");
        QTest::addColumn<QString>("said");
        QTest::newRow("all well") << plot() << ""
                                  << "";
        QTest::newRow("processor")
            << plot() << "modes"
            << "wrong processor: The processor is set to \"1090ES ADS-B Processor\", but what arrives is ASTERIX.";
        QTest::newRow("envelope")
            << plot() << "hdlc"
            << "wrong processor: The processor is set to ASTERIX in HDLC Frame, but what arrives is ASTERIX.";
        QTest::newRow("identity") << plot() << "verify"
                                  << "wrong sensor: Only reports of the sensor's SAC/SIC 9/9 are taken, but those that "
                                     "arrive are of 25/0.";
        QTest::newRow("kind of sensor")
            << plot() << "adsb"
            << "wrong sensor: The sensor is set to ADS-B, but what arrives are reports of Radar.";
        QTest::newRow("edition") << oldAdsb() << "adsb 2.7"
                                 << "wrong processor: The profile reads CAT021 in edition 2.7, but 25/11 sends edition "
                                    "0.26: set it to automatic. Of 2 blocks that were looked at: ";
        QTest::newRow("another edition that does as well") << encodedReport(21, AdsbReport) << "adsb 2.1"
                                                           << "";
    }

    void ofSettings()
    {
        QFETCH(QByteArray, message);
        QFETCH(QString, setting);
        QFETCH(QString, said);
        RecordedStream stream;
        stream.add(message);
        stream.add(message);
        Config config;
        config.sensorType = setting.contains("adsb") ? AdsbSensor : RadarSensor;
        config.sensorSac = config.sensorSic = 9;
        config.processorType = setting == "modes" ? Config::ProcessorType::ModeS : Config::ProcessorType::Asterix;
        config.processorAsterixFormat = setting == "hdlc" ? Config::AsterixFormat::Hdlc : Config::AsterixFormat::Raw;
        config.processorAsterixUap = setting.endsWith("2.7") ? 7 : setting.endsWith("2.1") ? 6 : 0;
        config.processorAsterixVerifySacSic = setting == "verify";
        const QString text = textOf(diagnoseSettings(stream.findings(), config));
        QVERIFY2(text == said || (!said.isEmpty() && text.startsWith(said)), qPrintable(text));
    }

    void ofRecordings()
    {
        QTemporaryDir folder;
        const QString damaged = writtenTo(folder.filePath("cut.ast"), plot().repeated(5).chopped(2));
        const Diagnosis cut = diagnose(analyseRecording(damaged));
        QVERIFY2(cut.size() == 2 && cut.last().sentence.startsWith("The file is damaged"), qPrintable(textOf(cut)));
        QVERIFY(isAnyWrong(cut));
        const Diagnosis none = diagnose(analyseRecording(folder.filePath("none.pcap")));
        QVERIFY2(none.size() == 1 && none.first().level == Level::Wrong, qPrintable(textOf(none)));
    }

    // In a long stream a format that comes rarely is not forgotten.
    void rareFormat()
    {
        RecordedStream stream;
        const QByteArray plots = plot().repeated(40);
        for (int i = 0; i < 2000; ++i) {
            stream.add(i % 400 == 399 ? beast(1) : plots);
        }
        const QList<Admixture> others = stream.findings().admixtures;
        QCOMPARE(others.size(), 1);
        QCOMPARE(others.first().messages, 5);
        QVERIFY(others.first().format.kind == Config::ProcessorType::ModeS);
    }
};

VYX_TEST(TestStreamDiagnosis)
#include "tst_stream_diagnosis.moc"
