#pragma once

#include "engine/source_statistics.h"

#include <QString>

// A record that was kept as an example, for people to read.
namespace RecordText {

// The items with their fields, or why they cannot be told.
QString decoded(const SourceStatistics &source, const ReportExample &example);
// Sixteen octets a line, in hexadecimal, each line behind its offset; where the record is malformed, the octet at fault
// in brackets.
QString octets(const ReportExample &example);

} // namespace RecordText
