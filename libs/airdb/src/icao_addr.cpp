#include "airdb/icao_addr.h"

#include "tables.h"

namespace korvane::airdb {

QString ICAOAddr::toString() const
{
    return QString::number(m_address, 16).toUpper().rightJustified(6, QLatin1Char('0'));
}

ICAOAddrInfo::ICAOAddrInfo(std::shared_ptr<const Tables> tables, quint32 address)
    : m_tables(std::move(tables)), m_address(address), m_block(m_tables->pages.find(address))
{
}

bool ICAOAddrInfo::isValid() const
{
    return country().isValid() || (m_tables && m_tables->aircraft.contains(m_address));
}

const Country &ICAOAddrInfo::country() const
{
    static const Country none;
    const int index = m_block < 0 ? -1 : m_tables->blocks.at(m_block).country;
    return index < 0 ? none : m_tables->countries.at(index);
}

bool ICAOAddrInfo::isMilitary() const
{
    return m_block >= 0 && m_tables->blocks.at(m_block).isMilitary;
}

Aircraft ICAOAddrInfo::aircraft() const
{
    return m_tables ? m_tables->aircraftAt(m_address) : Aircraft();
}

} // namespace korvane::airdb
