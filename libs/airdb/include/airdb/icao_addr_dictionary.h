#pragma once

#include "airdb/icao_addr.h"

namespace korvane::airdb {

// From addresses to countries and aircraft.
class ICAOAddrDictionary {
public:
    // In constant time and without allocating, for the country at most three array accesses. Any thread, as long as the
    // database is not being loaded.
    ICAOAddrInfo getICAOAddrInfo(const ICAOAddr &address) const;

    int aircraftCount() const;

private:
    friend class LibAirDB;
    std::shared_ptr<const Tables> m_tables;
};

} // namespace korvane::airdb
