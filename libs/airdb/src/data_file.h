#pragma once

#include "tables.h"

#include <memory>

namespace korvane::airdb {

// The file's octets, laid out as docs/airdb.md has it.
QByteArray writeDataFile(const Tables &tables);

enum class DataFileError { None, NotADatabase, OtherVersion, Damaged };

// Null with the error when the octets are not exactly what the writer makes: nothing in them is trusted.
std::unique_ptr<Tables> readDataFile(const QByteArray &octets, DataFileError &error);

} // namespace korvane::airdb
