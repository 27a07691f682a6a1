#include "sensors/smr_sensor_info.h"

#include "sensors/json_reader.h"

namespace {
constexpr double LargestCoverage = 100000.0; // nautical miles
} // namespace

QJsonObject SmrSensorInfo::jsonObject() const
{
    auto object = SensorInfo::jsonObject();
    object[QLatin1String("antenna_altitude")] = m_antennaAltitude;
    object[QLatin1String("rotation_period")] = m_rotationPeriod;
    object[QLatin1String("coverage")] = m_coverage;
    object[QLatin1String("acp")] = static_cast<qint64>(m_acp);
    return object;
}

bool SmrSensorInfo::setJsonObject(const QJsonObject &object)
{
    if (!SensorInfo::setJsonObject(object)) {
        return false;
    }
    auto values = reader(object);
    m_antennaAltitude =
        static_cast<int>(values.integer("antenna_altitude", LowestAntenna, HighestAntenna, m_antennaAltitude));
    m_rotationPeriod = values.number("rotation_period", LongestPeriod, m_rotationPeriod);
    m_coverage = values.number("coverage", LargestCoverage, m_coverage);
    m_acp = values.unsignedInteger("acp", 0);
    return true;
}
