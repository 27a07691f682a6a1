#include "app/app_paths.h"
#include "app/config.h"
#include "config_defaults.h"

#include <QProcess>
#include <QRandomGenerator>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QTimeZone>

class tst_Config : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void writesEveryDefault();
    void readsAndWritesEveryKey();
    void keepsWhatAFileLacks_data();
    void keepsWhatAFileLacks();
    void convertsWhatItCan_data();
    void convertsWhatItCan();
    void storesEnumerationsAsTexts_data();
    void storesEnumerationsAsTexts();
    void namesEnumerations();
    void ignoresTheAlphaOfLayerColors();
    void neverTakesTheNumberOfWeatherColorsFromAFile();
    void survivesBeingKilled();

private:
    QString path(const char *name) const { return m_directory.filePath(QLatin1String(name)); }

    QTemporaryDir m_directory;
};

namespace {

using Texts = QMap<QString, QString>;

bool isColor(const QString &key)
{
    return key.contains("Color");
}

Texts textsOf(const QString &fileName)
{
    const QSettings file(fileName, QSettings::IniFormat);
    Texts texts;
    for (const auto &key : file.allKeys()) {
        const auto value = file.value(key);
        texts[key] = isColor(key) ? value.value<QColor>().name(QColor::HexArgb) : value.toString();
    }
    return texts;
}

void writeTexts(const QString &fileName, const Texts &texts)
{
    QSettings file(fileName, QSettings::IniFormat);
    file.clear();
    for (auto text = texts.cbegin(); text != texts.cend(); ++text)
        file.setValue(text.key(), isColor(text.key()) ? QVariant(QColor(text.value())) : QVariant(text.value()));
}

Texts defaultTexts()
{
    const auto zone = QTimeZone::systemTimeZoneId();
    auto text = QString(configDefaults).simplified();
    text.replace("%ZONE%", zone.isEmpty() ? "LCL" : QString::fromUtf8(zone));
    text.replace("%DATA%", AppPaths::appDataDir());
    Texts texts;
    for (const auto &pair : text.split(' '))
        texts[pair.section('=', 0, 0)] = pair.section('=', 1);
    return texts;
}

// For values whose texts are not free.
const Texts chosenTexts{{"displayCenterCoordinate", "335130S0702500W"}, {"inputUdpMcastLanInterface1", "lo"},
    {"inputUdpMcastLanInterface2", "lo"}, {"inputUdpMcastAddress1", "224.1.2.3"}, {"inputUdpMcastAddress2", "ff02::5"},
    {"processorModeSEncapsulation", "raw-rssi"}, {"sensorType", "smr"}, {"sensorLocation", "335130.25S0702500.75W"},
    {"mapTileTopLayerProvider", "faa"}, {"mapTileBottomLayerProvider", "none"}, {"mapBingImagery", "road-gray"},
    {"mapGoogleLayer", "p"}, {"mapTiandituLayer", "ter"}, {"mapFaaChart", "ifr-high"},
    {"sensorRadarRotationPeriod", "12.345678901234567"}, {"sensorRadarAntennaAltitude", "-412"},
    {"mapTileProxyPassword", "@pass\"word;\\1"}};

// Another value than the default for every key, no two alike where the type leaves a choice.
Texts otherTexts()
{
    auto texts = defaultTexts();
    int number = 1;
    for (auto text = texts.begin(); text != texts.end(); ++text, ++number) {
        bool isNumber = false;
        const double value = text->toDouble(&isNumber);
        if (chosenTexts.contains(text.key()))
            *text = chosenTexts[text.key()];
        else if (*text == "true" || *text == "false")
            *text = *text == "true" ? "false" : "true";
        else if (isNumber)
            *text = QString::number(text.key().startsWith("sensorS") ? number : value + number);
        else if (isColor(text.key()))
            *text = QColor(number, 255 - number, 7).name(QColor::HexArgb);
        else
            *text = text.key() + ", 1";
    }
    return texts;
}

// The names of the numbers 0 to 3; the last is one too many, as it may come from a file.
template <typename Enum>
QStringList namesOf(QString (*name)(Enum))
{
    return {name(Enum(0)), name(Enum(1)), name(Enum(2)), name(Enum(3))};
}

QByteArray bytesOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

void tst_Config::writesEveryDefault()
{
    Config().save(path("defaults.conf"));
    auto texts = textsOf(path("defaults.conf"));
    const auto expected = defaultTexts();
    for (auto text = expected.begin(); text != expected.end(); ++text) {
        if (*text == "*" && texts[text.key()].startsWith("#ff"))
            texts[text.key()] = "*";
        QVERIFY2(texts[text.key()] == *text, qPrintable(text.key() + '=' + texts[text.key()]));
    }
    QCOMPARE(texts.keys(), expected.keys());
}

void tst_Config::readsAndWritesEveryKey()
{
    writeTexts(path("other.conf"), otherTexts());
    Config config;
    config.load(path("other.conf"));
    const Config copied = config;
    copied.save(path("written.conf"));
    QCOMPARE(textsOf(path("written.conf")), otherTexts());

    config.reset();
    config.save(path("reset.conf"));
    Config().save(path("defaults.conf"));
    QCOMPARE(textsOf(path("reset.conf")), textsOf(path("defaults.conf")));
}

void tst_Config::keepsWhatAFileLacks_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("no file") << QByteArray();
    QTest::newRow("empty file") << QByteArray("\n");
    QTest::newRow("other keys only") << QByteArray("[General]\nsomebodyElse=1\n[inputComm]\ninputComm=2\n");
    QTest::newRow("no settings at all") << QByteArray("\x7f"
                                                      "ELF\x02\x01\n]]==\n");
}

