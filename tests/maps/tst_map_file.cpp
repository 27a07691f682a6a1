#include "map_samples.h"
#include "test_program.h"

#include <QDataStream>
#include <QDir>
#include <QTemporaryDir>

namespace {

// A file of the first version, which has no names of image files.
QByteArray versionOne(const QPixmap &pixmap)
{
    QByteArray octets("MAP1");
    QDataStream out(&octets, QIODevice::Append);
    out.setVersion(17);
    const quint32 none = 0;
    const quint32 one = 1;
    for (const char *text : {"name", "title", "author", "version", "description", "comment"}) {
        out << QString(text);
    }
    out << one << QString("group") << QString("class");
    out << one << QString("line") << quint32(2) << 50.0 << 8.0 << qQNaN() << 51.5 << -9.25 << 100.0;
    out << none;
    out << one << QString("label") << QString("caption") << 1.0 << 2.0 << qQNaN();
    out << one << QString("symbol") << QString("vor") << 3.0 << 4.0 << qQNaN();
    out << one << QString("image") << pixmap << 6.0 << 5.0 << qQNaN() << 5.0 << 6.0 << qQNaN();
    return octets;
}

} // namespace

class TestMapFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
    }

    void returnsWhatItWrote_data()
    {
        QTest::addColumn<int>("format");
        QTest::newRow("xml") << int(MapFile::Xml);
        QTest::newRow("binary") << int(MapFile::Map);
    }

    void returnsWhatItWrote()
    {
        QFETCH(const int, format);
        for (quint32 seed = 1; seed <= 20; ++seed) {
            const MapData map = MapMaker(seed).map();
            const QDir folder(m_folder->filePath(QString::number(seed))); // its own pictures
            QVERIFY(folder.mkpath("."));
            const QString path = folder.filePath("m");
            QCOMPARE(writeMap(path, MapFile::Format(format), map), QString());
            QString error;
            QVERIFY2(readMap(path, MapFile::Format(format), &error) == map, qPrintable(error));
            QCOMPARE(error, QString());
        }
    }

    void readsVersionOne()
    {
        QPixmap pixmap(3, 2);
        pixmap.fill(Qt::red);
        MapElementGroup group{"group", "class", {{"line", {{50.0, 8.0}, {51.5, -9.25, 100.0}}}}, {}, {}, {}, {}};
        group.labels.append({"label", "caption", {1.0, 2.0}});
        group.symbols.append({"symbol", "vor", {3.0, 4.0}});
        group.images.append({"image", "", pixmap, {6.0, 5.0}, {5.0, 6.0}});
        const MapData expected{"name", "title", "description", "author", "version", "comment", {group}};

        const QString path = writtenTo(m_folder->filePath("a.map"), versionOne(pixmap));
        QVERIFY(readMap(path, MapFile::Map) == expected);
        QCOMPARE(writeMap(path, MapFile::Map, expected), QString());
        QVERIFY(contentsOf(path).startsWith("MAP2"));
        QVERIFY(readMap(path, MapFile::Map) == expected);
    }

    void readsHandmadeXml()
    {
        const char *document =
            "<map><other><name>n</name><x/></other><group name='g' class='c'><!-- -->\n"
            "<polyline name='p'><coordinate> 100000N0200000E\n</coordinate><at>100000.50S0200000.25W</at>"
            "<coordinate>nowhere</coordinate></polyline><wrapped><name>not the map's</name>"
            "<symbol name='s'><x>1</x><type>a<b>not</b>&amp;b</type></symbol></wrapped></group></map>";
        const MapData map = readMap(writtenTo(m_folder->filePath("a.xml"), document), MapFile::Xml);
        QCOMPARE(map.name, QString("n"));
        QCOMPARE(map.groups.size(), 1);
        const QList<GeoCoordinate> points{{10.0, 20.0}, {-3600050 / 360000.0, -7200025 / 360000.0}, {}};
        QVERIFY(map.groups[0].polylines == QList<MapPolylineElement>({{"p", points}}));
        QVERIFY(map.groups[0].symbols == QList<MapSymbolElement>({{"s", "a&b", {}}}));
    }

    // Elements that stand in long rows are read another way; comments and plain text must not be.
    void readsRowsOfCoordinatesInPlace()
    {
        const QByteArray row = QByteArray("<coordinate>100000N0200000E</coordinate>\n").repeated(10);
        const QByteArray shape =
            "<group><polygon><!--" + row + "-->" + row + "<coordinate/>" + row + "</polygon></group>";
        const MapData map = readMap(writtenTo(m_folder->filePath("a.xml"), "<map>" + shape + "</map>"), MapFile::Xml);
        QCOMPARE(map.groups[0].polygons[0].points.size(), 21);
        QCOMPARE(map.groups[0].polygons[0].points.count(GeoCoordinate(10.0, 20.0)), 20);

        const QByteArray plain = "<map><title><![CDATA[" + row + "]]></title><name>&lt;" + "</name></map>";
        QCOMPARE(readMap(writtenTo(m_folder->filePath("b.xml"), plain), MapFile::Xml).title, QString(row));
        QString error;
        readMap(
            writtenTo(m_folder->filePath("c.xml"), "<map>\n<group>" + row + shape + "</map>"), MapFile::Xml, &error);
        QCOMPARE(error, QString("Failed to parse the map file at line 42."));
    }

    void readsLegacy()
    {
        const char *document =
            "<airport><default title='t' description='d' author='a' edition='e' comment='c'/>"
            "<line class='x' comment='one'><point lat='1.5' lon='-2.25'/><point lat='3'/></line>"
            "<line comment='two'/><polygon class='x' comment='area'><point lat='1' lon='2'/></polygon>"
            "<label lat='5' lon='6' name='n' content='text'/><zlabel class='' content='z'/><other/></airport>";
        const QString path = writtenTo(m_folder->filePath("a.mapx"), document);
        const MapElementGroup x{"x", "x", {{"one", {{1.5, -2.25}, {}}}}, {{"area", {{1.0, 2.0}}}}, {}, {}, {}};
        MapElementGroup nil{"nil", "nil", {{"two", {}}}, {}, {}, {}, {}};
        nil.labels = {{"n", "text", {5.0, 6.0}}, {"", "z", {}}};
        QString error;
        QVERIFY(readMap(path, MapFile::Legacy, &error) == (MapData{"", "t", "d", "a", "e", "c", {x, nil}}));
        QCOMPARE(error, QString());
        readMap(path, MapFile::Xml, &error);
        QCOMPARE(error, QString("This is not a valid VyxXML format map file."));
    }

    void findsGroupsByClass()
    {
        MapData map;
        map.groups = {{"one", "x", {}, {}, {}, {}, {}}, {"two", "x", {}, {}, {}, {}, {}}};
        QCOMPARE(getGroup(map, "x").name, QString("one"));
        QCOMPARE(getGroup(map, "one").className, QString("one")); // a name is no class
        QCOMPARE(&getGroup(map, "one"), &map.groups[2]);
        QCOMPARE(map.groups.size(), 3);
    }

    void namesImageFiles()
    {
        MapData map = MapMaker(1).map();
        QPixmap red(2, 2);
        red.fill(Qt::red);
        map.groups = {{"g", "c", {}, {}, {}, {},
            {{"../chart", "", red, {}, {}}, {"../chart", "", red, {}, {}}, {"", "", red, {}, {}}}}};
        const QString path = m_folder->filePath("a.xml");
        QCOMPARE(writeMap(path, MapFile::Xml, map), QString());
        const auto images = readMap(path, MapFile::Xml).groups[0].images;
        QCOMPARE(QSet<QString>({images[0].file, images[1].file, images[2].file}).size(), 3);
        QCOMPARE(images[2].file, QString("image.png"));
        for (const MapImageElement &image : images) {
            QVERIFY(
                QFile::exists(m_folder->filePath(image.file)) && !image.file.contains('/') && !image.pixmap.isNull());
        }
    }

    void leavesPicturesAloneThatAreTheSame()
    {
        QImage image(8, 8, QImage::Format_RGB32);
        image.fill(Qt::blue);
        const QString picture = m_folder->filePath("p.bmp");
        QVERIFY(image.save(picture, "png")); // writing it again would change the octets
        const QByteArray before = contentsOf(picture);
        MapData map;
        map.groups = {{"g", "c", {}, {}, {}, {}, {{"i", "p.bmp", QPixmap(picture), {}, {}}}}};
        QCOMPARE(writeMap(m_folder->filePath("a.xml"), MapFile::Xml, map), QString());
        QCOMPARE(contentsOf(picture), before);
        map.groups[0].images[0].pixmap.fill(Qt::red);
        QCOMPARE(writeMap(m_folder->filePath("a.xml"), MapFile::Xml, map), QString());
        QVERIFY(readMap(m_folder->filePath("a.xml"), MapFile::Xml) == map);
        map.groups[0].images[0].file = "p.unknown";
        QVERIFY(writeMap(m_folder->filePath("b.xml"), MapFile::Xml, map).contains("p.unknown"));
        QVERIFY(!QFile::exists(m_folder->filePath("b.xml")));
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

VYX_TEST(TestMapFile)
#include "tst_map_file.moc"
