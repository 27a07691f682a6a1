#include "sirm/alenia_sir_m_radar_message.h"
#include "test_program.h"
#include "tracker_rig.h"
#include "tracking/radar_tracker.h"

#include <QSignalSpy>
#include <QTest>

using SirMRecord = AleniaSirMRadarTrackRecord;

namespace {

constexpr int None = -1;

struct Sighting {
    double second;
    int trackNumber = None;
    int address = None;
};

struct Row {
    const char *name;
    int category;
    const char *reports;
    const char *expected;
};

// Positions worked out with vectors on the sphere of 6371007.2 m, and ellipsoidal Mercator.
const Row rows[]{
    {"polar before Cartesian", 48, "161/TRN=7 040/RHO=10 040/THETA=90 042/X=1 042/Y=2",
        "lat 49.99971, lon 8.25911, x 919400, y 6413475, dots 1"},
    {"polar, far north-west", 48, "161/TRN=7 040/RHO=255.5 040/THETA=326.25",
        "lat 53.47442, lon 4.02823, x 448420, y 7036879"},
    {"no more position", 48, "161/TRN=7 042/X=-10 042/Y=0; 161/TRN=7",
        "lat 49.99971, lon 7.74089, x 861712, y 6413475, dots 2"},
    {"Cartesian, south-west", 48, "161/TRN=7 042/X=-3 042/Y=-4", "lat 49.93335, lon 7.92237, x 881915, y 6402022"},
    {"CAT001, polar", 1, "161=7 040/RHO=10 040/THETA=90", "lat 49.99971, lon 8.25911"},
    {"CAT001, Cartesian, north-east", 1, "161=7 042/X=3 042/Y=4", "lat 50.06660, lon 8.07784, x 899221, y 6425034"},
    {"all fields", 48,
        "161/TRN=7 070/V=1 070/G=1 070/L=1 070/MODE3A=07421 090/V=1 090/FL=101.25 200/GSP=0.125 200/HDG=270 240=VYX12",
        "tracks 1, code 7421GS, call VYX12, level 10125, speed 450.0, heading 270.0, state 1, type 0"},
    {"garbled level, new call sign", 48,
        "161/TRN=7 070/MODE3A=1 090/FL=1 200/GSP=0.1 240=VYX12; 161/TRN=7 090/G=1 090/FL=102 240=VYX13",
        "call VYX13, code 0001, level -, speed -, heading -"},
    {"code 0, negative level, blank call sign", 48,
        "161/TRN=7 240=VYX12; 161/TRN=7 070/MODE3A=0 090/FL=-3.5 240=", "code 0000, level -350, call -------"},
    {"tentative", 48, "161/TRN=7 170/CNF=1", "state 0"},
    {"then confirmed", 48, "161/TRN=7 170/CNF=1; 161/TRN=7 170/CNF=0", "state 1"},
    {"tentative, then no status", 48, "161/TRN=7 020/TYP=2 170/CNF=1; 161/TRN=7", "state 1, type 2"},
    {"CAT001", 1, "161=7 070/MODE3A=01234 170/CON=1; 161=7 090/HGT=81.5 200/GSP=0.0625 200/HDG=45",
        "tracks 1, code 1234, level 8150, speed 225.0, heading 45.0, state 1"},
    {"CAT001, tentative", 1, "161=7 170/CON=1", "state 0"},
    {"CAT001, 0 is a number", 1, "161=0; 161=0", "tracks 2"},
    {"CAT001 without number", 1, "040/RHO=10", "tracks 0"},
    {"autopilot's altitude first", 48, "161/TRN=7 bds40=2188/600; @4 161/TRN=7", "selected 35008"},
    {"other altitude", 48, "161/TRN=7 bds40=-/600; @12 161/TRN=7", "selected 9600"},
    {"altitude too old", 48, "161/TRN=7 bds40=625/-; @12.001 161/TRN=7", "selected -"},
    {"first register of a code", 48, "161/TRN=7 bds40=-/- bds40=625/- bds60=-/- bds60=7/-", "selected -, rate -"},
    {"climb", 48, "161/TRN=7 bds40=625/- bds60=7/-62", "rate 224, trend 2"},
    {"descent", 48, "161/TRN=7 bds60=-7/-", "rate -224, trend 3"},
    {"level flight", 48, "161/TRN=7 bds60=-6/-", "rate -192, trend 1"},
    {"inertial rate alone", 48, "161/TRN=7 bds60=-/-31", "rate -992, trend 3"},
    {"barometric rate too large", 48, "161/TRN=7 bds60=188/38", "rate 1216, trend 2"},
    {"both too large", 48, "161/TRN=7 bds60=188/-188", "rate -, trend 0"},
    {"kept for 12 s", 48, "161/TRN=7 bds60=7/-; @12 161/TRN=7 bds60=188/-", "rate 224, trend 2"},
    {"then forgotten", 48, "161/TRN=7 bds60=7/-; @12.001 161/TRN=7 bds60=188/-", "rate -, trend 0"},
    {"hijacked", 48, "161/TRN=7 070/MODE3A=07500", "marks HIJ"},
    {"a garbled code", 48, "161/TRN=7 070/MODE3A=07500 070/G=1", "marks "},
    {"a code not validated", 48, "161/TRN=7 070/MODE3A=07500 070/V=1", "marks "},
    {"code changed", 48, "161/TRN=7 070/MODE3A=07700; 161/TRN=7 070/MODE3A=01000", "marks "},
    {"military emergency and pulse", 48, "161/TRN=7 020/SPI=1 020/ME=1", "marks EMGSPI"},
    {"both over", 48, "161/TRN=7 020/SPI=1 020/ME=1; 161/TRN=7", "marks "},
    {"pulse by flight status", 48, "161/TRN=7 020/TYP=5 230/STAT=5", "marks SPI"},
    {"alert of the transponder without pulse", 48, "161/TRN=7 230/STAT=2", "marks "},
    {"CAT001, radio failure reported", 1, "161=7 020/SPI=1 020/DS1DS2=2", "marks RDOSPI"},
    {"CAT001, code before what is reported", 1, "161=7 070/MODE3A=07500 020/DS1DS2=3", "marks HIJ"},
    {"counting anew", 48, "161/TRN=7 bds60=7/-; @8 161/TRN=7 bds60=-10/-; @20 161/TRN=7", "rate -320, trend 3"},
};

} // namespace

