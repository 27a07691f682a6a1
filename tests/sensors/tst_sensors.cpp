#include "app/config.h"
#include "sensors/radar_sensor_info.h"
#include "sensors/sensor_manager.h"
#include "sensors/smr_sensor_info.h"
#include "test_files.h"
#include "test_program.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString Location = QStringLiteral("500158.50N0083413.25E");

QJsonObject parsed(const char *json)
{
    return QJsonDocument::fromJson(json).object();
}

// The object with the keys that no record can do without.
QJsonObject sensorObject(const QString &type, const QString &name = QStringLiteral("R1"))
{
    return {{QStringLiteral("type"), type}, {QStringLiteral("name"), name}, {QStringLiteral("location"), Location}};
}

} // namespace

class TestSensors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void jsonRoundTrip_data()
    {
        QTest::addColumn<QJsonObject>("object");
        const auto row = [](const char *name, const char *own) {
            auto object = parsed(R"({"name":"N","description":"D","manufacturer":"M","model":"X","commission_year":1999,
                                "sac":25,"sic":211})");
            object[QStringLiteral("location")] = Location;
            const auto ownKeys = parsed(own);
            for (auto it = ownKeys.begin(); it != ownKeys.end(); ++it) {
                object[it.key()] = it.value();
            }
            QTest::newRow(name) << object;
        };
        row("radar", R"({"type":"radar","antenna_altitude":-3,"rotation_period":4.5,"psr":true,"ssr":true,"modes":false,
                     "psr_coverage":60,"ssr_coverage":4000000000,"slant_range_corrected":true})");
        row("ADS-B", R"({"type":"adsb","coverage":200,"update_interval":0.5,"versions":["0","2"]})");
        row("multilateration", R"({"type":"mlat","coverage":80})");
        row("SDPS", R"({"type":"sdps","coverage":512,"update_interval":4.25})");
        row("surface radar", R"({"type":"smr","antenna_altitude":40,"rotation_period":1.5,"coverage":4.5,"acp":4096})");
    }

    void jsonRoundTrip()
    {
        QFETCH(QJsonObject, object);
        const auto direct = SensorInfo::create(object);
        QVERIFY(direct);
        QCOMPARE(direct->jsonObject(), object);
        Config config;
        QVERIFY(!config.sensor(nullptr)); // no type is configured at first
        QVERIFY(config.setSensor(direct));
        // Fields of other types stay.
        QVERIFY(config.sensorType == SensorInfo::AdsbSensor || config.sensorAdsbCoverage == 250);
        QVERIFY(config.sensorType == SensorInfo::RadarSensor || config.sensorRadarCoverageSecondary == 250);
        QObject parent;
        const auto sensor = config.sensor(&parent);
        QVERIFY(sensor);
        // What the configuration has no field for.
        for (const char *key : {"description", "manufacturer", "model"}) {
            object[QLatin1String(key)] = QString();
        }
        object[QStringLiteral("commission_year")] = QJsonValue();
        if (object.contains(QStringLiteral("versions"))) {
            object[QStringLiteral("versions")] = QJsonArray();
        }
        if (object.contains(QStringLiteral("slant_range_corrected"))) {
            object[QStringLiteral("slant_range_corrected")] = false;
        }
        if (object.contains(QStringLiteral("acp"))) {
            object[QStringLiteral("acp")] = 0;
        }
        QCOMPARE(sensor->jsonObject(), object);
    }

    void configuredSensorGetsWhatItsRecordHolds()
    {
        auto object = sensorObject(QStringLiteral("radar"));
        object[QStringLiteral("sac")] = 25;
        object[QStringLiteral("slant_range_corrected")] = true;
        SensorManager sensors;
        sensors.addSensor(SensorInfo::create(object));
        for (const int sac : {25, 26}) {
            RadarSensorInfo configured;
            configured.setName(QStringLiteral("R1"));
            configured.setSacSic(static_cast<unsigned char>(sac), 0);
            sensors.addDetails(&configured);
            QCOMPARE(configured.slantRangeCorrected(), sac == 25);
        }
        sensors.addDetails(nullptr);
    }

    void readingIsTolerant()
    {
        const QJsonValue missing(QJsonValue::Undefined);
        // What the record holds, what it reads and what it holds after that.
        const std::tuple<const char *, QString, QJsonValue, QJsonValue, QJsonValue> rows[]{
            {"radar", "slant_range_corrected", true, missing, false}, {"radar", "rotation_period", 4.5, missing, 0.0},
            {"smr", "rotation_period", 1.5, missing, 1.5}, {"adsb", "coverage", 200, missing, 200},
            {"mlat", "coverage", 80, -1, 80}, {"mlat", "name", "N", missing, ""},
            {"adsb", "versions", QJsonArray{"1"}, QJsonArray{"0", 1, "2"}, QJsonArray{"0", "2"}},
            {"sdps", "update_interval", 4.0, "4.5", 4.0}, {"sdps", "type", "sdps", "atcas", "sdps"}};
        for (const auto &[type, key, before, read, after] : rows) {
            auto object = sensorObject(type);
            object[key] = before;
            const auto sensor = SensorInfo::create(object);
            QVERIFY(sensor);
            QCOMPARE(sensor->jsonObject().value(key), before);
            object[key] = read;
            QVERIFY(sensor->setJsonObject(object));
            QCOMPARE(sensor->jsonObject().value(key), after);
        }
    }

    void valuesThatAreNotTaken_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QJsonValue>("value");
        QTest::addColumn<QJsonValue>("taken");
        const auto row = [](const char *type, const char *key, const QJsonValue &value, const QJsonValue &taken) {
            const auto text = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
            QTest::addRow("%s %s %s", type, key, text.constData()) << QString(type) << QString(key) << value << taken;
        };
        row("mlat", "sac", 255, 255);
        row("mlat", "sac", 300, 0);
        row("mlat", "sic", -1, 0);
        row("mlat", "sic", 1.5, 0);
        row("mlat", "commission_year", 9999, 9999);
        row("mlat", "commission_year", 70000, QJsonValue());
        row("mlat", "commission_year", QJsonValue(), QJsonValue());
        row("mlat", "description", 5, "");
        row("mlat", "coverage", "80", 0);
        row("mlat", "coverage", 4294967296.0, 0);
        row("radar", "rotation_period", 3600, 3600);
        row("radar", "rotation_period", 1e300, 0);
        row("radar", "rotation_period", -4, 0);
        row("radar", "psr", 1, false);
        row("radar", "antenna_altitude", 1e6, 0);
        row("smr", "antenna_altitude", -1000, -1000);
        row("smr", "coverage", 1e300, 0);
        row("sdps", "update_interval", QJsonValue(), 0);
    }

    void valuesThatAreNotTaken()
    {
        QFETCH(QString, type);
        QFETCH(QString, key);
        QFETCH(QJsonValue, value);
        auto object = sensorObject(type);
        object[key] = value;
        const auto sensor = SensorInfo::create(object);
        QVERIFY(sensor);
        QTEST(sensor->jsonObject().value(key), "taken");
        QCOMPARE(sensor->refusedValues().isEmpty(), sensor->jsonObject().value(key) == value);
        QVERIFY(sensor->setJsonObject(sensorObject(type)));
        QVERIFY(sensor->refusedValues().isEmpty());
    }

    void filesAreWarnedOf()
    {
        const auto sensor = [](const char *name, const QJsonValue &sac, int sic) {
            auto object = sensorObject(QStringLiteral("radar"), QString::fromLatin1(name));
            object[QStringLiteral("sac")] = sac;
            object[QStringLiteral("sic")] = sic;
            return object;
        };
        QTemporaryDir directory;
        const QString path = directory.filePath(QStringLiteral("sensors.json"));
        const QJsonArray elements{sensor("a", 25, 3), sensor("b", 25, 4), sensor("c", 25, 3), sensor("d", 0, 0),
            sensor("e", 0, 0), sensor("f", 300, 7)};
        writtenTo(path, QJsonDocument(elements).toJson());
        SensorManager manager;
        QStringList warnings;
        connect(&manager, &SensorManager::warning, this, [&warnings](const QString &text) { warnings += text; });
        QVERIFY(manager.loadFromJsonFile(QFileInfo(path)));
        QCOMPARE(manager.sensorNames().size(), 6);
        QCOMPARE(warnings,
            QStringList({path + R"(: sensor "f" has a value that is not valid and takes its default: "sac": 300)",
                path + R"(: sensors "a" and "c" have the same SAC/SIC, 25/3)"}));
    }

    void refusedObjects()
    {
        RadarSensorInfo radar;
        radar.setRotationPeriod(4.0);
        auto object = sensorObject(QStringLiteral("Radar")); // no such type in this spelling
        QVERIFY(!SensorInfo::create(object) && !radar.setJsonObject(object));
        object = sensorObject(QStringLiteral("radar"));
        for (const char *location : {"", "500158N0083413E", "950000.00N0083413.00E"}) {
            object[QStringLiteral("location")] = QString::fromLatin1(location);
            QVERIFY2(!SensorInfo::create(object) && !radar.setJsonObject(object), location);
        }
        QCOMPARE(radar.rotationPeriod(), 4.0);
    }

    void fileReplacesAllRecords()
    {
        QTemporaryDir directory;
        const QString path = directory.filePath(QStringLiteral("sensors.json"));
        const QString radar = QStringLiteral("radar");
        const QJsonArray elements{sensorObject(radar), sensorObject(radar), 5, sensorObject(QStringLiteral("lidar")),
            sensorObject(radar), sensorObject(radar, QString()), sensorObject(radar, QStringLiteral("a"))};
        writtenTo(path, QJsonDocument(elements).toJson());
        SensorManager manager;
        manager.addSensor(SensorInfo::create(sensorObject(radar, QStringLiteral("before"))));
        QVERIFY(manager.loadFromJsonFile(QFileInfo(path)));
        for (const char *text : {R"({"type":"radar"})", R"([{"type":"radar"})", ""}) { // these change nothing
            writtenTo(path, text);
            QVERIFY(!manager.loadFromJsonFile(QFileInfo(path)));
        }
        QVERIFY(!manager.loadFromJsonFile(QFileInfo(path + "missing")));
        QCOMPARE(manager.sensorNames(), QStringList({"R1", "R1_dup1", "R1_dup2", "a"}));
        QCOMPARE(manager.findSensor(QStringLiteral("R1_dup1"))->name(), QStringLiteral("R1_dup1"));
    }

    void savedFileLoads()
    {
        QTemporaryDir directory;
        const QFileInfo file(directory.filePath(QStringLiteral("sensors.json")));
        SensorManager manager;
        manager.addSensor(SensorInfo::create(sensorObject(QStringLiteral("smr"), QStringLiteral("S"))));
        manager.addSensor(SensorInfo::create(sensorObject(QStringLiteral("radar"))));
        QVERIFY(manager.saveToJsonFile(file));
        QVERIFY(!manager.saveToJsonFile(QFileInfo(directory.filePath(QStringLiteral("missing/sensors.json")))));
        SensorManager reader;
        QVERIFY(reader.loadFromJsonFile(file));
        QCOMPARE(reader.sensorNames(), manager.sensorNames());
        QVERIFY(reader.findSensor(QStringLiteral("S")).dynamicCast<SmrSensorInfo>());
    }
};

VYX_TEST(TestSensors)
#include "tst_sensors.moc"
