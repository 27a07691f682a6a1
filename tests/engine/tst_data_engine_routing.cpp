#include "app/log_gate.h"
#include "engine_rig.h"
#include "modes/encoder.h"
#include "sirm/alenia_sir_m_radar_encoder.h"
#include "test_program.h"

#include <QTest>

namespace modes = korvane::modes;

// From a message to its consumers.
class TestDataEngineRouting final : public QObject {
    Q_OBJECT

private:
    // An open input; messages are handed over directly.
    struct OpenRig : EngineRig {
        explicit OpenRig(
            const std::function<void(Config &)> &configure = {}, const QSharedPointer<SensorInfo> &sensor = radar())
        {
            if (configure) {
                configure(config);
            }
            open(1, sensor);
            log.clear();
        }
    };

    using Format = modes::ModeSEncapsulation::Format;

    static QByteArray encapsulated(Format format, const modes::ModeSFrame &frame)
    {
        std::string octets;
        modes::appendEncapsulated(octets, frame, format);
        return QByteArray::fromStdString(octets);
    }

    static QByteArray identification(Format format, quint32 address)
    {
        return encapsulated(format, modes::encodeIdentification(address, 'A', 3, "VYX12"));
    }

    static auto decodeModeS(Format format)
    {
        return [format](Config &config) {
            config.processorType = Config::ProcessorType::ModeS;
            config.processorModeSEncapsulation = format;
        };
    }

    static void verifySacSic(Config &config) { config.processorAsterixVerifySacSic = true; }

private Q_SLOTS:
    void blocksAreWalkedInOrder()
    {
        OpenRig rig;
        QStringList order;
        connect(&rig.engine, &DataEngine::antennaNorthCrossed, this,
            [&] { order += QString::number(rig.tracks().size()); });
        rig.engine.procMessage(plotBlock(1) + northMarkerBlock() + plotBlock(2) + plotBlock(3) + northMarkerBlock());
        QCOMPARE(order, QStringList({"1", "3"}));
        QCOMPARE(rig.engine.messagesReceived(), 1ULL);
        QCOMPARE(rig.engine.bytesReceived(), 53ULL);
        QCOMPARE(rig.log, QStringList());
    }

    void messagesYieldWhatIsGoodInThem_data()
    {
        QTest::addColumn<QByteArray>("message");
        QTest::addColumn<int>("norths");
        QTest::addColumn<QStringList>("log");
        const QByteArray good = northMarkerBlock();
        const QString zero = "W Decoded ASTERIX data block reports zero size, the rest of the message is dropped.";
        const auto row = [](const char *tag, const QByteArray &message, int norths, const QStringList &log) {
            QTest::newRow(tag) << message << norths << log;
        };
        row("header cut short after a block", good + good.left(2), 1, {});
        row("block cut short", good + good.chopped(1), 1, {});
        row("length of zero", good + QByteArray::fromHex("220000") + good, 1, {zero});
        row("length below the header's", good + QByteArray::fromHex("220002") + good, 1, {});
        row("broken record before a good block", QByteArray::fromHex("220004ff") + good, 1, {});
        row("unsupported category between good blocks", good + QByteArray::fromHex("3f0004c0") + good, 2,
            {"D Unsupported ASTERIX catetory received: CAT063"});
        row("tracker category that this tracker does not use", QByteArray::fromHex("3e0003") + good, 1, {});
    }

    void messagesYieldWhatIsGoodInThem()
    {
        QFETCH(QByteArray, message);
        OpenRig rig;
        rig.engine.procMessage(message);
        QTEST(int(rig.northCrossed.size()), "norths");
        QTEST(rig.log, "log");
    }

    void envelopesAreRemoved()
    {
        const std::pair<Config::AsterixFormat, int> rows[]{
            {Config::AsterixFormat(0), 0}, {Config::AsterixFormat(1), 2}, {Config::AsterixFormat(2), 16}};
        for (const auto &row : rows) {
            const int envelope = row.second;
            OpenRig rig([&row](Config &config) { config.processorAsterixFormat = row.first; });
            // The envelope looks like the start of a block, so that one octet too few or too many shows.
            const QByteArray header = QByteArray::fromHex("30000d91100a0f10010203040506070809").left(envelope);
            rig.engine.procMessage(header + plotBlock(1) + northMarkerBlock());
            QCOMPARE(rig.northCrossed.size(), 1);
            QCOMPARE(rig.tracks().size(), 1);
            QCOMPARE(rig.engine.bytesReceived(), quint64(envelope) + 20);
            for (int length = 0; length <= envelope; ++length) {
                rig.engine.procMessage(header.left(length));
            }
            QCOMPARE(rig.log, QStringList());
        }
    }

    void profileIsTheConfiguredOne()
    {
        // A CAT001 track report: with the plot profile its items are others.
        const QByteArray track = QByteArray::fromHex("01000d f0 190a 80 0007 0500 0000");
        const auto seen = [&track](int selector) {
            OpenRig rig([selector](Config &config) { config.processorAsterixUap = selector; });
            rig.engine.procMessage(track);
            return rig.tracks().size();
        };
        QCOMPARE(seen(0), 1); // automatic: by the record's own type
        QCOMPARE(seen(2), 0); // as a plot: no track number in it
        QCOMPARE(seen(99), 1);
    }

