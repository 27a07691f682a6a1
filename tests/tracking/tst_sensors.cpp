#include "app/config.h"
#include "tracking/radar_sensor_info.h"
#include "tracking/sensor_manager.h"
#include "tracking/smr_sensor_info.h"

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

void write(const QString &path, const QByteArray &text)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

} // namespace

class TestSensors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void jsonRoundTrip_data();
    void jsonRoundTrip();
    void readingIsTolerant_data();
    void readingIsTolerant();
    void refusedObjects();
    void fileReplacesAllRecords();
    void unreadableFileChangesNothing();
    void savedFileLoads();
    void modelsOfManufacturers();
    void configurationRoundTrip_data();
    void configurationRoundTrip();
};

namespace {

void addFullObjects()
{
    QTest::addColumn<QJsonObject>("object");
    const auto row = [](const char *name, const char *own) {
        auto object = parsed(R"({"name":"N","description":"D","manufacturer":"M","model":"X","commission_year":1999,
                                "sac":25,"sic":211})");
        object[QStringLiteral("location")] = Location;
        const auto ownKeys = parsed(own);
        for (auto it = ownKeys.begin(); it != ownKeys.end(); ++it)
            object[it.key()] = it.value();
        QTest::newRow(name) << object;
    };
    row("radar", R"({"type":"radar","antenna_altitude":-3,"rotation_period":4.5,"psr":true,"ssr":true,"modes":false,
                     "psr_coverage":60,"ssr_coverage":4000000000})");
    row("ADS-B", R"({"type":"adsb","coverage":200,"update_interval":0.5,"versions":["0","2"]})");
    row("multilateration", R"({"type":"mlat","coverage":80})");
    row("SDPS", R"({"type":"sdps","coverage":512,"update_interval":4.25})");
    row("surface radar", R"({"type":"smr","antenna_altitude":40,"rotation_period":1.5,"coverage":4.5,"acp":4096})");
}

} // namespace

void TestSensors::jsonRoundTrip_data()
{
    addFullObjects();
}

void TestSensors::jsonRoundTrip()
{
    QFETCH(QJsonObject, object);
    const auto sensor = SensorInfo::create(object);
    QVERIFY(sensor);
    QCOMPARE(sensor->jsonObject(), object);
}

void TestSensors::readingIsTolerant_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("before"); // what the record holds
    QTest::addColumn<QJsonValue>("read"); // undefined: the key is missing
    QTest::addColumn<QJsonValue>("after");
    const QJsonValue missing(QJsonValue::Undefined);
    const auto row = [](const QString &type, const QString &key, QJsonValue before, QJsonValue read, QJsonValue after) {
        QTest::addRow("%s of %s", qPrintable(key), qPrintable(type)) << type << key << before << read << after;
    };
    row("radar", "rotation_period", 4.5, missing, 0.0);
    row("radar", "psr", true, missing, false);
    row("radar", "ssr_coverage", 250, missing, 0);
    row("smr", "rotation_period", 1.5, missing, 1.5);
    row("smr", "coverage", 4.5, missing, 4.5);
    row("smr", "acp", 4096, missing, 0);
    row("adsb", "coverage", 200, missing, 200);
    row("adsb", "versions", QJsonArray{"1"}, QJsonArray{"0", 1, "2"}, QJsonArray{"0", "2"});
    row("sdps", "update_interval", 4.0, "4.5", 4.0);
    row("mlat", "sac", 25, missing, 25);
    row("mlat", "name", "N", missing, "");
    row("mlat", "commission_year", 1999, missing, QJsonValue());
    row("mlat", "coverage", 80, -1, 80);
    row("mlat", "type", "mlat", "wam", "mlat");
    row("sdps", "type", "sdps", "atcas", "sdps");
}

void TestSensors::readingIsTolerant()
{
    QFETCH(QString, type);
    QFETCH(QString, key);
    QFETCH(QJsonValue, before);
    QFETCH(QJsonValue, read);
    auto object = sensorObject(type);
    object[key] = before;
    const auto sensor = SensorInfo::create(object);
    QVERIFY(sensor);
    QCOMPARE(sensor->jsonObject().value(key), before);
    object[key] = read;
    QVERIFY(sensor->setJsonObject(object));
    QTEST(sensor->jsonObject().value(key), "after");
}

