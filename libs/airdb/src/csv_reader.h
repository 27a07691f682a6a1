#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class QIODevice;

namespace korvane::airdb {

// Goes through the rows of a CSV text: quotes, doubled quotes, line ends in quotes, either kind of line end, byte order
// mark; lines that begin with # and empty ones are passed over.
class CsvReader {
public:
    explicit CsvReader(QIODevice &device);

    // False at the end.
    bool next();
    // Of the row: blanks around them removed, unless they were in quotes.
    const QStringList &values() const { return m_values; }
    // Where the row starts, the first line being 1.
    int line() const { return m_line; }
    // The row's last quote was never closed, or it is not UTF-8.
    bool isDamaged() const { return m_isDamaged; }

private:
    bool readLine();
    void splitRow();
    void splitLine();
    void endValue();

    QIODevice &m_device;
    QString m_text;
    QString m_value;
    QStringList m_values;
    bool m_isInQuotes = false;
    bool m_wasQuoted = false;
    int m_line = 0;
    int m_lastLine = 0;
    bool m_isDamaged = false;
};

} // namespace korvane::airdb