    // Debug lines are made only where they are shown, and of many alike the most are counted.
    void repeatedFaultsAreSummedUp()
    {
        const QByteArray block = QByteArray::fromHex("3f0004c0");
        for (const auto level : {LogLevel::Info, LogLevel::None}) {
            OpenRig rig;
            LogGate::setShownLevel(level);
            for (int i = 0; i < 1000; ++i) {
                rig.engine.procMessage(block);
            }
            const QString text = "D Unsupported ASTERIX catetory received: CAT063";
            QCOMPARE(rig.log, level == LogLevel::Info ? QStringList() : QStringList({text, text, text}));
            rig.engine.closeInput();
            QCOMPARE(rig.log.filter(text + " … 997 more like this").size(), level == LogLevel::Info ? 0 : 1);
        }
    }

    void otherSensorsAreDroppedAndReportedOncePerSource()
    {
        OpenRig rig(verifySacSic);
        const auto warning = [](int sac, int sic) {
            return QStringLiteral(
                "W ASTERIX data block with SAC/SIC %1/%2 does not match the configured sensor SAC/SIC "
                "25/10, dropped.")
                .arg(sac)
                .arg(sic);
        };
        for (int i = 0; i < 2; ++i) {
            rig.engine.procMessage(northMarkerBlock(25, 11) + plotBlock(1) + northMarkerBlock(26, 10)
                + plotBlock(2, 0, 11) + northMarkerBlock());
        }
        QCOMPARE(rig.northCrossed.size(), 2);
        QCOMPARE(rig.tracks().size(), 1);
        QCOMPARE(rig.log, QStringList({warning(25, 11), warning(26, 10)}));

        rig.engine.closeInput();
        rig.open();
        rig.log.clear();
        rig.engine.procMessage(northMarkerBlock(25, 11) + northMarkerBlock(25, 11));
        QCOMPARE(rig.log, QStringList(warning(25, 11)));
    }

    // Records with and without item 010; message type 1 is the north marker.
    void sourceCheckTakesTheFirstSourceInTheBlock()
    {
        const std::pair<const char *, int> rows[]{{"220005 4001", 1}, // no source at all
            {"220009 4001 c0190b01", 0}, {"220009 4001 c0190a01", 2}, {"22000b c0190a01 c0190b01", 2}};
        for (const auto &[block, norths] : rows) {
            OpenRig rig(verifySacSic);
            rig.engine.procMessage(QByteArray::fromHex(block));
            QVERIFY2(rig.northCrossed.size() == norths, block);
        }
    }

    void modeSFramesAreCutFromMessages()
    {
        const QString incomplete = "D Failed to extract Mode-S encapsulation.";
        for (const auto format : {Format::Raw, Format::Avr, Format::Beast, Format::RawRssi}) {
            const auto a = identification(format, 0x4b1a2c), b = identification(format, 0x3c0001);
            auto damaged = modes::encodeAllCall(0x4b1a2c);
            damaged.octets[5] ^= 0x12;
            const std::tuple<QList<QByteArray>, int, QStringList> rows[]{{{a + b}, 2, {}},
                {{a.left(9), a.mid(9) + b}, 2, {incomplete}}, {{a + b.chopped(2)}, 1, {}},
                {{encapsulated(format, damaged) + b}, 1, {"D Failed to decode Mode-S message."}},
                {{QByteArray()}, 0, {incomplete}}};
            for (const auto &[messages, tracks, log] : rows) {
                OpenRig rig(decodeModeS(format), SensorInfo::create(SensorInfo::AdsbSensor));
                for (const auto &message : messages) {
                    rig.engine.procMessage(message);
                }
                QCOMPARE(rig.tracks().size(), tracks);
                QCOMPARE(rig.log, log);
            }
        }
    }

    void modeSRemainderEndsWithTheInput()
    {
        const auto sensor = SensorInfo::create(SensorInfo::AdsbSensor);
        OpenRig rig(decodeModeS(Format::Beast), sensor);
        const auto frame = identification(Format::Beast, 0x4b1a2c);
        rig.engine.procMessage(frame.left(12));
        rig.engine.closeInput();
        rig.open(2, sensor);
        rig.engine.procMessage(frame.mid(12));
        QCOMPARE(rig.tracks().size(), 0);
    }

    // In each envelope: what cannot be decoded is reported once per input and then only to those who debug.
    void aleniaSirMMessages()
    {
        const auto octets = AleniaSirMRadarEncoder::encode(AleniaSirMRadarNorthMarkerMessage());
        const QByteArray marker(reinterpret_cast<const char *>(octets.data()), qsizetype(octets.size()));
        const std::pair<QByteArray, int> rows[]{{marker, 1}, {marker + marker, 2}, {marker + "\x8a\x3f", 1},
            {marker.chopped(1), 0}, {"\xff" + marker, 0}, {{}, 0}};
        for (const auto &[format, envelope] : {std::pair(0, 0), {1, 2}, {2, 16}}) {
            for (const auto &[message, norths] : rows) {
                OpenRig rig([format = format](Config &config) {
                    config.processorType = Config::ProcessorType::AleniaSirM;
                    config.processorAleniaSirMFormat = static_cast<Config::AleniaSirMFormat>(format);
                });
                const auto text =
                    QStringLiteral(" Failed to decode Alenia SIR-M message (%1 bytes)").arg(message.size());
                const QStringList failures{
                    'W' + text + ", further failures are logged as debug.", 'D' + text + '.', 'D' + text + '.'};
                for (int opening = 0; opening < 2; ++opening) {
                    rig.log.clear();
                    for (int i = 0; i < 3; ++i) {
                        rig.engine.procMessage(QByteArray(envelope, '\1') + message);
                    }
                    QCOMPARE(rig.log, norths > 0 ? QStringList() : failures);
                    rig.engine.closeInput();
                    rig.open(2);
                }
                QCOMPARE(rig.northCrossed.size(), norths * 6);
            }
        }
    }
};

VYX_TEST(TestDataEngineRouting)
#include "tst_data_engine_routing.moc"
