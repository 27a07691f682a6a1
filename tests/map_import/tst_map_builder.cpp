#include "map_import/map_builder.h"

#include "map_import/airspace_feature.h"
#include "test_program.h"

#include <QTest>

using Properties = QList<QPair<QString, QString>>;

class TestMapBuilder : public QObject {
    Q_OBJECT

private:
    static ImportFeature point(const Properties &properties)
    {
        return {QStringLiteral("places"), properties, {{14.26, 50.1}}, {}, {}};
    }

    static MapData built(const ImportFeature &feature, const MapImport::Options &options = {})
    {
        MapBuilder builder(options);
        builder.add(feature);
        return builder.map();
    }

private Q_SLOTS:
    void describesPoints_data()
    {
        QTest::addColumn<Properties>("properties");
        QTest::addColumn<QString>("seen"); // class, symbol, name of the symbol, caption of the label
        QTest::newRow("nothing known") << Properties{} << "places dot";
        QTest::newRow("name serves as caption")
            << Properties{{"NAME", "Praha"}, {"class", "airport"}} << "airport airport Praha Praha";
        QTest::newRow("code where there is no name")
            << Properties{{"name", " "}, {"icao", "LKPR"}} << "places dot LKPR LKPR";
        QTest::newRow("symbol and caption of its own") << Properties{{"name", "Vlasim"}, {"caption", "VLM"},
            {"Type", "navaid"}, {"symbol", "VOR"}} << "navaid vor Vlasim VLM";
        QTest::newRow("numbers are no classes") << Properties{{"type", "3"}, {"class", "fix"}} << "fix waypoint";
        QTest::newRow("drawn text is a label only")
            << Properties{{"Layer", "NAMES"}, {"Text", "RWY 24"}} << "NAMES RWY 24";
    }

    void describesPoints()
    {
        QFETCH(Properties, properties);
        const MapElementGroup group = built(point(properties)).groups.value(0);
        QStringList seen{group.className};
        for (const MapSymbolElement &symbol : group.symbols) {
            seen << symbol.type << symbol.name;
        }
        for (const MapLabelElement &label : group.labels) {
            seen << label.caption;
        }
        QTEST(seen.join(' ').trimmed(), "seen");
    }

    void obeysOptions()
    {
        const ImportFeature place = point({{"title", "Praha"}, {"kind", "town"}});
        MapImport::Options options;
        options.nameProperties = {"TITLE"};
        options.classProperties = {"kind"};
        options.symbolType = "square";
        MapElementGroup group = built(place, options).groups.value(0);
        QCOMPARE(group.className, "town");
        QCOMPARE(group.symbols.value(0), (MapSymbolElement{"Praha", "square", {50.1, 14.26}}));
        QCOMPARE(group.labels.value(0).caption, "Praha");

        options.pointSymbols = options.pointLabels = options.fillAreas = false;
        group = built({"areas", {}, place.points, {}, {{{{0, 0}, {9, 0}, {9, 9}}, {{5, 2}, {7, 2}, {7, 4}}}}}, options)
                    .groups.value(0);
        QVERIFY(group.symbols.isEmpty() && group.labels.isEmpty() && group.polygons.isEmpty());
        QCOMPARE(group.polylines.size(), 2);
        QCOMPARE(group.polylines[1].points.first(), group.polylines[1].points.last());
    }

    void describesAirspaces_data()
    {
        QTest::addColumn<Properties>("properties");
        QTest::addColumn<QString>("className");
        QTest::addColumn<QString>("caption"); // empty: no label
        const QString ground = R"({"value":0,"unit":1,"referenceDatum":0})";
        const QString level = R"({"value":60,"unit":6,"referenceDatum":2})";
        QTest::newRow("control zone") << Properties{{"name", "PRAHA"}, {"type", "4"}, {"icaoClass", "3"},
            {"lowerLimit", ground}, {"upperLimit", level}}
                                      << "ctr"
                                      << "CTR PRAHA\nGND-FL060";
        QTest::newRow("name says the kind") << Properties{{"name", "CTR BRNO"}, {"type", "4"}, {"lowerLimit", ground},
            {"upperLimit", R"({"value":4000,"unit":1,"referenceDatum":1})"}}
                                            << "ctr"
                                            << "CTR BRNO\nGND-4000FT";
        QTest::newRow("danger area") << Properties{{"name", "LKD7"}, {"type", "2"},
            {"lowerLimit", R"({"value":1000,"unit":1,"referenceDatum":0})"},
            {"upperLimit", R"({"value":999,"unit":6,"referenceDatum":2})"}}
                                     << "danger"
                                     << "LKD7\n1000FT AGL-UNL";
        QTest::newRow("texts for everything")
            << Properties{{"name", "LKR9"}, {"type", "restricted"}, {"lower", "GND"}, {"upper", "FL 95"}}
            << "restricted"
            << "RESTRICTED LKR9\nGND-FL 95";
        QTest::newRow("class without limits") << Properties{{"type", "7"}, {"icaoClass", "2"}} << "tma"
                                              << "TMA";
        QTest::newRow("no airspace: a type alone") << Properties{{"name", "Lake"}, {"type", "2"}} << "places"
                                                   << "";
    }

    void describesAirspaces()
    {
        QFETCH(Properties, properties);
        const MapElementGroup group =
            built({"places", properties, {}, {}, {{{{14, 50}, {15, 50}, {15, 51}}}}}).groups.value(0);
        QTEST(group.className, "className");
        QTEST(group.labels.value(0).caption, "caption");
        QCOMPARE(group.polygons.size(), 1);
    }

    void labelsTheLargestPartOnce()
    {
        const LonLatArea islet{{{0, 0}, {1, 0}, {1, 1}}};
        const LonLatArea main{{{174, 10}, {190, 10}, {-170, 20}, {174, 20}}};
        const Properties properties{{"name", "OCEANIC"}, {"type", "10"}, {"upper", "UNL"}};
        const MapElementGroup group = built({"x", properties, {}, {}, {islet, main}}).groups.value(0);
        QCOMPARE(group.polygons.size(), 2);
        QCOMPARE(group.polygons[1].points[1], GeoCoordinate(10, -170));
        QCOMPARE(group.labels.size(), 1);
        QVERIFY(group.labels[0].coordinate.distanceTo({15, -178}) < 10'000);
    }
};

VYX_TEST(TestMapBuilder)
#include "tst_map_builder.moc"
