#include "modes/encoder.h"
#include "test_files.h"
#include "test_program.h"
#include "vyx-modes/decode_command.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

using namespace korvane::modes;
using Verb = CommandLine::Verb;

class TestVyxModes : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QByteArray m_out;
    QStringList m_err;

    int decode(const QByteArray &contents, CommandLine line = {})
    {
        const QString input = writtenTo(m_folder.filePath("input"), contents);
        if (line.fileName.empty()) {
            line.fileName = input.toStdString();
        }
        m_out.clear();
        m_err.clear();
        const TextSink out = [this](std::string_view text) {
            m_out.append(text.data(), static_cast<int>(text.size()));
            return true;
        };
        const LineSink err = [this](std::string_view text) {
            m_err.append(QString::fromUtf8(text.data(), static_cast<int>(text.size())));
        };
        return runDecode(line, out, err);
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
        good({"--version"}, Verb::Version);
        good({"decode", "--help"}, Verb::Help);
        good({"decode", "--format", "rawrssi", "--reference", "-33.95,151.18", "--correct", "FILE"}, Verb::Decode);
        good({"decode", "--format", "raw-rssi", "-"}, Verb::Decode);
        bad({}, "--help");
        bad({"encode", "FILE"}, "unknown command");
        bad({"decode"}, "needs a file");
        bad({"decode", "A", "B"}, "one argument too many");
        bad({"decode", "FILE", "--format"}, "needs a value");
        bad({"decode", "--format", "other", "FILE"}, "raw, avr, beast or rawrssi");
        bad({"decode", "--reference", "47.46", "FILE"}, "LATITUDE,LONGITUDE");
        bad({"decode", "--reference", "47.46,181", "FILE"}, "LATITUDE,LONGITUDE");
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
        if (isGood && arguments.contains("--reference")) {
            QCOMPARE(line.reference->longitude, 151.18);
            QCOMPARE(*line.format, ModeSEncapsulation::RawRssi);
            QVERIFY(line.isCorrecting);
        }
    }

    // Contents of squitters and registers, which the text shows in full.
    void printsContents_data()
    {
        QTest::addColumn<QByteArray>("field"); // a message field of DF 17, of DF 20 with a comma, or a whole frame
        QTest::addColumn<QByteArray>("json"); // what follows the address and the type
        const auto row = [](const char *name, const char *field, const char *json) {
            QTest::newRow(name) << QByteArray(field) << QByteArray(json);
        };
        row("identification", "8D4840D6202CC371C32CE0576098",
            ",df:17,icao:4840D6,typecode:4,callsign:KLM1023,category:0,category_set:A");
        row("character that is none", "202CC371C32C1B",
            ",df:17,icao:4B1800,typecode:4,callsign:,category:0,category_set:A");
        row("airborne, in steps of 25 ft", "8D40621D58C382D690C8AC2863A7",
            ",df:17,icao:40621D,typecode:11,altitude:38000,cpr_format:0");
        row("airborne, in steps of 100 ft", "5820A000000000", ",df:17,icao:4B1800,typecode:11,altitude:0,cpr_format:0");
        row("airborne without altitude", "58000400000000", ",df:17,icao:4B1800,typecode:11,cpr_format:1");
        row("altitude alone", "00C38000000000", ",df:17,icao:4B1800,typecode:0,altitude:38000");
        row("height above the ellipsoid", "A0C38000000000",
            ",df:17,icao:4B1800,typecode:20,gnss_height:38000,cpr_format:0");
        row("surface, moving", "8C4841753A9A153237AEF0F275BE",
            ",df:17,icao:484175,typecode:7,cpr_format:1,groundspeed:17,track:92.8125");
        row("surface, speed and track unknown", "38000000000000", ",df:17,icao:4B1800,typecode:7,cpr_format:0");
        row("surface, reserved speed", "3FD00000000000", ",df:17,icao:4B1800,typecode:7,cpr_format:0");
        row("over ground", "8D485020994409940838175B284F",
            ",df:17,icao:485020,typecode:19,groundspeed:159,track:182.8803775528476,vertical_rate:-832,vertical_rate_"
            "source:gnss,gnss_above_baro:550");
        row("over ground, still", "99440100200000", ",df:17,icao:4B1800,typecode:19,groundspeed:0,track:0");
        row("over ground, supersonic", "9A006500200000", ",df:17,icao:4B1800,typecode:19,groundspeed:400,track:90");
        row("over ground, one component unknown", "99006500000000", ",df:17,icao:4B1800,typecode:19");
        row("through the air", "8DA05F219B06B6AF189400CBC33F",
            ",df:17,icao:A05F21,typecode:19,true_airspeed:375,heading:243.984375,vertical_rate:-2304,vertical_rate_"
            "source:baro");
        row("through the air, supersonic, indicated", "9C00000CA00000",
            ",df:17,icao:4B1800,typecode:19,indicated_airspeed:400");
        row("velocity of a reserved subtype", "9D440994083817", ",df:17,icao:4B1800,typecode:19");
        row("target state, first edition", "E8803730E10800",
            ",df:17,icao:4B1800,typecode:29,selected_altitude_mcp:10000,selected_heading:270,nac_p:8,sil:2");
        row("target state, second edition", "8DA05629EA21485CBF3F8CADAEEB",
            ",df:17,icao:A05629,typecode:29,selected_altitude_mcp:16992,baro_pressure_setting:1012.8,selected_heading:"
            "66.796875,modes:autopilot,vnav,lnav,nac_p:9,sil:3");
        row("emergency", "E1AAA200000000", ",df:17,icao:4B1800,typecode:28,emergency:5,squawk:7500");
        row("advisory", "E28006652C6000",
            ",df:17,icao:4B1800,typecode:28,resolution_advisory:2001,ra_complement:9,ra_terminated:true,multiple_"
            "threats:false,threat:4B1800");
        row("operational status in the air", "F8002006004AB8",
            ",df:17,icao:4B1800,typecode:31,surface:false,version:2,nac_p:10,sil:3");
        row("operational status on the surface", "F9000000002900",
            ",df:17,icao:4B1800,typecode:31,surface:true,version:1,nac_p:9,sil:0");
        row("reserved type", "B8000000000000", ",df:17,icao:4B1800,typecode:23");
        row("no register", "19680030A80000,", ",df:20,icao:4B1800,altitude:4650");
        row("2,0", "202CC371C32CE0,", ",df:20,icao:4B1800,altitude:4650,bds:BDS20,callsign:KLM1023");
        row("4,0", "9B5C0170A80000,",
            ",df:20,icao:4B1800,altitude:4650,bds:BDS40,selected_altitude_mcp:14000,selected_altitude_fms:80,baro_"
            "pressure_setting:1013.2");
        row("4,0 altitude hold at 0 ft", "80000000000146,",
            ",df:20,icao:4B1800,altitude:4650,bds:BDS40,selected_altitude_mcp:0,mcp_modes:2,altitude_source:2");
        row("4,5", "C071F62D4A0C80,",
            ",df:20,icao:4B1800,altitude:4650,bds:BDS45,turbulence:2,icing:3,temperature:-10,pressure:850,radio_height:"
            "1600");
        row("5,0", "835B1F1F206485,",
            ",df:20,icao:4B1800,altitude:4650,bds:BDS50,roll:4.5703125,true_track:250.13671875,groundspeed:248,track_"
            "rate:0.375,true_airspeed:266");
        row("5,0 to the left", "FFB6B7333FFCC8,",
            ",df:20,icao:4B1800,altitude:4650,bds:BDS50,roll:-0.52734375,true_track:150.99609375,groundspeed:408,track_"
            "rate:-0.03125,true_airspeed:400");
        row("6,0", "D919F719E3BC75,",
            ",df:20,icao:4B1800,altitude:4650,bds:BDS60,magnetic_heading:250.48828125,indicated_airspeed:251,mach:0."
            "41200000000000003,baro_vertical_rate:3808,inertial_vertical_rate:3744");
    }

    void printsContents()
    {
        QFETCH(QByteArray, field);
        QFETCH(QByteArray, json);
        const std::uint64_t number = QByteArray::fromHex(field).toHex().toULongLong(nullptr, 16);
        std::string frame = ('*' + field + ';').toStdString();
        if (field.size() < 28) {
            frame.clear();
            appendEncapsulated(frame,
                field.endsWith(',') ? encodeCommBAltitude(0x4B1800, 4650, number) : encodeSquitter(0x4B1800, number),
                ModeSEncapsulation::Avr);
        }
        QCOMPARE(decode(QByteArray::fromStdString(frame)), 0);
        QCOMPARE(m_out.replace('"', ""),
            "{frame:" + QByteArray::fromStdString(frame).trimmed().mid(1).chopped(1).toUpper() + json + "}\n");
        QVERIFY(m_err.isEmpty());
    }

    void printsPositionsAndTimes()
    {
        std::string stream;
        for (int i = 0; i < 4; ++i) {
            ModeSFrame frame = encodeAirbornePosition(0x4B1800, {47.46, 8.55}, 8000, i % 2);
            frame.ticks = 6000000U * static_cast<unsigned>(i);
            appendEncapsulated(stream, frame, ModeSEncapsulation::Beast);
        }
        QCOMPARE(decode(QByteArray::fromStdString(stream)), 0);
        const QByteArrayList lines = m_out.trimmed().split('\n');
        QCOMPARE(lines.size(), 4);
        for (int i = 0; i < 4; ++i) {
            const QJsonObject line = QJsonDocument::fromJson(lines[i]).object();
            QCOMPARE(line["time"].toDouble(), 0.5 * i);
            QCOMPARE(line["cpr_format"].toInt(), i % 2);
            QCOMPARE(line.contains("latitude"), i > 0);
            QVERIFY(i == 0 || std::abs(line["longitude"].toDouble() - 8.55) < 1e-4);
        }
    }

    void countsWhatItLeavesAway()
    {
        const QByteArray wrong = "*8D4840D6202CC371C32CE0576099;";
        const QByteArray contents = "*0620;" + wrong + wrong + "*A8000BA4901A2F2B21B0000ED2D5;";
        CommandLine line;
        line.isCheckingAddress = true;
        QCOMPARE(decode(contents, line), 0);
        const QString name = m_folder.filePath("input");
        QCOMPARE(m_err,
            QStringList({name + ": 1 frames Mode A/C replies", name + ": 2 frames with wrong parity",
                name + ": 1 frames of an address not heard before"}));
        QVERIFY(m_out.isEmpty());
        line.isCorrecting = true;
        QCOMPARE(decode(contents, line), 0);
        QCOMPARE(m_out.count("\"corrected_bit\":112"), 2);
        line.fileName = m_folder.filePath("missing").toStdString();
        QCOMPARE(decode(contents, line), 1);
        QCOMPARE(m_err.size(), 1);
    }
};

VYX_TEST(TestVyxModes)
#include "tst_vyx_modes.moc"
