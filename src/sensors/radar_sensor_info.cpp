#include "sensors/radar_sensor_info.h"

#include "sensors/json_reader.h"

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
    object[QLatin1String("slant_range_corrected")] = m_slantRangeCorrected;
    return object;
}

bool RadarSensorInfo::setJsonObject(const QJsonObject &object)
{
    if (!SensorInfo::setJsonObject(object)) {
        return false;
    }
    auto values = reader(object);
    m_antennaAltitude = static_cast<int>(values.integer("antenna_altitude", LowestAntenna, HighestAntenna, 0));
    m_rotationPeriod = values.number("rotation_period", LongestPeriod, 0.0);
    m_primary = values.flag("psr");
    m_secondary = values.flag("ssr");
    m_modeS = values.flag("modes");
    m_coveragePrimary = values.unsignedInteger("psr_coverage", 0);
    m_coverageSecondary = values.unsignedInteger("ssr_coverage", 0);
    m_slantRangeCorrected = values.flag("slant_range_corrected");
    return true;
}

QList<double> RadarSensorInfo::coverages() const
{
    return {isPrimary() ? static_cast<double>(m_coveragePrimary) : 0.0,
        isSecondary() ? static_cast<double>(m_coverageSecondary) : 0.0};
}