class TestRadarTracker : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void antenna()
    {
        TrackerRig rig(RadarSensor);
        for (const int category : {2, 34}) {
            QSignalSpy rotated(rig.as<RadarTracker>(), &RadarTracker::antennaRotated);
            QSignalSpy north(rig.as<RadarTracker>(), &RadarTracker::antennaNorthCrossed);
            rig.send(category, "000=2; 000=3 020=90"); // no azimuth, another message
            QCOMPARE(rotated.size() + north.size(), 0);
            rig.send(category, "000=2 020=123.75");
            QCOMPARE(rotated, QList<QVariantList>({{123.75}}));
            QCOMPARE(north.size(), 0);
            rig.send(category, "000=1 020=0");
            QCOMPARE(rotated.size(), 1);
            QCOMPARE(north.size(), 1);
        }
    }

    // Only for who asks for it, and with a height; a turn without Mode C keeps the one before.
    void slantRangeIsCorrected()
    {
        const std::tuple<bool, int, const char *, const char *> cases[]{
            {true, 48, "161/TRN=7 040/RHO=10 040/THETA=90 090/FL=300", "lat 49.99978, lon 8.22516"},
            {true, 1, "161=7 040/RHO=10 040/THETA=90 090/HGT=300", "lat 49.99978, lon 8.22516"},
            {false, 48, "161/TRN=7 040/RHO=10 040/THETA=90 090/FL=300", "lat 49.99971, lon 8.25911"},
            {true, 48, "161/TRN=7 040/RHO=10 040/THETA=90", "lat 49.99971, lon 8.25911"},
            {true, 48, "161/TRN=7 090/FL=300; 161/TRN=7 040/RHO=10 040/THETA=90", "lat 49.99978, lon 8.22516"},
            {true, 48, "161/TRN=7 040/RHO=4 040/THETA=90 090/FL=300", "lat 50.00000, lon 8.00000"}};
        for (const auto &[isOn, category, reports, expected] : cases) {
            TrackerRig rig(RadarSensor, {{"slant_range_corrected", isOn}});
            rig.send(category, reports);
            QCOMPARE(shown(rig, expected), QString(expected));
        }
    }

    void association_data()
    {
        // One aircraft a letter.
        const int a = 0x4b1a2c, b = 0x3c0001;
        QTest::addColumn<QList<Sighting>>("sightings");
        QTest::addColumn<QList<int>>("incarnations"); // updated by each report; 0: none
        const auto row = [](const char *name, const QList<Sighting> &sightings, const QList<int> &incarnations) {
            QTest::newRow(name) << sightings << incarnations;
        };
        row("known number", {{0, 7}, {4, 7}, {5, 8}}, {1, 1, 2});
        row("known address", {{0, None, a}, {4, None, a}, {5, None, b}}, {1, 1, 2});
        row("nothing to go by", {{0}, {1, 0}, {2, 0, 0}}, {0, 0, 0});
        row("address first, number later", {{0, None, a}, {4, 7, a}, {8, 7}, {12, None, a}}, {1, 1, 1, 1});
        row("number decides when known", {{0, 7, a}, {0.5, 8, b}, {4, 7, b}}, {1, 2, 1});
        row("radar starts over with a new number", {{0, 7, a}, {3.9, 8, a}, {8, 8, a}}, {1, 1, 1});
        row("two under one address, opposite each other", {{0, 7, a}, {2, 8, a}, {4, 7, a}, {6, 8, a}}, {1, 2, 1, 2});
        row("two under one address, far apart, settle", {{0, 7, a}, {3.5, 8, a}, {4, 7, a}, {7.5, 8, a}, {8, 7, a}},
            {1, 1, 2, 1, 2});
        row("old number is given to another aircraft", {{0, 7, a}, {4, 8, a}, {4.1, 7, b}, {8, 8, a}}, {1, 1, 2, 1});
        row("track went on to another address", {{0, 7, a}, {4, 7, b}, {8, None, a}}, {1, 1, 2});
    }

    void association()
    {
        QFETCH(QList<Sighting>, sightings);
        TrackerRig rig(RadarSensor);
        QSignalSpy messages(rig.tracker.data(), &Tracker::message);
        QList<int> incarnations;
        for (const auto &[second, trackNumber, address] : sightings) {
            rig.setTime(second + 0.001); // no report at the time when the store was made
            const auto number = trackNumber == None ? QString() : QStringLiteral(" 161/TRN=%1").arg(trackNumber);
            const auto icao = address == None ? QString() : QStringLiteral(" 220=%1").arg(address);
            rig.send(48, "040/RHO=10" + number + icao);
            int updated = 0;
            for (const auto &each : rig.manager->allTracks()) {
                updated += each->lastUpdate() == rig.now ? int(each->incarnationId()) : 0;
            }
            incarnations.append(updated);
        }
        QTEST(incarnations, "incarnations");
        QCOMPARE(messages.size(), incarnations.count(0));
    }

    void reports()
    {
        for (const auto &[name, category, reports, expected] : rows) {
            TrackerRig rig(RadarSensor);
            rig.send(category, reports);
            QVERIFY2(shown(rig, expected) == expected, qPrintable(name + (": " + shown(rig, expected))));
        }
        constexpr int Types[]{0, 1, 2, 3, 4, 4, 5, 5};
        for (int detection = 0; detection < 8; ++detection) {
            TrackerRig rig(RadarSensor);
            rig.send(48, QStringLiteral("161/TRN=7 020/TYP=%1").arg(detection));
            QCOMPARE(shown(rig, "type"), QStringLiteral("type %1").arg(Types[detection]));
            rig.send(1, QStringLiteral("161=7 020/SSRPSR=%1").arg(detection % 4));
            QCOMPARE(shown(rig, "tracks, type"), QStringLiteral("tracks 1, type %1").arg(detection % 4));
        }
    }

    void damagedBlockIsIgnored()
    {
        TrackerRig rig(RadarSensor);
        auto octets = encodedReport(48, "161/TRN=7 040/RHO=10").chopped(1);
        rig.receive(octets);
        octets[2] = static_cast<char>(octets.size()); // a block of that length, with its record cut short
        rig.receive(octets);
        QCOMPARE(rig.manager->trackCount(), 0);
    }

    void sirMNorthMarkersTellOfChanges()
    {
        TrackerRig rig(RadarSensor);
        QStringList log;
        connect(rig.tracker.data(), &Tracker::message, this,
            [&log](LogLevel level, const QString &text) { log += QString::number(int(level)) + ' ' + text; });
        QSignalSpy rotated(rig.as<RadarTracker>(), &RadarTracker::antennaRotated);
        QSignalSpy north(rig.as<RadarTracker>(), &RadarTracker::antennaNorthCrossed);
        for (const auto &[northLost, clockLost] : {std::pair(0, 0), {1, 0}, {1, 0}, {0, 1}, {0, 0}}) {
            const auto marker = QSharedPointer<AleniaSirMRadarNorthMarkerMessage>::create();
            marker->setNorthNotSynchronized(northLost);
            marker->setClockNotSynchronized(clockLost);
            rig.tracker->procAleniaSirMMessage(marker);
        }
        const QString text = "%1 Alenia SIR-M Tracker: radar %2 synchronized.";
        QCOMPARE(log,
            QStringList({text.arg(3).arg("north is not"), text.arg(1).arg("north is"), text.arg(3).arg("clock is not"),
                text.arg(1).arg("clock is")}));
        QCOMPARE(rotated, QList<QVariantList>({{0.0}, {0.0}, {0.0}}));
        QCOMPARE(north.size(), 5);
    }

    void sirMTrackRecords()
    {
        const auto plain = [](SirMRecord &) {};
        const auto full = [](SirMRecord &record) {
            record.setModeACode(07421);
            record.setModeCHeight(-12.5);
            record.setRateOfClimbDescent(-10);
            record.setVerticalTrend(2);
            record.setVelocity(-120, 160);
            record.setCoasting(true);
        };
        const auto unsettled = [](SirMRecord &record) {
            record.setVelocity(100, 0, false);
            record.setVerticalTrend(3);
            record.setTrackType(4);
        };
        const auto over = [](SirMRecord &record) { record.setTrackType(0); };
        const auto end = [](SirMRecord &record) { record.setTrackEnd(true); };
        const auto otherEnd = [](SirMRecord &record) {
            record.setTrackNumber(8);
            record.setTrackEnd(true);
        };
        using Change = std::function<void(SirMRecord &)>;
        const std::pair<QList<Change>, const char *> sequences[]{
            {{plain},
                "type 3, state 1, lat 50.35896, lon 7.57711, code ----, level -, rate -, trend 1, speed -, dots 1"},
            {{full}, "state 2, code 7421, level -13, rate -1969, trend 3, speed 388.8, heading 323.1"},
            {{full, plain}, "tracks 1, state 1, code ----, level -, rate -, speed -, heading -, dots 2"},
            {{unsettled}, "speed -, heading -, trend 0, type 0"}, {{plain, over}, "tracks 0"},
            {{plain, end}, "tracks 0"}, {{over, end}, "tracks 0"}, {{plain, end, plain, otherEnd}, "tracks 1, dots 1"}};
        for (const auto &[changes, expected] : sequences) {
            TrackerRig rig(RadarSensor);
            QSignalSpy rotated(rig.as<RadarTracker>(), &RadarTracker::antennaRotated);
            const auto data = QSharedPointer<AleniaSirMRadarDataMessage>::create();
            for (const auto &change : changes) {
                SirMRecord record;
                record.setTrackNumber(7);
                record.setTrackType(3);
                record.setPosition(-30, 40);
                change(record);
                data->addTrackRecord(record);
            }
            rig.tracker->procAleniaSirMMessage(data);
            QCOMPARE(shown(rig, expected), QString(expected));
            QCOMPARE(rotated.size(), 0);
            data->setSector(5);
            rig.tracker->procAleniaSirMMessage(data);
            QCOMPARE(rotated, QList<QVariantList>({{112.5}}));
        }
    }
};

VYX_TEST(TestRadarTracker)
#include "tst_radar_tracker.moc"
