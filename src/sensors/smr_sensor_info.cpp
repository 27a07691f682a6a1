#include "sensors/smr_sensor_info.h"

#include "sensors/json_number.h"

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
    m_antennaAltitude = object[QLatin1String("antenna_altitude")].toInt(m_antennaAltitude);
    m_rotationPeriod = object[QLatin1String("rotation_period")].toDouble(m_rotationPeriod);
    m_coverage = object[QLatin1String("coverage")].toDouble(m_coverage);
    m_acp = unsignedValue(object[QLatin1String("acp")], 0);
    return true;
}
