#include "sensors/sdps_sensor_info.h"

#include "sensors/json_number.h"

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
    m_coverage = unsignedValue(object[QLatin1String("coverage")], m_coverage);
    m_updateInterval = object[QLatin1String("update_interval")].toDouble(m_updateInterval);
    return true;
}
