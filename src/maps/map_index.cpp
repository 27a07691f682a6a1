#include "maps/map_index.h"

#include "maps/map_xml_reader.h"
#include "maps/map_xml_text.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QXmlStreamWriter>

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(MapIndex)
};

void report(QString *error, const QString &text)
{
    if (error) {
        *error = text;
    }
}

// A number that cannot be read states nothing.
std::optional<int> number(const MapXmlReader &xml, QLatin1String name)
{
    bool good = false;
    const int value = xml.attributes().value(name).trimmed().toInt(&good);
    return good ? std::optional<int>(value) : std::nullopt;
}

MapIndexEntry readEntry(MapXmlReader &xml)
{
    MapIndexEntry entry;
    if (xml.attributes().hasAttribute(QLatin1String("visible"))) {
        entry.visible = xml.attribute(QLatin1String("visible")) == QLatin1String("true");
    }
    entry.priority = number(xml, QLatin1String("priority"));
    entry.minZoom = number(xml, QLatin1String("minzoom"));
    entry.maxZoom = number(xml, QLatin1String("maxzoom"));
    entry.format = MapFile::formatFromString(xml.attribute(QLatin1String("format")));
    entry.file = xml.text().trimmed();
    return entry;
}

void writeNumber(QXmlStreamWriter &xml, const QString &name, const std::optional<int> &value)
{
    if (value) {
        xml.writeAttribute(name, QString::number(*value));
    }
}

void writeEntry(QXmlStreamWriter &xml, const MapIndexEntry &entry)
{
    xml.writeStartElement(QStringLiteral("file"));
    if (entry.visible) {
        xml.writeAttribute(
            QStringLiteral("visible"), *entry.visible ? QStringLiteral("true") : QStringLiteral("false"));
    }
    writeNumber(xml, QStringLiteral("priority"), entry.priority);
    writeNumber(xml, QStringLiteral("minzoom"), entry.minZoom);
    writeNumber(xml, QStringLiteral("maxzoom"), entry.maxZoom);
    if (entry.format != MapFile::Unknown) {
        xml.writeAttribute(QStringLiteral("format"), MapFile::formatToString(entry.format));
    }
    xml.writeCharacters(xmlText(entry.file));
    xml.writeEndElement();
}

} // namespace

QString pathInMapIndex(const QString &file, const QString &indexFile)
{
    const QString absolute = QDir::cleanPath(QFileInfo(file).absoluteFilePath());
    const QString relative = QFileInfo(indexFile).absoluteDir().relativeFilePath(absolute);
    return relative.startsWith(QLatin1String("../")) ? absolute : relative;
}

QList<MapIndexEntry> readMapIndex(const QString &fileName, QString *error)
{
    report(error, {});
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        report(error, Text::tr("Cannot open map index file \"%1\": %2.").arg(fileName, file.errorString()));
        return {};
    }
    MapXmlReader xml(&file);
    QList<MapIndexEntry> entries;
    for (auto token = xml.next(); token != QXmlStreamReader::Invalid; token = xml.next()) {
        if (token == QXmlStreamReader::StartElement && xml.name() == QLatin1String("file")) {
            entries.append(readEntry(xml));
        }
    }
    if (!xml.hasError()) {
        return entries;
    }
    report(error, Text::tr("Malformed map index file \"%1\": %2.").arg(fileName, xml.errorString()));
    return {};
}

bool writeMapIndex(const QString &fileName, const QList<MapIndexEntry> &entries, QString *error)
{
    report(error, {});
    QSaveFile file(fileName);
    if (file.open(QIODevice::WriteOnly)) {
        QXmlStreamWriter xml(&file);
        xml.setAutoFormatting(true);
        xml.writeStartDocument();
        xml.writeStartElement(QStringLiteral("maps"));
        for (const MapIndexEntry &entry : entries) {
            writeEntry(xml, entry);
        }
        xml.writeEndDocument();
    }
    if (file.isOpen() && file.commit()) {
        return true;
    }
    report(error, Text::tr("Cannot write map index file \"%1\": %2.").arg(fileName, file.errorString()));
    return false;
}
