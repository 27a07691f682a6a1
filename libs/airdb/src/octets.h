#pragma once

#include <QByteArray>
#include <QString>

namespace korvane::airdb {

// Reads numbers and texts off the front of octets. The first step past the end fails, and so does everything after it.
// Texts are UTF-8 of up to 255 octets behind an octet with their length; numbers are big-endian.
class OctetReader {
public:
    explicit OctetReader(const QByteArray &octets) : m_octets(octets) { }

    bool isGood() const { return m_isGood; }
    void fail() { m_isGood = false; }
    bool atEnd() const { return m_at == m_octets.size(); }
    qsizetype at() const { return m_at; }

    quint32 number(int octets);
    QString text();
    // The number of rows of a table. Fails where the octets left could not hold so many, so that a number made up costs
    // no memory, and where there are more than the table may have.
    qsizetype count(qsizetype smallestRow, qsizetype mostRows);

private:
    bool take(qsizetype octets);

    QByteArray m_octets;
    qsizetype m_at = 0;
    bool m_isGood = true;
};

// The inverse. Longer texts are cut, at the end of a character.
void appendNumber(QByteArray &octets, quint32 value, int size);
void appendText(QByteArray &octets, const QString &text);

} // namespace korvane::airdb
