#pragma once

#include "airdb/lib_air_db.h"

// One line on the holder of an address.
QString whoIs(const korvane::airdb::LibAirDB &database, quint32 address);
