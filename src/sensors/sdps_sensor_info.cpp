#include "sensors/sdps_sensor_info.h"

#include "sensors/json_reader.h"

QJsonObject SdpsSensorInfo::jsonObject() const
{
    auto object = SensorInfo::jsonObject();
    object[QLatin1String("coverage")] = static_cast<qint64>(m_coverage);
    object[QLatin1String("update_interval")] = m_updateInterval;
    return object;
}

bool SdpsSensorInfo::setJsonObject(const QJsonObject &object)
{
    if (!SensorInfo::setJsonObject(object)) {
        return false;
    }
    auto values = reader(object);
    m_coverage = values.unsignedInteger("coverage", m_coverage);
    m_updateInterval = values.number("update_interval", LongestPeriod, m_updateInterval);
    return true;
}
