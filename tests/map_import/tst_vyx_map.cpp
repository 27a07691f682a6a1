#include "vyx-map/convert_command.h"
#include "vyx-map/info_command.h"

#include "maps/map_index.h"
#include "maps/map_style_sheet.h"
#include "test_files.h"
#include "test_program.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPolygonF>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

class TestVyxMap : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QStringList m_out;
    QStringList m_err;

    // The exit status of a command line; 2 where it makes no sense.
    int run(const QStringList &arguments)
    {
        m_out.clear();
        m_err.clear();
        CommandLine command;
        QString error;
        if (!CommandLine::parse(arguments, command, error)) {
            m_err.append(error);
            return 2;
        }
        const LineSink out = [this](const QString &line) { m_out.append(line.simplified()); };
        const LineSink err = [this](const QString &line) { m_err.append(line); };
        return command.verb == CommandLine::Verb::Info ? runInfo(command, {}, out, err) : runConvert(command, {}, err);
    }

    QString written(const QString &name, const QByteArray &contents)
    {
        return writtenTo(m_folder.filePath(name), contents);
    }

    static MapData readMap(const QString &name, MapFile::Format format)
    {
        const auto file = MapFile::create(format);
        return file->open(QFileInfo(name), format, QIODevice::ReadOnly) ? file->read() : MapData();
    }

