#include "maps/vyx_xml_map_file.h"

#include "maps/coordinate_runs.h"
#include "maps/map_image_reader.h"
#include "maps/map_image_writer.h"
#include "maps/map_xml_reader.h"
#include "maps/map_xml_text.h"

#include <QDebug>
#include <QDir>
#include <QSet>
#include <QXmlStreamWriter>

#include <algorithm>
#include <array>
#include <functional>
#include <utility>

namespace {

using MetaField = std::pair<QLatin1String, QString MapData::*>;
constexpr std::array<MetaField, 6> MetaFields{{
    {QLatin1String("name"), &MapData::name},
    {QLatin1String("title"), &MapData::title},
    {QLatin1String("description"), &MapData::description},
    {QLatin1String("author"), &MapData::author},
    {QLatin1String("version"), &MapData::version},
    {QLatin1String("comment"), &MapData::comment},
}};

const auto nameAttribute = QLatin1String("name");

// So many element names are logged, each once.
constexpr int MaxUnknownNames = 20;

class Reader {
public:
    Reader(MapXmlReader &xml, const CoordinateRuns &runs, const QDir &folder)
        : m_xml(xml), m_runs(runs), m_folder(folder)
    {
    }

    MapData read()
    {
        for (auto token = m_xml.next(); token != QXmlStreamReader::Invalid; token = m_xml.next()) {
            if (token == QXmlStreamReader::StartElement) {
                readElement();
            } else if (token == QXmlStreamReader::EndElement && m_xml.name() == QLatin1String("group")) {
                m_openGroups.removeLast();
            }
        }
        return m_map;
    }

private:
    void readElement()
    {
        if (m_xml.name() == QLatin1String("group")) {
            openGroup();
        } else if (m_openGroups.isEmpty() ? !readMeta() : !readMember(m_map.groups[m_openGroups.last()])) {
            logUnknown(m_xml.name().toString());
        }
    }

    void openGroup()
    {
        m_openGroups.append(m_map.groups.size());
        MapElementGroup &group = m_map.groups.emplaceBack();
        group.name = m_xml.attribute(nameAttribute);
        group.className = m_xml.attribute(QLatin1String("class"));
    }

    bool readMeta()
    {
        const auto found = std::find_if(MetaFields.begin(), MetaFields.end(),
            [this](const MetaField &field) { return field.first == m_xml.name(); });
        if (found == MetaFields.end()) {
            return false;
        }
        m_map.*found->second = m_xml.text();
        return true;
    }

    bool readMember(MapElementGroup &group)
    {
        const QString element = m_xml.name().toString();
        if (element == QLatin1String("polyline")) {
            group.polylines.append(readShape<MapPolylineElement>());
        } else if (element == QLatin1String("polygon")) {
            group.polygons.append(readShape<MapPolygonElement>());
        } else if (element == QLatin1String("label")) {
            group.labels.append(readLabel());
        } else if (element == QLatin1String("symbol")) {
            group.symbols.append(readSymbol());
        } else if (element == QLatin1String("image")) {
            group.images.append(readImage());
        } else {
            return false;
        }
        return true;
    }

    template <class Shape>
    Shape readShape()
    {
        Shape shape;
        shape.name = m_xml.attribute(nameAttribute);
        for (auto token = m_xml.next(); token != QXmlStreamReader::EndElement && token != QXmlStreamReader::Invalid;
             token = m_xml.next()) {
            if (token == QXmlStreamReader::StartElement) {
                shape.points.append(readCoordinate());
            } else if (token == QXmlStreamReader::ProcessingInstruction
                && CoordinateRuns::isRun(m_xml.instructionTarget())) {
                m_runs.append(m_xml.instructionData(), shape.points);
            }
        }
        return shape;
    }

