#include "sensors/adsb_sensor_info.h"

#include "sensors/json_reader.h"

#include <QJsonArray>

QJsonObject AdsbSensorInfo::jsonObject() const
{
    auto object = SensorInfo::jsonObject();
    object[QLatin1String("coverage")] = static_cast<qint64>(m_coverage);
    object[QLatin1String("update_interval")] = m_updateInterval;
    object[QLatin1String("versions")] = QJsonArray::fromStringList(m_versions);
    return object;
}

bool AdsbSensorInfo::setJsonObject(const QJsonObject &object)
{
    if (!SensorInfo::setJsonObject(object)) {
        return false;
    }
    auto values = reader(object);
    m_coverage = values.unsignedInteger("coverage", m_coverage);
    m_updateInterval = values.number("update_interval", LongestPeriod, m_updateInterval);
    m_versions.clear();
    const auto versions = object[QLatin1String("versions")].toArray();
    for (const auto &version : versions) {
        if (version.isString()) {
            m_versions.append(version.toString());
        }
    }
    return true;
}
