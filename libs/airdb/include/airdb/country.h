#pragma once

#include <QString>

namespace korvane::airdb {

// A continent.
class Region {
public:
    Region() = default;
    Region(const QString &code, const QString &name) : m_code(code), m_name(name) { }

    bool isValid() const { return !m_code.isEmpty(); }
    QString code() const { return m_code; }
    QString name() const { return m_name; }

private:
    QString m_code;
    QString m_name;
};

// A country, a territory, or an organisation that holds aircraft addresses.
class Country {
public:
    Country() = default;
    Country(const QString &name, const QString &isoCode2, const QString &isoCode3, const Region &region)
        : m_name(name), m_isoCode2(isoCode2), m_isoCode3(isoCode3), m_region(region)
    {
    }

    bool isValid() const { return !m_isoCode2.isEmpty(); }
    // The short English name.
    QString name() const { return m_name; }
    // ISO 3166-1 codes in capitals. Organisations have a two-letter code of the private range and no three-letter one.
    QString isoCode2() const { return m_isoCode2; }
    QString isoCode3() const { return m_isoCode3; }
    // Not valid for organisations.
    Region region() const { return m_region; }

private:
    QString m_name;
    QString m_isoCode2;
    QString m_isoCode3;
    Region m_region;
};

} // namespace korvane::airdb
