// Writes the corpus of the map fuzzers into FOLDER/fuzz_map_binary and FOLDER/fuzz_map_xml: make_map_corpus FOLDER

#include "maps/map_file.h"
#include "maps/map_index.h"
#include "maps/map_style_sheet.h"

#include <QDir>
#include <QGuiApplication>

#include <cstdio>

namespace {

const QByteArray Prefix(3, '\0'); // which the fuzzers leave out

MapData sampleMap()
{
    QPixmap pixmap(3, 2);
    pixmap.fill(QColor(200, 100, 50, 128));
    MapElementGroup group;
    group.name = QStringLiteral("coast");
    group.className = QStringLiteral("land");
    group.polylines.append({QStringLiteral("line"), QList<GeoCoordinate>(6, {50.5, 8.25})});
    group.polygons.append({QStringLiteral("area"), {{1.0, 2.0}, {3.0, -4.0, 100.0}, {}}});
    group.labels.append({QStringLiteral("label"), QStringLiteral("a\nb"), {5.0, 6.0}});
    group.symbols.append({QStringLiteral("symbol"), QStringLiteral("vor"), {-7.0, 8.0}});
    group.images.append({QStringLiteral("image"), QStringLiteral("i.png"), pixmap, {2.0, 1.0}, {1.0, 2.0}});
    MapElementGroup other;
    other.className = QStringLiteral("nil");
    return {"sample", "title", "description", "author", "1", "comment", {group, other}};
}

bool prefixFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite)) {
        return false;
    }
    const QByteArray octets = Prefix + file.readAll();
    return file.seek(0) && file.write(octets) == octets.size();
}

bool writeMap(const QString &path, MapFile::Format format)
{
    const auto file = MapFile::create(format);
    const bool good = file->open(QFileInfo(path), format, QIODevice::WriteOnly) && file->write(sampleMap());
    file->close();
    return good && file->lastError().isEmpty() && prefixFile(path);
}

bool writeVersionOne(const QString &from, const QString &to)
{
    QFile source(from);
    QFile target(to);
    if (!source.open(QIODevice::ReadOnly) || !target.open(QIODevice::WriteOnly)) {
        return false;
    }
    QByteArray octets = source.readAll();
    const QByteArray name("\0\0\0\x0a\0i\0.\0p\0n\0g", 14);
    octets.replace("MAP2", "MAP1").replace(name, "");
    return target.write(octets) == octets.size();
}

bool writeText(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(Prefix + text) > 0;
}

bool writeStyles(const QString &path)
{
    MapStyleSheet sheet;
    sheet.name = QStringLiteral("sheet");
    MapStyleClass style = defaultStyleClass(QStringLiteral("land"));
    style.pen = QPen(QColor(1, 2, 3, 4), 2, Qt::DashLine);
    style.brush = QBrush(Qt::red, Qt::CrossPattern);
    style.font = QFont(QStringLiteral("Sans"), 9);
    sheet.setStyle(style);
    return sheet.save(path, nullptr) && prefixFile(path);
}

bool writeAll(const QDir &binary, const QDir &xml)
{
    const char *airport = "<airport><default title='t' edition='1'/><line class='x'><point lat='1' lon='2'/></line>"
                          "<polygon><point lat='3' lon='-4'/></polygon><zlabel lat='5' lon='6' content='c'/></airport>";
    const QList<MapIndexEntry> entries{
        {"a.xml", true, 1, 2, 3, MapFile::Xml}, {"b.map", {}, {}, {}, {}, MapFile::Unknown}};
    const QString index = xml.filePath("index.xml");
    return writeMap(binary.filePath("sample.map"), MapFile::Map)
        && writeVersionOne(binary.filePath("sample.map"), binary.filePath("version1.map"))
        && writeMap(xml.filePath("sample.xml"), MapFile::Xml) && QFile::remove(xml.filePath("i.png"))
        && writeText(xml.filePath("airport.mapx"), airport) && writeStyles(xml.filePath("style.mss"))
        && writeMapIndex(index, entries, nullptr) && prefixFile(index);
}

} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication app(argc, argv);
    const QDir folder(app.arguments().value(1, QStringLiteral(".")));
    const QDir binary(folder.filePath("fuzz_map_binary"));
    const QDir xml(folder.filePath("fuzz_map_xml"));
    if (binary.mkpath(".") && xml.mkpath(".") && writeAll(binary, xml)) {
        return 0;
    }
    std::fputs("cannot write the corpus\n", stderr);
    return 1;
}
