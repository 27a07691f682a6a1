#include "airdb/icao_addr_dictionary.h"

#include "tables.h"

namespace korvane::airdb {

ICAOAddrInfo ICAOAddrDictionary::getICAOAddrInfo(const ICAOAddr &address) const
{
    if (!address.isValid()) {
        return {};
    }
    return {m_tables, address.value()};
}

int ICAOAddrDictionary::aircraftCount() const
{
    return static_cast<int>(m_tables->aircraft.size());
}

} // namespace korvane::airdb
