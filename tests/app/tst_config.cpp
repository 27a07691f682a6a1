#include "app/app_identity.h"
#include "app/app_paths.h"
#include "app/config.h"
#include "app/setting.h"
#include "config_defaults.h"
#include "test_files.h"
#include "test_program.h"

#include <QProcess>
#include <QRandomGenerator>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QTimeZone>

#include <algorithm>

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
    for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
        file.setValue(text.key(), isColor(text.key()) ? QVariant(QColor(text.value())) : QVariant(text.value()));
    }
}

Texts defaultTexts()
{
    const auto zone = QTimeZone::systemTimeZoneId();
    auto text = QString(ConfigDefaults).simplified();
    text.replace("%ZONE%", zone.isEmpty() ? "LCL" : QString::fromUtf8(zone));
    text.replace("%DATA%", AppPaths::appDataDir());
    Texts texts;
    for (const auto &pair : text.split(' ')) {
        texts[pair.section('=', 0, 0)] = pair.section('=', 1);
    }
    return texts;
}

// For values whose texts are not free.
const Texts chosenTexts{{"displayCenterCoordinate", "335130S0702500W"}, {"inputUdpMcastLanInterface1", "lo"},
    {"inputUdpMcastLanInterface2", "usb7"}, {"inputUdpMcastAddress1", "224.1.2.3"},
    {"inputUdpMcastAddress2", "ff02::5"}, {"processorModeSEncapsulation", "raw-rssi"}, {"sensorType", "smr"},
    {"sensorLocation", "335130.25S0702500.75W"}, {"mapTileTopLayerProvider", "faa"},
    {"mapTileBottomLayerProvider", "none"}, {"mapBingImagery", "road-gray"}, {"mapGoogleLayer", "p"},
    {"mapTiandituLayer", "ter"}, {"mapFaaChart", "ifr-high"}, {"sensorRadarRotationPeriod", "12.345678901234567"},
    {"sensorRadarAntennaAltitude", "-412"}, {"mapTileProxyPassword", "@pass\"word;\\1"}};

// Another value than the default for every key, no two alike where the type leaves a choice.
Texts otherTexts()
{
    auto texts = defaultTexts();
    int number = 1;
    for (auto text = texts.begin(); text != texts.end(); ++text, ++number) {
        bool isNumber = false;
        const double value = text->toDouble(&isNumber);
        if (chosenTexts.contains(text.key())) {
            *text = chosenTexts[text.key()];
        } else if (*text == "true" || *text == "false") {
            *text = *text == "true" ? "false" : "true";
        } else if (isNumber) {
            *text = QString::number(text.key().startsWith("sensorS") ? number : value + number);
        } else if (isColor(text.key())) {
            *text = QColor(number, 255 - number, 7).name(QColor::HexArgb);
        } else {
            *text = text.key() + ", 1";
        }
    }
    return texts;
}

} // namespace

