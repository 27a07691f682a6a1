#include "map_import/map_import.h"
#include "test_files.h"
#include "test_program.h"

#include <QDataStream>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

class TestMapImport : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QString m_error;
    MapImport::Report m_report;

    QString written(const QString &name, const QByteArray &contents)
    {
        return writtenTo(m_folder.filePath(name), contents);
    }

    MapData read(const QString &file, const MapImport::Options &options = {})
    {
        return MapImport::read(file, options, nullptr, &m_error, &m_report);
    }

    // One point in the layout of a Shapefile's main file.
    QString writtenShapefile(const QString &name, const QPointF &point, const QByteArray &system)
    {
        QByteArray octets;
        QDataStream head(&octets, QIODevice::WriteOnly);
        head << 9994 << 0 << 0 << 0 << 0 << 0 << 128 / 2;
        QDataStream values(&octets, QIODevice::Append);
        values.setByteOrder(QDataStream::LittleEndian);
        values << 1000 << 1 << point << point << QPointF() << QPointF();
        head.device()->seek(octets.size());
        head << 1 << 10;
        values.device()->seek(octets.size());
        values << 1 << point;
        written(name + ".shx",
            octets.first(100).replace(24, 4, QByteArray("\0\0\0\x36", 4)) + QByteArray("\0\0\0\x32\0\0\0\x0a", 8));
        written(name + ".prj", system);
        return written(name + ".shp", octets);
    }

    // Classes with their elements: lines and areas with the number of points, symbols with their names, captions.
    static QStringList described(const MapData &map)
    {
        QStringList groups;
        for (const MapElementGroup &group : map.groups) {
            QString text = group.className + ':';
            for (const MapPolylineElement &line : group.polylines) {
                text += " line" + QString::number(line.points.size());
            }
            for (const MapPolygonElement &polygon : group.polygons) {
                text += " area" + QString::number(polygon.points.size());
            }
            for (const MapSymbolElement &symbol : group.symbols) {
                text += ' ' + symbol.type + ' ' + symbol.name;
            }
            for (const MapLabelElement &label : group.labels) {
                text += " \"" + label.caption + '"';
            }
            groups.append(text);
        }
        return groups;
    }