void TestSensors::refusedObjects()
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

void TestSensors::fileReplacesAllRecords()
{
    QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("sensors.json"));
    const QString radar = QStringLiteral("radar");
    const QJsonArray elements{sensorObject(radar), sensorObject(radar), 5, sensorObject(QStringLiteral("lidar")),
        sensorObject(radar), sensorObject(radar, QString()), sensorObject(radar, QStringLiteral("a"))};
    write(path, QJsonDocument(elements).toJson());
    SensorManager manager;
    manager.addSensor(SensorInfo::create(sensorObject(radar, QStringLiteral("before"))));
    QVERIFY(manager.loadFromJsonFile(QFileInfo(path)));
    QCOMPARE(manager.sensorNames(), QStringList({"R1", "R1_dup1", "R1_dup2", "a"}));
    QCOMPARE(manager.findSensor(QStringLiteral("R1_dup1"))->name(), QStringLiteral("R1_dup1"));
}

void TestSensors::unreadableFileChangesNothing()
{
    QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("sensors.json"));
    SensorManager manager;
    manager.addSensor(SensorInfo::create(sensorObject(QStringLiteral("smr"))));
    QVERIFY(!manager.loadFromJsonFile(QFileInfo(path)));
    for (const char *text : {R"({"type":"radar"})", R"([{"type":"radar"})", ""}) {
        write(path, text);
        QVERIFY(!manager.loadFromJsonFile(QFileInfo(path)));
    }
    QVERIFY(manager.hasSensor(QStringLiteral("R1")));
}

void TestSensors::savedFileLoads()
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

void TestSensors::modelsOfManufacturers()
{
    SensorManager manager;
    int number = 0;
    for (const auto &[manufacturer, model] : std::initializer_list<std::pair<const char *, const char *>>{
             {"B", "b1"}, {"B", "b1"}, {"A", ""}, {"", "lost"}, {"B", "B1"}}) {
        const auto sensor = SensorInfo::create(SensorInfo::MlatSensor);
        sensor->setName(QString::number(++number));
        sensor->setManufacturer(QString::fromLatin1(manufacturer));
        sensor->setModel(QString::fromLatin1(model));
        manager.addSensor(sensor);
    }
    auto models = manager.manufacturerModels();
    models[QStringLiteral("B")].sort();
    QCOMPARE(models, (QMap<QString, QStringList>{{"A", {}}, {"B", {"B1", "b1"}}}));
}

void TestSensors::configurationRoundTrip_data()
{
    addFullObjects();
}

void TestSensors::configurationRoundTrip()
{
    QFETCH(QJsonObject, object);
    Config config;
    QVERIFY(!config.setSensor({}));
    QVERIFY(!config.sensor(nullptr)); // no type is configured at first
    QVERIFY(config.setSensor(SensorInfo::create(object)));
    // Fields of other types stay.
    QVERIFY(config.sensorType == SensorInfo::AdsbSensor || config.sensorAdsbCoverage == 250);
    QVERIFY(config.sensorType == SensorInfo::RadarSensor || config.sensorRadarCoverageSecondary == 250);
    QObject parent;
    const auto sensor = config.sensor(&parent);
    QVERIFY(sensor);
    QCOMPARE(sensor->parent(), &parent);
    // What the configuration has no field for.
    for (const char *key : {"description", "manufacturer", "model"})
        object[QLatin1String(key)] = QString();
    object[QStringLiteral("commission_year")] = QJsonValue();
    if (object.contains(QStringLiteral("versions")))
        object[QStringLiteral("versions")] = QJsonArray();
    if (object.contains(QStringLiteral("acp")))
        object[QStringLiteral("acp")] = 0;
    QCOMPARE(sensor->jsonObject(), object);
}

QTEST_GUILESS_MAIN(TestSensors)
#include "tst_sensors.moc"
