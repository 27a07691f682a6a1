#pragma once

#include "airdb/icao_addr_dictionary.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFileInfo>
#include <QList>

namespace korvane::airdb {

// Countries, aircraft addresses, system area codes and sensors, read from one file. Loaded on one thread; afterwards
// any number of threads may look things up.
class LibAirDB {
    Q_DECLARE_TR_FUNCTIONS(korvane::airdb::LibAirDB)

public:
    // Empty: nothing is found.
    LibAirDB();

    // Takes the place of what was loaded before, as a whole: false, with lastError() and nothing changed, when the file
    // cannot be read, is of another version, or is damaged in any way.
    bool loadFromDataFile(const QFileInfo &file);
    bool loadFromData(const QByteArray &data);
    // Why the last load failed; empty after one that did not.
    QString lastError() const { return m_lastError; }
    bool isEmpty() const;

    const ICAOAddrDictionary &getICAOAddrDict() const { return m_icaoAddrDict; }

    QList<Region> regions() const;
    QList<Country> countries() const;
    // By two-letter code, capitals or not. Not valid when there is none.
    Country country(const QString &isoCode2) const;
    // Not valid when there is none.
    SACDictItem sacDictItem(unsigned sac) const;
    SensorDictItem sensorDictItem(unsigned sac, unsigned sic) const;

    static const char *version();

private:
    friend class AirDBBuilder;
    const Tables &tables() const { return *m_icaoAddrDict.m_tables; }

    ICAOAddrDictionary m_icaoAddrDict;
    QString m_lastError;
};

} // namespace korvane::airdb
