#pragma once

#include "tracking/kept_report.h"

#include <QList>
#include <QString>

// Bits of a report, from the most significant bit of its first octet on.
struct BitRange {
    int first = 0;
    int count = 0;

    bool contains(int bit) const { return bit >= first && bit < first + count; }
    bool operator==(const BitRange &other) const = default;
};

// One value that a report holds.
struct ReportField {
    QString key; // what it is looked up by: "090/FL"; of Mode S and SIR-M a name such as "altitude"
    QString name; // for people: "I048/090/FL", "BDS 4,0 MCP/FCU selected altitude"
    QString title; // of the item, as published; may be empty
    QString value; // without its unit
    QString unit;
    BitRange bits;

    QString text() const { return unit.isEmpty() ? value : value + ' ' + unit; }
};

// A report taken apart.
struct ReportView {
    // Categories of those that are not ASTERIX.
    static constexpr int ModeS = -1;
    static constexpr int AleniaSirM = -2;

    int category = 0; // of ASTERIX; 0 where the octets could not be read
    QString name; // "CAT048, edition 1.32", "DF 17, type code 11"
    qint64 timeMs = 0; // of arrival
    QByteArray octets;
    QList<ReportField> fields; // in the order of their bits, registers of Mode S behind their items

    const ReportField *find(const QString &key) const;
    // The narrowest field that holds the bit; -1: none.
    int fieldAt(int bit) const;
    // "I048/090": what an item is called in full.
    QString itemName(const QString &item) const;
};

ReportView viewReport(const KeptReport &report);

// The report for other programs and people: a line of JSON as the recording tools write it, with a line feed; its
// octets as hexadecimal digits in pairs; its values, one a line.
QByteArray reportJson(const KeptReport &report);
QString reportHex(const ReportView &view);
QString reportText(const ReportView &view);
