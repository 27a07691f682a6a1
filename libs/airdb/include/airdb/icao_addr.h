#pragma once

#include "airdb/country.h"
#include "airdb/dict_items.h"

#include <memory>

namespace korvane::airdb {

struct Tables;

// A 24-bit aircraft address.
class ICAOAddr {
public:
    static constexpr quint32 Last = 0xFFFFFF;

    explicit ICAOAddr(quint32 address) : m_address(address) { }

    quint32 value() const { return m_address; }
    // All zeros and all ones are nobody's address.
    bool isValid() const { return m_address > 0 && m_address < Last; }
    // Six hexadecimal digits in capitals.
    QString toString() const;

private:
    quint32 m_address;
};

// What the database knows of an address. Keeps what it refers to alive, whatever becomes of the database.
class ICAOAddrInfo {
public:
    ICAOAddrInfo() = default;

    // There is a country or an aircraft.
    bool isValid() const;
    // Of registration, by the block that the address is in. Not valid where nobody holds it; lives as long as this.
    const Country &country() const;
    // The block is one of State aircraft only.
    bool isMilitary() const;
    // The aircraft itself, made from the database at each call. Not valid where the database has none.
    Aircraft aircraft() const;

private:
    friend class ICAOAddrDictionary;
    ICAOAddrInfo(std::shared_ptr<const Tables> tables, quint32 address);

    std::shared_ptr<const Tables> m_tables;
    quint32 m_address = 0;
    int m_block = -1;
};

} // namespace korvane::airdb