private Q_SLOTS:
    void refusesArguments_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("error"); // part of it
        QTest::newRow("nothing") << QStringList{} << "--help";
        QTest::newRow("unknown suffix") << QStringList{"info", "a.txt"} << "--from";
        QTest::newRow("option of convert") << QStringList{"info", "--tolerance", "5", "a.kml"} << "unknown option";
        QTest::newRow("no output") << QStringList{"convert", "a.map"} << "a file to write";
        QTest::newRow("read only") << QStringList{"convert", "a.map", "b.mapx"} << "no format \"legacy\"";
        QTest::newRow("system") << QStringList{"info", "a.kml", "--epsg", "WGS84"} << "reference system";
        QTest::newRow("no value") << QStringList{"info", "a.kml", "--layer"} << "needs a value";
    }

    void refusesArguments()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, error);
        QCOMPARE(run(arguments), 2);
        QVERIFY2(m_err.value(0).contains(error), qPrintable(m_err.value(0)));
    }

    void convertsBetweenFormats()
    {
        const QString legacy = written("old.mapx", R"(<airport><default title="Old" edition="3"/>
            <line class="coast" comment="north"><point lat="50" lon="14"/><point lat="51" lon="15"/></line>
            <label class="fix" name="VLM" content="Vlasim" lat="49.5" lon="15"/></airport>)");
        const QString binary = m_folder.filePath("new.map");
        const QString xml = m_folder.filePath("new.xml");
        QCOMPARE(run({"convert", legacy, binary}), 0);
        QCOMPARE(run({"convert", binary, xml}), 0);
        const MapData map = readMap(binary, MapFile::Map);
        QCOMPARE(map.title, "Old");
        QCOMPARE(map.groups.size(), 2);
        QCOMPARE(readMap(xml, MapFile::Xml), map);

        QCOMPARE(run({"info", binary}), 0);
        for (const char *line : {"format map", "title Old", "version 3", "bounds 493000N0140000E to 510000N0150000E",
                 "coast coast 1 0 2 0 0 0", "fix fix 0 0 0 0 1 0"}) {
            QVERIFY2(m_out.contains(line), qPrintable(m_out.join('\n')));
        }
    }

    void importsWithOptions()
    {
        const QString file = written("town.geojson", R"({"type":"Feature","properties":{"title":"Praha"},
            "geometry":{"type":"Point","coordinates":[14.4,50.1]}})");
        const QString out = m_folder.filePath("town.xml");
        const int status = run({"convert", "--class", "town", "--name-property", "x,title", "--symbol", "square",
            "--no-labels", "--to", "xml", file, out});
        if (!MapImport::available()) {
            QCOMPARE(status, 1);
            QVERIFY(m_err.join(' ').contains(MapImport::missingText()));
            return;
        }
        QCOMPARE(status, 0);
        const MapElementGroup group = readMap(out, MapFile::Xml).groups.value(0);
        QCOMPARE(group.className, "town");
        QCOMPARE(group.symbols, (QList<MapSymbolElement>{{"Praha", "square", {50.1, 14.4}}}));
        QVERIFY(group.labels.isEmpty());
    }

    void saysWhatIsWrong()
    {
        QCOMPARE(run({"info", m_folder.filePath("absent.map")}), 1);
        QVERIFY(m_err.value(0).contains("does not exist"));
        const QString xml = written("images.xml",
            R"(<map><group name="g" class="c"><image name="i"><file>absent.png</file></image></group></map>)");
        QCOMPARE(run({"info", xml}), 0);
        QCOMPARE(m_out.last(), "missing image: absent.png");
        QCOMPARE(run({"convert", xml, m_folder.filePath("no/such/folder.map")}), 1);
        QCOMPARE(m_err.size(), 2); // about the image and about the folder
    }

    void defaultMapsAreWhole()
    {
        const QDir folder(MAPS_FOLDER);
        QString error;
        QList<MapIndexEntry> entries;
        for (const char *index : {"map.idx", "demo.idx"}) {
            const QList<MapIndexEntry> read = readMapIndex(folder.filePath(index), &error);
            QVERIFY2(read.size() >= 2, qPrintable(error));
            entries += read;
        }
        for (const QString &sheetName : folder.entryList({"*.mss"})) {
            MapStyleSheet sheet;
            QVERIFY2(sheet.load(folder.filePath(sheetName), &error), qPrintable(error));
            for (const MapIndexEntry &entry : entries) {
                const MapData map = readMap(folder.filePath(entry.file), entry.format);
                QVERIFY2(!map.groups.isEmpty(), qPrintable(entry.file));
                for (const MapElementGroup &group : map.groups) {
                    QVERIFY2(sheet.contains(group.className), qPrintable(sheetName + ": " + group.className));
                }
            }
        }
    }

    // What the scenarios' aircraft fly over is where the maps have it.
    void demoMapsFitTheScenarios()
    {
        const auto places = [](const char *scenario) {
            QFile file(QStringLiteral(SCENARIOS_FOLDER "/%1.json").arg(scenario));
            QHash<QString, GeoCoordinate> result;
            if (file.open(QIODevice::ReadOnly)) {
                for (const QJsonValue fix : QJsonDocument::fromJson(file.readAll())["fixes"].toArray()) {
                    result.insert(fix["name"].toString(), {fix["lat"].toDouble(), fix["lon"].toDouble()});
                }
            }
            return result;
        };
        const auto demoMap = [](const char *name) {
            return readMap(QStringLiteral(MAPS_FOLDER "/demo-%1.xml").arg(name), MapFile::Xml);
        };
        QHash<QString, GeoCoordinate> symbols;
        for (const MapElementGroup &group : demoMap("airspace").groups + demoMap("approach").groups) {
            for (const MapSymbolElement &symbol : group.symbols) {
                symbols.insert(symbol.name, symbol.coordinate);
            }
        }
        const auto fixes = places("demo");
        QVERIFY(fixes.size() > 20);
        for (auto fix = fixes.begin(); fix != fixes.end(); ++fix) {
            QVERIFY2(symbols.value(fix.key()).distanceTo(*fix) < 1.0, qPrintable(fix.key()));
        }
        const auto ground = places("smr");
        const QList<MapElementGroup> aerodrome = demoMap("aerodrome").groups;
        const auto within = [&](const char *name, const QString &styleClass) {
            const GeoCoordinate place = ground.value(name);
            return std::any_of(aerodrome.begin(), aerodrome.end(), [&](const MapElementGroup &group) {
                return group.className == styleClass
                    && std::any_of(group.polygons.begin(), group.polygons.end(), [&](const MapPolygonElement &area) {
                           QPolygonF outline;
                           for (const GeoCoordinate &point : area.points) {
                               outline.append({point.longitude(), point.latitude()});
                           }
                           return outline.containsPoint({place.longitude(), place.latitude()}, Qt::OddEvenFill);
                       });
            });
        };
        for (const char *name : {"STAND1", "STAND2", "STAND3", "STAND4", "STAND5", "STAND6", "N1", "M2", "S1"}) {
            QVERIFY2(within(name, "apron") && !within(name, "building"), name);
        }
        for (const char *name : {"A1", "A2", "A3", "A4", "A5", "B1", "B3", "B5"}) {
            QVERIFY2(within(name, "taxiway") && !within(name, "runway"), name);
        }
        for (const char *name : {"WESTX", "EASTX"}) {
            QVERIFY2(within(name, "runway"), name);
        }
    }
};

VYX_TEST(TestVyxMap)
#include "tst_vyx_map.moc"
