#pragma once

#include "airdb/air_db_builder.h"

#include <functional>

namespace korvane::airdb {

// Takes a CSV text row by row, its columns found by their names.
class CsvImport {
    Q_DECLARE_TR_FUNCTIONS(korvane::airdb::CsvImport)

public:
    // One row's values in the order in which the columns were asked for. Returns what is wrong with them, or nothing.
    using TakeRow = std::function<QString(const QStringList &values)>;

    static AirDBBuilder::Report run(QIODevice &csv, const QStringList &columns, const TakeRow &takeRow);

    // Hexadecimal digits and nothing else, at most the largest value.
    static bool readHex(const QString &text, quint32 largest, quint32 &value);
};

} // namespace korvane::airdb