    MapLabelElement readLabel()
    {
        MapLabelElement label;
        label.name = m_xml.attribute(nameAttribute);
        while (m_xml.nextChild()) {
            if (m_xml.name() == QLatin1String("caption")) {
                label.caption = m_xml.text();
            } else if (m_xml.name() == QLatin1String("coordinate")) {
                label.coordinate = readCoordinate();
            } else {
                m_xml.skip();
            }
        }
        return label;
    }

    MapSymbolElement readSymbol()
    {
        MapSymbolElement symbol;
        symbol.name = m_xml.attribute(nameAttribute);
        while (m_xml.nextChild()) {
            if (m_xml.name() == QLatin1String("type")) {
                symbol.type = m_xml.text();
            } else if (m_xml.name() == QLatin1String("coordinate")) {
                symbol.coordinate = readCoordinate();
            } else {
                m_xml.skip();
            }
        }
        return symbol;
    }

    MapImageElement readImage()
    {
        MapImageElement image;
        image.name = m_xml.attribute(nameAttribute);
        while (m_xml.nextChild()) {
            if (m_xml.name() == QLatin1String("file")) {
                image.file = m_xml.text();
            } else if (m_xml.name() == QLatin1String("northwest")) {
                image.northwest = readCoordinate();
            } else if (m_xml.name() == QLatin1String("southeast")) {
                image.southeast = readCoordinate();
            } else {
                m_xml.skip();
            }
        }
        if (!image.file.isEmpty()) {
            image.pixmap = readPixmap(m_folder.absoluteFilePath(image.file));
        }
        return image;
    }

    QPixmap readPixmap(const QString &path)
    {
        const QPixmap pixmap = m_images.readFile(path);
        if (pixmap.isNull()) {
            qDebug() << "Failed to load image file:" << path;
        }
        return pixmap;
    }

    GeoCoordinate readCoordinate() { return GeoCoordinate::fromATCString(m_xml.text().trimmed()); }

    void logUnknown(const QString &element)
    {
        if (m_unknown.size() >= MaxUnknownNames || m_unknown.contains(element)) {
            return;
        }
        m_unknown.insert(element);
        qDebug() << "Unknown element:" << element;
    }

    MapXmlReader &m_xml;
    const CoordinateRuns &m_runs;
    const QDir m_folder;
    MapImageReader m_images;
    MapData m_map;
    QList<qsizetype> m_openGroups; // a group in a group is one of its own
    QSet<QString> m_unknown;
};

class Writer {
public:
    // So many points are written; false ends it.
    using Step = std::function<bool(qint64 points)>;

    Writer(QIODevice *device, const QDir &folder, const Step &step) : m_xml(device), m_folder(folder), m_step(step)
    {
        m_xml.setAutoFormatting(true);
    }

    // The reason in the error where it is not the device's.
    bool write(const MapData &map, QString *error)
    {
        m_xml.writeStartDocument();
        m_xml.writeStartElement(QStringLiteral("map"));
        m_xml.writeStartElement(QStringLiteral("meta"));
        for (const MetaField &field : MetaFields) {
            writeText(field.first, map.*field.second);
        }
        m_xml.writeEndElement();
        m_xml.writeStartElement(QStringLiteral("data"));
        for (const MapElementGroup &group : map.groups) {
            if (!writeGroup(group, error)) {
                return false;
            }
        }
        m_xml.writeEndDocument();
        return !m_xml.hasError();
    }

private:
    bool writeGroup(const MapElementGroup &group, QString *error)
    {
        startElement(QStringLiteral("group"), group.name);
        m_xml.writeAttribute(QStringLiteral("class"), xmlText(group.className));
        const auto shape = [this](const QString &element) {
            return [this, element](const auto &written) { return writeShape(element, written.name, written.points); };
        };
        const bool good = writeEach(group.polylines, shape(QStringLiteral("polyline")))
            && writeEach(group.polygons, shape(QStringLiteral("polygon")))
            && writeEach(group.labels, [this](const MapLabelElement &label) { return writeLabel(label); })
            && writeEach(group.symbols, [this](const MapSymbolElement &symbol) { return writeSymbol(symbol); })
            && writeEach(group.images, [&](const MapImageElement &image) { return writeImage(image, error); });
        m_xml.writeEndElement();
        return good;
    }

