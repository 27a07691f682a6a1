#include "airdb/lib_air_db.h"

#include "data_file.h"
#include "tables.h"

#include <QFile>

namespace korvane::airdb {

LibAirDB::LibAirDB()
{
    // One table for all empty databases.
    static const auto empty = std::make_shared<const Tables>();
    m_icaoAddrDict.m_tables = empty;
}

bool LibAirDB::loadFromDataFile(const QFileInfo &file)
{
    QFile data(file.filePath());
    if (!data.open(QIODevice::ReadOnly)) {
        m_lastError = tr("%1 cannot be read: %2").arg(file.filePath(), data.errorString());
        return false;
    }
    const QByteArray octets = data.readAll();
    if (data.error() != QFileDevice::NoError) {
        m_lastError = tr("%1 cannot be read: %2").arg(file.filePath(), data.errorString());
        return false;
    }
    if (!loadFromData(octets)) {
        m_lastError = tr("%1: %2").arg(file.filePath(), m_lastError);
        return false;
    }
    return true;
}

bool LibAirDB::loadFromData(const QByteArray &data)
{
    DataFileError error = DataFileError::None;
    std::shared_ptr<const Tables> tables = readDataFile(data, error);
    m_lastError.clear();
    switch (error) {
    case DataFileError::None:
        m_icaoAddrDict.m_tables = std::move(tables);
        return true;
    case DataFileError::NotADatabase:
        m_lastError = tr("not an aircraft database");
        break;
    case DataFileError::OtherVersion:
        m_lastError = tr("aircraft database of another version");
        break;
    case DataFileError::Damaged:
        m_lastError = tr("damaged aircraft database");
        break;
    }
    return false;
}

bool LibAirDB::isEmpty() const
{
    return tables().countries.isEmpty() && tables().aircraft.isEmpty() && tables().sensors.isEmpty();
}

QList<Region> LibAirDB::regions() const
{
    return tables().regions;
}

QList<Country> LibAirDB::countries() const
{
    return tables().countries;
}

Country LibAirDB::country(const QString &isoCode2) const
{
    const int index = tables().countryIndex(isoCode2);
    return index < 0 ? Country() : tables().countries.at(index);
}

SACDictItem LibAirDB::sacDictItem(unsigned sac) const
{
    const int index = tables().sacs.value(sac, -1);
    return {sac, index < 0 ? Country() : tables().countries.at(index)};
}

SensorDictItem LibAirDB::sensorDictItem(unsigned sac, unsigned sic) const
{
    const bool isInRange = sac < 256 && sic < 256;
    return {sac, sic, isInRange ? tables().sensors.value(sac << 8 | sic) : QString()};
}

const char *LibAirDB::version()
{
    return KORVANE_AIRDB_VERSION;
}

} // namespace korvane::airdb
