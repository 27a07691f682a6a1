#include "engine_rig.h"

#include <QTest>

// From a message to its consumers.
class TestDataEngineRouting final : public QObject {
    Q_OBJECT

private:
    // An open input; messages are handed over directly.
    struct OpenRig : EngineRig {
        explicit OpenRig(const std::function<void(Config &)> &configure = {})
        {
            config.inputUdpPort1 = freePort();
            if (configure)
                configure(config);
            open();
            log.clear();
        }
    };

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
            for (int length = 0; length <= envelope; ++length)
                rig.engine.procMessage(header.left(length));
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
};

QTEST_GUILESS_MAIN(TestDataEngineRouting)
#include "tst_data_engine_routing.moc"
