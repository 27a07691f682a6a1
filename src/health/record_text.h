#pragma once

#include "engine/source_statistics.h"

#include <QString>

#include <functional>

struct _ast_datarecord_t;

// A record that was kept as an example, for people to read.
namespace RecordText {

// Calls look with the record, which lives during the call, where it is ASTERIX and a table reads it.
void read(const SourceStatistics &source, const ReportExample &example,
    const std::function<void(const _ast_datarecord_t &)> &look);
// The items with their fields, or why they cannot be told.
QString decoded(const SourceStatistics &source, const ReportExample &example);
// Sixteen octets a line, in hexadecimal, each line behind its offset; where the record is malformed, the octet at fault
// in brackets.
QString octets(const ReportExample &example);

} // namespace RecordText
