#include "sensors/radar_sensor_info.h"

#include "sensors/json_number.h"

void RadarSensorInfo::setRadarType(bool psr, bool ssr, bool modeS)
{
    m_primary = psr;
    m_secondary = ssr || modeS;
    m_modeS = modeS;
}

QJsonObject RadarSensorInfo::jsonObject() const
{
    auto object = SensorInfo::jsonObject();
    object[QLatin1String("antenna_altitude")] = m_antennaAltitude;
    object[QLatin1String("rotation_period")] = m_rotationPeriod;
    object[QLatin1String("psr")] = m_primary;
    object[QLatin1String("ssr")] = m_secondary;
    object[QLatin1String("modes")] = m_modeS;
    object[QLatin1String("psr_coverage")] = static_cast<qint64>(m_coveragePrimary);
    object[QLatin1String("ssr_coverage")] = static_cast<qint64>(m_coverageSecondary);
    return object;
}

bool RadarSensorInfo::setJsonObject(const QJsonObject &object)
{
    if (!SensorInfo::setJsonObject(object)) {
        return false;
    }
    m_antennaAltitude = object[QLatin1String("antenna_altitude")].toInt();
    m_rotationPeriod = object[QLatin1String("rotation_period")].toDouble();
    m_primary = object[QLatin1String("psr")].toBool();
    m_secondary = object[QLatin1String("ssr")].toBool();
    m_modeS = object[QLatin1String("modes")].toBool();
    m_coveragePrimary = unsignedValue(object[QLatin1String("psr_coverage")], 0);
    m_coverageSecondary = unsignedValue(object[QLatin1String("ssr_coverage")], 0);
    return true;
}
