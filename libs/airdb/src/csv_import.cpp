#include "csv_import.h"

#include "csv_reader.h"

#include <algorithm>

namespace korvane::airdb {

namespace {

constexpr qsizetype MaximumErrors = 100;

void addError(AirDBBuilder::Report &report, int line, const QString &reason)
{
    if (report.errors.size() < MaximumErrors) {
        report.errors.append({line, reason});
    }
}

// Where each of the columns stands, -1 for one that is missing.
QList<qsizetype> findColumns(const QStringList &names, const QStringList &columns)
{
    QList<qsizetype> places;
    for (const QString &column : columns) {
        places.append(names.indexOf(column));
    }
    return places;
}

QStringList pick(const QStringList &values, const QList<qsizetype> &places)
{
    QStringList picked;
    for (const qsizetype place : places) {
        picked.append(values.at(place));
    }
    return picked;
}

} // namespace

AirDBBuilder::Report CsvImport::run(QIODevice &csv, const QStringList &columns, const TakeRow &takeRow)
{
    AirDBBuilder::Report report;
    CsvReader reader(csv);
    if (!reader.next()) {
        addError(report, 0, tr("there is no line with the names of the columns"));
        return report;
    }
    const QStringList names = reader.values();
    const QList<qsizetype> places = findColumns(names, columns);
    if (const qsizetype missing = places.indexOf(-1); missing >= 0) {
        addError(report, reader.line(), tr("there is no column \"%1\"").arg(columns.at(missing)));
        return report;
    }
    while (reader.next()) {
        QString fault;
        if (reader.isDamaged()) {
            fault = tr("a quote is not closed, or the text is not UTF-8");
        } else if (reader.values().size() != names.size()) {
            fault = tr("%1 values in %2 columns").arg(reader.values().size()).arg(names.size());
        } else {
            fault = takeRow(pick(reader.values(), places));
        }
        if (fault.isEmpty()) {
            ++report.rows;
        } else {
            addError(report, reader.line(), fault);
        }
    }
    return report;
}

bool CsvImport::readHex(const QString &text, quint32 largest, quint32 &value)
{
    const bool isHex = !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar c) {
        return (c >= QLatin1Char('0') && c <= QLatin1Char('9'))
            || (c.toUpper() >= QLatin1Char('A') && c.toUpper() <= QLatin1Char('F'));
    });
    bool isNumber = false;
    value = text.toUInt(&isNumber, 16);
    return isHex && isNumber && value <= largest;
}

} // namespace korvane::airdb
