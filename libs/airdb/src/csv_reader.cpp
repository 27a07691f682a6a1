#include "csv_reader.h"

#include <QIODevice>
#include <QStringDecoder>

namespace korvane::airdb {

namespace {

// A quote that is never closed must not gather the rest of a large file.
constexpr qsizetype MaximumValue = 4096;

} // namespace

CsvReader::CsvReader(QIODevice &device) : m_device(device) { }

bool CsvReader::next()
{
    do {
        m_isDamaged = false;
        if (!readLine()) {
            return false;
        }
    } while (m_text.trimmed().isEmpty() || m_text.startsWith(QLatin1Char('#')));
    m_line = m_lastLine;
    m_values.clear();
    splitRow();
    return true;
}

bool CsvReader::readLine()
{
    QByteArray line = m_device.readLine();
    if (line.isEmpty()) {
        return false;
    }
    ++m_lastLine;
    while (line.endsWith('\n') || line.endsWith('\r')) {
        line.chop(1);
    }
    if (m_lastLine == 1 && line.startsWith("\xEF\xBB\xBF")) {
        line.remove(0, 3);
    }
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    m_text = decoder.decode(line);
    m_isDamaged = m_isDamaged || decoder.hasError();
    return true;
}

// A row goes on in the next line as long as a quote is open.
void CsvReader::splitRow()
{
    m_isInQuotes = m_wasQuoted = false;
    splitLine();
    while (m_isInQuotes) {
        m_value += QLatin1Char('\n');
        if (m_value.size() > MaximumValue || !readLine()) {
            m_isDamaged = true;
            break;
        }
        splitLine();
    }
    endValue();
}

void CsvReader::splitLine()
{
    for (qsizetype i = 0; i < m_text.size(); ++i) {
        const QChar c = m_text.at(i);
        const bool isQuote = c == QLatin1Char('"');
        if (isQuote && m_isInQuotes && m_text.mid(i + 1, 1) == QLatin1String("\"")) {
            m_value += c;
            ++i;
        } else if (isQuote && (m_isInQuotes || m_value.trimmed().isEmpty())) {
            if (!m_isInQuotes) {
                m_value.clear();
            }
            m_isInQuotes = !m_isInQuotes;
            m_wasQuoted = true;
        } else if (c == QLatin1Char(',') && !m_isInQuotes) {
            endValue();
        } else if (m_isInQuotes || !m_wasQuoted || !c.isSpace()) {
            m_value += c;
        }
    }
}

void CsvReader::endValue()
{
    m_values.append(m_wasQuoted ? m_value : m_value.trimmed());
    m_value.clear();
    m_wasQuoted = false;
}

} // namespace korvane::airdb
