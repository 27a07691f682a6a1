#include "engine_rig.h"
#include "test_program.h"

#include <QTest>

#include <cmath>

// Alerts, weather and radar video, from the wire to the slots and the end of the input.
class TestDataEngineProcessors final : public QObject {
    Q_OBJECT

private:
    // An engine on a loopback port; each datagram in hexadecimal.
    struct OpenRig : EngineRig {
        QUdpSocket sender;
        QStringList status; // changes told

        OpenRig()
        {
            QObject::connect(&engine, &DataEngine::alertStatusChanged, &engine,
                [this](Alert::Type type, bool on) { status += Alert::typeString(type) + (on ? " on" : " off"); });
            open();
        }

        void send(const QByteArray &hex)
        {
            const quint64 count = engine.messagesReceived() + 1;
            sender.writeDatagram(QByteArray::fromHex(hex), QHostAddress::LocalHost, port());
            QTRY_COMPARE(engine.messagesReceived(), count);
            engine.publishSnapshot();
        }

        // "77 Active first/second" by identifier, then the alerts of the tracks.
        QStringList alerts()
        {
            const auto shown = displaySlot.read().value;
            QStringList texts;
            for (const AlertSnapshot &alert : shown->alerts) {
                texts += QStringLiteral("%1 %2 %3/%4")
                             .arg(alert.id)
                             .arg(alert.stateString, alert.track1.text, alert.track2.text);
            }
            for (const TrackSnapshot &track : shown->tracks) {
                texts += QStringLiteral("#%1 %2").arg(track.trackNumber).arg(track.alertsString);
            }
            std::sort(texts.begin(), texts.end());
            return texts;
        }
    };

private Q_SLOTS:
    void alertsStandOnTheirTracks()
    {
        OpenRig rig;
        rig.send(plotBlock(101).toHex() + plotBlock(102).toHex());
        // MSAW and STCA are running; STCA 77 of both tracks, MSAW 78 of the second, APW 79 of a track not held.
        rig.send("040006 42 01 12  04000d 498140 07 004d 0065 0066  04000d 49c0 04 004e 0066 40 029c");
        rig.send("040012 498180 05 004f 0009 80 30f812d20820");
        QCOMPARE(rig.alerts(),
            QStringList({"#1 STCA", "#2 MSAW STCA", "77 Active #0001/#0002", "78 Active #0002/---",
                "79 Active [#0009]/LO R4"}));
        QCOMPARE(rig.status.filter("on"), QStringList({"MSAW on", "STCA on"}));
        QCOMPARE(rig.displaySlot.read().value->alertStatus, (std::array{true, false, true}));
        rig.send("040007 48 11 004d"); // the conflict ends
        QCOMPARE(rig.alerts().first(3), QStringList({"#1 ", "#2 MSAW", "77 End #0001/#0002"}));
        rig.status.clear();
        rig.engine.closeInput();
        QCOMPARE(rig.status, QStringList({"MSAW off", "STCA off"}));
        rig.engine.publishSnapshot();
        QCOMPARE(rig.displaySlot.read().value->alertStatus, (std::array{false, false, false}));
        QCOMPARE(rig.alerts().size(), 5); // the last picture stays
        rig.open(2);
        QCOMPARE(rig.alerts(), QStringList());
    }

    void weatherIsPublishedWhole()
    {
        OpenRig rig;
        const QByteArray start = "08000c 41c0 fe 546040 280000";
        const QByteArray end = "080008 4110 ff 0002";
        rig.send(start + "08000b 68 01 20 01 00ff4000");
        QCOMPARE(rig.weatherSlot.read().counter, 0ULL);
        rig.send("08000b 68 01 70 01 04088000" + end);
        const auto picture = rig.weatherSlot.read().value;
        QVERIFY(picture);
        QCOMPARE(picture->timeOfDay, 43200.5);
        QCOMPARE(picture->vectors.size(), 2);
        const auto &[intensity, startRange, endRange, azimuth] = picture->vectors.first();
        QCOMPARE(intensity * 1000 + azimuth, 2090.0);
        QCOMPARE(endRange - startRange, 63.75);
        // Half a picture does not reach into the next input.
        rig.send(start + "08000b 68 01 20 01 00ff4000");
        rig.engine.closeInput();
        rig.open(2);
        rig.send(end);
        QCOMPARE(rig.weatherSlot.read().counter, 1ULL);
    }

    void videoIsPublished()
    {
        OpenRig rig;
        rig.send("f00027 e7c8 190b 02 00000001 0800 0810 00000010 05f5e100 0004 0003000003 01 0102feff 546040");
        QTRY_COMPARE(rig.videoSlot.read().counter, 1ULL);
        const auto radial = rig.videoSlot.read().value->radials.first();
        QCOMPARE(radial.sac * 256 + radial.sic, 25 * 256 + 11);
        QCOMPARE(radial.timeOfDay, 43200.5);
        QCOMPARE(std::pair(radial.startAzimuth, radial.endAzimuth), std::pair(11.25, 11.337890625));
        QCOMPARE(radial.startCell, 16U);
        QVERIFY(std::abs(radial.cellSize - 14.98962) < 1e-4); // a tenth of a microsecond, in femtoseconds
        QCOMPARE(radial.amplitudes, QList<unsigned char>({1, 2, 0xfe})); // without the filling
    }
};

VYX_TEST(TestDataEngineProcessors)
#include "tst_data_engine_processors.moc"
