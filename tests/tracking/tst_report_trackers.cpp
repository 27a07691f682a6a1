#include "modes/encoder.h"
#include "modes/mode_s_decoder.h"
#include "test_program.h"
#include "tracker_rig.h"
#include "tracking/adsb_tracker.h"
#include "tracking/sdps_tracker.h"

#include <QSignalSpy>
#include <QTest>

namespace modes = korvane::modes;

namespace {

enum Option { NoOption, IgnoreWgs84, IgnoreCartesian, CorrectLongitudeWrap };

struct Row {
    const char *name;
    int category;
    const char *reports;
    const char *expected;
    Option option = NoOption;
};

// On the plane the sensor stands at (890556, 6413525).
const Row rows[]{
    {"all fields", 20,
        "161/TRN=7 220=0x4b1a2c 245/CHR=VYX12 070/G=1 070/L=1 070/MODE3A=07421 090/G=1 090/FL=101.25 202/VX=100",
        "tracks 1, type 7, state 1, address 4B1A2C, call VYX12, code 7421GS, level 10125, speed 194.4, heading 90.0, "
        "trend 0, ground 0"},
    {"not repeated", 20, "161/TRN=7 070/MODE3A=1 090/FL=1 202/VX=1; 161/TRN=7",
        "code 0001, level -, speed -, heading -"},
    {"tentative before all", 20, "161/TRN=7 170/CNF=1 170/CST=1 170/TRE=1", "state 0"},
    {"coasting before the end", 20, "161/TRN=7 170/CST=1 170/TRE=1", "state 2"},
    {"end", 20, "161/TRN=7 170/TRE=1", "state 3"},
    {"no more status", 20, "161/TRN=7 170/CST=1; 161/TRN=7", "state 1"},
    {"movement 0 before the rate", 20, "161/TRN=7 170/CDM=0 bds60=-7/-", "rate -224, trend 2"},
    {"movement 1", 20, "161/TRN=7 170/CDM=1", "trend 3"},
    {"movement 2", 20, "161/TRN=7 170/CDM=2", "trend 1"},
    {"movement 3", 20, "161/TRN=7 170/CDM=3 bds60=-7/-", "trend 0"},
    {"downlinked 4 s ago", 20, "161/TRN=7 bds40=625/- bds60=7/-; @4 161/TRN=7", "rate 224, trend 2, selected 10000"},
    {"and a moment more", 20, "161/TRN=7 bds40=625/- bds60=7/-; @4.001 161/TRN=7", "rate -, trend 0, selected -"},
    {"address, then number", 20, "220=99; @1 161/TRN=7 220=99; @2 220=99; @3 161/TRN=7", "tracks 1"},
    {"two under one address", 20, "161/TRN=7 220=99 041/LAT=50; @0.5 161/TRN=8 220=99", "tracks 2"},
    {"globe", 20, "161/TRN=7 041/LAT=50.625 041/LON=8.4375", "lat 50.62500, lon 8.43750, x 939258, y 6522177, dots 1"},
    {"plane", 20, "161/TRN=7 042/X=1000 042/Y=-2000", "lat 49.98842, lon 8.00898, x 891556, y 6411525, dots 1"},
    {"globe and plane", 20, "161/TRN=7 041/LAT=50.625 041/LON=8.4375 042/X=1000 042/Y=-2000",
        "lat 50.62500, lon 8.43750, x 891556, y 6411525, dots 1"},
    {"globe ignored", 20, "161/TRN=7 041/LAT=50.625 041/LON=8.4375 042/X=1000 042/Y=-2000", "lat 49.98842, x 891556",
        IgnoreWgs84},
    {"plane ignored", 20, "161/TRN=7 041/LAT=50.625 041/LON=8.4375 042/X=1000 042/Y=-2000", "lat 50.62500, x 939258",
        IgnoreCartesian},
    {"nothing left", 20, "161/TRN=7 041/LAT=50.625", "tracks 1, lat -, x -, dots 0", IgnoreWgs84},

    {"all fields", 62,
        "040=7 380/ADR=0x4b1a2c 380/ID=VYX12 060/G=1 060/MODE3A=07421 136=101.25 135/CTB=90 185/VX=-100 185/VY=100 "
        "380/SAL/ALT=12000 220=-206.25 105/LAT=50.625 105/LON=8.4375",
        "tracks 1, type 9, state 1, address 4B1A2C, call VYX12, code 7421G, level 10125, speed 274.9, heading 315.0, "
        "selected 12000, rate -206, trend 3, lat 50.62500, lon 8.43750, x 939258, y 6522177, dots 1"},
    {"plane", 62, "040=7 100/X=1000 100/Y=-2000", "lat 49.98842, lon 8.00898, x 891556, y 6411525, dots 1"},
    {"globe ignored", 62, "040=7 105/LAT=50.625 100/X=1000 100/Y=-2000", "lat 49.98842", IgnoreWgs84},
    {"plane ignored", 62, "040=7 105/LAT=50.625 105/LON=8.4375 100/X=1000", "x 939258", IgnoreCartesian},
    {"aircraft-derived data end", 62, "380/ADR=99; @1 040=7 380/ADR=99; @2 040=7", "tracks 1, type 10, address 000063"},
    {"tentative", 62, "040=7 080/CNF=1", "state 0"},
    {"coasting", 62, "040=7 080/CST=1", "state 2"},
    {"tentative before coasting", 62, "040=7 080/CNF=1 080/CST=1", "state 0"},
    {"coasting no more", 62, "040=7 080/CST=1; 040=7", "state 1"},
    {"end of track", 62, "040=7; 040=7 080/TSE=1", "tracks 0"},
    {"end of a track known by its address", 62, "380/ADR=99; 380/ADR=99 080/TSE=1", "tracks 0"},
    {"end of another track", 62, "040=7; 040=8 080/TSE=1", "tracks 1"},
    {"flight plan's call sign", 62, "040=7 380/ID=VYX12 390/CS=PLAN7", "call PLAN7"},
    {"target identification", 62, "040=7 245/CHR=VYX12", "call -------"},
    {"calculated level", 62, "040=7 135/CTB=-3.25", "level -325"},
    {"altitude above the sea", 62, "040=7 135/CTB=50 135/QNH=1", "level -"},
    {"movement 0 before the rate", 62, "040=7 200/VERT=0 220=300", "rate 300, trend 1"},
    {"movement 1", 62, "040=7 200/VERT=1", "trend 2"},
    {"movement 2", 62, "040=7 200/VERT=2", "trend 3"},
    {"movement 3", 62, "040=7 200/VERT=3 220=300", "trend 0"},
    {"200 ft/min", 62, "040=7 220=200", "rate 200, trend 1"},
    {"-200 ft/min", 62, "040=7 220=-200", "rate -200, trend 1"},
    {"halves are rounded up", 62, "040=7 220=12.5", "rate 13"},
    {"or down", 62, "040=7 220=-12.5", "rate -13"},
    {"sent 10 s ago", 62, "040=7 380/SAL/ALT=12000 220=206.25; @10 040=7", "rate 206, trend 2, selected 12000"},
    {"and a moment more", 62, "040=7 380/SAL/ALT=12000 220=300; @10.001 040=7", "rate -, trend 0, selected -"},
    {"south-west", 62, "040=7 185/VX=-50 185/VY=-50", "speed 137.5, heading 225.0"},
    {"western longitude", 62, "040=7 105/LAT=50.625 105/LON=-168.75", "lon -168.75000"},
    {"turned", 62, "040=7 105/LAT=50.625 105/LON=-168.75", "lon 11.25000, x 1252344", CorrectLongitudeWrap},
    {"eastern one left", 62, "040=7 105/LAT=50.625 105/LON=11.25", "lon 11.25000", CorrectLongitudeWrap},

    {"emergency status", 62, "040=7 080/EMS=5", "marks HIJ"},
    {"priority status", 62, "040=7 080/SPI=1 380/SAB/STAT=4", "marks RDOSPI"},
    {"medical flight, pulse by flight status", 62, "040=7 080/EMS=2 380/COM/STAT=4", "marks SPI"},
    {"reported lately", 62, "040=7 380/SAB/STAT=6; @20 040=7", "marks EMG"},
    {"reported long ago", 62, "040=7 380/SAB/STAT=6; @20.001 040=7", "marks "},
    {"no longer reported", 62, "040=7 380/SAB/STAT=6; @1 040=7 380/SAB/STAT=0", "marks "},
    {"nobody tells what sees it", 62, "040=7 380/ADR=99", "detected 9"},
    {"seen by radar and Mode S", 62, "040=7 290/PSR=4 290/MDS=15 290/ES=1", "type 10, detected 5"},
    {"radar long ago", 62, "040=7 290/PSR=15.25 290/SSR=4", "detected 2"},
    {"ages before all else", 62, "040=7 290/MLT=1 340/TYP/TYP=1 080/CST=0", "detected 7"},
    {"by its own squitters", 62, "040=7 290/MDS=60 290/ADS=1 290/ES=1 340/TYP/TYP=5", "detected 6"},
    {"by flags", 62, "040=7 080/PSR=0 080/SSR=1 080/MDS=1 080/ADS=1 340/TYP/TYP=5", "detected 1"},
    {"by the last measurement", 62, "040=7 080/CNF=0 340/TYP/TYP=3", "detected 3"},
    {"seen by nothing lately", 62, "040=7 290/SSR=1; 040=7 290/SSR=30", "detected 2"},

    {"unlawful interference", 21, "080=99 200/PS=5 200/SS=3", "marks HIJSPI"},
    {"code before what is reported", 21, "080=99 200/PS=1 070/MODE3A=07600", "marks RDO"},
    {"no longer reported", 21, "080=99 200/PS=5 200/SS=3; @1 080=99 200/PS=0", "marks "},
    {"low fuel, transponder's alert", 21, "080=99 200/PS=3 200/SS=2", "marks "},
    {"pulse", 20, "161/TRN=7 020/SPI=1", "marks SPI"},

    {"all fields", 21,
        "080=0x4b1a2c 170=VYX12 130/LAT=50.625 130/LON=8.4375 070/MODE3A=07421 145=101.25 146/ALT=12000 "
        "155/BVR=-206.25 "
        "160/GS=0.125 160/TA=270",
        "tracks 1, type 6, state 1, address 4B1A2C, call VYX12, code 7421, lat 50.62500, lon 8.43750, x 939258, "
        "y 6522177, level 10125, selected 12000, rate -206, trend 3, speed 450.0, heading 270.0, dots 1"},
    {"not repeated", 21, "080=99 170=VYX12 145=1 160/GS=0.1 070/MODE3A=1; 080=99",
        "tracks 1, call VYX12, code 0001, level -, speed -, heading -"},
    {"magnetic heading, level below zero", 21, "080=99 152=45 145=-3.25", "speed -, heading 45.0, level -325"},
    {"sent 4 s ago", 21, "080=99 146/ALT=12000 155/BVR=300; @4 080=99", "rate 300, trend 2, selected 12000"},
    {"and a moment more", 21, "080=99 146/ALT=12000 155/BVR=300; @4.001 080=99", "rate -, trend 0, selected -"},
    {"call sign of zeros", 21, "080=99 170=VYX12; 080=99 170=", "call VYX12"},
    {"on the ground", 21, "080=99 040/GBS=1; 080=99", "ground 1"},
    {"in the air again", 21, "080=99 040/GBS=1; 080=99 040/ATP=1", "ground 0"},
    {"no address", 21, "170=VYX12; 080=0", "tracks 0"},

    {"all fields", 10, "161/TRK=7 040/RHO=3000 040/TH=90 200/GSP=0.0078125 200/TRA=45 220=99 090/FL=1",
        "tracks 1, type 8, state 1, ground 1, lat 49.99999, lon 8.04197, x 895228, y 6413523, speed 28.1, "
        "heading 45.0, address ------, level -, dots 1"},
    {"tentative, without velocity", 10, "161/TRK=7 040/RHO=1 200/GSP=0.01; 161/TRK=7 040/RHO=1 170/CNF=1",
        "tracks 1, state 0, speed -, heading -, dots 2"},
    {"positions of other kinds", 10, "161/TRK=7 041/LAT=50 042/X=10", "tracks 0"},
};

const QHash<int, SensorType> sensors{{10, SmrSensor}, {20, MlatSensor}, {21, AdsbSensor}, {62, SdpsSensor}};

} // namespace

