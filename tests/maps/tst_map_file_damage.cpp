#include "map_samples.h"
#include "test_program.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtEndian>

#include <csignal>
#include <sys/resource.h>

namespace {

QByteArray number(quint32 value)
{
    QByteArray octets(4, '\0');
    qToBigEndian(value, octets.data());
    return octets;
}

const QByteArray noTexts = "MAP2" + QByteArray(24, '\0'); // so far a good binary map

// While it lives, no file grows beyond so many octets.
class FullDisk {
public:
    explicit FullDisk(rlim_t octets)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{octets, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &m_before); }

private:
    rlimit m_before;
};

} // namespace

class TestMapFileDamage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void refuses_data()
    {
        QTest::addColumn<int>("format");
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<QString>("expected");

        const auto row = [](const char *name, MapFile::Format format, const QByteArray &contents,
                             const QString &expected) { QTest::newRow(name) << int(format) << contents << expected; };
        const QString xmlLine = "Failed to parse the map file at line %1.";
        const QString octet = "Failed to parse the map file at byte %1.";
        const QString notXml = "This is not a valid VyxXML format map file.";
        row("another root", MapFile::Xml, "<airport/>", notXml);
        row("cut short", MapFile::Xml, "<map>\n<data>\n", xmlLine.arg(3));
        row("nested deeply", MapFile::Xml, "<map>\n" + QByteArray("<a>").repeated(100000), xmlLine.arg(2));
        row("attributes without end", MapFile::Xml, "<map>\n<a" + QByteArray(" a= ''").repeated(257), xmlLine.arg(2));
        row("entities", MapFile::Xml, "<!DOCTYPE map [<!ENTITY a 'aaa'>]><map><name>&a;</name></map>", xmlLine.arg(1));
        row("legacy, another root", MapFile::Legacy, "<map/>", "This is not a valid Legacy format map file.");
        row("legacy, cut short", MapFile::Legacy, "<airport>\n<line>",
            "Failed to parse the legacy map file at line 2.");
        row("legacy, more behind", MapFile::Legacy, "<airport/>\n<b/>",
            "Failed to parse the legacy map file at line 2.");
        row("other octets", MapFile::Map, "MAP3" + QByteArray(28, '\0'), "Cannot open map file \"%1\".");
        row("longer text than file", MapFile::Map, "MAP2" + number(0x7FFFFFFE), octet.arg(8));
        row("more groups than octets", MapFile::Map, noTexts + number(0xFFFFFFFE) + QByteArray(400, '\0'),
            octet.arg(32));
        row("more points than octets", MapFile::Map,
            noTexts + number(1) + number(0) + number(0) + number(1) + number(0) + number(0x0FFFFFFF)
                + QByteArray(99, '\0'),
            octet.arg(52));
    }

    void refuses()
    {
        QFETCH(const int, format);
        QFETCH(const QByteArray, contents);
        QFETCH(const QString, expected);
        QTemporaryDir folder;
        const QString path = writtenTo(folder.filePath("m"), contents);
        QString error;
        QVERIFY(readMap(path, MapFile::Format(format), &error) == MapData{});
        QCOMPARE(error, expected.contains("%1") ? expected.arg(path) : expected);
    }

    // Small on the disk, but not as a pixmap.
    void leavesOutPicturesThatGrow()
    {
        QTemporaryDir folder;
        for (const int side : {900, 9000}) {
            QImage image(side, side, QImage::Format_Mono);
            image.fill(0);
            QVERIFY(image.save(folder.filePath("p.png")));
            const char *document = "<map><group><image><file>p.png</file></image></group></map>";
            const MapData map = readMap(writtenTo(folder.filePath("a.xml"), document), MapFile::Xml);
            QCOMPARE(map.groups.at(0).images.at(0).pixmap.isNull(), side > 900);
        }
    }

    void doesNotOpen()
    {
        QTemporaryDir folder;
        const QString path = writtenTo(folder.filePath("m"), "kept");
        const auto error = [](MapFile::Format own, const QString &name, MapFile::Format format,
                               QIODevice::OpenMode mode) {
            const auto file = MapFile::create(own);
            const bool open = file->open(QFileInfo(name), format, mode);
            return open || file->isOpen() ? QString("open") : file->lastError();
        };
        const QString mismatch = "Map file format mismatch.";
        QCOMPARE(error(MapFile::Xml, path, MapFile::Map, QIODevice::ReadOnly), mismatch);
        QCOMPARE(error(MapFile::Xml, path, MapFile::Unknown, QIODevice::ReadOnly), mismatch);
        QCOMPARE(error(MapFile::Xml, path, MapFile::Xml, QIODevice::ReadWrite), "Invalid map file open mode.");
        QCOMPARE(error(MapFile::Legacy, path, MapFile::Legacy, QIODevice::WriteOnly),
            QString("Cannot open map file \"%1\".").arg(path));
        const QString unreadable = "Map file \"%1\" does not exist or is not readable.";
        for (const QString &name : {path + "none", folder.path(), QString("/dev/zero")}) {
            QCOMPARE(error(MapFile::Map, name, MapFile::Map, QIODevice::ReadOnly), unreadable.arg(name));
        }
        QVERIFY(
            error(MapFile::Map, path + "/x", MapFile::Map, QIODevice::WriteOnly).startsWith("Cannot open map file"));
        QVERIFY(
            error(MapFile::Map, folder.path(), MapFile::Map, QIODevice::WriteOnly).startsWith("Cannot open map file"));
        QCOMPARE(contentsOf(path), "kept");
    }

    void keepsTheFileWhenWritingFails_data()
    {
        QTest::addColumn<int>("format");
        QTest::newRow("xml") << int(MapFile::Xml);
        QTest::newRow("binary") << int(MapFile::Map);
    }

    void keepsTheFileWhenWritingFails()
    {
        QFETCH(const int, format);
        QTemporaryDir folder;
        const QString path = writtenTo(folder.filePath("m"), "kept");
        MapData map;
        map.comment = QString(100000, 'x');
        {
            const FullDisk disk(20000);
            QVERIFY(writeMap(path, MapFile::Format(format), map).startsWith("Cannot write map file"));
        }
        QCOMPARE(contentsOf(path), "kept");
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList("m"));
        QVERIFY(QFile::link("/dev/full", folder.filePath("full")));
        QVERIFY(writeMap(folder.filePath("full"), MapFile::Format(format), map).startsWith("Cannot write map file"));
        QVERIFY(!QFileInfo("/dev/full").isFile());
    }

    void isCancelled_data() { keepsTheFileWhenWritingFails_data(); }

    void isCancelled()
    {
        QFETCH(const int, format);
        QTemporaryDir folder;
        MapData map;
        map.groups = {
            {"g", "c", {{"p", QList<GeoCoordinate>(20000, {1.0, 2.0})}}, {}, QList<MapSymbolElement>(5000), {}, {}}};
        const QString path = folder.filePath("m");
        QCOMPARE(writeMap(path, MapFile::Format(format), map), QString());
        const auto file = MapFile::create(MapFile::Format(format));
        QList<qint64> steps;
        file->setProgress([&steps](qint64 read, qint64 total) {
            steps.append(read);
            return read < total / 2;
        });
        QVERIFY(file->open(QFileInfo(path), MapFile::Format(format), QIODevice::ReadOnly));
        QVERIFY(file->read() == MapData{});
        QCOMPARE(file->lastError(), "Reading was cancelled.");
        QVERIFY(
            steps.size() > 1 && std::is_sorted(steps.begin(), steps.end()) && steps.last() <= QFileInfo(path).size());
        file->setProgress({});
        QVERIFY(file->read() == map);
    }

    void writingIsCancelled_data() { keepsTheFileWhenWritingFails_data(); }

    // Also at the last moment.
    void writingIsCancelled()
    {
        QFETCH(const int, format);
        const QTemporaryDir folder;
        const QString path = folder.filePath("m");
        MapData map;
        map.groups = {{"g", "c", QList<MapPolylineElement>(9, {"p", QList<GeoCoordinate>(1000, {1.0, 2.0})}), {},
            QList<MapSymbolElement>(2000), QList<MapLabelElement>(2000), {}}};
        constexpr qint64 Points = 13000;
        QCOMPARE(writeMap(path, MapFile::Format(format), MapData{}), QString());
        const auto file = MapFile::create(MapFile::Format(format));
        for (const qint64 last : {Points / 2, Points, Points + 1}) {
            QList<qint64> steps;
            file->setProgress([&](qint64 written, qint64 total) {
                steps.append(written);
                return total == Points && written < last;
            });
            QVERIFY(file->open(QFileInfo(path), MapFile::Format(format), QIODevice::WriteOnly));
            QCOMPARE(file->write(map), last > Points);
            QCOMPARE(file->lastError(), last > Points ? QString() : "Writing was cancelled.");
            file->close();
            QVERIFY(steps.size() > 1 && std::is_sorted(steps.begin(), steps.end()));
            file->setProgress({});
            QVERIFY(file->open(QFileInfo(path), MapFile::Format(format), QIODevice::ReadOnly));
            QCOMPARE(file->read().groups.isEmpty(), last <= Points);
        }
    }
};

VYX_TEST(TestMapFileDamage)
#include "tst_map_file_damage.moc"
