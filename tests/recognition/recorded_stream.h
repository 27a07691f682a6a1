#pragma once

#include "encoded_report.h"
#include "recognition/stream_analyser.h"

// Messages for an analyser, one a second after the other unless told otherwise.
class RecordedStream {
public:
    void add(const QByteArray &message) { addAt(m_second + 1.0, message); }

    void addAt(double second, const QByteArray &message)
    {
        m_second = second;
        m_analyser.add(message, m_start.addMSecs(qRound64(second * 1000)));
    }

    // Reports of category as encodedReport() has them, "; " between them.
    void report(int category, const QString &reports)
    {
        for (const QString &report : reports.split(QStringLiteral("; "))) {
            add(encodedReport(category, report));
        }
    }

    StreamFindings findings() const { return m_analyser.findings(); }

private:
    const QDateTime m_start = QDateTime({2024, 5, 1}, {12, 0}, Qt::UTC);
    double m_second = 0.0;
    StreamAnalyser m_analyser;
};

// Of another source than encodedReport() has, in the first record of the block.
inline QByteArray fromSource(QByteArray block, int sac, int sic)
{
    qsizetype at = 3;
    while (block[at] & 1) {
        ++at;
    }
    block[at + 1] = static_cast<char>(sac);
    block[at + 2] = static_cast<char>(sic);
    return block;
}