class TestConfig : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setApplicationIdentity(); } // as the child does: paths hold it

    void writesEveryDefault()
    {
        Config().save(path("defaults.conf"));
        auto texts = textsOf(path("defaults.conf"));
        const auto expected = defaultTexts();
        for (auto text = expected.begin(); text != expected.end(); ++text) {
            if (*text == "*" && texts[text.key()].startsWith("#ff")) {
                texts[text.key()] = "*";
            }
            QVERIFY2(texts[text.key()] == *text, qPrintable(text.key() + '=' + texts[text.key()]));
        }
        QCOMPARE(texts.keys(), expected.keys());
    }

    void readsAndWritesEveryKey()
    {
        writeTexts(path("other.conf"), otherTexts());
        Config config;
        config.load(path("other.conf"));
        config.save(path("written.conf"));
        QCOMPARE(textsOf(path("written.conf")), otherTexts());

        config.reset();
        config.save(path("reset.conf"));
        Config().save(path("defaults.conf"));
        QCOMPARE(textsOf(path("reset.conf")), textsOf(path("defaults.conf")));
    }

    void keepsWhatAFileLacks()
    {
        writeTexts(path("other.conf"), otherTexts());
        Config config;
        config.load(path("other.conf"));
        config.load(path("no such file"));
        for (const char *content : {"[General]\nsomebodyElse=1\n[inputComm]\ninputComm=2\n", "\x02\x01\n]]==\n"}) {
            config.load(writtenTo(path("lacking.conf"), content));
        }
        config.save(path("kept.conf"));
        QCOMPARE(textsOf(path("kept.conf")), otherTexts());
    }

    // Each setting by itself: what it copies, and the groups that it changes.
    void tellsWhatChanged()
    {
        writeTexts(path("other.conf"), otherTexts());
        Config other;
        other.load(path("other.conf"));
        for (const Setting &setting : Setting::all()) {
            Config changed;
            setting.copy(other, changed);
            QVERIFY2(!setting.same(changed, Config()), qPrintable(setting.key()));
            for (const Setting &another : Setting::all()) {
                QVERIFY2(another.key() == setting.key() || another.same(changed, Config()), qPrintable(setting.key()));
            }
            QCOMPARE(Config::changedGroups(Config(), changed), setting.groups());
        }
        QCOMPARE(Config::changedGroups(other, other), SettingGroups());
        QCOMPARE(Setting::of(&Config::mapRangeRingDistance).key(), QStringLiteral("mapRangeRingDistance"));
    }

    void convertsWhatItCan_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("read");
        QTest::addColumn<QString>("written");
        const auto row = [](const char *key, const char *read, const char *written) {
            QTest::addRow("%s=%s", key, read) << key << read << written;
        };
        row("inputSerialBaudRate", "fast", "0");
        row("inputUdpPort1", "-1", "0");
        row("inputUdpMcastAddress1", "nowhere", "");
        row("displayCenterCoordinate", "40.05,116.73", "");
        row("displayCenterCoordinate", "395427.35N1162317.08E", "395427N1162317E");
        row("sensorLocation", "395427N1162317E", "395427.00N1162317.00E");
        row("sensorType", "Radar", "nil");
        row("sensorType", "atcas", "sdps");
    }

    void convertsWhatItCan()
    {
        QFETCH(const QString, key);
        QFETCH(const QString, read);
        QSettings(path("odd.conf"), QSettings::IniFormat).setValue(key, read);
        Config config;
        config.load(path("odd.conf"));
        config.save(path("even.conf"));
        QTEST(textsOf(path("even.conf"))[key], "written");
    }

    void storesEnumerationsAsTexts()
    {
        const QStringList services{
            "none", "bingmaps", "openaip", "googlemaps", "tianditu", "tiandituannotation", "faa", "custom"};
        // The texts of a key, first that for what is unknown.
        const QList<std::pair<QString, QStringList>> rows{
            {"processorModeSEncapsulation", {"beast", "raw", "avr", "raw-rssi"}},
            {"sensorType", {"nil", "radar", "adsb", "mlat", "sdps", "smr"}}, {"mapTileTopLayerProvider", services},
            {"mapTileBottomLayerProvider", services},
            {"mapBingImagery", {"aerial", "aerial-label", "road", "road-lite", "road-gray", "road-dark"}},
            {"mapGoogleLayer", {"r", "h", "t", "s", "m", "y", "p"}}, {"mapTiandituLayer", {"img", "vec", "ter"}},
            {"mapFaaChart", {"vfr-sectional", "vfr-terminal", "ifr-area-low", "ifr-high"}}};
        for (const auto &[key, texts] : rows) {
            for (const auto &text : texts + QStringList{"nonsense"}) {
                writeTexts(path("enumeration.conf"), {{key, text}});
                Config config;
                config.load(path("enumeration.conf"));
                config.save(path("enumeration.conf"));
                QCOMPARE(textsOf(path("enumeration.conf"))[key], texts.contains(text) ? text : texts.first());
            }
        }
    }

    void ignoresTheAlphaOfLayerColors()
    {
        writeTexts(path("alpha.conf"),
            {{"mapWeatherColor7", "#40112233"}, {"mapWeatherColor8", "#ff040506"}, {"mapVideoHighColor", "#00445566"},
                {"mapVideoLowColor", "#80445566"}, {"trackLabelColor", "#80ffffff"}});
        Config config;
        config.load(path("alpha.conf"));
        QCOMPARE(config.mapWeatherColor.size(), 8); // whatever the file holds
        QCOMPARE(config.mapWeatherColor.last(), QColor(0x11, 0x22, 0x33));
        for (const auto &color : {config.mapVideoHighColor, config.mapVideoLowColor}) {
            QCOMPARE(color, QColor(0x44, 0x55, 0x66));
        }
        QCOMPARE(config.trackLabelColor.alpha(), 128);
    }

    // The child saves two versions in turn; each is one file or the other, octet by octet, whenever the kill comes.
    void survivesBeingKilled()
    {
        const int kills = std::max(25, qEnvironmentVariableIntValue("VYX_TEST_KILLS"));
        constexpr int LongestLife = 12000; // microseconds
        Config version;
        version.save(path("first.conf"));
        version.sensorName = QString(50000, QLatin1Char('x'));
        version.save(path("second.conf"));
        const QList<QByteArray> versions{contentsOf(path("first.conf")), contentsOf(path("second.conf"))};
        QVERIFY(versions.at(0) != versions.at(1));

        const auto fileName = path("killed.conf");
        Config().save(fileName);
        QRandomGenerator random(1);
        for (int kill = 0; kill < kills; ++kill) {
            QProcess child;
            child.start(QCoreApplication::applicationDirPath() + "/app_child", {"save", fileName});
            QVERIFY(child.waitForReadyRead());
            QThread::usleep(static_cast<unsigned long>(random.bounded(LongestLife)));
            child.kill();
            QVERIFY(child.waitForFinished());
            QVERIFY2(versions.contains(contentsOf(fileName)), qPrintable(QString::number(kill)));
        }
    }

private:
    QString path(const char *name) const { return m_directory.filePath(QLatin1String(name)); }

    QTemporaryDir m_directory;
};

VYX_TEST(TestConfig)
#include "tst_config.moc"