    // False as soon as one is not written.
    template <class Element, class Write>
    bool writeEach(const QList<Element> &elements, const Write &write)
    {
        return std::all_of(elements.begin(), elements.end(), write);
    }

    bool writeLabel(const MapLabelElement &label)
    {
        return writePlace(
            QStringLiteral("label"), label.name, QStringLiteral("caption"), label.caption, label.coordinate);
    }

    bool writeSymbol(const MapSymbolElement &symbol)
    {
        return writePlace(
            QStringLiteral("symbol"), symbol.name, QStringLiteral("type"), symbol.type, symbol.coordinate);
    }

    bool writeShape(const QString &element, const QString &name, const QList<GeoCoordinate> &points)
    {
        startElement(element, name);
        for (const GeoCoordinate &point : points) {
            writeCoordinate(QStringLiteral("coordinate"), point);
        }
        m_xml.writeEndElement();
        return m_step(points.size());
    }

    bool writePlace(const QString &element, const QString &name, const QString &field, const QString &value,
        const GeoCoordinate &coordinate)
    {
        startElement(element, name);
        writeText(field, value);
        writeCoordinate(QStringLiteral("coordinate"), coordinate);
        m_xml.writeEndElement();
        return m_step(1);
    }

    bool writeImage(const MapImageElement &image, QString *error)
    {
        QString reason;
        const QString file = writeMapImage(image, m_folder, &reason);
        if (file.isEmpty()) {
            *error = VyxXmlMapFile::tr("Cannot write image file \"%1\": %2.").arg(image.file, reason);
            return false;
        }
        startElement(QStringLiteral("image"), image.name);
        writeCoordinate(QStringLiteral("northwest"), image.northwest);
        writeCoordinate(QStringLiteral("southeast"), image.southeast);
        writeText(QStringLiteral("file"), file);
        m_xml.writeEndElement();
        return m_step(1);
    }

    void startElement(const QString &element, const QString &name)
    {
        m_xml.writeStartElement(element);
        m_xml.writeAttribute(nameAttribute, xmlText(name));
    }

    void writeText(const QString &element, const QString &text) { m_xml.writeTextElement(element, xmlText(text)); }

    void writeCoordinate(const QString &element, const GeoCoordinate &coordinate)
    {
        m_xml.writeTextElement(element, coordinate.toATCString(GeoCoordinate::HighPrecision));
    }

    QXmlStreamWriter m_xml;
    const QDir m_folder;
    const Step m_step;
};

} // namespace

MapData VyxXmlMapFile::readFile()
{
    m_file.seek(0);
    const QByteArray document = m_file.readAll();
    const CoordinateRuns runs(document);
    MapXmlReader xml(runs.shortDocument());
    const double scale =
        static_cast<double>(document.size()) / static_cast<double>(std::max<qsizetype>(runs.shortDocument().size(), 1));
    xml.setStep([this, scale](qint64 characters) {
        return reportProgress(static_cast<qint64>(static_cast<double>(characters) * scale));
    });
    const bool valid = xml.nextChild() && xml.name() == QLatin1String("map");
    const MapData map = valid ? Reader(xml, runs, m_info.absoluteDir()).read() : MapData{};
    if (!valid && !xml.hasError()) {
        setLastError(tr("This is not a valid VyxXML format map file."));
    } else if (xml.hasError() && lastError().isEmpty()) {
        setLastError(tr("Failed to parse the map file at line %1.").arg(xml.lineNumber()));
    }
    return map;
}

bool VyxXmlMapFile::writeFile(const MapData &map)
{
    QString error;
    const auto step = [this](qint64 points) { return reportWritten(points); };
    const bool good = Writer(&output(), m_info.absoluteDir(), step).write(map, &error);
    if (!error.isEmpty()) {
        setLastError(error);
    }
    return good;
}