private Q_SLOTS:
    void readsGeoJson()
    {
        const MapData map = read(written("area.geojson", R"({"type":"FeatureCollection","features":[
            {"type":"Feature","properties":{"name":"BRNO","type":4,"lowerLimit":{"value":0,"unit":1,"referenceDatum":0},
             "upperLimit":{"value":60,"unit":6,"referenceDatum":2}},"geometry":{"type":"MultiPolygon","coordinates":
             [[[[16,49],[17,49],[17,50],[16,49]]],[[[18,49],[19,49],[19,50],[18,49]],[[18.5,49.1],[18.9,49.1],[18.9,49.4],
             [18.5,49.1]]]]}},
            {"type":"Feature","properties":{"class":"route"},"geometry":{"type":"GeometryCollection","geometries":[
             {"type":"LineString","coordinates":[[16,49],[17,50,1000]]},{"type":"Point","coordinates":[16,49]}]}},
            {"type":"Feature","properties":{},"geometry":null},
            {"type":"Feature","properties":{},"geometry":{"type":"Polygon","coordinates":[[[1,1],[2,2],[1,1]]]}},
            {"type":"Feature","properties":{},"geometry":{"type":"Point","coordinates":[500000,49]}}]})"));
        QCOMPARE(m_error, QString());
        QCOMPARE(map.name, "area");
        QCOMPARE(described(map), (QStringList{"ctr: area3 area8 \"CTR BRNO\nGND-FL060\"", "route: line2 dot "}));
        QCOMPARE(map.groups[1].polylines[0].points, (QList<GeoCoordinate>{{49, 16}, {50, 17}}));
        QCOMPARE(m_report.features, 2);
        QCOMPARE(m_report.skipped, 3);
        QCOMPARE(m_report.messages.size(), 2);
    }

    void readsKml()
    {
        const QString file = written("fixes.kml", R"(<kml><Document>
            <Folder><name>fix</name><Placemark><name>VLM</name><Point><coordinates>15.07,49.7,0</coordinates></Point>
            </Placemark></Folder><Folder><name>coast</name><Placemark><LineString><coordinates>1,2 3,4</coordinates>
            </LineString></Placemark></Folder></Document></kml>)");
        QCOMPARE(described(read(file)), (QStringList{"fix: waypoint VLM \"VLM\"", "coast: line2"}));
        MapImport::Options options;
        options.layers = {"coast"};
        QCOMPARE(described(read(file, options)), QStringList{"coast: line2"});
        options.layers = {"roads"};
        read(file, options);
        QVERIFY2(m_error.contains("roads") && m_error.contains("fix, coast"), qPrintable(m_error));
    }

    void readsDxf()
    {
        const QString file = written("apron.dxf",
            "0\nSECTION\n2\nENTITIES\n0\nLINE\n8\nrunway\n10\n14.2\n20\n50.1\n11\n14.3\n21\n50.2\n"
            "0\nTEXT\n8\nnames\n10\n14.2\n20\n50.1\n40\n1\n1\nLKPR\n0\nENDSEC\n0\nEOF\n");
        QCOMPARE(described(read(file)), (QStringList{"runway: line2", "names: \"LKPR\""}));
    }

    void transformsShapefiles()
    {
        // Zone 33 north: 15 degrees east is its middle, at 500 km.
        const QByteArray utm = R"(PROJCS["WGS_1984_UTM_Zone_33N",GEOGCS["GCS_WGS_1984",DATUM["D_WGS_1984",
            SPHEROID["WGS_1984",6378137.0,298.257223563]],PRIMEM["Greenwich",0.0],UNIT["Degree",0.0174532925199433]],
            PROJECTION["Transverse_Mercator"],PARAMETER["False_Easting",500000.0],PARAMETER["False_Northing",0.0],
            PARAMETER["Central_Meridian",15.0],PARAMETER["Scale_Factor",0.9996],PARAMETER["Latitude_Of_Origin",0.0],
            UNIT["Meter",1.0]])";
        const QString known = writtenShapefile("known", {500000, 5538630.7}, utm);
        const QString unknown = writtenShapefile("unknown", {500000, 5538630.7}, {});
        MapImport::Options stated;
        stated.epsg = 32633;
        for (const MapData &map : {read(known), read(unknown, stated)}) {
            const GeoCoordinate place = map.groups.value(0).symbols.value(0).coordinate;
            QVERIFY2(place.distanceTo(GeoCoordinate(50, 15)) < 5, qPrintable(place.toString()));
        }
        QCOMPARE(read(unknown), MapData());
        QVERIFY2(m_error.contains("outside of the globe"), qPrintable(m_error));
        stated.epsg = 99999999;
        read(unknown, stated);
        QVERIFY2(m_error.contains("99999999"), qPrintable(m_error));
    }

    void refuses()
    {
        for (const auto &[contents, error] :
            {std::pair{"hello", "Cannot read"}, {R"({"type":"FeatureCollection","features":[{"type":)", "Cannot read"},
                {R"({"type":"FeatureCollection","features":[]})", "Nothing in"}}) {
            QCOMPARE(read(written("bad.geojson", contents)), MapData());
            QVERIFY2(m_error.contains(error), qPrintable(m_error));
        }
        read(m_folder.filePath("absent.kml"));
        QVERIFY(m_error.contains("does not exist"));
    }

    void canBeCancelled()
    {
        const QByteArray line(R"({"type":"Feature","properties":{},"geometry":{"type":"Point","coordinates":[1,2]}})");
        const QString file = written(
            "many.geojson", R"({"type":"FeatureCollection","features":[)" + (line + ',').repeated(999) + line + "]}");
        QList<int> percents;
        for (const int last : {1, 75, 101}) { // while the file is opened, while its features are read, not at all
            percents.clear();
            const auto progress = [&percents, last](int percent) {
                percents.append(percent);
                return percent < last;
            };
            QCOMPARE(MapImport::read(file, {}, progress, &m_error).groups.isEmpty(), last <= 100);
            QCOMPARE(m_error.contains("cancelled"), last <= 100);
            const auto tooMany =
                std::count_if(percents.begin(), percents.end(), [last](int percent) { return percent >= last; });
            QCOMPARE(static_cast<int>(tooMany), last <= 100 ? 1 : 0);
            QVERIFY(std::is_sorted(percents.begin(), percents.end()));
        }
        QCOMPARE(percents.last(), 100);
    }
};

VYX_TEST(TestMapImport)
#include "tst_map_import.moc"
