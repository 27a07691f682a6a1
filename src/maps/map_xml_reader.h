#pragma once

#include <QByteArray>
#include <QString>
#include <QXmlStreamReader>

#include <functional>

class QIODevice;

// Reads the XML files of this folder, which may come from anywhere: what would cost far more memory or time than the
// file is long (elements nested deeper than MaxDepth or with more than MaxAttributes, document types with an internal
// subset) is an error of the document, and nothing recurses with it.
class MapXmlReader {
public:
    static constexpr int MaxDepth = 256;
    static constexpr int MaxAttributes = 256;
    // Called about every 64 KiB with the characters read so far; false ends the reading with an error.
    using Step = std::function<bool(qint64 charactersRead)>;

    // Reads what the device has at once, up to the size of the largest map file.
    explicit MapXmlReader(QIODevice *device);
    explicit MapXmlReader(const QByteArray &document);

    void setStep(Step step) { m_step = std::move(step); }

    // Every token of the document; past the end or an error, Invalid.
    QXmlStreamReader::TokenType next();
    // To the next child of the element whose start or whose last child's end was read; false at its end.
    bool nextChild();
    // The rest of the current element, of which only the text, without its children's.
    QString text();
    void skip() { text(); }
    // To the end of the document, which finds the errors that are left.
    void finish();

    QStringView name() const { return m_xml.name(); }
    QString attribute(QLatin1String name) const { return m_xml.attributes().value(name).toString(); }
    QXmlStreamAttributes attributes() const { return m_xml.attributes(); }
    // Of a processing instruction.
    QStringView instructionTarget() const { return m_xml.processingInstructionTarget(); }
    QStringView instructionData() const { return m_xml.processingInstructionData(); }

    void raiseError(const QString &text) { m_xml.raiseError(text); }
    bool hasError() const { return m_xml.hasError(); }
    QString errorString() const;
    qint64 lineNumber() const { return m_xml.lineNumber(); }

private:
    void check();

    QXmlStreamReader m_xml;
    Step m_step;
    qint64 m_lastStep = 0;
    int m_depth = 0;
    bool m_cut = false; // the document, before an element of too many attributes
};
