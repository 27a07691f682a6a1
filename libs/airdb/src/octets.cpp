#include "octets.h"

#include <QStringDecoder>

namespace korvane::airdb {

bool OctetReader::take(qsizetype octets)
{
    m_isGood = m_isGood && octets <= m_octets.size() - m_at;
    if (m_isGood) {
        m_at += octets;
    }
    return m_isGood;
}

quint32 OctetReader::number(int octets)
{
    if (!take(octets)) {
        return 0;
    }
    quint32 value = 0;
    for (qsizetype i = m_at - octets; i < m_at; ++i) {
        value = value << 8 | static_cast<unsigned char>(m_octets.at(i));
    }
    return value;
}

QString OctetReader::text()
{
    const quint32 length = number(1);
    if (!take(length)) {
        return {};
    }
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder.decode(QByteArrayView(m_octets).sliced(m_at - length, length));
    m_isGood = !decoder.hasError();
    return text;
}

qsizetype OctetReader::count(qsizetype smallestRow, qsizetype mostRows)
{
    const qsizetype rows = number(4);
    m_isGood = m_isGood && rows <= mostRows && rows <= (m_octets.size() - m_at) / smallestRow;
    return m_isGood ? rows : 0;
}

void appendNumber(QByteArray &octets, quint32 value, int size)
{
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8) {
        octets.append(static_cast<char>(value >> shift & 0xFF));
    }
}

void appendText(QByteArray &octets, const QString &text)
{
    QByteArray utf8 = text.toUtf8();
    if (utf8.size() > 255) {
        qsizetype end = 255;
        while ((static_cast<unsigned char>(utf8.at(end)) & 0xC0) == 0x80) {
            --end;
        }
        utf8.truncate(end);
    }
    appendNumber(octets, static_cast<quint32>(utf8.size()), 1);
    octets.append(utf8);
}

} // namespace korvane::airdb
