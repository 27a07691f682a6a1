#include "maps/map_xml_reader.h"

#include "maps/map_file.h"

#include <QCoreApplication>
#include <QIODevice>

#include <algorithm>

namespace {

constexpr qint64 CharactersPerStep = 65536;

struct Text {
    Q_DECLARE_TR_FUNCTIONS(MapXmlReader)
};

bool isBlankOrZero(char octet) // zeros: of texts of two octets a character
{
    return octet == ' ' || octet == '\t' || octet == '\n' || octet == '\r' || octet == '\0';
}

// How much of the document comes before the first element of too many attributes. An XML reader compares each attribute
// with all others and would be busy for hours.
qsizetype readableSize(const QByteArray &document)
{
    qsizetype element = 0;
    int attributes = 0;
    for (auto at = document.cbegin(); at != document.cend(); ++at) {
        if (*at == '<') {
            element = at - document.cbegin();
            attributes = 0;
        } else if (*at == '=') {
            const auto value = std::find_if_not(at + 1, document.cend(), isBlankOrZero);
            attributes += value != document.cend() && (*value == '"' || *value == '\'');
            if (attributes > MapXmlReader::MaxAttributes) {
                return element;
            }
        }
    }
    return document.size();
}

// In pieces: a device gets the memory for all that it is asked for before it knows how much there is.
QByteArray contents(QIODevice &device)
{
    constexpr qint64 PieceSize = 65536;
    QByteArray octets;
    for (QByteArray piece = device.read(PieceSize); !piece.isEmpty() && octets.size() < MapFile::MaxFileSize;
         piece = device.read(PieceSize)) {
        octets += piece;
    }
    return octets;
}

} // namespace

MapXmlReader::MapXmlReader(QIODevice *device) : MapXmlReader(contents(*device)) { }

MapXmlReader::MapXmlReader(const QByteArray &document)
{
    const qsizetype size = readableSize(document);
    m_cut = size < document.size();
    m_xml.addData(document.left(size));
}

QString MapXmlReader::errorString() const
{
    return m_cut && m_xml.error() == QXmlStreamReader::PrematureEndOfDocumentError
        ? Text::tr("An element has too many attributes.")
        : m_xml.errorString();
}

QXmlStreamReader::TokenType MapXmlReader::next()
{
    if (m_xml.atEnd()) {
        return QXmlStreamReader::Invalid;
    }
    const auto token = m_xml.readNext();
    if (token == QXmlStreamReader::StartElement) {
        ++m_depth;
    } else if (token == QXmlStreamReader::EndElement) {
        --m_depth;
    }
    check();
    return m_xml.hasError() ? QXmlStreamReader::Invalid : m_xml.tokenType();
}

void MapXmlReader::check()
{
    if (m_depth > MaxDepth) {
        m_xml.raiseError(Text::tr("Elements are nested too deeply."));
    } else if (m_xml.isDTD() && m_xml.text().contains(QLatin1Char('['))) {
        m_xml.raiseError(Text::tr("Definitions of entities are not read."));
    }
    if (!m_step || m_xml.characterOffset() - m_lastStep < CharactersPerStep) {
        return;
    }
    m_lastStep = m_xml.characterOffset();
    if (!m_step(m_lastStep)) {
        m_xml.raiseError(QString());
    }
}

bool MapXmlReader::nextChild()
{
    for (;;) {
        switch (next()) {
        case QXmlStreamReader::StartElement:
            return true;
        case QXmlStreamReader::EndElement:
        case QXmlStreamReader::EndDocument:
        case QXmlStreamReader::Invalid:
            return false;
        default:
            break;
        }
    }
}

QString MapXmlReader::text()
{
    const int depth = m_depth;
    QString text;
    for (auto token = next(); token != QXmlStreamReader::Invalid && m_depth >= depth; token = next()) {
        const bool readable = token == QXmlStreamReader::Characters || token == QXmlStreamReader::EntityReference;
        if (readable && m_depth == depth) {
            text += m_xml.text();
        }
    }
    return text;
}

void MapXmlReader::finish()
{
    while (next() != QXmlStreamReader::Invalid) {
        continue;
    }
}