// The trackers whose sources report finished tracks: ADS-B, multilateration, system tracks, surface movement.
class TestReportTrackers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void reports_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < int(std::size(rows)); ++i) {
            QTest::addRow("CAT%03d, %s", rows[i].category, rows[i].name) << i;
        }
    }

    void reports()
    {
        QFETCH(int, index);
        const auto &[name, category, reports, expected, option] = rows[index];
        TrackerRig rig(sensors[category]);
        if (auto *system = rig.as<SystemTracker>()) {
            system->setIgnoreWgs84Coordinates(option == IgnoreWgs84);
            system->setIgnoreCartesianCoordinates(option == IgnoreCartesian);
        }
        if (auto *sdps = rig.as<SdpsTracker>()) {
            sdps->setCorrectLongitudeWrap(option == CorrectLongitudeWrap);
        }
        rig.send(48, "161/TRN=99 220=99"); // another category
        rig.send(category, reports);
        QCOMPARE(shown(rig, expected), QString(expected));
    }

    // Of airports, where category 10 is not a radar's.
    void multilaterationInCategory10_data()
    {
        QTest::addColumn<QString>("reports");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const char *reports, const char *expected) {
            QTest::newRow(name) << reports << expected;
        };
        row("all fields",
            "000=1 161/TRK=7 220=0x4b1a2c 245/CHR=VYX12 041/LAT=50.625 041/LON=8.4375 060/MODE3A=07421 "
            "090/FL=101.25 202/VX=-50 202/VY=-50 bds40=750/- bds60=-7/-",
            "tracks 1, type 7, state 1, address 4B1A2C, call VYX12, code 7421, lat 50.62500, lon 8.43750, x 939258, "
            "y 6522177, level 10125, selected 12000, rate -224, trend 3, speed 137.5, heading 225.0, dots 1");
        row("plane", "161/TRK=7 042/X=1000 042/Y=-2000", "lat 49.98842, lon 8.00898, x 891556, y 6411525");
        row("known by its address", "220=99; @1 161/TRK=7 220=99", "tracks 1, address 000063");
        row("tentative", "161/TRK=7 170/CNF=1 170/CST=1", "state 0");
        row("coasting, in a masked area", "161/TRK=7 170/CST=2", "state 2");
        row("end of track", "161/TRK=7 170/TRE=1", "state 3");
        row("level and velocity end", "161/TRK=7 090/FL=10 202/VX=9; 161/TRK=7", "level -, speed -");
        row("polar positions are the radar's", "161/TRK=7 040/RHO=3000", "tracks 1, lat -");
        row("messages of the system about itself", "000=4 161/TRK=7 041/LAT=50", "tracks 0");
        row("names no track", "161/TRK=0 041/LAT=50", "tracks 0");
    }

    void multilaterationInCategory10()
    {
        QFETCH(QString, reports);
        QFETCH(QString, expected);
        TrackerRig rig(MlatSensor);
        rig.send(10, reports);
        QCOMPARE(shown(rig, expected), expected);
    }

    void reportsThatNameNoTrack()
    {
        const std::tuple<int, const char *, const char *> unnamed[]{
            {20, "161/TRN=0 220=0",
                "MLAT Tracker: CAT020 message has neither valid track number (I020/161) nor valid Mode-S address "
                "(I020/220), ignore."},
            {62, "040=0 380/ID=VYX12",
                "SDPS Tracker: CAT062 message has neither valid track number (I062/040) nor valid Mode-S address "
                "(I062/380/ADR), ignore."},
            {10, "040/RHO=500", "SMR Tracker: CAT010 message has no valid track number (I010/161), ignore."}};
        for (const auto &[category, report, text] : unnamed) {
            TrackerRig rig(sensors[category]);
            QSignalSpy messages(rig.tracker.data(), &Tracker::message);
            rig.send(category, report);
            QCOMPARE(rig.manager->trackCount(), 0);
            QCOMPARE(messages, QList<QVariantList>({{QVariant::fromValue(LogLevel::Debug), QString(text)}}));
        }
    }

    void contradictionsAreWarnedOfOnce_data()
    {
        QTest::addColumn<int>("category");
        QTest::addColumn<QString>("reports");
        QTest::addColumn<QString>("warning");
        const auto row = [](const char *name, int category, const QString &reports, const QString &warning = {}) {
            QTest::newRow(name) << category << reports << warning;
        };
        const QString positions = "%1 Tracker: the WGS-84 and Cartesian positions of SAC/SIC 25/0 lie %2 NM apart, see "
                                  "the settings \"Ignore WGS-84 positions\" and \"Ignore Cartesian positions\".";
        row("positions", 20, "161/TRN=7 041/LAT=50 041/LON=8 042/X=2000 042/Y=0; 161/TRN=8 041/LAT=50 042/X=9000",
            positions.arg("MLAT", "1.1"));
        row("positions of a system", 62, "040=7 105/LAT=50 105/LON=8 100/X=0 100/Y=3704; 040=7 105/LAT=9 100/X=0",
            positions.arg("SDPS", "2.0"));
        row("positions within the limit", 20, "161/TRN=7 041/LAT=50 041/LON=8 042/X=1800 042/Y=0; 161/TRN=7 042/X=99");
        const auto climb = [](int cdm, int reports) {
            QStringList texts;
            for (int i = 0; i < reports; ++i) {
                texts += QStringLiteral("@%1 161/TRN=7 170/CDM=%2 090/FL=%3").arg(i).arg(cdm).arg(100 + i);
            }
            return texts.join("; ");
        };
        row("trend", 20, climb(1, 20),
            "MLAT Tracker: the vertical trends (I020/170) of SAC/SIC 25/0 contradict its levels, which changed the "
            "other way by 1000 ft; the trends shown may be wrong.");
        row("trend in a few reports", 20, climb(1, 10));
        row("trend that agrees", 20, climb(0, 20));
        row("level flight", 20, climb(2, 20));
    }

    void contradictionsAreWarnedOfOnce()
    {
        QFETCH(int, category);
        QFETCH(QString, reports);
        QFETCH(QString, warning);
        TrackerRig rig(sensors[category]);
        QSignalSpy messages(rig.tracker.data(), &Tracker::message);
        rig.send(category, reports);
        const QList<QVariantList> expected{{QVariant::fromValue(LogLevel::Warning), warning}};
        QCOMPARE(messages, warning.isEmpty() ? QList<QVariantList>() : expected);
    }

    void exhaustedTrackNumbersAreReportedNowAndThen()
    {
        for (const auto &[category, report] :
            {std::pair(20, "161/TRN=7"), {10, "161/TRK=7 040/RHO=1"}, {21, "080=7"}}) {
            TrackerRig rig(sensors[category]);
            while (rig.manager->createTrack()) { }
            QSignalSpy messages(rig.tracker.data(), &Tracker::message);
            rig.send(category, QStringLiteral("%1; @9.999 %1").arg(report));
            QCOMPARE(messages.size(), 1);
            rig.send(category, QStringLiteral("@10 %1").arg(report));
            QCOMPARE(messages.size(), 2);
        }
    }

    void whatIsNotHeardAgainIsNoLongerShown()
    {
        TrackerRig rig(AdsbSensor);
        receive(rig, 0, modes::encodeIdentification(0x4b1a2c, 'A', 3, "VYX12"));
        receive(rig, 0, modes::encodeIdentityReply(0x4b1a2c, 01234));
        for (const bool isOdd : {false, true}) {
            receive(rig, 0, modes::encodeAirbornePosition(0x4b1a2c, {50.5, 8.5}, 35000, isOdd));
        }
        const auto hearVelocityUntil = [&](double last) { // without the pause after which targets are forgotten
            for (double second = rig.second() + 3; second < last; second += 3) {
                receive(rig, second, modes::encodeVelocity(0x4b1a2c, 450, 270, 0));
            }
            receive(rig, last, modes::encodeVelocity(0x4b1a2c, 450, 270, 0));
        };
        hearVelocityUntil(60);
        QCOMPARE(shown(rig, "call, code, level, dots"), "call VYX12, code 1234, level 35000, dots 21");
        QVERIFY(rig.manager->allTracks().first()->carCoordinateValid());
        hearVelocityUntil(60.001);
        QCOMPARE(shown(rig, "lat, x, level, dots"), "lat -, x -, level 35000, dots 21"); // and so it ages
        hearVelocityUntil(300.001);
        QCOMPARE(shown(rig, "call, code, level, speed"), "call -------, code ----, level -, speed 450.0");
        receive(rig, 301, modes::encodeAirbornePosition(0x4b1a2c, {50.5, 8.5}, 35000, false));
        QCOMPARE(shown(rig, "level, dots"), "level 35000, dots 22");
    }

    void positionsOutOfRangeAreReportedOnceAMinute()
    {
        TrackerRig rig(AdsbSensor);
        QSignalSpy messages(rig.tracker.data(), &Tracker::message);
        for (int second = 0; second <= 61; ++second) {
            receive(rig, second, modes::encodeAirbornePosition(0x4b1a2c, {10, 8}, 35000, second % 2));
        }
        QCOMPARE(messages.size(), 2); // a position needs two reports, so that the first one comes at second 1
        const QString text = "ADS-B Tracker: %1 positions more than 1,000 km from the sensor were not taken, is its "
                             "location right?";
        QCOMPARE(messages[0][1].toString(), text.arg(1));
        QVERIFY(messages[1][1].toString() != text.arg(1));
        QCOMPARE(messages[0][0].value<LogLevel>(), LogLevel::Warning);
    }

    void libraryTargetsAreForgottenAfterAPause()
    {
        // The seconds at which another aircraft is heard, the deletion time, and whether the first one is still known.
        const std::tuple<QList<double>, unsigned int, bool> histories[]{{{4, 8, 12, 16, 20}, 10, true},
            {{4, 8, 12, 16, 20.001}, 10, false}, {{4, 5, 10}, 10, true}, {{20, 24}, 30, true}};
        for (const auto &[others, deletionTime, known] : histories) {
            TrackerRig rig(AdsbSensor);
            rig.as<AdsbTracker>()->setNoUpdatedTargetDeletionTime(deletionTime);
            receive(rig, 0, modes::encodeIdentification(0x4b1a2c, 'A', 3, "VYX12"));
            for (const double second : others) {
                receive(rig, second, modes::encodeVelocity(0x3c0001, 450, 270, 0));
            }
            rig.manager->reset(); // what comes back is the library's
            receive(rig, others.last(), modes::encodeVelocity(0x4b1a2c, 450, 270, 0));
            QCOMPARE(shown(rig, "call"), known ? "call VYX12" : "call -------");
        }
    }

private:
    void receive(TrackerRig &rig, double second, modes::ModeSFrame frame)
    {
        rig.setTime(second);
        frame.timeStamp = static_cast<unsigned long long>(rig.now.toMSecsSinceEpoch());
        const auto message = std::make_shared<modes::ModeSMessage>();
        m_decoder.decode(modes::ModeSMessage::AnyDownlink, frame, *message);
        QVERIFY(message->valid());
        rig.tracker->procModeSMessage(message);
    }

    modes::ModeSDecoder m_decoder;
};

VYX_TEST(TestReportTrackers)
#include "tst_report_trackers.moc"
