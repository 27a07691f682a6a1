#include "maps/map_style_sheet.h"

#include "maps/map_xml_reader.h"
#include "maps/map_xml_text.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QXmlStreamWriter>

#include <algorithm>
#include <array>
#include <utility>

namespace {

// Beyond these a painter would be busy for minutes.
constexpr int MaxPenWidth = 1000;
constexpr int MaxPointSize = 1000;

constexpr int Indent = 2;

constexpr std::array<std::pair<Qt::PenStyle, QLatin1String>, 5> LineNames{{
    {Qt::SolidLine, QLatin1String("solid")},
    {Qt::DashLine, QLatin1String("dash")},
    {Qt::DotLine, QLatin1String("dot")},
    {Qt::DashDotLine, QLatin1String("dashdot")},
    {Qt::DashDotDotLine, QLatin1String("dashdotdot")},
}};

using MetaField = std::pair<QLatin1String, QString MapStyleSheet::*>;
constexpr std::array<MetaField, 6> MetaFields{{
    {QLatin1String("name"), &MapStyleSheet::name},
    {QLatin1String("title"), &MapStyleSheet::title},
    {QLatin1String("description"), &MapStyleSheet::description},
    {QLatin1String("author"), &MapStyleSheet::author},
    {QLatin1String("version"), &MapStyleSheet::version},
    {QLatin1String("comment"), &MapStyleSheet::comment},
}};

struct Text {
    Q_DECLARE_TR_FUNCTIONS(MapStyleSheet)
};

bool fail(QString *errorMessage, const QString &text)
{
    if (errorMessage) {
        *errorMessage = text;
    }
    return false;
}

Qt::PenStyle lineStyle(const QString &text)
{
    const auto found =
        std::find_if(LineNames.begin(), LineNames.end(), [&text](const auto &line) { return line.second == text; });
    return found != LineNames.end() ? found->first : Qt::SolidLine;
}

QString lineName(Qt::PenStyle style)
{
    const auto found =
        std::find_if(LineNames.begin(), LineNames.end(), [style](const auto &line) { return line.first == style; });
    return found != LineNames.end() ? found->second : LineNames.front().second;
}

// A text that is no colour leaves the former one.
QColor readColor(MapXmlReader &xml, const QColor &former)
{
    const QString text = xml.text().trimmed();
    return QColor::isValidColor(text) ? QColor(text) : former;
}

void readPen(MapXmlReader &xml, QPen &pen)
{
    while (xml.nextChild()) {
        if (xml.name() == QLatin1String("color")) {
            pen.setColor(readColor(xml, pen.color()));
        } else if (xml.name() == QLatin1String("line")) {
            pen.setStyle(lineStyle(xml.text()));
        } else if (xml.name() == QLatin1String("width")) {
            pen.setWidth(std::clamp(xml.text().toInt(), 0, MaxPenWidth));
        } else {
            xml.skip();
        }
    }
}

void readBrush(MapXmlReader &xml, QBrush &brush)
{
    while (xml.nextChild()) {
        if (xml.name() == QLatin1String("color")) {
            brush.setColor(readColor(xml, brush.color()));
        } else if (xml.name() == QLatin1String("pattern")) {
            brush.setStyle(xml.text() == QLatin1String("cross") ? Qt::CrossPattern : Qt::SolidPattern);
        } else {
            xml.skip();
        }
    }
}

void readFont(MapXmlReader &xml, QFont &font)
{
    while (xml.nextChild()) {
        if (xml.name() == QLatin1String("family")) {
            font.setFamily(xml.text());
        } else if (xml.name() == QLatin1String("point")) {
            font.setPointSize(std::clamp(xml.text().toInt(), 1, MaxPointSize));
        } else {
            xml.skip();
        }
    }
}

MapStyleClass readClass(MapXmlReader &xml)
{
    MapStyleClass style = defaultStyleClass(xml.attribute(QLatin1String("name")));
    while (xml.nextChild()) {
        if (xml.name() == QLatin1String("color")) {
            style.color = readColor(xml, style.color);
            style.pen.setColor(style.color);
            style.brush.setColor(style.color);
        } else if (xml.name() == QLatin1String("pen")) {
            readPen(xml, style.pen);
        } else if (xml.name() == QLatin1String("brush")) {
            readBrush(xml, style.brush);
        } else if (xml.name() == QLatin1String("font")) {
            readFont(xml, style.font);
        } else {
            xml.skip();
        }
    }
    return style;
}

void readMeta(MapXmlReader &xml, MapStyleSheet &sheet)
{
    while (xml.nextChild()) {
        const auto found = std::find_if(
            MetaFields.begin(), MetaFields.end(), [&xml](const MetaField &field) { return field.first == xml.name(); });
        if (found != MetaFields.end()) {
            sheet.*found->second = xml.text();
        } else {
            xml.skip();
        }
    }
}

void readStyle(MapXmlReader &xml, MapStyleSheet &sheet)
{
    while (xml.nextChild()) {
        if (xml.name() == QLatin1String("class")) {
            sheet.setStyle(readClass(xml));
        } else {
            xml.skip();
        }
    }
}

void readSheet(MapXmlReader &xml, MapStyleSheet &sheet)
{
    if (xml.nextChild() && xml.name() != QLatin1String("map")) {
        xml.raiseError(Text::tr("This is not a valid map style sheet."));
    }
    while (xml.nextChild()) {
        if (xml.name() == QLatin1String("meta")) {
            readMeta(xml, sheet);
        } else if (xml.name() == QLatin1String("style")) {
            readStyle(xml, sheet);
        } else if (xml.name() == QLatin1String("comment")) { // older sheets have it here
            sheet.comment = xml.text();
        } else {
            xml.skip();
        }
    }
    xml.finish();
}

QString colorText(const QColor &color)
{
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

void writeText(QXmlStreamWriter &xml, const QString &name, const QString &text)
{
    xml.writeTextElement(name, xmlText(text));
}

void writeClass(QXmlStreamWriter &xml, const MapStyleClass &style)
{
    xml.writeStartElement(QStringLiteral("class"));
    xml.writeAttribute(QStringLiteral("name"), xmlText(style.name));
    writeText(xml, QStringLiteral("color"), colorText(style.color));
    xml.writeStartElement(QStringLiteral("pen"));
    writeText(xml, QStringLiteral("color"), colorText(style.pen.color()));
    writeText(xml, QStringLiteral("line"), lineName(style.pen.style()));
    writeText(xml, QStringLiteral("width"), QString::number(style.pen.width()));
    xml.writeEndElement();
    xml.writeStartElement(QStringLiteral("brush"));
    writeText(xml, QStringLiteral("color"), colorText(style.brush.color()));
    const bool crossed = style.brush.style() == Qt::CrossPattern;
    writeText(xml, QStringLiteral("pattern"), crossed ? QStringLiteral("cross") : QStringLiteral("solid"));
    xml.writeEndElement();
    xml.writeStartElement(QStringLiteral("font"));
    writeText(xml, QStringLiteral("family"), style.font.family());
    if (style.font.pointSize() > 0) { // a font whose size is set in pixels has none
        writeText(xml, QStringLiteral("point"), QString::number(style.font.pointSize()));
    }
    xml.writeEndElement();
    xml.writeEndElement();
}

void writeSheet(QIODevice &device, const MapStyleSheet &sheet)
{
    QXmlStreamWriter xml(&device);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(Indent);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("map"));
    xml.writeStartElement(QStringLiteral("meta"));
    for (const MetaField &field : MetaFields) {
        writeText(xml, field.first, sheet.*field.second);
    }
    xml.writeEndElement();
    xml.writeStartElement(QStringLiteral("style"));
    for (const QString &name : sheet.names()) {
        writeClass(xml, sheet.style(name));
    }
    xml.writeEndDocument();
}

// The copy is made under another name first, so that an older backup is lost only to a whole new one.
bool backUp(const QString &fileName)
{
    const QString backup = fileName + QStringLiteral(".bak");
    const QString unfinished = backup + QStringLiteral("~");
    QFile::remove(unfinished);
    if (!QFile::copy(fileName, unfinished)) {
        return false;
    }
    return (!QFile::exists(backup) || QFile::remove(backup)) && QFile::rename(unfinished, backup);
}

} // namespace