void tst_Config::keepsWhatAFileLacks()
{
    QFETCH(const QByteArray, content);
    const auto fileName = path(QTest::currentDataTag());
    if (!content.isEmpty()) {
        QFile file(fileName);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    writeTexts(path("other.conf"), otherTexts());
    Config config;
    config.load(path("other.conf"));
    config.load(fileName);
    config.save(path("kept.conf"));
    QCOMPARE(textsOf(path("kept.conf")), otherTexts());
}

void tst_Config::convertsWhatItCan_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("read");
    QTest::addColumn<QString>("written");
    const auto row = [](const char *key, const char *read, const char *written) {
        QTest::addRow("%s=%s", key, read) << key << read << written;
    };
    row("inputSerialBaudRate", "fast", "0");
    row("inputUdpPort1", "-1", "0");
    row("sensorRadarRotationPeriod", "4,0", "0");
    row("displayToolbarText", "0", "false");
    row("inputComm", "7", "7");
    row("inputUdpMcastAddress1", "nowhere", "");
    row("inputUdpMcastLanInterface1", "nosuch0", "");
    row("displayCenterCoordinate", "40.05,116.73", "");
    row("displayCenterCoordinate", "395427.35N1162317.08E", "395427N1162317E");
    row("sensorLocation", "395427N1162317E", "395427.00N1162317.00E");
    row("sensorType", "Radar", "nil");
    row("sensorType", "wam", "mlat");
    row("sensorType", "atcas", "sdps");
    row("sensorType", "atm", "sdps");
    row("trackLabelColor", "#102030", "#ff102030");
}

void tst_Config::convertsWhatItCan()
{
    QFETCH(const QString, key);
    QFETCH(const QString, read);
    QFETCH(const QString, written);
    QSettings(path("odd.conf"), QSettings::IniFormat).setValue(key, read);
    Config config;
    config.load(path("odd.conf"));
    config.save(path("even.conf"));
    QCOMPARE(textsOf(path("even.conf"))[key], written);
}

void tst_Config::storesEnumerationsAsTexts_data()
{
    QTest::addColumn<QStringList>("texts"); // the key, then the texts, first that for what is unknown
    const QStringList services{"none", "bingmaps", "openaip", "googlemaps", "tianditu", "tiandituannotation", "faa"};
    const QList<QStringList> rows{{"processorModeSEncapsulation", "beast", "raw", "avr", "raw-rssi"},
        {"sensorType", "nil", "radar", "adsb", "mlat", "sdps", "smr"},
        QStringList{"mapTileTopLayerProvider"} + services, QStringList{"mapTileBottomLayerProvider"} + services,
        {"mapBingImagery", "aerial", "aerial-label", "road", "road-lite", "road-gray", "road-dark"},
        {"mapGoogleLayer", "r", "h", "t", "s", "m", "y", "p"}, {"mapTiandituLayer", "img", "vec", "ter"},
        {"mapFaaChart", "vfr-sectional", "vfr-terminal", "ifr-area-low", "ifr-high"}};
    for (const auto &row : rows)
        QTest::newRow(qPrintable(row.first())) << row;
}

