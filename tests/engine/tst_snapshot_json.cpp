#include "engine/snapshot_json.h"
#include "test_files.h"
#include "test_program.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

class TestSnapshotJson final : public QObject {
    Q_OBJECT

private:
    static TrackSnapshot fullTrack()
    {
        TrackSnapshot track;
        track.trackNumber = 17;
        track.icaoAddr = 0x4b1a2c;
        track.icaoAddrString = "4B1A2C";
        track.callsign = "TEST1";
        track.modeACode = 03271;
        track.modeAString = "3271S";
        track.type = Track::ModeSPsr;
        track.state = Track::Confirmed;
        track.geoCoordinate = GeoCoordinate(50.5, -14.25);
        track.carCoordinate = QPointF(-1000.5, 2000.0);
        track.groundSpeed = 450.25;
        track.heading = 359.5;
        track.onGround = true;
        track.level = 35000;
        track.selectedAltitude = 36000;
        track.verticalRate = -1200;
        track.verticalTrend = Track::TrendDescending;
        track.lastUpdate = QDateTime({2024, 2, 29}, {13, 5, 7, 8}, QTimeZone(3600)); // 12:05:07.008 UTC
        track.alertsString = "MSAW STCA";
        track.trail = {{1.0, 2.0}, {-3.5, 4.0}};
        for (bool *flag : {&track.icaoAddrValid, &track.callsignValid, &track.modeACodeValid, &track.geoCoordinateValid,
                 &track.carCoordinateValid, &track.groundSpeedValid, &track.headingValid, &track.levelValid,
                 &track.selectedAltitudeValid, &track.verticalRateValid}) {
            *flag = true;
        }
        return track;
    }

    static QJsonObject json(const char *text) { return QJsonDocument::fromJson(text).object(); }

private Q_SLOTS:
    void valuesAreWrittenOrNull()
    {
        const QJsonObject expected = json(R"({"trackNumber": 17, "icaoAddr": "4B1A2C", "callsign": "TEST1",
            "modeA": "3271S", "modeACode": 1721, "type": 5, "state": 1, "latitude": 50.5, "longitude": -14.25,
            "x": -1000.5, "y": 2000, "groundSpeed": 450.25, "heading": 359.5, "onGround": true, "level": 35000,
            "selectedAltitude": 36000, "verticalRate": -1200, "verticalTrend": 3,
            "lastUpdate": "2024-02-29T12:05:07.008Z", "alerts": "MSAW STCA", "trail": [[1, 2], [-3.5, 4]]})");
        QCOMPARE(SnapshotJson::toJson({{fullTrack()}, {}, {}})["tracks"][0].toObject(), expected);

        TrackSnapshot inDistress = fullTrack();
        inDistress.emergency = Track::RadioFailure;
        inDistress.spi = true;
        QJsonObject marked = expected;
        marked["emergency"] = "RDO";
        marked["spi"] = true;
        QCOMPARE(SnapshotJson::toJson({{inDistress}, {}, {}})["tracks"][0].toObject(), marked);

        const QJsonObject empty = SnapshotJson::toJson({{TrackSnapshot()}, {}, {}})["tracks"][0].toObject();
        QCOMPARE(empty.keys(), expected.keys());
        for (const char *key : {"callsign", "groundSpeed", "heading", "icaoAddr", "lastUpdate", "latitude", "level",
                 "longitude", "modeA", "modeACode", "selectedAltitude", "verticalRate", "x", "y"}) {
            QVERIFY2(empty[QLatin1String(key)].isNull(), key);
        }
        QCOMPARE(std::count(empty.begin(), empty.end(), QJsonValue()), 14); // no others
    }

    void savedFileHoldsTheWholePicture()
    {
        const QTemporaryDir dir;
        const QString path = dir.filePath("picture.json");
        TrackSnapshot later = fullTrack();
        later.trackNumber = 20;
        AlertSnapshot alert;
        alert.id = 4000000000U;
        alert.type = Alert::STCA;
        alert.stateString = "Active";
        alert.track1.otherTrackNumber = 5;
        QVERIFY(SnapshotJson::save(SnapshotJson::toJson({{later, fullTrack()}, {alert}, {false, true, false}}), path));
        const QJsonObject root = QJsonDocument::fromJson(contentsOf(path)).object();
        QVERIFY(!SnapshotJson::save({}, dir.filePath("no/such/folder.json")));
        QCOMPARE(root.keys(), QStringList({"alertStatus", "alerts", "recordedTime", "time", "tracks"}));
        QCOMPARE(root["alertStatus"].toObject(), json(R"({"MSAW": false, "APW": true, "STCA": false})"));
        QCOMPARE(root["tracks"][0]["trackNumber"].toInt(), 17); // by number
        const QJsonValue first = root["alerts"][0];
        QCOMPARE(first["id"].toInteger(), 4000000000LL);
        QCOMPARE(first["track1"]["trackNumber"].toInt(), 5);
        QVERIFY(first["track2"].isNull() && first["objectName"].isNull() && first["endTime"].isNull());
    }
};

VYX_TEST(TestSnapshotJson)
#include "tst_snapshot_json.moc"