MapStyleClass defaultStyleClass(const QString &name)
{
    const QColor black(Qt::black);
    return {name, black, QPen(black, 1.0, Qt::SolidLine), QBrush(black, Qt::SolidPattern), QFont()};
}

bool MapStyleSheet::load(const QString &fileName, QString *errorMessage)
{
    *this = {};
    const QFileInfo info(fileName);
    const QString path = info.absoluteFilePath();
    if (!info.isFile() || !info.isReadable()) {
        return fail(errorMessage, Text::tr("Style sheet \"%1\" does not exist or is not readable.").arg(path));
    }
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        return fail(errorMessage, file.errorString());
    }
    MapXmlReader xml(&file);
    MapStyleSheet sheet;
    readSheet(xml, sheet);
    if (xml.hasError()) {
        return fail(errorMessage, xml.errorString());
    }
    sheet.m_valid = true;
    *this = sheet;
    fail(errorMessage, {});
    return true;
}

bool MapStyleSheet::save(const QString &fileName, QString *errorMessage) const
{
    const QString folder = QFileInfo(fileName).absolutePath();
    if (!QDir().mkpath(folder)) {
        return fail(errorMessage, Text::tr("Cannot create directory \"%1\".").arg(folder));
    }
    if (QFile::exists(fileName) && !backUp(fileName)) {
        return fail(errorMessage, Text::tr("Cannot write backup file \"%1\".").arg(fileName + QStringLiteral(".bak")));
    }
    QSaveFile file(fileName);
    if (file.open(QIODevice::WriteOnly)) {
        writeSheet(file, *this);
    }
    if (!file.isOpen() || !file.commit()) {
        return fail(errorMessage, file.errorString());
    }
    fail(errorMessage, {});
    return true;
}

MapStyleClass MapStyleSheet::style(const QString &className) const
{
    const auto found = m_classes.constFind(className);
    return found != m_classes.constEnd() ? *found : defaultStyleClass(className);
}

void MapStyleSheet::setStyle(const MapStyleClass &style)
{
    m_classes.insert(style.name, style);
}
