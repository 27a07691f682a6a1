#include "map_samples.h"

#include "maps/map_index.h"
#include "test_program.h"

#include <QTemporaryDir>

class TestMapIndex : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void reads()
    {
        QTemporaryDir folder;
        const char *document = "<a><file>one.map</file><b><file visible='TRUE' priority='-3' minzoom='5' maxzoom='x' "
                               "format='legacy'> sub/t&amp;wo.mapx\n</file></b><file visible='true' format='?'/></a>";
        QString error("former");
        const auto entries = readMapIndex(writtenTo(folder.filePath("i"), document), &error);
        QCOMPARE(error, QString());
        const MapIndexEntry plain{"one.map", {}, {}, {}, {}, MapFile::Unknown};
        const MapIndexEntry full{"sub/t&wo.mapx", false, -3, 5, {}, MapFile::Legacy};
        QVERIFY(entries == QList<MapIndexEntry>({plain, full, {"", true, {}, {}, {}, MapFile::Unknown}}));
    }

    void returnsWhatItWrote()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("i");
        const QList<MapIndexEntry> entries{{"a<b>.xml", {}, {}, {}, {}, MapFile::Unknown},
            {"c d.map", false, 7, 0, 20000, MapFile::Map}, {"e", true, -1, {}, 4, MapFile::Xml}};
        QVERIFY(writeMapIndex(path, entries, nullptr));
        QVERIFY(readMapIndex(path, nullptr) == entries);
    }

    void tellsFailures()
    {
        QTemporaryDir folder;
        QString error;
        const QString path = folder.filePath("i");
        QVERIFY(readMapIndex(path, &error).isEmpty());
        QVERIFY2(error.startsWith(QString("Cannot open map index file \"%1\": ").arg(path)), qPrintable(error));
        QVERIFY(readMapIndex(writtenTo(path, "<a><file>one</file>"), &error).isEmpty());
        QVERIFY2(error.startsWith(QString("Malformed map index file \"%1\": ").arg(path)), qPrintable(error));
        QVERIFY(!writeMapIndex(folder.filePath("no/folder"), {}, &error));
        QVERIFY(!error.isEmpty());
    }
};

VYX_TEST(TestMapIndex)
#include "tst_map_index.moc"