void tst_Config::storesEnumerationsAsTexts()
{
    QFETCH(QStringList, texts);
    const auto key = texts.takeFirst();
    for (const auto &text : texts + QStringList{"nonsense"}) {
        writeTexts(path("enumeration.conf"), {{key, text}});
        Config config;
        config.load(path("enumeration.conf"));
        config.save(path("enumeration.conf"));
        QCOMPARE(textsOf(path("enumeration.conf"))[key], texts.contains(text) ? text : texts.first());
    }
}

void tst_Config::namesEnumerations()
{
    QCOMPARE(namesOf(Config::inputMethodName),
        (QStringList{"UDP", "Async Serial", "Recording File", "Unknown Input Method"}));
    QCOMPARE(namesOf(Config::processorName),
        (QStringList{
            "ASTERIX Processor", "1090ES ADS-B Processor", "Alenia SIR-M Radar Processor", "Unknown Processor"}));
    QCOMPARE(namesOf(Config::asterixFormatName),
        (QStringList{"Raw ASTERIX Datablock(s)", "HDLC Frame", "ManagAir Message", "Unknown Format"}));
    QCOMPARE(namesOf(Config::aleniaSirMFormatName),
        (QStringList{"Raw Radar Data", "HDLC Frame", "ManagAir Message", "Unknown Format"}));
}

void tst_Config::ignoresTheAlphaOfLayerColors()
{
    Texts texts{{"mapWeatherColor0", "#00112233"}, {"mapWeatherColor7", "#40112233"},
        {"mapVideoHighColor", "#00445566"}, {"mapVideoLowColor", "#80445566"}, {"trackLabelColor", "#80ffffff"}};
    writeTexts(path("alpha.conf"), texts);
    Config config;
    config.load(path("alpha.conf"));
    for (const auto &color : {config.mapWeatherColor.first(), config.mapWeatherColor.last()})
        QCOMPARE(color.name(QColor::HexArgb), QStringLiteral("#ff112233"));
    for (const auto &color : {config.mapVideoHighColor, config.mapVideoLowColor})
        QCOMPARE(color.name(QColor::HexArgb), QStringLiteral("#ff445566"));
    QCOMPARE(config.trackLabelColor.alpha(), 128);
}

void tst_Config::neverTakesTheNumberOfWeatherColorsFromAFile()
{
    writeTexts(path("nine.conf"), {{"mapWeatherColor2", "#ff010203"}, {"mapWeatherColor8", "#ff040506"}});
    Config config;
    config.load(path("nine.conf"));
    QCOMPARE(config.mapWeatherColor.size(), 8);
    QCOMPARE(config.mapWeatherColor.at(2), QColor(1, 2, 3));
    QCOMPARE(config.mapWeatherColor.at(3), Config().mapWeatherColor.at(3));
}

// The child saves two versions in turn; each is one file or the other, octet by octet, whenever the kill comes.
void tst_Config::survivesBeingKilled()
{
    constexpr int kills = 25;
    constexpr int longestLife = 12000; // microseconds
    Config version;
    version.save(path("first.conf"));
    version.sensorName = QString(50000, QLatin1Char('x'));
    version.save(path("second.conf"));
    const QList<QByteArray> versions{bytesOf(path("first.conf")), bytesOf(path("second.conf"))};
    QVERIFY(versions.at(0) != versions.at(1));

    const auto fileName = path("killed.conf");
    Config().save(fileName);
    QRandomGenerator random(1);
    for (int kill = 0; kill < kills; ++kill) {
        QProcess child;
        child.start(QCoreApplication::applicationDirPath() + "/app_child", {"save", fileName});
        QVERIFY(child.waitForReadyRead());
        QThread::usleep(static_cast<unsigned long>(random.bounded(longestLife)));
        child.kill();
        QVERIFY(child.waitForFinished());
        QVERIFY2(versions.contains(bytesOf(fileName)), qPrintable(QString::number(kill)));
    }
}

QTEST_GUILESS_MAIN(tst_Config)
#include "tst_config.moc"
